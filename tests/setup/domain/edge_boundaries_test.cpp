#include "setup/domain/edge_boundaries.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

#include "dataio/Factory.h"
#include "setup/Setup.h"
#include "setup/StudyFolder.h"
#include "setup/codes.h"
#include "setup/mesh/Mesh.h"

using setup::index;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;
using ::testing::SizeIs;

namespace {

const std::string BOUNDARY = studies::PLANE + "/HYDRAULICS/BOUNDARY";
const std::string FRICTION = R"("FRICTION": {"type": "manning", "value": 0.03}, )";
constexpr double NEVER = std::numeric_limits<double>::min();

/// Strings on the square of nodes
///   7 8 9
///   4 5 6
///   1 2 3
const std::string STRINGS = R"("STRINGDEF": [
    {"name": "west",     "nodes": [1, 4, 7]},
    {"name": "east",     "nodes": [9, 6, 3]},
    {"name": "middle",   "nodes": [2, 5, 8]},
    {"name": "crossing", "nodes": [4, 5, 6]},
    {"name": "mixed",    "nodes": [1, 2, 5]},
    {"name": "corner",   "nodes": [8, 9, 6]}])";

class Boundaries : public ::testing::Test {
 protected:
  setup::Domain build(const std::string& boundaries) const {
    return folder.build(STRINGS, FRICTION + R"("BOUNDARY": [)" + boundaries + "]");
  }

  std::string refusalOf(const std::string& boundaries) const {
    return folder.refusalOf(STRINGS, FRICTION + R"("BOUNDARY": [)" + boundaries + "]");
  }

  const studies::Folder folder;
};

}  // namespace

TEST_F(Boundaries, AnInflowSpreadsItsDischargeOverTheLengthOfItsString) {
  const setup::Domain domain =
      build(R"({"string": "west", "type": "inflow", "discharge": 12, "slope": 0.01})");
  const setup::EdgeBoundaries& found = domain.boundaries;
  EXPECT_EQ(found.flow.edges, domain.strings[0].edges);
  EXPECT_THAT(found.flow.types, Each(ElementsAre(100, -1)));
  EXPECT_THAT(found.flow.recordOf, ElementsAre(0, 0));
  EXPECT_THAT(found.records, ElementsAre(ElementsAre(12, 0.01, 0, 0, 0, 0, 0)));
  EXPECT_THAT(found.interpolations, IsEmpty());
  ASSERT_THAT(found.modifications, SizeIs(1));
  EXPECT_THAT(codes::rowOf(found.modifications[0].info), ElementsAre(1, 2, 0, 0, 0, 0, 0));
  EXPECT_THAT(found.modifications[0].strings, ElementsAre(0, 0));
}

TEST_F(Boundaries, StringsAreTurnedSoThatTheSenseOfTheirBoundaryIsPositive) {
  for (const char* order : {"[1, 4, 7]", "[7, 4, 1]"}) {
    const setup::Domain domain = folder.build(
        R"("STRINGDEF": [{"name": "w", "nodes": )" + std::string(order) + "}]",
        FRICTION +
            R"("BOUNDARY": [{"string": "w", "type": "inflow", "discharge": 1, "slope": 1}])");
    EXPECT_THAT(domain.strings[0].signs, Each(-1));
    EXPECT_THAT(domain.boundaries.flow.types, Each(ElementsAre(100, -1)));
    const setup::Domain outflow =
        folder.build(R"("STRINGDEF": [{"name": "w", "nodes": )" + std::string(order) + "}]",
                     R"("BOUNDARY": [{"string": "w", "type": "free_outflow"}])");
    EXPECT_THAT(outflow.strings[0].signs, Each(1));
    EXPECT_THAT(outflow.boundaries.flow.types, Each(ElementsAre(112, 1)));
  }
}

TEST_F(Boundaries, InnerStringsKeepTheirDirectionAndEdgesBothCells) {
  const setup::Domain domain = build(R"({"string": "middle", "type": "inner_wall"})");
  for (std::size_t k = 0; k < 2; ++k) {
    EXPECT_THAT(domain.boundaries.flow.types[k], ElementsAre(220, domain.strings[2].signs[k]));
    const auto [left, right] = domain.topology.edgeCells[index(domain.boundaries.flow.edges[k])];
    EXPECT_NE(left, right);
  }
}

TEST_F(Boundaries, ASeriesIsLookedUpInEveryStep) {
  support::writeFile(folder.file("q.txt"), "0 1\n60 5\n");
  const setup::Domain domain = build(
      R"({"string": "west", "type": "inflow", "discharge_file": "q.txt", "slope": 0.01},
         {"string": "east", "type": "level", "level_file": "q.txt", "inflow": false})");
  ASSERT_THAT(domain.series.all(), SizeIs(1));
  const auto& lookups = domain.boundaries.interpolations;
  ASSERT_THAT(lookups, SizeIs(2));
  EXPECT_THAT((std::array{lookups[0].series, lookups[0].string, lookups[0].record,
                          codes::numberOf(lookups[0].key), lookups[0].position}),
              ElementsAre(0, 0, 0, 0, 0));
  EXPECT_THAT((std::array{lookups[1].series, lookups[1].string, lookups[1].record,
                          codes::numberOf(lookups[1].key), lookups[1].position}),
              ElementsAre(0, 1, 1, 0, 0));
  EXPECT_THAT(domain.boundaries.records[1], ElementsAre(0, 0, 0, 0, 0, 0, 0));
}

TEST_F(Boundaries, ARatingCurveIsLookedUpByTheLevelOrTheDepth) {
  support::writeFile(folder.file("curve.txt"), "0 0\n2 9\n");
  const std::string curve =
      R"({"string": "east", "type": "rating_curve", "discharge_file": "curve.txt")";
  EXPECT_EQ(build(curve + "}").boundaries.interpolations.at(0).key,
            model::InterpolationKey::WaterLevel);
  EXPECT_EQ(build(curve + R"(, "over": "depth"})").boundaries.interpolations.at(0).key,
            model::InterpolationKey::Depth);
}

TEST_F(Boundaries, ALinkLooksUpTheLevelWhereTheWaterComesIn) {
  support::writeFile(folder.file("same.txt"), "-100 -100\n100 100\n");
  const setup::Domain domain = build(R"({"string": "east", "to": "west", "type": "linked_level",
                                         "level_file": "same.txt"})");
  const auto& lookup = domain.boundaries.interpolations.at(0);
  EXPECT_EQ(lookup.key, model::InterpolationKey::WaterLevel);
  EXPECT_EQ(lookup.string, 0);
}

TEST_F(Boundaries, LinkedStringsShareOneRecord) {
  const setup::Domain domain =
      build(R"({"string": "east", "to": "west", "type": "linked_weir", "crest": 1.5})");
  const setup::EdgeBoundaries& found = domain.boundaries;
  EXPECT_THAT(found.flow.types, ElementsAre(ElementsAre(323, 1), ElementsAre(323, 1),
                                            ElementsAre(322, -1), ElementsAre(322, -1)));
  EXPECT_THAT(found.flow.recordOf, Each(0));
  EXPECT_THAT(found.records, ElementsAre(ElementsAre(1.5, 0.611, 0.08, 0, 0, 0, 0)));
  ASSERT_THAT(found.modifications, SizeIs(2));
  EXPECT_THAT(codes::rowOf(found.modifications[0].info), ElementsAre(3, 3, 0, 1, 2, 0, 0));
  EXPECT_THAT(codes::rowOf(found.modifications[1].info), ElementsAre(9, 4, 0, 0, 0, 0, 0));
  EXPECT_THAT(found.modifications[1].strings, ElementsAre(1, 0));
}

/// A boundary and the record that it has at the start.
struct Row {
  std::string name;
  std::string boundary;
  int code;
  std::array<double, 7> record;
};

class BoundaryRows : public Boundaries, public ::testing::WithParamInterface<Row> {};

TEST_P(BoundaryRows, HaveTheCodeAndTheRecord) {
  const Row& row = GetParam();
  support::writeFile(folder.file("s.txt"), "0 1\n");
  const setup::Domain domain = build(row.boundary);
  EXPECT_EQ(domain.boundaries.flow.types.front()[0], row.code);
  EXPECT_THAT(domain.boundaries.records.at(0), ElementsAreArray(row.record));
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(All, BoundaryRows, ::testing::Values(
  Row{"inflowFroude",   R"({"string": "west", "type": "inflow_froude", "discharge": 3})",                 102, {3, 1}},
  Row{"normalDepth",    R"({"string": "east", "type": "normal_depth", "slope": 0.02})",                   104, {0.02}},
  Row{"weir",           R"({"string": "east", "type": "weir", "crest": 2, "rise": 0, "coefficient": 0.5})", 106, {2, 0.5, 0}},
  Row{"switched",       R"({"string": "east", "type": "switched_outflow", "discharge_above": 4, "upper_level": 2, "lower_level": 1, "delay": 60})",
                                                                                                          108, {0, 4, 2, 0, 60, 1}},
  Row{"switchedOnce",   R"({"string": "east", "type": "switched_outflow", "discharge_below": 3, "discharge_above": 4, "upper_level": 2})",
                                                                                                          108, {3, 4, 2, 0, 0, NEVER}},
  Row{"outflow",        R"({"string": "east", "type": "outflow", "discharge": 4})",                       110, {4}},
  Row{"level",          R"({"string": "east", "type": "level", "level": 1.5})",                           114, {1.5, 1}},
  Row{"levelOutOnly",   R"({"string": "east", "type": "level", "level": -1.5, "inflow": false})",         114, {-1.5, 0}},
  Row{"innerWeir",      R"({"string": "middle", "type": "inner_weir", "crest": 2})",                      216, {2, 0, 0.611, 0.08}},
  Row{"innerCurve",     R"({"string": "middle", "type": "inner_rating_curve", "discharge_file": "s.txt"})", 216, {}},
  Row{"innerDischarge", R"({"string": "middle", "type": "inner_discharge", "discharge": 2})",             216, {2}},
  Row{"gateByTime",     R"({"string": "middle", "type": "gate_by_time", "opens_at": 30})",                218, {30}},
  Row{"gateBySeries",   R"({"string": "middle", "type": "gate_by_series", "opening_file": "s.txt"})",     218, {}},
  Row{"gateByLevel",    R"({"string": "middle", "type": "gate_by_level", "upper_level": 3, "lower_level": 2})",
                                                                                                          218, {-1, 0, 1, 3, 0, 2}},
  Row{"gateOpenBelow",  R"({"string": "middle", "type": "gate_by_level", "upper_level": 3, "opening_below": 1, "opening_above": -1})",
                                                                                                          218, {1, 0, -1, 3, 0, NEVER}},
  Row{"linkedCurve",    R"({"string": "east", "to": "west", "type": "linked_rating_curve", "discharge_file": "s.txt"})", 325, {}},
  Row{"linkedDischarge", R"({"string": "east", "to": "west", "type": "linked_discharge", "discharge": 2})", 327, {2}},
  Row{"linkedSwitch",   R"({"string": "east", "to": "west", "type": "linked_switch", "discharge_above": 2, "upper_level": 3})",
                                                                                                          329, {0, 2, 3, 0, NEVER}},
  Row{"linkedLevel",    R"({"string": "east", "to": "west", "type": "linked_level", "level": 3})",        331, {3}}
), [](const ::testing::TestParamInfo<Row>& row) { return row.param.name; });
// clang-format on

/// A boundary that is refused, and what is said behind the path of its group.
struct BoundaryFault {
  std::string name;
  std::string boundary;
  std::string message;
};

class BoundaryFaults : public Boundaries, public ::testing::WithParamInterface<BoundaryFault> {};

TEST_P(BoundaryFaults, AreRefused) {
  const BoundaryFault& fault = GetParam();
  support::writeFile(folder.file("s.txt"), "0 1\n10 -2\n");
  EXPECT_EQ(refusalOf(fault.boundary), fault.message);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(All, BoundaryFaults, ::testing::Values(
  BoundaryFault{"noPartner",    R"({"string": "east", "type": "linked_weir", "crest": 1})",
    "<" + BOUNDARY + "/0> of type <linked_weir> needs the key to: the string where the water comes in"},
  BoundaryFault{"partner",      R"({"string": "east", "to": "west", "type": "weir", "crest": 1})",
    "<" + BOUNDARY + "/0> of type <weir> does not take the key to, but these: string, type, crest, coefficient, rise"},
  BoundaryFault{"otherKey",     R"({"string": "east", "type": "level", "discharge": 1})",
    "<" + BOUNDARY + "/0> of type <level> does not take the key discharge, but these: string, type, level, level_file, inflow, over"},
  BoundaryFault{"noValue",      R"({"string": "west", "type": "inflow", "slope": 0.01})",
    "<" + BOUNDARY + "/0> of type <inflow> needs the key discharge, discharge_file"},
  BoundaryFault{"twoValues",    R"({"string": "west", "type": "inflow", "slope": 0.01, "discharge": 1, "discharge_file": "s.txt"})",
    "<" + BOUNDARY + "/0> of type <inflow> must hold only one of discharge and discharge_file"},
  BoundaryFault{"lookup",       R"({"string": "east", "type": "rating_curve", "discharge_file": "s.txt", "over": "time"})",
    "<" + BOUNDARY + "/0> of type <rating_curve> cannot look up a series over <time>, but over level, depth"},
  BoundaryFault{"lookupOfNone", R"({"string": "east", "type": "level", "level": 1, "over": "discharge"})",
    "<" + BOUNDARY + "/0> of type <level> has no series that over could be meant for"},
  BoundaryFault{"levels",       R"({"string": "middle", "type": "gate_by_level", "upper_level": 2, "lower_level": 2})",
    "<" + BOUNDARY + "/0> of type <gate_by_level> needs a lower_level below its upper_level, but they are 2 and 2"},
  BoundaryFault{"inside",       R"({"string": "mixed", "type": "free_outflow"})",
    "<" + BOUNDARY + "/0> of type <free_outflow>: string <mixed> must run along the boundary of the mesh, but the edge between nodes 2 and 5 is inside"},
  BoundaryFault{"onBoundary",   R"({"string": "mixed", "type": "inner_wall"})",
    "<" + BOUNDARY + "/0> of type <inner_wall>: string <mixed> must run through the mesh, but the edge between nodes 1 and 2 is on its boundary"},
  BoundaryFault{"stringTwice",  R"({"string": "east", "type": "free_outflow"}, {"string": "west", "to": "east", "type": "linked_weir", "crest": 1})",
    "<" + BOUNDARY + "/1> uses the string <east> a second time, a string has one boundary"},
  BoundaryFault{"toItself",     R"({"string": "east", "to": "east", "type": "linked_weir", "crest": 1})",
    "<" + BOUNDARY + "/0> uses the string <east> a second time, a string has one boundary"},
  BoundaryFault{"edgeTwice",    R"({"string": "east", "type": "free_outflow"}, {"string": "corner", "type": "free_outflow"})",
    "<" + BOUNDARY + "/1> of type <free_outflow>: string <corner> has the edge between nodes 6 and 9 in common with the boundary on string <east>"}
), [](const ::testing::TestParamInfo<BoundaryFault>& fault) { return fault.param.name; });
// clang-format on

TEST_F(Boundaries, RefuseSeriesWithValuesThatTheInputDoesNotTake) {
  support::writeFile(folder.file("q.txt"), "0 1\n10 -2\n");
  EXPECT_EQ(
      refusalOf(R"({"string": "west", "type": "inflow", "slope": 1, "discharge_file": "q.txt"})"),
      "key <" + BOUNDARY +
          "/0/discharge_file>: discharge must be at least 0, but is -2 at "
          "10 in <" +
          folder.file("q.txt") + ">");
}

TEST_F(Boundaries, RefuseASeriesThatIsNotThere) {
  EXPECT_EQ(refusalOf(R"({"string": "east", "type": "level", "level_file": "none.txt"})"),
            "series file <" + folder.file("none.txt") + ">: the file cannot be read");
}

TEST_F(Boundaries, RefuseNormalDepthsWithoutFriction) {
  EXPECT_EQ(folder.refusalOf(STRINGS, R"("BOUNDARY": [{"string": "east", "type": "normal_depth",
                                          "slope": 0.01}])"),
            "<" + BOUNDARY +
                "/0> of type <normal_depth> needs bed friction: the study "
                "must hold HYDRAULICS/FRICTION");
}

TEST(PinchedMesh, AStringWithTheDomainOnBothSidesIsRefused) {
  const studies::Folder folder(R"("MESH": {"file": "m.2dm"})");
  support::writeFile(folder.file("m.2dm"),
                     "MESH2D\nND 1 0 0 0\nND 2 1 0 0\nND 3 0 1 0\nND 4 2 0 0\nND 5 2 -1 0\n"
                     "E3T 1 1 2 3 1\nE3T 2 2 4 5 1\nNS 1 2 -4 line\n");
  EXPECT_EQ(folder.refusalOf(R"("STRINGDEF": [{"name": "line"}])",
                             R"("BOUNDARY": [{"string": "line", "type": "free_outflow"}])"),
            "<" + BOUNDARY +
                "/0> of type <free_outflow>: string <line> has the domain on its left and on its "
                "right, see the edge between nodes 2 and 4: divide it there");
}

TEST_F(Boundaries, RunFileOfATinyMeshIsAsWrittenByHand) {
  support::writeFile(folder.file("q.txt"), "0 1\n60 5\n");
  folder.read(STRINGS, FRICTION + R"("BOUNDARY": [
      {"string": "west", "type": "inflow", "discharge_file": "q.txt", "slope": 0.01},
      {"string": "middle", "type": "gate_by_time", "opens_at": 7}])");
  const std::string run = folder.file("run.h5");
  ::testing::internal::CaptureStdout();
  setup::makeRunFile(folder.file("study.json"), run);
  ::testing::internal::GetCapturedStdout();
  const std::unique_ptr<api::IH5Reader> file(dataio::Factory::createH5Reader(run));
  EXPECT_EQ(file->readIntScalar("EdgHydBC/set"), 4);
  EXPECT_EQ(file->readIntScalar("EdgHydWL/set"), 6);
  EXPECT_EQ(file->readIntScalar("EdgesSWE/set"), 6);
  EXPECT_EQ(file->readIntScalar("NodeStrg/set"), 6);
  EXPECT_THAT(file->readStrVec("NodeStrg/StrNames"),
              ElementsAre("west", "east", "middle", "crossing", "mixed", "corner"));
  EXPECT_THAT(file->readIntVecVec("EdgHydBC/EdgeData"),
              ElementsAre(ElementsAre(0), ElementsAre(0), ElementsAre(1), ElementsAre(1)));
  EXPECT_THAT(file->readIntVecVec("EdgHydBC/HydBType")[0], ElementsAre(100, -1));
  EXPECT_EQ(file->readIntVecVec("EdgHydBC/HydBType")[2][0], 218);
  EXPECT_THAT(file->readDoubleVecVec("EdgeData/NumValue"),
              ElementsAre(ElementsAre(0, 0.01, 0, 0, 0, 0, 0), ElementsAre(7, 0, 0, 0, 0, 0, 0)));
  EXPECT_THAT(file->readIntVecVec("EdModDat/ModfInfo"),
              ElementsAre(ElementsAre(1, 2, 0, 0, 0, 0, 0), ElementsAre(5, 1, 0, 0, 0, 0, 0)));
  EXPECT_THAT(file->readIntVecVec("EdModDat/NodeStrg"),
              ElementsAre(ElementsAre(0, 0), ElementsAre(2, 2)));
  EXPECT_THAT(file->readIntVecVec("EdInterp/KeyPostn"), ElementsAre(ElementsAre(0, 0)));
  const auto series = file->readDoubleVecVec("InSeries/NumValue")[0];
  ASSERT_THAT(series, SizeIs(12000));
  EXPECT_THAT((std::array{series[0], series[1], series[2], series[3], series[4], series[11999]}),
              ElementsAre(0, 1, 60, 5, NEVER, NEVER));
  EXPECT_EQ(file->readIntScalar("InSeries/ListSize"), 4);
  const auto edges = file->readIntVecVec("NodeStrg/EdgesAll");
  EXPECT_THAT(edges[0], SizeIs(40));
  EXPECT_EQ(edges[0][0], file->readIntVecVec("EdgHydBC/EdgesAll")[0][0]);
  EXPECT_THAT(file->readIntVecVec("NodeStrg/ListSize"), Each(ElementsAre(2)));
  EXPECT_THAT(file->readDoubleVecVec("NodeStrg/TotalLen"), Each(ElementsAre(4.0)));
  EXPECT_EQ(file->readIntScalar("Parameters/FrictionOn"), 1);
}
