#include "dataio/json/JSONReader.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "dataio/failures.h"
#include "support/TempDir.h"

namespace {

using dataio::JSONReader;
using failures::reportOf;
using failures::standardErrorOf;
using failures::textOf;
using nlohmann::json;

using Strings = std::vector<std::string>;

const char* const DOCUMENT = R"({
  "SIMULATION": {
    "TIME": {"start": 0.0, "end": 100},
    "OUTPUT": ["water_depth"],
    "empty list": [], "empty object": {}, "nothing": null, "blank": ""
  },
  "BOUNDARY": [{"name": "in", "type": 114}, {"name": "out"}, {}, [], null, 5]
})";

TEST(JSONReader, ReadsAFile) {
  const support::TempDir dir;
  const std::string name = dir.file("command.json");
  std::ofstream(name) << DOCUMENT;
  const JSONReader reader(name);
  EXPECT_EQ(reader.getFileName(), name);
  EXPECT_TRUE(reader.checkPaths({"SIMULATION/TIME/end"}));
}

TEST(JSONReader, TextHasNoFileName) {
  const JSONReader reader(DOCUMENT);
  EXPECT_EQ(reader.getFileName(), "");
  EXPECT_TRUE(reader.checkPaths({"SIMULATION/TIME/end"}));
}

TEST(JSONReader, NumberIsADocumentEvenIfAFileHasThatName) {
  const support::TempDir dir;
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(dir.path());
  std::ofstream("123") << R"({"A":1})";
  const JSONReader reader("123");
  std::filesystem::current_path(before);
  EXPECT_EQ(reader.getFileName(), "");
  EXPECT_EQ(reader.getHash(), "123");
}

TEST(JSONReader, MissingFileIsReported) {
  EXPECT_EQ(reportOf([] { const JSONReader reader("no/such.json"); }),
            " -> input file <no/such.json> not found.\n");
}

TEST(JSONReader, FileWithBadDocumentReadsAsNotFound) {
  const support::TempDir dir;
  const std::string name = dir.file("bad.json");
  std::ofstream(name) << R"({"A":)";
  EXPECT_EQ(reportOf([&] { const JSONReader reader(name); }),
            " -> input file <" + name + "> not found.\n");
  EXPECT_EQ(reportOf([&] { const JSONReader reader(dir.path()); }),
            " -> input file <" + dir.path() + "> not found.\n");
}

TEST(JSONReader, HashIsCompactWithSortedKeys) {
  const JSONReader reader("{\"b\" : [1, 2.5],\n \"a\" : {\"d\": null, \"c\": \"x y\"}}");
  EXPECT_EQ(reader.getHash(), R"({"a":{"c":"x y","d":null},"b":[1,2.5]})");
}

TEST(JSONReader, LastOfDuplicateKeysIsKept) {
  const JSONReader reader(R"({"A":1,"A":2})");
  EXPECT_EQ(reader.getHash(), R"({"A":2})");
}

TEST(JSONReader, PathsAreSplitAtEachSlash) {
  const JSONReader reader("{}");
  EXPECT_EQ(reader.splitPath("SIMULATION/TIME/end"), (Strings{"SIMULATION", "TIME", "end"}));
  EXPECT_EQ(reader.splitPath("end"), Strings{"end"});
  EXPECT_EQ(reader.splitPath(""), Strings());
  EXPECT_EQ(reader.splitPath("a//b"), (Strings{"a", "", "b"}));
  EXPECT_EQ(reader.splitPath("a/"), Strings{"a"});
}

TEST(JSONReader, ValueIsFoundByItsPath) {
  const JSONReader reader(DOCUMENT);
  bool found = false;
  EXPECT_EQ(reader.getValue("SIMULATION/TIME/end", found), json(100));
  EXPECT_TRUE(found);
  EXPECT_EQ(reader.getValue("", found), json::parse(DOCUMENT));
  EXPECT_TRUE(found);
  EXPECT_EQ(reader.getValue("SIMULATION/blank", found), json(""));
  EXPECT_TRUE(found);
}

TEST(JSONReader, EmptyValueCountsAsMissing) {
  const JSONReader reader(DOCUMENT);
  for (const char* path : {"SIMULATION/empty list", "SIMULATION/empty object", "SIMULATION/nothing",
                           "SIMULATION/absent", "SIMULATION/absent/below"}) {
    bool found = true;
    reader.getValue(path, found);
    EXPECT_FALSE(found) << path;
  }
}

TEST(JSONReader, NullDocumentHasNoValues) {
  const JSONReader reader("null");
  bool found = true;
  EXPECT_TRUE(reader.getValue("A", found).is_null());
  EXPECT_FALSE(found);
}

TEST(JSONReader, PathThroughANumberIsATypeError) {
  const JSONReader reader(R"({"A":1,"L":[1]})");
  bool found = false;
  const std::string number = textOf<json::type_error>([&] { reader.getValue("A/B", found); });
  EXPECT_NE(number.find("cannot use operator[] with a string argument with number"),
            std::string::npos)
      << number;
  const std::string array = textOf<json::type_error>([&] { reader.checkPaths({"L/B"}); });
  EXPECT_NE(array.find("cannot use operator[] with a string argument with array"),
            std::string::npos)
      << array;
}

TEST(JSONReader, RequiredValueThatIsMissingIsReported) {
  const JSONReader reader(DOCUMENT);
  bool found = true;
  EXPECT_EQ(standardErrorOf([&] { reader.getRequiredValue("SIMULATION/absent", found); }),
            " -> path <SIMULATION/absent> not found.\n");
  EXPECT_FALSE(found);
  EXPECT_EQ(standardErrorOf([&] { reader.getRequiredValue("SIMULATION/TIME", found); }), "");
  EXPECT_TRUE(found);
}

TEST(JSONReader, OptionalValueThatIsMissingIsNotReported) {
  const JSONReader reader(DOCUMENT);
  bool found = true;
  EXPECT_EQ(standardErrorOf([&] { reader.getOptionalValue("SIMULATION/absent", found); }), "");
  EXPECT_FALSE(found);
}

TEST(JSONReader, AllPathsHaveToBeFound) {
  const JSONReader reader(DOCUMENT);
  EXPECT_TRUE(reader.checkPaths({"SIMULATION", "SIMULATION/OUTPUT"}));
  EXPECT_FALSE(reader.checkPaths({"SIMULATION", "SIMULATION/absent"}));
  EXPECT_FALSE(reader.checkPaths({"SIMULATION/absent", "SIMULATION"}));
  EXPECT_FALSE(reader.checkPaths({"SIMULATION/empty list"}));
  EXPECT_FALSE(reader.checkPaths({}));
}

TEST(JSONReader, PathCheckStopsAtTheFirstMissing) {
  const JSONReader reader(R"({"A":1})");
  EXPECT_FALSE(reader.checkPaths({"absent", "A/B"}));
}

TEST(JSONReader, PathWithinAnArrayIsALabel) {
  EXPECT_EQ(JSONReader("{}").createPathWithinArray("BOUNDARY", 2, "name"), "BOUNDARY[2]/name");
}

TEST(JSONReader, MemberOfAnArrayItemIsFound) {
  const JSONReader reader(DOCUMENT);
  bool found = false;
  EXPECT_EQ(reader.getValueFromArray("BOUNDARY", 0, "type", found), json(114));
  EXPECT_TRUE(found);
  reader.getValueFromArray("BOUNDARY", 1, "type", found);
  EXPECT_FALSE(found);
}

TEST(JSONReader, EmptyArrayItemCountsAsMissing) {
  const JSONReader reader(DOCUMENT);
  for (const int index : {2, 3, 4}) {
    bool found = true;
    reader.getValueFromArray("BOUNDARY", index, "type", found);
    EXPECT_FALSE(found) << index;
  }
  bool found = true;
  reader.getValueFromArray("SIMULATION/empty list", 0, "type", found);
  EXPECT_FALSE(found);
}

TEST(JSONReader, IndexBehindAnArrayIsATypeError) {
  const JSONReader reader(DOCUMENT);
  bool found = false;
  EXPECT_THROW(reader.getValueFromArray("BOUNDARY", 6, "type", found), json::type_error);
  EXPECT_THROW(reader.getValueFromArray("BOUNDARY", 5, "type", found), json::type_error);
}

TEST(JSONReader, NegativeIndexIsOutOfRange) {
  const JSONReader reader(DOCUMENT);
  bool found = false;
  EXPECT_THROW(reader.getValueFromArray("BOUNDARY", -1, "type", found), json::out_of_range);
}

TEST(JSONReader, RequiredMemberThatIsMissingIsReported) {
  const JSONReader reader(DOCUMENT);
  bool found = true;
  EXPECT_EQ(
      standardErrorOf([&] { reader.getRequiredValueFromArray("BOUNDARY", 1, "type", found); }),
      " -> path <BOUNDARY[1]/type> not found.\n");
  EXPECT_FALSE(found);
  EXPECT_EQ(
      standardErrorOf([&] { reader.getOptionalValueFromArray("BOUNDARY", 1, "type", found); }), "");
}

TEST(JSONReader, RootOfAPathMayBeEmpty) {
  const JSONReader reader(DOCUMENT);
  EXPECT_EQ(reader.getRootOfPath("SIMULATION/empty list"), json::array());
  EXPECT_EQ(reader.getRootOfPath("SIMULATION/TIME/end"), json(100));
  EXPECT_TRUE(reader.getRootOfPath("SIMULATION/absent/below").is_null());
}

TEST(JSONReader, GroupsAreTheSortedKeysOfAnObject) {
  const JSONReader reader(R"({"A":{"z":1,"b":2,"m":[]},"L":[],"N":null,"E":{}})");
  EXPECT_EQ(reader.getGroups("A"), (Strings{"b", "m", "z"}));
  EXPECT_EQ(reader.getGroups("L"), Strings());
  EXPECT_EQ(reader.getGroups("N"), Strings());
  EXPECT_EQ(reader.getGroups("E"), Strings());
  EXPECT_EQ(reader.getGroups("absent"), Strings());
}

TEST(JSONReader, OnlyObjectsHaveGroups) {
  const JSONReader reader(R"({"L":[1],"S":3})");
  for (const char* path : {"L", "S"}) {
    const std::string text = textOf<json::invalid_iterator>([&] { reader.getGroups(path); });
    EXPECT_NE(text.find("cannot use key() for non-object iterators"), std::string::npos) << text;
  }
}

}  // namespace
