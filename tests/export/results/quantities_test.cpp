#include "export/results/quantities.h"

#include <gmock/gmock.h>

#include <set>

#include "catalogue/Outputs.h"

namespace {

using exporter::quantitiesOf;
using exporter::Quantity;

std::vector<Quantity> allQuantities() {
  std::vector<Quantity> all;
  for (const auto& [id, property] : model::OutputProps) {
    for (const Quantity& quantity : quantitiesOf(id)) all.push_back(quantity);
  }
  return all;
}

TEST(Quantities, StandForEachValueOfEachOutput) {
  for (const auto& [id, property] : model::OutputProps) {
    EXPECT_EQ(quantitiesOf(id).size(), static_cast<std::size_t>(property.size)) << property.name;
  }
}

TEST(Quantities, OfAScalarBearItsName) {
  for (const auto& [id, property] : model::OutputProps) {
    if (property.size == 1) {
      EXPECT_EQ(quantitiesOf(id)[0].name, property.name);
    }
  }
}

TEST(Quantities, HaveNamesAndMeaningsOfTheirOwn) {
  std::set<std::string> names;
  std::set<std::string> meanings;
  for (const Quantity& quantity : allQuantities()) {
    EXPECT_TRUE(names.insert(quantity.name).second) << quantity.name;
    EXPECT_TRUE(meanings.insert(quantity.meaning).second) << quantity.meaning;
    if (quantity.formerName.empty()) continue;
    EXPECT_TRUE(names.insert(quantity.formerName).second) << quantity.formerName;
  }
}

TEST(Quantities, OfVectorsAreNamedAsViewersWantThem) {
  const std::vector<Quantity>& velocity = quantitiesOf(model::OutputID::flow_velocity);
  EXPECT_EQ(velocity.at(0).meaning, "flow velocity, x-component");
  EXPECT_EQ(velocity.at(1).meaning, "flow velocity, y-component");
}

TEST(Quantities, HaveLabelsWithUnits) {
  EXPECT_EQ(labelOf(quantitiesOf(model::OutputID::flow_velocity)[1]), "flow_velocity_y [m/s]");
}

TEST(Quantities, AreDescribedWithTheirDataAndFormulas) {
  const nlohmann::ordered_json table = exporter::describeQuantities();
  ASSERT_EQ(table.at("outputs").size(), model::OutputProps.size());
  for (const auto& output : table.at("outputs")) {
    if (output.at("name") == "delta_z") {
      EXPECT_EQ(output, nlohmann::ordered_json::parse(R"(
        {"name": "delta_z", "on": "CellsAll", "tracked": false,
         "columns": [
           {"data": "CellsAll/BottomEl", "values": 1, "value": 0, "record": "first"},
           {"data": "CellsAll/BottomEl", "values": 1, "value": 0, "record": "current"}],
         "quantities": [
           {"name": "delta_z", "former_name": "", "unit": "m",
            "meaning": "change of the bottom elevation", "when_dry": "same",
            "formula": "$1-$0"}]})"));
    }
    if (output.at("name") == "flood_tracking") {
      EXPECT_EQ(output.at("tracked"), true);
      EXPECT_EQ(output.at("quantities").at(1).at("former_name"), "flood_tracking.max_depth");
      EXPECT_EQ(output.at("quantities").at(1).at("formula"), "$1");
    }
  }
}

}  // namespace
