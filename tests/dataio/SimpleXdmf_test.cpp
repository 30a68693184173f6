#include "dataio/SimpleXdmf.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <filesystem>

#include "dataio/failures.h"
#include "support/Process.h"
#include "support/TempDir.h"
#include "support/Xml.h"

namespace {

using dataio::SimpleXdmf;
using failures::standardErrorOf;
using ::testing::ElementsAre;

const std::string HEADER =
    "<?xml version=\"1.0\" ?>\n"
    "<!DOCTYPE Xdmf SYSTEM \"Xdmf.dtd\" []>\n";
const std::string ERROR = "[SIMPLE XDMF ERROR] ";

class SimpleXdmfTest : public ::testing::Test {
 protected:
  /// The document behind its header.
  std::string body() {
    xdmf.generate(name);
    const std::string text = support::readFile(name);
    EXPECT_EQ(text.substr(0, HEADER.size()), HEADER);
    EXPECT_NO_THROW(const support::Xml wellFormed(text)) << text;
    return text.substr(HEADER.size());
  }

  /// The start tag of one element of the kind to which `action` adds something.
  template <class Action>
  std::string tagOf(const std::string& tag, Action&& action) {
    xdmf.beginElement(tag);
    action();
    xdmf.endElement(tag);
    const std::string text = body();
    const std::size_t begin = text.find('\n') + 1;
    return text.substr(begin, text.find('\n', begin) - begin);
  }

  /// The same, and what stands on standard error.
  template <class Action>
  std::string refusalOf(const std::string& tag, Action&& action) {
    const std::string report = standardErrorOf([&] { startTag = tagOf(tag, action); });
    const std::string written = tag == "UnstructuredTopology" ? "Topology" : tag;
    EXPECT_EQ(startTag, "    <" + written + ">") << "the attribute is left out";
    return report;
  }

  const support::TempDir dir;
  const std::string name = dir.file("run.xdmf");
  SimpleXdmf xdmf;
  std::string startTag;
};

TEST_F(SimpleXdmfTest, NewDocumentIsTheRootElement) {
  EXPECT_EQ(body(), "<Xdmf>\n</Xdmf>\n");
}

TEST_F(SimpleXdmfTest, SecondGenerationWritesTheSameText) {
  const std::string first = body();
  EXPECT_EQ(body(), first);
}

TEST_F(SimpleXdmfTest, EarlierFileIsReplaced) {
  support::writeFile(name, std::string(1000, 'x'));
  EXPECT_EQ(body(), "<Xdmf>\n</Xdmf>\n");
}

TEST_F(SimpleXdmfTest, FileThatCannotBeOpenedIsPassedOver) {
  EXPECT_EQ(standardErrorOf([&] { xdmf.generate(dir.file("none/run.xdmf")); }), "");
  EXPECT_FALSE(std::filesystem::exists(dir.file("none")));
}

TEST_F(SimpleXdmfTest, ElementsAndItemsAreIndentedByLevel) {
  xdmf.setVersion("2.0");
  xdmf.beginElement("Domain");
  xdmf.beginElement("DataItem");
  xdmf.setDimensions(2, 3, 4);
  xdmf.addItem("1 2 3");
  xdmf.endDataItem();
  xdmf.endElement("Domain");
  EXPECT_EQ(body(),
            "<Xdmf Version=\"2.0\">\n"
            "    <Domain>\n"
            "        <DataItem Dimensions=\"2 3 4\">\n"
            "            1 2 3\n"
            "        </DataItem>\n"
            "    </Domain>\n"
            "</Xdmf>\n");
}

TEST_F(SimpleXdmfTest, ItemWithinAnItemClosesTheStartTagOfTheOuterOne) {
  xdmf.beginElement("DataItem");
  xdmf.addType("HyperSlab");
  xdmf.beginElement("DataItem");
  xdmf.endDataItem();
  xdmf.endDataItem();
  EXPECT_EQ(body(),
            "<Xdmf>\n"
            "    <DataItem ItemType=\"HyperSlab\">\n"
            "        <DataItem>\n"
            "        </DataItem>\n"
            "    </DataItem>\n"
            "</Xdmf>\n");
}

TEST_F(SimpleXdmfTest, CommitClosesAStartTagOnce) {
  xdmf.beginElement("Domain");
  xdmf.commitBuffer();
  xdmf.commitBuffer();
  xdmf.endElement("Domain");
  EXPECT_EQ(body(), "<Xdmf>\n    <Domain>\n    </Domain>\n</Xdmf>\n");
}

TEST_F(SimpleXdmfTest, TagsHaveTheTextsOfTheFormat) {
  EXPECT_EQ(xdmf.getCurrentTagString(), "Xdmf");
  const std::vector<std::string> tags = {"DataItem", "Grid", "Geometry",    "Attribute",
                                         "Set",      "Time", "Information", "Domain"};
  for (const std::string& tag : tags) {
    xdmf.beginElement(tag);
    EXPECT_EQ(xdmf.getCurrentTagString(), tag);
    xdmf.endElement(tag);
  }
  for (const std::string topology : {"StructuredTopology", "UnstructuredTopology"}) {
    xdmf.beginElement(topology);
    EXPECT_EQ(xdmf.getCurrentTagString(), "Topology");
    xdmf.endElement(topology);
  }
  xdmf.setCurrentTag("Grid");
  EXPECT_EQ(xdmf.getCurrentTagString(), "Inner");
  xdmf.setCurrentTag("Xdmf");
  EXPECT_EQ(xdmf.getCurrentTagString(), "Xdmf");
}

TEST_F(SimpleXdmfTest, UnknownElementIsWrittenAsInner) {
  xdmf.beginElement("Anything");
  xdmf.endElement("Inner");
  EXPECT_EQ(body(), "<Xdmf>\n    <Inner>\n    </Inner>\n</Xdmf>\n");
}

TEST_F(SimpleXdmfTest, BothTopologiesAreWrittenAsTopology) {
  for (const std::string topology : {"StructuredTopology", "UnstructuredTopology"}) {
    xdmf.beginElement(topology);
    xdmf.endElement(topology);
  }
  EXPECT_EQ(body(),
            "<Xdmf>\n    <Topology>\n    </Topology>\n    <Topology>\n    </Topology>\n</Xdmf>\n");
}

TEST_F(SimpleXdmfTest, EachTagHasItsTypes) {
  const std::vector<std::array<std::string, 3>> types = {
      {"DataItem", "Function", "    <DataItem ItemType=\"Function\">"},
      {"Grid", "Subset", "    <Grid GridType=\"Subset\">"},
      {"StructuredTopology", "3DCoRectMesh", "    <Topology TopologyType=\"3DCoRectMesh\">"},
      {"UnstructuredTopology", "Hex_20", "    <Topology TopologyType=\"Hex_20\">"},
      {"Geometry", "ORIGIN_DXDY", "    <Geometry GeometryType=\"ORIGIN_DXDY\">"},
      {"Attribute", "Tensor6", "    <Attribute AttributeType=\"Tensor6\">"},
      {"Set", "Face", "    <Set SetType=\"Face\">"},
      {"Time", "Range", "    <Time TimeType=\"Range\">"},
      {"Information", "Single", "    <Information>"},
      {"Domain", "Uniform", "    <Domain>"},
  };
  for (const auto& [tag, type, expected] : types) {
    xdmf = SimpleXdmf();
    EXPECT_EQ(standardErrorOf([&, &t = tag, &y = type, &e = expected] {
                EXPECT_EQ(tagOf(t, [&] { xdmf.addType(y); }), e);
              }),
              "");
  }
}

TEST_F(SimpleXdmfTest, TypeThatIsNotInTheTableIsRefused) {
  EXPECT_EQ(refusalOf("Grid", [&] { xdmf.addType("Triangle"); }),
            ERROR + "Invalid Grid type = Triangle is passed to.\n");
}

TEST_F(SimpleXdmfTest, TypesOfTopologiesAreKeptApart) {
  EXPECT_EQ(tagOf("UnstructuredTopology", [&] { xdmf.addType("Triangle"); }),
            "    <Topology TopologyType=\"Triangle\">");
  xdmf = SimpleXdmf();
  EXPECT_EQ(refusalOf("UnstructuredTopology", [&] { xdmf.addType("2DSMesh"); }),
            ERROR + "Invalid Topology type = 2DSMesh is passed to.\n");
}

TEST_F(SimpleXdmfTest, EmptyTypeAndEmptyNameAreIgnored) {
  EXPECT_EQ(refusalOf("Grid",
                      [&] {
                        xdmf.addType("");
                        xdmf.setName("");
                      }),
            "");
}

TEST_F(SimpleXdmfTest, FormatsAreChecked) {
  EXPECT_EQ(tagOf("DataItem", [&] { xdmf.setFormat("Binary"); }),
            "    <DataItem Format=\"Binary\">");
  xdmf = SimpleXdmf();
  EXPECT_EQ(refusalOf("DataItem", [&] { xdmf.setFormat("hdf"); }),
            ERROR + "Invalid Format type = hdf is passed to setFormat().\n");
}

TEST_F(SimpleXdmfTest, AttributesAreWrittenInTheOrderOfTheCalls) {
  EXPECT_EQ(tagOf("Grid",
                  [&] {
                    xdmf.addType("Collection");
                    xdmf.setCollectionType("Temporal");
                    xdmf.setName("run");
                  }),
            "    <Grid GridType=\"Collection\" CollectionType=\"Temporal\" Name=\"run\">");
}

TEST_F(SimpleXdmfTest, SettersAddTheirAttribute) {
  EXPECT_EQ(tagOf("DataItem",
                  [&] {
                    xdmf.setFunction("$0-$1");
                    xdmf.setNumberType("UInt");
                    xdmf.setPrecision(8);
                  }),
            "    <DataItem Function=\"$0-$1\" NumberType=\"UInt\" Precision=\"8\">");
  xdmf = SimpleXdmf();
  EXPECT_EQ(tagOf("Time", [&] { xdmf.setValue("1.5"); }), "    <Time Value=\"1.5\">");
  xdmf = SimpleXdmf();
  EXPECT_EQ(tagOf("Information", [&] { xdmf.setValue("x"); }), "    <Information Value=\"x\">");
  xdmf = SimpleXdmf();
  EXPECT_EQ(tagOf("Attribute", [&] { xdmf.setCenter("Edge"); }), "    <Attribute Center=\"Edge\">");
  xdmf = SimpleXdmf();
  EXPECT_EQ(tagOf("UnstructuredTopology",
                  [&] {
                    xdmf.setNumberOfElements(12);
                    xdmf.setReference("/Xdmf/Domain/Topology[1]");
                  }),
            "    <Topology NumberOfElements=\"12\" Reference=\"/Xdmf/Domain/Topology[1]\">");
}

TEST_F(SimpleXdmfTest, WrongValuesAreRefused) {
  EXPECT_EQ(refusalOf("Grid", [&] { xdmf.setCollectionType("Spatial"); }),
            ERROR + "Invalid Collection type = Spatial is passed to setCollectionType().\n");
  xdmf = SimpleXdmf();
  EXPECT_EQ(refusalOf("Attribute", [&] { xdmf.setCenter("cell"); }),
            ERROR + "Invalid Center type = cell is passed to setCenter().\n");
  xdmf = SimpleXdmf();
  EXPECT_EQ(refusalOf("DataItem", [&] { xdmf.setNumberType("Double"); }),
            ERROR + "Invalid Number type = Double is passed to setNumberType().\n");
}

TEST_F(SimpleXdmfTest, SettersRefuseAWrongTag) {
  const auto refused = [&](const std::string& setter, const std::string& owner) {
    return ERROR + setter + "() cannot be called when current Tag is not " + owner + ".\n";
  };
  EXPECT_EQ(refusalOf("Set",
                      [&] {
                        xdmf.setVersion("2.0");
                        xdmf.setCollectionType("Temporal");
                        xdmf.setValue("1");
                        xdmf.setCenter("Cell");
                        xdmf.setFunction("$0");
                        xdmf.setNumberType("Float");
                        xdmf.setPrecision(8);
                        xdmf.setNumberOfElements(1);
                      }),
            refused("setVersion", "Xdmf") + refused("setCollectionType", "Grid") +
                refused("setValue", "Time and Information") + refused("setCenter", "Attribute") +
                refused("setFunction", "DataItem") + refused("setNumberType", "DataItem") +
                refused("setPrecision", "DataItem") + refused("setNumberOfElements", "Topology"));
}

TEST_F(SimpleXdmfTest, CharactersOfTheFormatAreEscaped) {
  xdmf.beginElement("DataItem");
  xdmf.setName("a<b & \"c\"");
  xdmf.addItem("R&D <1>.h5:x");
  xdmf.endDataItem();
  const support::Xml document(HEADER + body());
  EXPECT_THAT(document.texts("/Xdmf/DataItem/@Name"), ElementsAre("a<b & \"c\""));
  EXPECT_THAT(document.texts("/Xdmf/DataItem"), ElementsAre("R&D <1>.h5:x"));
}

TEST_F(SimpleXdmfTest, InclusionNamesPartOfTheDocument) {
  xdmf.addInclude("/Xdmf/Domain/Topology[1]");
  EXPECT_EQ(body(),
            "<Xdmf>\n"
            "    <include xmlns=\"http://www.w3.org/2001/XInclude\" "
            "xpointer=\"xpointer(/Xdmf/Domain/Topology[1])\"/>\n"
            "</Xdmf>\n");
}

}  // namespace
