#include "export/components.h"

#include <gtest/gtest.h>

#include "catalogue/Outputs.h"

namespace {

using exporter::componentsOf;

TEST(Components, StandForEachValueOfEachOutput) {
  for (const auto& [id, property] : model::OutputProps) {
    EXPECT_EQ(componentsOf(id).size(), static_cast<std::size_t>(property.size)) << property.name;
  }
}

TEST(Components, OfAScalarBearItsName) {
  for (const auto& [id, property] : model::OutputProps) {
    if (property.size != 1) continue;
    EXPECT_EQ(componentsOf(id)[0].name, property.name);
  }
}

TEST(Components, HaveLabelsWithUnits) {
  EXPECT_EQ(labelOf(componentsOf(model::OutputID::flow_velocity)[1]), "flow_velocity_y [m/s]");
}

}  // namespace
