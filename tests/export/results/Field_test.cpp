#include "export/results/Field.h"

#include <gmock/gmock.h>

#include <cmath>

#include "dataio/failures.h"
#include "export/SampleResults.h"

namespace {

using exporter::Field;
using exporter::fieldOf;
using exporter::Results;

class FieldTest : public samples::SampleResults {
 protected:
  std::string refusalOf(const std::string& quantity, std::optional<double> time) const {
    const Results results(file);
    return failures::reportOf([&] { fieldOf(results, quantity, time); });
  }
};

TEST_F(FieldTest, HoldsOneComponentAtATime) {
  use("full_model");
  const Results results(file);
  const Field field = fieldOf(results, "spec_discharge_y", 3.0);
  EXPECT_EQ(field.values, stored("RESULTS/CellsAll/HydState/0000003", 3, 2));
  EXPECT_EQ(field.time, 3.0);
  EXPECT_EQ(field.quantity.unit, "m2/s");
  EXPECT_EQ(field.quantity.meaning, "specific discharge, y-component");
}

TEST_F(FieldTest, IsThatOfTheLastRecordByDefault) {
  use("full_model");
  const Results results(file);
  const Field field = fieldOf(results, "bottom_elevation", {});
  EXPECT_EQ(field.values, stored("RESULTS/CellsAll/BottomEl/0000004", 1, 0));
  EXPECT_EQ(field.time, 4.0);
}

TEST_F(FieldTest, IsThatOfTheLastRecordThatHoldsIt) {
  use("full_model");
  remove("RESULTS/CellsAll/FlowCurv/0000004");
  EXPECT_EQ(fieldOf(Results(file), "flow_curvature", {}).time, 3.0);
}

TEST_F(FieldTest, OfTrackedDataHoldsAtAllTimes) {
  use("dam_dry");
  const Results results(file);
  const Field field = fieldOf(results, "flood_maximum_depth", 17.0);
  EXPECT_EQ(field.values, stored("RESULTS/CellsAll/FloodVar/0000000", 4, 1));
  EXPECT_FALSE(field.time);
}

TEST_F(FieldTest, IsNotDefinedInDryCells) {
  use("dam_dry");
  const Field field = fieldOf(Results(file), "flow_velocity_x", 0.0);
  EXPECT_TRUE(std::isnan(field.values.back()));
}

TEST_F(FieldTest, TakesATimeThatIsTyped) {
  use("full_model");
  EXPECT_EQ(fieldOf(Results(file), "water_depth", 2.0000001).time, 2.0);
}

TEST_F(FieldTest, RefusesATimeBetweenRecords) {
  use("full_model");
  EXPECT_EQ(refusalOf("water_depth", 2.75),
            " -> quantity <water_depth> is not in the results "
            "file at 2.75 s; nearest is 3 s\n");
}

TEST_F(FieldTest, RefusesAnUnknownQuantity) {
  use("one_cell");
  EXPECT_EQ(refusalOf("flow_velocity", {}),
            " -> quantity <flow_velocity> is not in the results file, which holds water_surface, "
            "water_depth\n");
}

TEST_F(FieldTest, IsFoundByItsFormerNameToo) {
  use("dam_dry");
  const Results results(file);
  const Field field = fieldOf(results, "flood_tracking.max_depth", {});
  EXPECT_EQ(field.quantity.name, "flood_maximum_depth");
  EXPECT_EQ(field.values, fieldOf(results, "flood_maximum_depth", {}).values);
}

}  // namespace
