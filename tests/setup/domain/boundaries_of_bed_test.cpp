// The boundaries of the bed load beside those of the flow.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "setup/MovingBed.h"
#include "setup/codes.h"
#include "setup/mesh/Mesh.h"
#include "setup/runfile/contents.h"

using setup::index;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using enum model::SetID;

namespace {

class BoundariesOfBed : public studies::MovingBed {
 protected:
  setup::Domain build(const std::string& boundaries, const std::string& flow = "",
                      const std::string& formula = R"("FORMULA": {"type": "grass_1981",
                          "coefficient": 1, "factor": 0.5})") const {
    return folder.build(GEOMETRY, ROUGH_FLOW + flow,
                        bed(GRAINS, formula + R"(, "BOUNDARY": [)" + boundaries + "]"));
  }

  std::string refusalOf(const std::string& boundaries) const {
    return folder.refusalOf(GEOMETRY, FLOW,
                            bed(GRAINS, GRASS + R"(, "BOUNDARY": [)" + boundaries + "]"));
  }

  const std::string BOUNDARY = BEDLOAD + "/BOUNDARY";
};

int sizeOf(model::SetID set, const setup::Domain& domain) {
  return setup::setContents().at(set).size(domain);
}

struct Row {
  std::string keys;
  int code;
  int sign;
  std::vector<double> record;
  std::vector<int> modification;  ///< empty: none
};

class BedBoundaryRows : public BoundariesOfBed, public ::testing::WithParamInterface<Row> {};

}  // namespace

/// The factor of the formula is 0.5.
TEST_P(BedBoundaryRows, BecomeTheirCodeRecordAndModification) {
  const Row& row = GetParam();
  const setup::Domain domain = build(R"({"string": "west", )" + row.keys + "}");
  const setup::EdgeBoundaries& found = domain.boundaries;
  EXPECT_EQ(found.bed.edges, domain.strings[0].edges);
  EXPECT_THAT(found.bed.types, Each(ElementsAre(row.code, row.sign)));
  EXPECT_THAT(domain.strings[0].signs, Each(row.sign));
  EXPECT_THAT(found.bed.recordOf, Each(0));
  EXPECT_THAT(found.records, ElementsAre(ElementsAreArray(row.record)));
  ASSERT_THAT(found.modifications, SizeIs(row.modification.empty() ? 0U : 1U));
  if (row.modification.empty()) return;
  EXPECT_THAT(codes::rowOf(found.modifications[0].info), ElementsAreArray(row.modification));
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(All, BedBoundaryRows, ::testing::Values(
  Row{R"("type": "lowest_bed", "elevation": 3)",                      400, -1, {3, 0, 0, 0, 0, 0, 0},   {}},
  Row{R"("type": "highest_bed", "elevation": -3)",                    402,  1, {-3, 0, 0, 0, 0, 0, 0},  {}},
  Row{R"("type": "inflow", "discharge": 3)",                          404, -1, {6, 0, 0, 0, 0, 0, 0},   {10, 1, 0, 0, 0, 0, 0}},
  Row{R"("type": "inflow_by_depth", "discharge": 3)",                 406, -1, {6, 0, 0, 0, 0, 0, 0},   {11, 1, 0, 0, 0, 0, 0}},
  Row{R"("type": "inflow_by_conveyance", "discharge": 3)",            408, -1, {6, 0, 0, 0, 0, 0, 0},   {12, 1, 0, 0, 0, 0, 0}},
  Row{R"("type": "capacity_inflow", "share": 0.8)",                   410, -1, {0.8, 0, 0, 0, 0, 0, 0}, {13, 1, 0, 0, 0, 0, 0}},
  Row{R"("type": "capacity_outflow")",                                410,  1, {-1, 0, 0, 0, 0, 0, 0},  {13, 1, 0, 0, 0, 0, 0}},
  Row{R"("type": "outflow", "discharge": 3)",                         410,  1, {-1, 0, 6, 0, 0, 0, 0},  {10, 1, 2, 0, 0, 0, 0}},
  Row{R"("type": "capacity_inflow_by_depth")",                        412, -1, {1, 0, 0, 0, 0, 0, 0},   {14, 1, 0, 0, 0, 0, 0}},
  Row{R"("type": "capacity_outflow_by_depth", "share": 2)",           412,  1, {-2, 0, 0, 0, 0, 0, 0},  {14, 1, 0, 0, 0, 0, 0}},
  Row{R"("type": "outflow_by_depth", "discharge": 3)",                412,  1, {-1, 0, 6, 0, 0, 0, 0},  {11, 1, 2, 0, 0, 0, 0}},
  Row{R"("type": "capacity_inflow_by_conveyance")",                   414, -1, {1, 0, 0, 0, 0, 0, 0},   {15, 1, 0, 0, 0, 0, 0}},
  Row{R"("type": "capacity_outflow_by_conveyance")",                  414,  1, {-1, 0, 0, 0, 0, 0, 0},  {15, 1, 0, 0, 0, 0, 0}},
  Row{R"("type": "outflow_by_conveyance", "discharge": 3)",           414,  1, {-1, 0, 6, 0, 0, 0, 0},  {12, 1, 2, 0, 0, 0, 0}}));
// clang-format on

TEST_F(BoundariesOfBed, StringsAreTurnedByTheFlowWhereItHasABoundary) {
  const std::string bedInflow = R"({"string": "west", "type": "inflow", "discharge": 1})";
  const setup::Domain domain =
      build(bedInflow, R"(, "BOUNDARY": [{"string": "west", "type": "free_outflow"}])");
  EXPECT_THAT(domain.strings[0].signs, Each(1));
  EXPECT_THAT(domain.boundaries.flow.types, Each(ElementsAre(112, 1)));
  EXPECT_THAT(domain.boundaries.bed.types, Each(ElementsAre(404, -1)));
}

TEST_F(BoundariesOfBed, RecordsFollowThoseOfTheFlow) {
  const setup::Domain domain =
      build(R"({"string": "east", "type": "capacity_outflow"})",
            R"(, "BOUNDARY": [{"string": "west", "type": "inflow", "discharge": 1, "slope": 1},
                              {"string": "east", "type": "free_outflow"}])");
  EXPECT_THAT(domain.boundaries.records, SizeIs(3));
  EXPECT_THAT(domain.boundaries.bed.recordOf, ElementsAre(2, 2));
  ASSERT_THAT(domain.boundaries.modifications, SizeIs(2));
  EXPECT_EQ(domain.boundaries.modifications[1].record, 2);
  EXPECT_THAT(domain.boundaries.modifications[1].strings, ElementsAre(1, 1));
}

TEST_F(BoundariesOfBed, SeriesAreScaledLikeValues) {
  support::writeFile(folder.file("q.txt"), "0 1\n60 5\n");
  const setup::Domain domain =
      build(R"({"string": "west", "type": "inflow", "discharge_file": "q.txt", "over": "discharge"},
               {"string": "east", "type": "capacity_outflow", "share_file": "q.txt"})");
  ASSERT_THAT(domain.series.all(), SizeIs(2));
  EXPECT_EQ(domain.series.at(0).factor, 2.0);
  EXPECT_EQ(domain.series.at(1).factor, -1.0);
  const auto& lookups = domain.boundaries.interpolations;
  ASSERT_THAT(lookups, SizeIs(2));
  EXPECT_EQ(lookups[0].key, model::InterpolationKey::Discharge);
  EXPECT_EQ(lookups[1].key, model::InterpolationKey::Time);
  const std::vector<double> values = std::get<setup::Values<double>>(
      setup::setContents().at(model::SetID::InSeries).data.at(model::DataID::InSeries_NumValue))(
      domain);
  EXPECT_THAT((std::vector<double>(values.begin(), values.begin() + 4)), ElementsAre(0, 2, 60, 10));
  EXPECT_THAT((std::vector<double>(values.begin() + 12000, values.begin() + 12004)),
              ElementsAre(0, -1, 60, -5));
}

TEST_F(BoundariesOfBed, LeaveWallsWhereThereAreNone) {
  const setup::Domain domain = build(R"({"string": "west", "type": "capacity_inflow"})");
  EXPECT_EQ(sizeOf(EdgMorBC, domain), 2);
  EXPECT_EQ(sizeOf(EdgMorWL, domain), 6);
  EXPECT_EQ(sizeOf(EdgHydWL, domain), 8);
  EXPECT_EQ(sizeOf(EdgesEXN, domain), 8);
}

TEST_F(BoundariesOfBed, WeirsPumpsAndWallsThroughTheMeshStopTheBedLoad) {
  const auto check = [this](const std::string& keys, int walls) {
    const setup::Domain domain = build(R"({"string": "west", "type": "capacity_inflow"})",
                                       R"(, "BOUNDARY": [{"string": "middle", )" + keys + "}]");
    EXPECT_EQ(sizeOf(EdgMorWL, domain), 6 + walls) << keys;
    EXPECT_EQ(sizeOf(EdgesEXN, domain), 8 - walls) << keys;
    EXPECT_EQ(sizeOf(EdgesSWE, domain), 6) << keys;
  };
  check(R"("type": "inner_wall")", 2);
  check(R"("type": "inner_weir", "crest": 1)", 2);
  check(R"("type": "inner_discharge", "discharge": 1)", 2);
  check(R"("type": "gate_by_time", "opens_at": 1)", 0);
}

TEST_F(BoundariesOfBed, RefuseWhatTheirTypeDoesNotTake) {
  EXPECT_EQ(refusalOf(R"({"string": "west", "type": "inflow", "share": 1})"),
            "<" + BOUNDARY +
                "/0> of type <inflow> does not take the key share, but these: "
                "string, type, discharge, discharge_file, over");
  EXPECT_EQ(refusalOf(R"({"string": "west", "type": "outflow"})"),
            "<" + BOUNDARY + "/0> of type <outflow> needs the key discharge, discharge_file");
  EXPECT_EQ(refusalOf(R"({"string": "west", "type": "inflow_by_conveyance", "discharge": 1})"),
            "<" + BOUNDARY +
                "/0> of type <inflow_by_conveyance> needs bed friction: the study "
                "must hold HYDRAULICS/FRICTION");
}

TEST_F(BoundariesOfBed, RefuseStringsThroughTheMeshAndSecondOnes) {
  EXPECT_THAT(refusalOf(R"({"string": "middle", "type": "capacity_inflow"})"),
              ::testing::StartsWith("<" + BOUNDARY +
                                    "/0> of type <capacity_inflow>: string "
                                    "<middle> must run along the boundary of the mesh"));
  EXPECT_EQ(refusalOf(R"({"string": "west", "type": "capacity_inflow"},
                         {"string": "west", "type": "capacity_outflow"})"),
            "<" + BOUNDARY + "/1> uses the string <west> a second time, a string has one boundary");
}

TEST_F(BoundariesOfBed, RefuseSeriesWithValuesBelowZero) {
  support::writeFile(folder.file("q.txt"), "0 1\n60 -5\n");
  EXPECT_EQ(refusalOf(R"({"string": "east", "type": "capacity_outflow", "share_file": "q.txt"})"),
            "key <" + BOUNDARY + "/0/share_file>: share must be at least 0, but is -5 at 60 in <" +
                folder.file("q.txt") + ">");
}

TEST_F(BoundariesOfBed, AreNotThereIfTheStudyDoesNotAskForThem) {
  EXPECT_THAT(folder.build(GEOMETRY, FLOW, bed(GRAINS, GRASS)).boundaries.bed.edges, IsEmpty());
}
