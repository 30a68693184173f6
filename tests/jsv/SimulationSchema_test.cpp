#include "main_simulation/SimulationSchema.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <string>

#include "jsv/report.h"

namespace jsv {
namespace {

using nlohmann::json;

test::Report validate(const std::string& document) {
  return test::validate(document, SIMULATION_SCHEMA);
}

/// A good command file that changes at one place.
std::string commandFile(const std::string& pointer, const json& value) {
  auto document = json::parse(R"({"SIMULATION": {
      "TIME": {"start": 0, "end": 4, "out": 1},
      "TIMESTEP": {"init": 0.02, "minimum": 0.0001},
      "OUTPUT": ["water_depth"]}})");
  document[JsonPointer(pointer)] = value;
  return document.dump();
}

TEST(SimulationSchema, ACompleteCommandFileIsClean) {
  const auto report = validate(R"({"SIMULATION": {
      "TIME": {"start": 0.0, "end": 100, "out": 0.5},
      "TIMESTEP": {"init": 0.02, "minimum": 1e-9},
      "OUTPUT": ["water_surface", "water_depth", "bottom_elevation", "friction_chezy", "delta_z",
                 "flow_curvature", "flow_radius", "flow_velocity", "spec_discharge",
                 "ns_hyd_discharge", "ns_mor_discharge"]}})");
  EXPECT_EQ(report.verdict, 0);
  EXPECT_EQ(report.text, "");
}

TEST(SimulationSchema, TheTimeStepMayBeLeftOut) {
  const auto report =
      validate(R"({"SIMULATION": {"TIME": {"start": 0, "end": 0, "out": 0}, "OUTPUT": []}})");
  EXPECT_EQ(report.verdict, 0);
  EXPECT_EQ(report.text, "");
}

TEST(SimulationSchema, TheSectionIsRequired) {
  EXPECT_EQ(validate("{}").text, "/SIMULATION: This item is required but missing.\n");
  EXPECT_EQ(validate("[]").text, "/: This value must be an object.\n");
}

TEST(SimulationSchema, TimeAndOutputAreRequired) {
  const auto report = validate(R"({"SIMULATION": {}})");
  EXPECT_EQ(report.verdict, 2);
  EXPECT_EQ(report.text,
            "/SIMULATION/OUTPUT: This item is required but missing.\n"
            "/SIMULATION/TIME: This item is required but missing.\n");
}

TEST(SimulationSchema, AllTimesAndTimeStepsAreRequired) {
  const auto report = validate(R"({"SIMULATION": {"TIME": {}, "TIMESTEP": {}, "OUTPUT": []}})");
  EXPECT_EQ(report.verdict, 2);
  EXPECT_EQ(report.text,
            "/SIMULATION/TIME/end: This item is required but missing.\n"
            "/SIMULATION/TIME/out: This item is required but missing.\n"
            "/SIMULATION/TIME/start: This item is required but missing.\n"
            "/SIMULATION/TIMESTEP/init: This item is required but missing.\n"
            "/SIMULATION/TIMESTEP/minimum: This item is required but missing.\n");
}

TEST(SimulationSchema, TimesMustNotBeNegative) {
  for (const auto* name : {"start", "end", "out"}) {
    const std::string pointer = std::string("/SIMULATION/TIME/") + name;
    EXPECT_EQ(validate(commandFile(pointer, 0)).verdict, 0);
    EXPECT_EQ(validate(commandFile(pointer, -0.5)).text,
              pointer + ": This value must be greater than or equal to 0.000000.\n");
    EXPECT_EQ(validate(commandFile(pointer, "0")).text,
              pointer + ": This value must be a number.\n");
  }
}

TEST(SimulationSchema, TimeStepsMustBePositive) {
  for (const auto* name : {"init", "minimum"}) {
    const std::string pointer = std::string("/SIMULATION/TIMESTEP/") + name;
    EXPECT_EQ(validate(commandFile(pointer, 1e-300)).verdict, 0);
    EXPECT_EQ(validate(commandFile(pointer, 0)).text,
              pointer + ": This value must be greater than 0.000000.\n");
    EXPECT_EQ(validate(commandFile(pointer, nullptr)).text,
              pointer + ": This value must be a number.\n");
  }
}

TEST(SimulationSchema, SectionsMustBeObjectsAndOutputAnArray) {
  EXPECT_EQ(validate(commandFile("/SIMULATION/TIME", 3)).text,
            "/SIMULATION/TIME: This value must be an object.\n");
  EXPECT_EQ(validate(commandFile("/SIMULATION/TIMESTEP", json::array())).text,
            "/SIMULATION/TIMESTEP: This value must be an object.\n");
  EXPECT_EQ(validate(commandFile("/SIMULATION/OUTPUT", "water_depth")).text,
            "/SIMULATION/OUTPUT: This value must be an array.\n");
}

TEST(SimulationSchema, AnUnknownOutputIsAnsweredWithTheSortedList) {
  const std::string options =
      "/SIMULATION/OUTPUT/0: This value must be equal to one of the following: "
      "'bottom_elevation', 'delta_z', 'flow_curvature', 'flow_radius', 'flow_velocity', "
      "'friction_chezy', 'ns_hyd_discharge', 'ns_mor_discharge', 'spec_discharge', "
      "'water_depth', 'water_surface'.\n";
  for (const auto* name : {"flow_velocity_abs", "flood_tracking", "WATER_DEPTH", ""}) {
    EXPECT_EQ(validate(commandFile("/SIMULATION/OUTPUT/0", name)).text, options) << name;
  }
  EXPECT_EQ(validate(commandFile("/SIMULATION/OUTPUT/0", 3)).text,
            options + "/SIMULATION/OUTPUT/0: This value must be a string.\n");
}

TEST(SimulationSchema, UnknownItemsAreWarnedOf) {
  const auto section = validate(commandFile("/DOMAIN", json{{"name", "x"}}));
  EXPECT_EQ(section.verdict, 1);
  EXPECT_EQ(section.text,
            "/DOMAIN: The value of this item will not be used.\n"
            "/DOMAIN/name: The value of this item will not be used.\n");
  const auto item = validate(commandFile("/SIMULATION/TIME/step", 1));
  EXPECT_EQ(item.verdict, 1);
  EXPECT_EQ(item.text, "/SIMULATION/TIME/step: The value of this item will not be used.\n");
}

TEST(SimulationSchema, DefaultsAndTheMetaSchemaAreAsDocumented) {
  const auto schema = json::parse(SIMULATION_SCHEMA);
  EXPECT_EQ(schema.at("$schema"), "file://RHEOMARK_MetaSchema.json");
  const auto& section = schema.at("properties").at("SIMULATION").at("properties");
  EXPECT_EQ(section.at("TIME").at("properties").at("start").at("default"), 0.0);
  EXPECT_EQ(section.at("TIMESTEP").at("properties").at("init").at("default"), 0.02);
  EXPECT_EQ(section.at("TIMESTEP").at("properties").at("minimum").at("default"), 0.0001);
}

}  // namespace
}  // namespace jsv
