#include "setup/domain/cell_sources.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "dataio/Factory.h"
#include "setup/Setup.h"
#include "setup/StudyFolder.h"

using ::testing::DoubleEq;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::SizeIs;

namespace {

const std::string SOURCE = studies::PLANE + "/HYDRAULICS/SOURCE";

/// Triangles of 0.5 m2 and 1 m2 with the materials 1 and 2.
const std::string MESH = R"("MESH": {"file": "m.2dm"})";
class Sources : public ::testing::Test {
 protected:
  Sources() {
    support::writeFile(folder.file("m.2dm"),
                       "MESH2D\nND 1 0 0 0\nND 2 1 0 0\nND 3 1 1 0\nND 4 -1 1 0\n"
                       "E3T 1 1 2 3 1\nE3T 2 1 3 4 2\n");
  }

  setup::Domain build(const std::string& sources) const {
    return folder.build(regions, R"("SOURCE": [)" + sources + "]");
  }

  std::string refusalOf(const std::string& sources) const {
    return folder.refusalOf(regions, R"("SOURCE": [)" + sources + "]");
  }

  const std::string regions = R"("REGIONDEF": [{"index": 2, "name": "town"},
      {"index": 1, "name": "field"}, {"index": 7, "name": "nowhere"}])";
  const studies::Folder folder{MESH};
};

}  // namespace

TEST_F(Sources, RegionsHaveTheAreasOfTheirCells) {
  EXPECT_THAT(build(R"({"region": "town", "type": "rain", "intensity": 36})").sources.regionAreas,
              ElementsAre(DoubleEq(1.0), DoubleEq(0.5), 0.0));
}

TEST_F(Sources, RainIsGivenInMillimetresPerHour) {
  const setup::CellSources found =
      build(R"({"region": "field", "type": "rain", "intensity": 36})").sources;
  EXPECT_THAT(found.records, ElementsAre(ElementsAre(36, 0)));
  ASSERT_THAT(found.modifications, SizeIs(1));
  EXPECT_EQ(found.modifications[0].type, model::CellModificationCode::MillimetresPerHour);
  EXPECT_EQ(found.modifications[0].region, 1);
  EXPECT_EQ(found.modifications[0].record, 0);
  EXPECT_THAT(found.flow.cells, SizeIs(1));
  EXPECT_DOUBLE_EQ(found.strongestRate, 1e-5);
}

TEST_F(Sources, ADischargeIsSpreadOverItsRegion) {
  support::writeFile(folder.file("q.txt"), "0 0\n10 0.4\n20 -1\n");
  const setup::Domain domain = build(R"({"region": "field", "type": "rain", "intensity": 36},
      {"region": "town", "type": "discharge", "discharge_file": "q.txt"})");
  const setup::CellSources& found = domain.sources;
  EXPECT_THAT(found.flow.recordOf, ElementsAre(0, 1));
  EXPECT_EQ(domain.mesh.cells[static_cast<std::size_t>(found.flow.cells[1])].material, 2);
  EXPECT_EQ(found.modifications[1].type, model::CellModificationCode::OverRegionArea);
  EXPECT_EQ(found.modifications[1].region, 0);
  EXPECT_EQ(found.modifications[1].record, 1);
  ASSERT_THAT(found.interpolations, SizeIs(1));
  EXPECT_EQ(found.interpolations[0].record, 1);
  EXPECT_EQ(found.interpolations[0].series, 0);
  EXPECT_DOUBLE_EQ(found.strongestRate, 0.4);
}

TEST_F(Sources, ThatOnlyTakeWaterAwayHaveNoStrongestRate) {
  EXPECT_EQ(build(R"({"region": "field", "type": "rain", "intensity": -36})").sources.strongestRate,
            0.0);
}

TEST_F(Sources, SinkTypesHaveTheirCodes) {
  const auto codeOf = [this](const std::string& kind, const std::string& sink) {
    const auto found = build(R"({"region": "town", "type": )" + kind + sink + "}").sources;
    return found.flow.sinkTypes.at(0);
  };
  const std::string rain = R"("rain", "intensity": -1)";
  const std::string pump = R"("discharge", "discharge": -1)";
  EXPECT_EQ(codeOf(pump, R"(, "sink": "exact")"), 10);
  EXPECT_EQ(codeOf(pump, R"(, "sink": "available")"), 11);
  EXPECT_EQ(codeOf(pump, R"(, "sink": "infinity")"), 12);
  EXPECT_EQ(codeOf(rain, R"(, "sink": "exact")"), 20);
  EXPECT_EQ(codeOf(rain, R"(, "sink": "available")"), 21);
  EXPECT_EQ(codeOf(rain, R"(, "sink": "infinity")"), 22);
  EXPECT_EQ(codeOf(rain, ""), 21);
}

TEST_F(Sources, RefuseARegionWithTwo) {
  EXPECT_EQ(refusalOf(R"({"region": "town", "type": "rain", "intensity": 1},
                         {"region": "town", "type": "discharge", "discharge": 1})"),
            "<" + SOURCE + "/1> is in the region <town> as is <" + SOURCE +
                "/0>, but a region has one source");
}

TEST_F(Sources, RefuseRegionsThatAreNotInTheMesh) {
  EXPECT_EQ(refusalOf(R"({"region": "nowhere", "type": "rain", "intensity": 1})"),
            "region <nowhere> has the index 7, but the mesh has the materials 1, 2");
}

TEST_F(Sources, RefuseRatesOfAnotherKind) {
  EXPECT_EQ(refusalOf(R"({"region": "town", "type": "rain", "discharge": 1})"),
            "<" + SOURCE + "/0> of type <rain> must hold either intensity or intensity_file");
  EXPECT_EQ(refusalOf(R"({"region": "town", "type": "discharge", "intensity_file": "q.txt"})"),
            "<" + SOURCE + "/0> of type <discharge> must hold either discharge or discharge_file");
}

namespace {

class SourcesOfBed : public Sources {
 protected:
  /// @param material keys beside the grain size
  setup::Domain buildBed(const std::string& sources, const std::string& material = "") const {
    return folder.build(regions, FLOW, bed(sources, material));
  }

  static std::string bed(const std::string& sources, const std::string& material = "") {
    return R"("BEDMATERIAL": {"grain_size": 0.01)" + material + R"(}, "BEDLOAD": {"FORMULA": {
        "type": "grass_1981", "coefficient": 1}}, "SOURCE": [)" +
           sources + "]";
  }

  const std::string FLOW = R"("SOURCE": [{"region": "field", "type": "rain", "intensity": 36}])";
  const std::string BED_SOURCE = studies::MORPHOLOGY + "/SOURCE";
};

}  // namespace

TEST_F(SourcesOfBed, AreMadeLikeThoseOfWaterAndFollowThem) {
  const setup::Domain domain = buildBed(R"({"region": "town", "type": "discharge", "discharge": -2},
                  {"region": "field", "type": "rise", "rate": 7.2})");
  const setup::CellSources& found = domain.sources;
  EXPECT_THAT(found.flow.recordOf, ElementsAre(0));
  EXPECT_THAT(found.bed.recordOf, ElementsAre(1, 2));
  EXPECT_THAT(found.records,
              ElementsAre(ElementsAre(36, 0), ElementsAre(-2, 0), ElementsAre(7.2, 0)));
  ASSERT_THAT(found.modifications, SizeIs(3));
  EXPECT_EQ(found.modifications[1].type, model::CellModificationCode::OverRegionArea);
  EXPECT_EQ(found.modifications[1].region, 0);
  EXPECT_EQ(found.modifications[2].type, model::CellModificationCode::MillimetresPerHour);
  EXPECT_DOUBLE_EQ(found.strongestRate, 1e-5);
}

TEST_F(SourcesOfBed, SinkTypesHaveTheirCodes) {
  const auto codeOf = [this](const std::string& sink) {
    return buildBed(R"({"region": "town", "type": "rise", "rate": -1)" + sink + "}",
                    R"(, "FIXED_BED": {"ZONES": [{"region": "town", "below_bed": 1}]})")
        .sources.bed.sinkTypes.at(0);
  };
  EXPECT_EQ(codeOf(R"(, "sink": "exact")"), 30);
  EXPECT_EQ(codeOf(""), 31);
  EXPECT_EQ(codeOf(R"(, "sink": "infinity")"), 32);
}

TEST_F(SourcesOfBed, RefuseASinkThatTakesAllWhereThereIsNoBottom) {
  EXPECT_EQ(folder.refusalOf(regions, FLOW,
                             bed(R"({"region": "field", "type": "rise", "rate": 1},
                         {"region": "town", "type": "rise", "rate": -1, "sink": "infinity"})",
                                 R"(, "FIXED_BED": {"ZONES": [{"region": "field",
                                     "below_bed": 1}]})")),
            "<" + BED_SOURCE +
                "/1> with the sink <infinity> needs a fixed bed in all cells of its "
                "region: it takes all that is above");
}

TEST_F(SourcesOfBed, RefuseARegionWithTwo) {
  EXPECT_EQ(folder.refusalOf(regions, FLOW, bed(R"({"region": "town", "type": "rise", "rate": 1},
                                    {"region": "town", "type": "rise", "rate": 2})")),
            "<" + BED_SOURCE + "/1> is in the region <town> as is <" + BED_SOURCE +
                "/0>, but a region has one source");
}

TEST_F(Sources, RunFileOfATinyMeshIsAsWrittenByHand) {
  support::writeFile(folder.file("q.txt"), "0 0\n10 0.4\n");
  folder.read(regions, R"("SOURCE": [
      {"region": "field", "type": "rain", "intensity": 36},
      {"region": "town", "type": "discharge", "discharge_file": "q.txt", "sink": "exact"}])");
  const std::string run = folder.file("run.h5");
  ::testing::internal::CaptureStdout();
  setup::makeRunFile(folder.file("study.json"), run);
  ::testing::internal::GetCapturedStdout();
  const std::unique_ptr<api::IH5Reader> file(dataio::Factory::createH5Reader(run));
  EXPECT_EQ(file->readIntScalar("ClHydSrc/set"), 2);
  EXPECT_EQ(file->readIntScalar("MatIDRgn/set"), 3);
  EXPECT_THAT(file->readIntVecVec("ClHydSrc/CellData"),
              ElementsAre(ElementsAre(0), ElementsAre(1)));
  EXPECT_THAT(file->readIntVecVec("ClHydSrc/SinkType"),
              ElementsAre(ElementsAre(21), ElementsAre(10)));
  EXPECT_THAT(file->readDoubleVecVec("CellData/NumValue"),
              ElementsAre(ElementsAre(36, 0), ElementsAre(0, 0)));
  EXPECT_THAT(file->readIntVecVec("ClModDat/ModfInfo"),
              ElementsAre(ElementsAre(7, 1, 0, 0, 0, 0, 0), ElementsAre(6, 1, 0, 0, 0, 0, 0)));
  EXPECT_THAT(file->readIntVecVec("ClModDat/MatIDRgn"),
              ElementsAre(ElementsAre(1), ElementsAre(0)));
  EXPECT_THAT(file->readIntVecVec("ClModDat/CellData"),
              ElementsAre(ElementsAre(0), ElementsAre(1)));
  EXPECT_THAT(file->readIntVecVec("ClInterp/KeyPostn"), ElementsAre(ElementsAre(0, 0)));
  EXPECT_EQ(file->readIntVecVec("ClInterp/CellData")[0][0], 1);
  EXPECT_EQ(file->readIntScalar("InSeries/ListSize"), 4);
}
