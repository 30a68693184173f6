#include "dataio/Archive.h"

#include <gtest/gtest.h>

#include <fstream>
#include <memory>
#include <sstream>

#include "dataio/Factory.h"
#include "dataio/H5Reader.h"
#include "dataio/H5Writer.h"
#include "dataio/failures.h"
#include "h5/Handle.h"
#include "support/TempDir.h"

namespace {

using dataio::Archive;
using dataio::H5Reader;
using dataio::H5Writer;
using failures::hdf5Words;
using failures::reportOf;
using failures::textOf;
namespace h5 = h5;

std::string contentsOf(const std::string& file) {
  std::ifstream stream(file);
  std::ostringstream text;
  text << stream.rdbuf();
  return text.str();
}

class ArchiveTest : public ::testing::Test {
 protected:
  std::unique_ptr<api::IH5Writer> writer() const { return std::make_unique<H5Writer>(name); }
  std::unique_ptr<api::IH5Reader> reader(const std::string& file) const {
    return std::make_unique<H5Reader>(file);
  }

  const support::TempDir dir;
  const std::string name = dir.file("run.h5");
  const std::string document = R"({"MODEL":{"name":"Fluß"},"SETUP":[1,2.5]})";
};

TEST_F(ArchiveTest, EntriesComeBack) {
  {
    const auto file = writer();
    Archive::addModel(file.get(), document);
    Archive::addSimulation(file.get(), "{}");
    Archive::addHash(file.get(), "other/entry", "[]");
  }
  const auto file = reader(name);
  EXPECT_EQ(Archive::getModel(file.get()), document);
  EXPECT_EQ(Archive::getSimulation(file.get()), "{}");
  EXPECT_EQ(Archive::getHash(file.get(), "other/entry"), "[]");
}

TEST_F(ArchiveTest, EntriesAreStringsOfLengthOne) {
  {
    const auto file = writer();
    Archive::addModel(file.get(), document);
    Archive::addSimulation(file.get(), "{}");
  }
  const auto file = reader(name);
  EXPECT_EQ(file->readStrVec(".config/model"), std::vector<std::string>{document});
  EXPECT_EQ(file->readStrVec(".config/simulation"), std::vector<std::string>{"{}"});
}

TEST_F(ArchiveTest, LaterModelReplacesTheEarlier) {
  {
    const auto file = writer();
    Archive::addModel(file.get(), "{}");
    Archive::addModel(file.get(), document);
  }
  EXPECT_EQ(Archive::getModel(reader(name).get()), document);
}

TEST_F(ArchiveTest, MissingEntryIsReported) {
  writer();
  const auto file = reader(name);
  const std::string text = textOf<h5::Error>([&] { Archive::getModel(file.get()); });
  EXPECT_EQ(text.rfind("Unable to open the dataset \".config/model\": (", 0), 0U) << text;
}

TEST_F(ArchiveTest, EntryWithoutElementIsReported) {
  writer()->writeStringVec("empty", 0, {});
  EXPECT_EQ(reportOf([&] { Archive::getHash(reader(name).get(), "empty"); }),
            " -> dataset <empty> not a 1-d array!\n");
}

TEST_F(ArchiveTest, EntryWithoutColumnIsReported) {
  {
    const h5::File file(name, dataio::getFileAccess("w"));
    h5::DataSet::create<std::string>(file.handle(), "empty", {1, 0});
  }
  EXPECT_EQ(reportOf([&] { Archive::getHash(reader(name).get(), "empty"); }),
            " -> dataset <empty> not a 1-d array!\n");
}

TEST_F(ArchiveTest, RestoresTheTextAsOneLineWithoutItsEnd) {
  Archive::addModel(writer().get(), document);
  const std::string restored = dir.file("setup.json");
  std::ofstream(restored) << "a longer text that stood there before, to be replaced as a whole\n";
  EXPECT_TRUE(Archive::restore(reader(name).get(), restored));
  EXPECT_EQ(contentsOf(restored), document);
}

TEST_F(ArchiveTest, ResultsFileRestoresTheSameTextAsItsRunFile) {
  Archive::addModel(writer().get(), document);
  const std::string results = dir.file("run_results.h5");
  {
    const std::unique_ptr<api::IH5Writer> file(dataio::Factory::createH5Writer(results));
    Archive::addModel(file.get(), Archive::getModel(reader(name).get()));
    Archive::addSimulation(file.get(), "{}");
  }
  Archive::restore(reader(name).get(), dir.file("fromRun.json"));
  Archive::restore(reader(results).get(), dir.file("fromResults.json"));
  EXPECT_EQ(contentsOf(dir.file("fromResults.json")), contentsOf(dir.file("fromRun.json")));
  EXPECT_EQ(contentsOf(dir.file("fromResults.json")), document);
}

TEST_F(ArchiveTest, FileThatCannotBeOpenedIsPassedOver) {
  Archive::addModel(writer().get(), document);
  const std::string impossible = dir.file("nodir/setup.json");
  EXPECT_FALSE(Archive::restore(reader(name).get(), impossible));
  EXPECT_EQ(contentsOf(impossible), "");
}

TEST_F(ArchiveTest, FullDiskShowsInTheRestoredFile) {
  Archive::addModel(writer().get(), document);
  EXPECT_FALSE(Archive::restore(reader(name).get(), "/dev/full"));
}

TEST_F(ArchiveTest, WhatIsThereStaysIfThereIsNoModel) {
  writer()->writeIntScalar("other", 1);
  const std::string restored = dir.file("setup.json");
  std::ofstream(restored) << "earlier";
  EXPECT_THROW(Archive::restore(reader(name).get(), restored), std::exception);
  EXPECT_EQ(contentsOf(restored), "earlier");
}

}  // namespace
