#include "catalogue/Outputs.h"

#include <gmock/gmock.h>

#include <limits>
#include <stdexcept>

#include "catalogue/keys.h"

namespace model {
namespace {

using testing::ElementsAre;

constexpr double MINIMAL_DEPTH = 0.25;

const OutputOperation& operation(OutputID id, std::size_t i = 0) {
  return Output2Operations.at(id).at(i);
}

double value(OutputID id, const std::vector<double>& columns, std::size_t i = 0) {
  return operation(id, i).function(MINIMAL_DEPTH, columns);
}

TEST(Outputs, HaveAPropertyAndADescriptionEach) {
  EXPECT_EQ(OutputProps.size(), 13U);
  EXPECT_EQ(catalogue::keysOf(OutputDescription), catalogue::keysOf(OutputProps));
}

TEST(Outputs, AreOfTypeDouble) {
  for (const auto& [id, property] : OutputProps) {
    EXPECT_EQ(property.type, DataType::Double) << property.name;
  }
}

TEST(Outputs, ThatTrackAreTheFloodAlone) {
  EXPECT_THAT(OutputTracking, ElementsAre(OutputID::flood_tracking));
  EXPECT_EQ(OutputProps.at(OutputID::flood_tracking).size, 4);
}

TEST(Outputs, HaveOneOperationPerValue) {
  for (const auto& [id, operations] : Output2Operations) {
    const Property& property = OutputProps.at(id);
    EXPECT_EQ(operations.size(), static_cast<std::size_t>(property.size)) << property.name;
  }
}

TEST(Outputs, StateTheirOperationsAsText) {
  EXPECT_EQ(operation(OutputID::water_depth).expression, "$0-$1");
  EXPECT_EQ(operation(OutputID::delta_z).expression, "$1-$0");
  EXPECT_EQ(operation(OutputID::flow_velocity, 0).expression, "$0/($2-$3)");
  EXPECT_EQ(operation(OutputID::flow_velocity, 1).expression, "$1/($2-$3)");
  EXPECT_EQ(operation(OutputID::flow_velocity_abs).expression,
            "sqrt($0/($2-$3)*$0/($2-$3) + $1/($2-$3)*$1/($2-$3))");
  EXPECT_EQ(operation(OutputID::flow_radius).expression, "1.0/$0");
}

TEST(Outputs, ComputeTheDepthFromSurfaceAndBottom) {
  EXPECT_EQ(value(OutputID::water_depth, {12.5, 10.0}), 2.5);
}

TEST(Outputs, ComputeTheBedChangeAsCurrentMinusInitialElevation) {
  EXPECT_EQ(value(OutputID::delta_z, {10.0, 12.5}), 2.5);
}

TEST(Outputs, ComputeTheVelocityFromDischargeAndDepth) {
  EXPECT_EQ(value(OutputID::flow_velocity, {3.0, -4.0, 12.0, 10.0}, 0), 1.5);
  EXPECT_EQ(value(OutputID::flow_velocity, {3.0, -4.0, 12.0, 10.0}, 1), -2.0);
  EXPECT_EQ(value(OutputID::flow_velocity_abs, {3.0, -4.0, 12.0, 10.0}), 2.5);
}

TEST(Outputs, AreAtRestBelowTheMinimalDepth) {
  const std::vector<double> shallow = {3.0, -4.0, 10.125, 10.0};
  EXPECT_EQ(value(OutputID::flow_velocity, shallow, 0), 0.0);
  EXPECT_EQ(value(OutputID::flow_velocity, shallow, 1), 0.0);
  EXPECT_EQ(value(OutputID::flow_velocity_abs, shallow), 0.0);
}

TEST(Outputs, FlowAtExactlyTheMinimalDepth) {
  const std::vector<double> threshold = {3.0, -4.0, 10.25, 10.0};
  EXPECT_EQ(value(OutputID::flow_velocity, threshold, 0), 12.0);
  EXPECT_EQ(value(OutputID::flow_velocity, threshold, 1), -16.0);
  EXPECT_EQ(value(OutputID::flow_velocity_abs, threshold), 20.0);
}

TEST(Outputs, HaveAnInfiniteRadiusWithoutCurvature) {
  EXPECT_EQ(value(OutputID::flow_radius, {0.5}), 2.0);
  EXPECT_EQ(value(OutputID::flow_radius, {0.0}), std::numeric_limits<double>::infinity());
}

TEST(Outputs, RefuseTooFewColumns) {
  EXPECT_THROW(value(OutputID::water_depth, {1.0}), std::out_of_range);
  EXPECT_THROW(value(OutputID::delta_z, {1.0}), std::out_of_range);
  EXPECT_THROW(value(OutputID::flow_velocity, {1.0, 1.0, 2.0}, 0), std::out_of_range);
  EXPECT_THROW(value(OutputID::flow_velocity, {1.0, 1.0, 2.0}, 1), std::out_of_range);
  EXPECT_THROW(value(OutputID::flow_velocity_abs, {1.0, 1.0, 2.0}), std::out_of_range);
  EXPECT_THROW(value(OutputID::flow_radius, {}), std::out_of_range);
}

}  // namespace
}  // namespace model
