// Classes from outside that bring just the operations of an interface: what the system offers
// beyond these must not be asked of them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "api/IH5Writer.h"
#include "api/ISimulation.h"
#include "api/IXdmfWriter.h"
#include "dataio/Archive.h"

namespace {

using ::testing::ElementsAre;
using ::testing::Pair;
using Text = const std::string&;

/// Keeps texts in memory.
class MemoryWriter final : public api::IH5Writer {
 public:
  std::string getFilename() const override { return "memory"; }
  void attachAttributeInt(Text, Text, const int&) override {}
  void attachAttributeDouble(Text, Text, const double&) override {}
  int readAttributeInt(Text, Text) const override { return 0; }
  double readAttributeDouble(Text, Text) const override { return 0.0; }
  int getNumberObjs(Text) const override { return 0; }
  bool existDataset(Text path) const override { return texts.count(path) > 0; }
  void writeIntScalar(Text, const int&) override {}
  void writeDoubleScalar(Text, const double&) override {}
  void writeIntVecVec(Text, const std::vector<std::vector<int>>&) override {}
  void writeDoubleVecVec(Text, const std::vector<std::vector<double>>&) override {}
  void writeIntArray(Text, const int&, const int&, const int* const*) override {}
  void writeDoubleArray(Text, const int&, const int&, const double* const*) override {}
  void writeStringVec(Text path, const int&, const std::vector<std::string>& values) override {
    texts[path] = values.at(0);
  }

  std::map<std::string, std::string> texts;
};

TEST(Interfaces, AWriterNeedsNoRecordsToTakeTheArchive) {
  MemoryWriter writer;
  dataio::Archive::addModel(&writer, "{}");
  dataio::Archive::addSimulation(&writer, "[]");
  EXPECT_THAT(writer.texts,
              ElementsAre(Pair(".config/model", "{}"), Pair(".config/simulation", "[]")));
}

/// Counts the passes of a run.
class Clockwork final : public api::ISimulation {
 public:
  void printHash(Text) override {}
  void setParallel(const int& threads) override { passes = threads; }
  void init(const int& logLevel, const bool&, const bool&, Text) override { passes += logLevel; }
  void run() override { ++passes; }
  void initializeSimulationParameters() override {}

  int passes = 0;
};

TEST(Interfaces, ASimulationNeedsNoSignals) {
  Clockwork clockwork;
  api::ISimulation& simulation = clockwork;
  simulation.setParallel(1);
  simulation.init(1, false, false, "");
  simulation.run();
  EXPECT_EQ(clockwork.passes, 3);
}

/// Lists what is added.
class Listing final : public api::IXdmfWriter {
 public:
  void write(Text file) override { names.push_back(file); }
  void addMesh(int, Text, Text, int, Text, Text, int) override { names.emplace_back("mesh"); }
  void addTimeStep(double) override { names.emplace_back("step"); }
  void addScalar(Text name, int, Text, Text, int, int) override { names.push_back(name); }
  void addVector(Text name, int, Text, Text, int, const std::vector<int>&) override {
    names.push_back(name);
  }
  void addFunctionScalar(Text name, int, Text, const std::vector<std::string>&,
                         const std::vector<std::string>&, const std::vector<int>&,
                         const std::vector<int>&) override {
    names.push_back(name);
  }

  std::vector<std::string> names;
};

TEST(Interfaces, ADescriptionForViewersNeedsNoInclusions) {
  Listing listing;
  api::IXdmfWriter& writer = listing;
  writer.addMesh(2, "r.h5", "CellsAll/Topology", 4, "r.h5", "NodesAll/Coordnts", 3);
  writer.addTimeStep(0.0);
  writer.addScalar("water_surface", 2, "r.h5", "HydState", 3, 0);
  writer.write("run.xdmf");
  EXPECT_THAT(listing.names, ElementsAre("mesh", "step", "water_surface", "run.xdmf"));
}

}  // namespace
