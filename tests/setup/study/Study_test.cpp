#include "setup/study/Study.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "setup/faults.h"
#include "setup/studies.h"
#include "support/Process.h"
#include "support/TempDir.h"

using studies::document;
using studies::GEOMETRY;
using studies::HYDRAULICS;
using studies::INITIAL;
using ::testing::ElementsAre;

namespace {

class Study : public ::testing::Test {
 protected:
  setup::Study read(const std::string& text) {
    support::writeFile(file, text);
    return setup::readStudy(file);
  }

  std::string refusalOf(const std::string& text) {
    const std::string message = faults::messageOf([&] { read(text); });
    const std::string start = "study file <" + file + ">";
    EXPECT_TRUE(message.starts_with(start)) << message;
    return message.substr(start.size());
  }

  const support::TempDir dir;
  const std::string file = dir.file("s.json");
  const std::string mesh = R"({"MESH": {"file": "m.2dm"}})";
  const std::string minimal = R"({"INITIAL": {"water_level": 1}})";
};

}  // namespace

TEST_F(Study, HasSensibleDefaults) {
  const setup::Study study = read(document(mesh, minimal));
  EXPECT_EQ(study.hydraulics.cfl, 0.5);
  EXPECT_EQ(study.hydraulics.maximumTimeStep, 100.0);
  EXPECT_EQ(study.hydraulics.minimumWaterDepth, 0.001);
  EXPECT_EQ(study.hydraulics.gravity, 9.81);
  EXPECT_TRUE(study.hydraulics.safeMode);
  EXPECT_TRUE(study.regions.empty());
  EXPECT_TRUE(study.bed.empty());
  EXPECT_TRUE(study.waterZones.empty());
}

TEST_F(Study, IsDryIfNothingElseIsSaid) {
  const setup::Study study = read(document(mesh, R"({"PARAMETER": {"cfl": 0.4}})"));
  EXPECT_FALSE(study.water.level);
  EXPECT_FALSE(study.water.depth);
}

TEST_F(Study, KeepsTheDocumentAsCompactText) {
  const setup::Study study = read(document(mesh, minimal));
  EXPECT_EQ(study.document,
            R"({"SETUP":{"DOMAIN":{"RHEOPLANE_2D":{"GEOMETRY":{"MESH":{"file":"m.2dm"}},)"
            R"("HYDRAULICS":{"INITIAL":{"water_level":1}}},"name":"s"}}})");
  EXPECT_EQ(study.name, "s");
}

TEST_F(Study, TakesACodeOfACoordinateReferenceSystem) {
  const std::string text = studies::withFile().dump();
  EXPECT_THAT(read(text).document, ::testing::HasSubstr(R"("crs":"EPSG:2056")"));
}

TEST_F(Study, RefusesACoordinateReferenceSystemWithoutACode) {
  nlohmann::json study = studies::withFile();
  for (const std::string crs : {"EPSG:", "2056", "EPSG:0", "EPSG:20x", "EPSG:1234567890", "E"}) {
    study["SETUP"]["DOMAIN"]["crs"] = crs;
    EXPECT_EQ(
        refusalOf(study.dump()),
        R"(: key </SETUP/DOMAIN/crs> must be a code such as "EPSG:2056", but is ")" + crs + "\"");
  }
}

TEST_F(Study, FindsTheMeshFileBesideItself) {
  const setup::Study study = read(document(mesh, minimal));
  EXPECT_EQ(std::get<setup::MeshFile>(study.mesh).file, dir.file("m.2dm"));
}

TEST_F(Study, TakesAnAbsoluteMeshFileAsItIs) {
  const setup::Study study = read(document(R"({"MESH": {"file": "/data/m.2dm"}})", minimal));
  EXPECT_EQ(std::get<setup::MeshFile>(study.mesh).file, "/data/m.2dm");
}

TEST_F(Study, ReadsARectangle) {
  const setup::Study study = read(document(
      R"({"RECTANGLE": {"origin": [1, 2], "length": 30, "width": 4.5, "cells": [6, 7],
          "elevation": 8, "slope": 0.01, "pattern": "crossed"}})",
      minimal));
  const auto& mesh2 = std::get<setup::RectangleMesh>(study.mesh);
  EXPECT_THAT(mesh2.origin, ElementsAre(1.0, 2.0));
  EXPECT_EQ(mesh2.length, 30.0);
  EXPECT_EQ(mesh2.width, 4.5);
  EXPECT_THAT(mesh2.cells, ElementsAre(6, 7));
  EXPECT_EQ(mesh2.elevation, 8.0);
  EXPECT_EQ(mesh2.slope, 0.01);
  EXPECT_EQ(mesh2.pattern, setup::Pattern::Crossed);
}

TEST_F(Study, ReadsAChannel) {
  const setup::Study study = read(document(
      R"({"CHANNEL": {"length": 30, "bed_width": 4, "side_slope": 1.5, "bank_height": 2,
          "cells": [6, 7, 3], "pattern": "diagonal"}})",
      minimal));
  const auto& channel = std::get<setup::ChannelMesh>(study.mesh);
  EXPECT_THAT(channel.origin, ElementsAre(0.0, 0.0));
  EXPECT_EQ(channel.bedWidth, 4.0);
  EXPECT_EQ(channel.sideSlope, 1.5);
  EXPECT_EQ(channel.bankHeight, 2.0);
  EXPECT_THAT(channel.cells, ElementsAre(6, 7, 3));
  EXPECT_EQ(channel.pattern, setup::Pattern::Diagonal);
}

TEST_F(Study, ReadsParameters) {
  const setup::Study study = read(document(
      mesh, R"({"PARAMETER": {"cfl": 0.9, "maximum_time_step": 5, "minimum_water_depth": 0.01,
                "gravity": 9.8, "safe_mode": false}})"));
  EXPECT_EQ(study.hydraulics.cfl, 0.9);
  EXPECT_EQ(study.hydraulics.maximumTimeStep, 5.0);
  EXPECT_EQ(study.hydraulics.minimumWaterDepth, 0.01);
  EXPECT_EQ(study.hydraulics.gravity, 9.8);
  EXPECT_FALSE(study.hydraulics.safeMode);
}

TEST_F(Study, ReadsBedZones) {
  const setup::Study study = read(document(
      R"({"MESH": {"file": "m.2dm"}, "REGIONDEF": [{"index": 3, "name": "sill"}],
          "BED": [{"region": "sill", "elevation": 2, "gradient": [0.1, 0.2], "at": [5, 6]},
                  {"box": [0, 0, 1, 2], "raise": -1}]})",
      minimal));
  ASSERT_EQ(study.bed.size(), 2U);
  EXPECT_EQ(study.bed[0].area.region->index, 3);
  EXPECT_FALSE(study.bed[0].area.box);
  EXPECT_EQ(study.bed[0].elevation, 2.0);
  EXPECT_THAT(study.bed[0].gradient, ElementsAre(0.1, 0.2));
  EXPECT_THAT(study.bed[0].at, ElementsAre(5.0, 6.0));
  EXPECT_FALSE(study.bed[1].elevation);
  EXPECT_EQ(study.bed[1].raise, -1.0);
  EXPECT_THAT(*study.bed[1].area.box, ElementsAre(0.0, 0.0, 1.0, 2.0));
}

TEST_F(Study, ReadsTheInitialWater) {
  const setup::Study study =
      read(document(mesh, R"({"INITIAL": {"water_depth": 0.5, "velocity": [1, 0], "ZONES": [
                {"box": [0, 0, 1, 1], "water_level": 3, "velocity": [0, 2]},
                {"box": [0, 0, 2, 2], "water_level": "dry"}]}})"));
  EXPECT_EQ(study.water.depth, 0.5);
  EXPECT_THAT(study.water.velocity, ElementsAre(1.0, 0.0));
  ASSERT_EQ(study.waterZones.size(), 2U);
  EXPECT_EQ(study.waterZones[0].water.level, 3.0);
  EXPECT_THAT(study.waterZones[0].water.velocity, ElementsAre(0.0, 2.0));
  EXPECT_FALSE(study.waterZones[1].water.level);
}

TEST_F(Study, IsRefusedForWhatTheSchemaFinds) {
  ::testing::internal::CaptureStdout();
  const std::string message =
      faults::messageOf([&] { read(document(mesh, R"({"PARAMETER": {"gravty": 9.81}})")); });
  EXPECT_EQ(::testing::internal::GetCapturedStdout(),
            HYDRAULICS + "/PARAMETER/gravty: The value of this item will not be used.\n");
  EXPECT_EQ(message, "Terminating setup due to JSON validation errors in study file <" + file +
                         ">: a study must not hold keys that are not used.");
}

/// A study that its schema lets pass.
struct StudyFault {
  std::string name;
  std::string geometry;
  std::string hydraulics;
  std::string message;
};

class StudyFaults : public Study, public ::testing::WithParamInterface<StudyFault> {};

TEST_P(StudyFaults, AreRefused) {
  const StudyFault& fault = GetParam();
  EXPECT_EQ(refusalOf(document(fault.geometry, fault.hydraulics)), ": " + fault.message);
}

// clang-format off
namespace {
const std::string LEVEL = R"({"INITIAL": {"water_level": 1}})";
std::string bedZone(const std::string& zone) {
  return R"({"MESH": {"file": "m"}, "BED": [)" + zone + "]}";
}
std::string initial(const std::string& keys) { return R"({"INITIAL": {)" + keys + "}}"; }
const std::string FILE_MESH = R"({"MESH": {"file": "m"}})";
}  // namespace

INSTANTIATE_TEST_SUITE_P(All, StudyFaults, ::testing::Values(
  StudyFault{"tooManyCells",   R"({"RECTANGLE": {"length": 1, "width": 1, "cells": [100000, 100000]}})", LEVEL,
             "key <" + GEOMETRY + "/RECTANGLE/cells> asks for more cells than are possible, 1e+08"},
  StudyFault{"tooLongChannel", R"({"CHANNEL": {"length": 1, "bed_width": 1, "cells": [25000000, 1, 1]}})", LEVEL,
             "key <" + GEOMETRY + "/CHANNEL/cells> asks for more cells than are possible, 1e+08"},
  StudyFault{"halfABank",      R"({"CHANNEL": {"length": 1, "bed_width": 1, "cells": [1, 1, 1], "side_slope": 2}})", LEVEL,
             "<" + GEOMETRY + "/CHANNEL> needs both side_slope and bank_height greater than 0 to have banks, and neither to have none"},
  StudyFault{"regionIndex",    R"({"MESH": {"file": "m"}, "REGIONDEF": [{"index": 1, "name": "a"}, {"index": 1, "name": "b"}]})", LEVEL,
             "<" + GEOMETRY + "/REGIONDEF/1> has the index or the name of another region, index 1 and name <a>"},
  StudyFault{"regionName",     R"({"MESH": {"file": "m"}, "REGIONDEF": [{"index": 1, "name": "a"}, {"index": 2, "name": "a"}]})", LEVEL,
             "<" + GEOMETRY + "/REGIONDEF/1> has the index or the name of another region, index 1 and name <a>"},
  StudyFault{"shortOrigin",    R"({"RECTANGLE": {"origin": [1], "length": 1, "width": 1, "cells": [1, 1]}})", LEVEL,
             "key <" + GEOMETRY + "/RECTANGLE/origin> must be a list of 2 numbers, but is [1]"},
  StudyFault{"longCells",      R"({"RECTANGLE": {"length": 1, "width": 1, "cells": [1, 1, 1]}})", LEVEL,
             "key <" + GEOMETRY + "/RECTANGLE/cells> must be a list of 2 numbers, but is [1,1,1]"},
  StudyFault{"channelOrigin",  R"({"CHANNEL": {"origin": [1, 2, 3], "length": 1, "bed_width": 1, "cells": [1, 1, 1]}})", LEVEL,
             "key <" + GEOMETRY + "/CHANNEL/origin> must be a list of 2 numbers, but is [1,2,3]"},
  StudyFault{"channelCells",   R"({"CHANNEL": {"length": 1, "bed_width": 1, "cells": [1, 1]}})", LEVEL,
             "key <" + GEOMETRY + "/CHANNEL/cells> must be a list of 3 numbers, but is [1,1]"},
  StudyFault{"shortBox",       bedZone(R"({"box": [0, 0, 1], "raise": 1})"), LEVEL,
             "key <" + GEOMETRY + "/BED/0/box> must be a list of 4 numbers, but is [0,0,1]"},
  StudyFault{"flatBox",        bedZone(R"({"box": [0, 0, 0, 2], "raise": 1})"), LEVEL,
             "key <" + GEOMETRY + "/BED/0/box> must be [xmin, ymin, xmax, ymax] with xmin < xmax and ymin < ymax, but is [0,0,0,2]"},
  StudyFault{"turnedBox",      bedZone(R"({"box": [0, 3, 1, 2], "raise": 1})"), LEVEL,
             "key <" + GEOMETRY + "/BED/0/box> must be [xmin, ymin, xmax, ymax] with xmin < xmax and ymin < ymax, but is [0,3,1,2]"},
  StudyFault{"gradient",       bedZone(R"({"box": [0, 0, 1, 1], "elevation": 1, "gradient": [1], "at": [0, 0]})"), LEVEL,
             "key <" + GEOMETRY + "/BED/0/gradient> must be a list of 2 numbers, but is [1]"},
  StudyFault{"at",             bedZone(R"({"box": [0, 0, 1, 1], "elevation": 1, "gradient": [1, 0], "at": [0]})"), LEVEL,
             "key <" + GEOMETRY + "/BED/0/at> must be a list of 2 numbers, but is [0]"},
  StudyFault{"safeMode",       FILE_MESH, R"({"PARAMETER": {"safe_mode": 0}})",
             "key <" + HYDRAULICS + "/PARAMETER/safe_mode> must be true or false, but is 0"},
  StudyFault{"wetLevel",       FILE_MESH, initial(R"("water_level": "wet")"),
             "key <" + INITIAL + "/water_level> must be a number or \"dry\", but is \"wet\""},
  StudyFault{"listOfLevels",   FILE_MESH, initial(R"("water_level": [1])"),
             "key <" + INITIAL + "/water_level> must be a number or \"dry\", but is [1]"},
  StudyFault{"velocity",       FILE_MESH, initial(R"("water_level": 1, "velocity": [1, 0, 0])"),
             "key <" + INITIAL + "/velocity> must be a list of 2 numbers, but is [1,0,0]"},
  StudyFault{"zoneLevel",      FILE_MESH, initial(R"("ZONES": [{"box": [0, 0, 1, 1], "water_level": true}])"),
             "key <" + INITIAL + "/ZONES/0/water_level> must be a number or \"dry\", but is true"},
  StudyFault{"bedNowhere",     bedZone(R"({"raise": 1})"), LEVEL,
             "<" + GEOMETRY + "/BED/0> must hold region, box or both"},
  StudyFault{"bedNoPlace",     bedZone(R"({"box": [0, 0, 1, 1], "elevation": 1, "gradient": [1, 0]})"), LEVEL,
             "<" + GEOMETRY + "/BED/0> must hold gradient and at together: at is where the bed has the elevation"},
  StudyFault{"bedRaisedPlane", bedZone(R"({"box": [0, 0, 1, 1], "raise": 1, "gradient": [1, 0], "at": [0, 0]})"), LEVEL,
             "<" + GEOMETRY + "/BED/0> must hold elevation if it holds gradient"},
  StudyFault{"levelAndDepth",  FILE_MESH, initial(R"("water_level": 1, "water_depth": 1)"),
             "<" + INITIAL + "> must not hold both water_level and water_depth"},
  StudyFault{"dryVelocity",    FILE_MESH, initial(R"("velocity": [1, 0])"),
             "key <" + INITIAL + "/velocity> needs a water_level or water_depth beside it"},
  StudyFault{"zoneNowhere",    FILE_MESH, initial(R"("ZONES": [{"water_level": 1}])"),
             "<" + INITIAL + "/ZONES/0> must hold region, box or both"},
  StudyFault{"zoneVelocity",   FILE_MESH, initial(R"("ZONES": [{"box": [0, 0, 1, 1], "water_level": "dry", "velocity": [1, 0]}])"),
             "key <" + INITIAL + "/ZONES/0/velocity> needs a water_level or water_depth beside it"}
), [](const ::testing::TestParamInfo<StudyFault>& fault) { return fault.param.name; });
// clang-format on
