// Which entries of maps are looked at: those that the key, type or size of their row asks for.
#include "simulation/MapChecks.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <vector>

#include "simulation/RunData.h"

namespace {

using model::DataID;
using model::KernelID;
using model::MapID;
using ::testing::ExitedWithCode;

class MapChecks : public support::RunData {
 protected:
  /// Ends the process with what the runtime says, on standard error.
  void checkAloud(KernelID kernel) {
    ::dup2(2, 1);
    simulation::checkMaps(kernel, dats, maps);
  }
  /// Whether a kernel follows a column, for a row of the given code: what it does not follow
  /// becomes 0.
  bool follows(KernelID kernel, MapID map, int columns, int column, DataID codes, int code) {
    give(codes, 2, std::vector<int>{code, 0});
    const std::vector<int>& table =
        giveMap(map, columns, std::vector<int>(static_cast<std::size_t>(columns), 5));
    simulation::checkMaps(kernel, dats, maps);
    return table[static_cast<std::size_t>(column)] == 5;
  }
  /// The codes from -1 to 999 for which a kernel follows a column.
  std::vector<int> followed(KernelID kernel, MapID map, int columns, int column, DataID codes) {
    std::vector<int> found;
    for (int code = -1; code < 1000; ++code) {
      if (follows(kernel, map, columns, column, codes, code)) found.push_back(code);
    }
    return found;
  }
};

TEST_F(MapChecks, AllEntriesOfAPlainMapAreChecked) {
  giveMap(MapID::EdgesSWE_CellsAll, 2, {0, 9, 9, 10});
  EXPECT_EXIT(checkAloud(KernelID::HydInternalFluxes), ExitedWithCode(2),
              "^map map: row 1, column 1 holds 10, which is not in the range 0 to 9 of set "
              "ten/set\n$");
  simulation::checkMaps(KernelID::MorInternalFluxes, dats, maps);
}

TEST_F(MapChecks, TheEdgesOfCellsCountForKernelsThatFollowThem) {
  giveMap(MapID::CellsAll_EdgesAll, 3, {0, -1, 2});
  simulation::checkMaps(KernelID::CalcBedGradient, dats, maps);
  EXPECT_EXIT(checkAloud(KernelID::CalCCurvature), ExitedWithCode(2), "holds -1");
  EXPECT_EXIT(checkAloud(KernelID::Update), ExitedWithCode(2), "holds -1");
}

TEST_F(MapChecks, ColumnsBehindTheEdgesOfANodestringBecomeZero) {
  give(DataID::NodeStrg_ListSize, 1, std::vector<int>{1, 3, 0, -7});
  for (const MapID id : {MapID::NodeStrg_EdgesAll, MapID::NodeStrg_CellsAll}) {
    const std::vector<int>& table = giveMap(id, 3, {9, -7, 10, 0, 5, 9, 99, 99, 99, -1, -1, -1});
    simulation::checkMaps(KernelID::NodeStringStateCalc, dats, maps);
    EXPECT_EQ(table, (std::vector<int>{9, 0, 0, 0, 5, 9, 0, 0, 0, 0, 0, 0}));
  }
  giveMap(MapID::NodeStrg_CellsAll, 3, {9, 0, 0, 0, 5, 10, 0, 0, 0, 0, 0, 0});
  EXPECT_EXIT(checkAloud(KernelID::NodeStringStateCalc), ExitedWithCode(2),
              "row 1, column 2 holds 10");
}

TEST_F(MapChecks, InterpolationsAskANodestringByTheirKey) {
  EXPECT_EQ(followed(KernelID::EdgeDataInterpolation, MapID::EdInterp_NodeStrg, 1, 0,
                     DataID::EdInterp_KeyPostn),
            (std::vector<int>{1, 2, 3}));
}

TEST_F(MapChecks, ModificationsOfEdgesTakeFromNodestringsByTheirType) {
  const auto column = [&](int which) {
    return followed(KernelID::EdgeDataModification, MapID::EdModDat_NodeStrg, 2, which,
                    DataID::EdModDat_ModfInfo);
  };
  EXPECT_EQ(column(0), (std::vector<int>{1, 3, 4, 8, 9, 10, 11, 12, 13, 14, 15, 16}));
  EXPECT_EQ(column(1), (std::vector<int>{2, 9, 16}));
}

TEST_F(MapChecks, ModificationsNeedARecordIfTheyChangeIt) {
  EXPECT_EQ(followed(KernelID::EdgeDataModification, MapID::EdModDat_EdgeData, 1, 0,
                     DataID::EdModDat_ModfInfo),
            (std::vector<int>{1, 2, 3, 4, 5, 8, 9, 10, 11, 12, 13, 14, 15, 16}));
  EXPECT_EQ(followed(KernelID::CellDataModification, MapID::ClModDat_CellData, 1, 0,
                     DataID::ClModDat_ModfInfo),
            (std::vector<int>{6, 7}));
  EXPECT_EQ(followed(KernelID::CellDataModification, MapID::ClModDat_MatIDRgn, 1, 0,
                     DataID::ClModDat_ModfInfo),
            (std::vector<int>{6}));
}

TEST_F(MapChecks, BoundariesNeedASecondCellOnInnerEdges) {
  const auto column = [&](int which) {
    return followed(KernelID::HydBoundaryFluxes, MapID::EdgHydBC_CellsAll, 2, which,
                    DataID::HydBType);
  };
  EXPECT_EQ(column(0).size(), 1001U);
  EXPECT_EQ(column(1), (std::vector<int>{216, 218, 220}));
}

TEST_F(MapChecks, BoundariesNeedARecordIfTheyTakeAValue) {
  EXPECT_EQ(followed(KernelID::HydBoundaryFluxes, MapID::EdgHydBC_EdgeData, 1, 0, DataID::HydBType),
            (std::vector<int>{100, 102, 104, 106, 108, 110, 114, 216, 218, 322, 323, 324, 325, 326,
                              327, 328, 329, 330, 331}));
  EXPECT_EQ(followed(KernelID::MorBoundaryFluxes, MapID::EdgMorBC_EdgeData, 1, 0, DataID::MorBType),
            (std::vector<int>{400, 402, 404, 406, 408, 410, 412, 414}));
}

TEST_F(MapChecks, BoundariesOfTheBedLookAtTheInnerCellAlone) {
  EXPECT_EQ(followed(KernelID::MorBoundaryFluxes, MapID::EdgMorBC_CellsAll, 2, 0, DataID::MorBType)
                .size(),
            1001U);
  EXPECT_TRUE(
      followed(KernelID::MorBoundaryFluxes, MapID::EdgMorBC_CellsAll, 2, 1, DataID::MorBType)
          .empty());
}

TEST_F(MapChecks, AnEntryThatIsFollowedMustLeadSomewhere) {
  give(DataID::EdInterp_KeyPostn, 2, std::vector<int>{0, 0, 3, 0});
  giveMap(MapID::EdInterp_NodeStrg, 1, {-1, -1});
  EXPECT_EXIT(checkAloud(KernelID::EdgeDataInterpolation), ExitedWithCode(2),
              "row 1, column 0 holds -1");
}

TEST_F(MapChecks, MapsAndCodesThatAreMissingAreLeftToTheCall) {
  maps[MapID::EdInterp_InSeries] = nullptr;
  giveMap(MapID::EdInterp_NodeStrg, 1, {-1});
  simulation::checkMaps(KernelID::EdgeDataInterpolation, dats, maps);
  dats[DataID::EdInterp_KeyPostn] = nullptr;
  simulation::checkMaps(KernelID::EdgeDataInterpolation, dats, maps);
}

}  // namespace
