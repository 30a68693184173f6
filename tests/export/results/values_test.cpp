#include "export/results/values.h"

#include <gmock/gmock.h>

#include <cmath>

#include "export/SampleResults.h"

namespace {

using exporter::definedValues;
using exporter::maskedValues;
using exporter::Record;
using exporter::Results;

class DefinedValues : public samples::SampleResults {};

TEST_F(DefinedValues, DryCellsHaveDepthButNoVelocity) {
  use("dam_dry");
  const Results results(file);
  const Record& record = results.records().at(2);
  const std::vector<double> depth = results.depths(record);
  const api::IOutput& velocity = output(results, "flow_velocity");
  const std::vector<double> defined = definedValues(results, velocity, record);
  const std::vector<double> values = results.values(velocity, record);
  ASSERT_EQ(defined.size(), 2 * depth.size());
  int dry = 0;
  for (std::size_t i = 0; i < defined.size(); ++i) {
    const bool isDry = !(depth[i / 2] > results.minimalDepth());
    if (isDry) {
      ASSERT_TRUE(std::isnan(defined[i])) << i;
    } else {
      ASSERT_EQ(defined[i], values[i]) << i;
    }
    dry += isDry ? 1 : 0;
  }
  EXPECT_GT(dry, 0);
  EXPECT_LT(dry, 720);
  EXPECT_EQ(definedValues(results, output(results, "water_depth"), record), depth);
}

TEST_F(DefinedValues, ACellAtTheMinimalDepthIsDry) {
  use("one_cell");
  setOutputs(R"("water_surface", "water_depth", "flow_velocity")");
  const double least = Results(file).minimalDepth();
  const double above = std::nextafter(least, 1.0);
  support::overwrite(file, "CellsAll/BottomEl", 0, 0.0);
  for (const auto& [record, depth] : {std::pair("0000001", least), {"0000002", above}}) {
    support::overwrite(file, std::string("RESULTS/CellsAll/HydState/") + record, 0, depth);
    support::overwrite(file, std::string("RESULTS/CellsAll/HydState/") + record, 1, 0.5);
  }
  const Results results(file);
  const Record& atMinimum = results.records().at(1);
  const Record& aboveIt = results.records().at(2);
  const api::IOutput& surface = output(results, "water_surface");
  EXPECT_TRUE(std::isnan(definedValues(results, surface, atMinimum).at(0)));
  EXPECT_EQ(definedValues(results, surface, aboveIt).at(0), above);
  const api::IOutput& depth = output(results, "water_depth");
  EXPECT_EQ(maskedValues(results, depth, atMinimum).at(0), 0.0);
  EXPECT_EQ(maskedValues(results, depth, aboveIt).at(0), above);
  const api::IOutput& velocity = output(results, "flow_velocity");
  EXPECT_TRUE(std::isnan(definedValues(results, velocity, atMinimum).at(0)));
  EXPECT_EQ(maskedValues(results, velocity, atMinimum).at(0), 0.0);
  EXPECT_EQ(maskedValues(results, velocity, aboveIt).at(0), 0.5 / above);
}

TEST_F(DefinedValues, CellsThatWaterNeverReachedHaveNoArrivalTimeAndNoVelocity) {
  use("dam_dry");
  support::overwrite(file, "RESULTS/CellsAll/FloodVar/0000000", 4 * 100, 0.0);
  support::overwrite(file, "RESULTS/CellsAll/FloodVar/0000000", 4 * 100 + 1, 0.0);
  support::overwrite(file, "RESULTS/CellsAll/FloodVar/0000000", 4 * 101, 0.5);
  const Results results(file);
  const std::vector<double> flood =
      definedValues(results, output(results, "flood_tracking"), results.records().at(0));
  EXPECT_TRUE(std::isnan(flood.at(400)));
  EXPECT_EQ(flood.at(401), 0.0);
  EXPECT_TRUE(std::isnan(flood.at(402)));
  EXPECT_EQ(flood.at(404), 0.5);
  EXPECT_FALSE(std::isnan(flood.at(406)));
}

TEST_F(DefinedValues, AStraightFlowHasNoRadius) {
  use("full_model");
  const Results results(file);
  const api::IOutput& radius = output(results, "flow_radius");
  const std::vector<double> values = results.values(radius, results.records().at(1));
  const std::vector<double> defined = definedValues(results, radius, results.records().at(1));
  int infinite = 0;
  for (std::size_t i = 0; i < values.size(); ++i) {
    if (!std::isinf(values[i])) continue;
    ASSERT_TRUE(std::isnan(defined[i]));
    ++infinite;
  }
  EXPECT_GT(infinite, 0);
}

TEST_F(DefinedValues, WithoutABedNothingIsKnownToBeDry) {
  use("bc_218_gate");
  const Results results(file);
  const api::IOutput& surface = output(results, "water_surface");
  EXPECT_EQ(definedValues(results, surface, results.records().at(1)),
            results.values(surface, results.records().at(1)));
}

}  // namespace
