#include "dataio/Factory.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>

#include "h5/Handle.h"
#include "support/TempDir.h"

namespace {

using dataio::Factory;

class FactoryTest : public ::testing::Test {
 protected:
  const support::TempDir dir;
  const std::string name = dir.file("run.h5");
};

TEST_F(FactoryTest, WriterMakesAFileThatAReaderReads) {
  {
    const std::unique_ptr<api::IH5Writer> writer(Factory::createH5Writer(name));
    writer->writeIntScalar("set", 3);
  }
  const std::unique_ptr<api::IH5Reader> reader(Factory::createH5Reader(name));
  EXPECT_EQ(reader->readIntScalar("set"), 3);
  EXPECT_EQ(reader->getFilename(), name);
}

TEST_F(FactoryTest, WriterWithoutAccessErasesTheFile) {
  std::unique_ptr<api::IH5Writer>(Factory::createH5Writer(name))->writeIntScalar("old", 1);
  const std::unique_ptr<api::IH5Writer> writer(Factory::createH5Writer(name));
  EXPECT_FALSE(writer->existDataset("old"));
}

TEST_F(FactoryTest, WriterWithAccessGoesOnWriting) {
  std::unique_ptr<api::IH5Writer>(Factory::createH5Writer(name))->writeIntScalar("old", 1);
  const std::unique_ptr<api::IH5Writer> writer(Factory::createH5Writer(name, "rw"));
  EXPECT_TRUE(writer->existDataset("old"));
  writer->writeIntScalar("new", 1);
  EXPECT_TRUE(writer->existDataset("new"));
}

TEST_F(FactoryTest, ResultReaderReadsAndInvalidates) {
  {
    const std::unique_ptr<api::IH5Writer> writer(Factory::createH5Writer(name));
    writer->writeDoubleScalar("/RESULTS/CellsAll/HydState/0000000", 1.0);
    writer->attachAttributeDouble("/RESULTS/CellsAll/HydState/0000000", "t", 5.0);
  }
  const std::unique_ptr<api::IResultReader> reader(Factory::createResultReader(name));
  EXPECT_EQ(reader->findTime({"CellsAll/HydState"}, 5.0, 2), 0);
  reader->deleteResults("CellsAll/HydState", 0);
  EXPECT_EQ(reader->findTime({"CellsAll/HydState"}, 5.0, 2), -1);
}

TEST_F(FactoryTest, CommandFileReaderReadsADocument) {
  const std::unique_ptr<api::ICommandFileReader> reader(
      Factory::createCommandFileReader(R"({"A":{"B":4}})"));
  EXPECT_EQ(reader->getOptionalInt("A/B", 0), 4);
}

TEST_F(FactoryTest, XdmfWriterWritesADocument) {
  const std::unique_ptr<api::IXdmfWriter> writer(Factory::createXdmfWriter(name));
  EXPECT_FALSE(std::filesystem::exists(name));
  writer->write(name);
  EXPECT_TRUE(std::filesystem::exists(name));
}

TEST_F(FactoryTest, ReaderNeedsTheFile) {
  EXPECT_THROW(std::unique_ptr<api::IH5Reader>(Factory::createH5Reader(name)), h5::Error);
}

}  // namespace
