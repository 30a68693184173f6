#include "dataio/H5Writer.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>

#include "dataio/H5Reader.h"
#include "dataio/failures.h"
#include "h5/Handle.h"
#include "support/TempDir.h"

namespace {

using dataio::H5Reader;
using dataio::H5Writer;
using failures::hdf5Words;
using failures::reportOf;
using failures::textOf;
namespace h5 = h5;

using IntRows = std::vector<std::vector<int>>;
using DoubleRows = std::vector<std::vector<double>>;

class H5WriterTest : public ::testing::Test {
 protected:
  h5::Shape shapeOf(const std::string& path) const {
    const h5::File file(name, h5::File::READ_ONLY);
    return h5::DataSet::open(file.handle(), path).dimensions();
  }

  const support::TempDir dir;
  const std::string name = dir.file("run_results.h5");
};

TEST_F(H5WriterTest, ScalarsHaveOneDimensionAndSizeOne) {
  {
    H5Writer writer(name);
    writer.writeIntScalar("CellsAll/set", 4);
    writer.writeDoubleScalar("Parameters/CFL", 0.9);
    EXPECT_EQ(writer.readAttributeInt("CellsAll/set", "size"), 1);
    EXPECT_EQ(writer.readAttributeInt("Parameters/CFL", "size"), 1);
  }
  EXPECT_EQ(shapeOf("CellsAll/set"), h5::Shape{1});
  EXPECT_EQ(shapeOf("Parameters/CFL"), h5::Shape{1});
  const H5Reader reader(name);
  EXPECT_EQ(reader.readIntScalar("CellsAll/set"), 4);
  EXPECT_EQ(reader.readDoubleScalar("Parameters/CFL"), 0.9);
}

TEST_F(H5WriterTest, SizeOfArraysIsTheNumberOfColumns) {
  const std::array<int, 3> a{1, 2, 3};
  const std::array<int, 3> b{4, 5, 6};
  const std::array<const int*, 2> ints{a.data(), b.data()};
  const std::array<double, 2> c{0.5, 1.5};
  const std::array<const double*, 1> doubles{c.data()};
  {
    H5Writer writer(name);
    writer.writeIntArray("ints", 2, 3, ints.data());
    writer.writeDoubleArray("doubles", 1, 2, doubles.data());
    EXPECT_EQ(writer.readAttributeInt("ints", "size"), 3);
    EXPECT_EQ(writer.readAttributeInt("doubles", "size"), 2);
  }
  const H5Reader reader(name);
  EXPECT_EQ(reader.readIntVecVec("ints"), (IntRows{{1, 2, 3}, {4, 5, 6}}));
  EXPECT_EQ(reader.readDoubleVecVec("doubles"), (DoubleRows{{0.5, 1.5}}));
}

TEST_F(H5WriterTest, SizeOfVectorsIsTheNumberOfValues) {
  H5Writer writer(name);
  writer.writeIntVecVec("ints", {{1, 2, 3}, {4, 5, 6}});
  writer.writeDoubleVecVec("doubles", {{1, 2}, {3, 4}, {5, 6}, {7, 8}});
  writer.writeStringVec("strings", 2, {"a", "b"});
  EXPECT_EQ(writer.readAttributeInt("ints", "size"), 6);
  EXPECT_EQ(writer.readAttributeInt("doubles", "size"), 8);
  EXPECT_EQ(writer.readAttributeInt("strings", "size"), 2);
}

TEST_F(H5WriterTest, ArraysMayBeEmpty) {
  {
    H5Writer writer(name);
    writer.writeDoubleArray("empty", 0, 3, nullptr);
    writer.writeStringVec("noNames", 0, {});
    EXPECT_EQ(writer.readAttributeInt("empty", "size"), 3);
  }
  EXPECT_EQ(shapeOf("empty"), (h5::Shape{0, 3}));
  EXPECT_EQ(shapeOf("noNames"), h5::Shape{0});
}

TEST_F(H5WriterTest, SameShapeIsOverwrittenInPlace) {
  {
    H5Writer writer(name);
    writer.writeIntVecVec("map", {{1, 2}});
    writer.attachAttributeInt("map", "size", 99);
    writer.writeIntVecVec("map", {{3, 4}});
    EXPECT_EQ(writer.readAttributeInt("map", "size"), 2);
  }
  EXPECT_EQ(H5Reader(name).readIntVecVec("map"), (IntRows{{3, 4}}));
}

TEST_F(H5WriterTest, OtherShapeIsRefused) {
  H5Writer writer(name);
  writer.writeIntVecVec("map", {{1, 2}});
  const std::string report = " -> dimensions do not match, in file: src/dataio/H5Writer on line ";
  const std::string extent = reportOf([&] { writer.writeIntVecVec("map", {{1, 2}, {3, 4}}); });
  EXPECT_EQ(extent.rfind(report, 0), 0U) << extent;
  const std::string rank = reportOf([&] { writer.writeIntScalar("map", 1); });
  EXPECT_EQ(rank.rfind(report, 0), 0U) << rank;
}

TEST_F(H5WriterTest, RaggedRowsAreRefused) {
  H5Writer writer(name);
  EXPECT_EQ(textOf<h5::Error>([&] {
              writer.writeDoubleVecVec("dat", {{1, 2, 3}, {4, 5}});
            }),
            "Mismatch between vector size (2) and dataset size (3) on dimension 1");
}

TEST_F(H5WriterTest, RowsAreNeeded) {
  H5Writer writer(name);
  EXPECT_EQ(textOf<h5::Error>([&] { writer.writeIntVecVec("map", {}); }),
            "Impossible to write an empty vector of vectors: at least one row is needed");
  EXPECT_FALSE(writer.existDataset("map"));
}

TEST_F(H5WriterTest, LengthIsTheNumberOfStrings) {
  H5Writer writer(name);
  EXPECT_EQ(textOf<h5::Error>([&] {
              writer.writeStringVec("names", 3, {"a", "b"});
            }),
            "Mismatch between vector size (2) and dataset size (3) on dimension 0");
}

TEST_F(H5WriterTest, NegativeExtentsAreRefused) {
  H5Writer writer(name);
  EXPECT_EQ(textOf<h5::Error>([&] { writer.writeIntArray("map", -1, 3, nullptr); }),
            "Impossible to write dataset \"map\" of extent -1: an extent is at least 0");
  EXPECT_EQ(textOf<h5::Error>([&] { writer.writeStringVec("names", -2, {}); }),
            "Impossible to write dataset \"names\" of extent -2: an extent is at least 0");
}

TEST_F(H5WriterTest, NewFileErasesAnOldOne) {
  {
    H5Writer writer(name);
    writer.writeIntScalar("old", 1);
  }
  const H5Writer writer(name);
  EXPECT_FALSE(writer.existDataset("old"));
}

TEST_F(H5WriterTest, ReadWriteAccessGoesOnWriting) {
  {
    H5Writer writer(name);
    writer.writeIntScalar("old", 1);
  }
  H5Writer writer(name, "rw");
  writer.writeIntScalar("new", 2);
  EXPECT_TRUE(writer.existDataset("old"));
  EXPECT_TRUE(writer.existDataset("new"));
}

TEST_F(H5WriterTest, ReadWriteAccessNeedsTheFile) {
  EXPECT_EQ(textOf<h5::Error>([&] { const H5Writer writer(name, "rw"); }),
            "Unable to open file " + name + hdf5Words(H5E_FILE, H5E_CANTOPENFILE));
}

TEST_F(H5WriterTest, FileThatCannotBeCreatedIsReported) {
  const std::string impossible = dir.file("nodir/x.h5");
  EXPECT_EQ(textOf<h5::Error>([&] { const H5Writer writer(impossible); }),
            "Unable to create file " + impossible + hdf5Words(H5E_FILE, H5E_CANTOPENFILE));
}

TEST_F(H5WriterTest, UnknownAccessOpensReadOnlyAndTheFirstWriteFails) {
  {
    H5Writer writer(name);
    writer.writeIntScalar("old", 1);
  }
  H5Writer writer(name, "append");
  EXPECT_TRUE(writer.existDataset("old"));
  const auto startsWith = [](const std::string& text, const std::string& start) {
    EXPECT_EQ(text.rfind(start, 0), 0U) << text;
  };
  startsWith(textOf<h5::Error>([&] { writer.writeIntScalar("old", 2); }),
             "Error during HDF5 Write:  (");
  startsWith(textOf<h5::Error>([&] { writer.writeIntScalar("new", 2); }),
             "Unable to create the dataset \"new\": (");
  startsWith(textOf<h5::Error>([&] { writer.writeIntScalar("grp/new", 2); }),
             "Unable to create the group \"grp\": (");
}

TEST(H5WriterDeathTest, FlushedDataSurviveTheEndOfTheProcess) {
  const support::TempDir dir;
  const std::string name = dir.file("run_results.h5");
  EXPECT_EXIT(
      {
        H5Writer writer(name);
        writer.writeIntScalar("CellsAll/set", 4);
        writer.flush();
        std::_Exit(0);
      },
      ::testing::ExitedWithCode(0), "");
  EXPECT_EQ(H5Reader(name).readIntScalar("CellsAll/set"), 4);
}

}  // namespace
