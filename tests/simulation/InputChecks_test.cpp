#include "simulation/InputChecks.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <string>
#include <vector>

#include "simulation/RunData.h"
#include "simulation/kernels/Parameters.h"

namespace {

using model::DataID;
using model::KernelID;
using model::MapID;

class InputChecks : public support::RunData {
 protected:
  std::string refusal(KernelID kernel) {
    return refusalOf([&] { simulation::checkKernelInput(kernel, dats, maps); });
  }
  void expectAccepted(KernelID kernel) {
    EXPECT_NO_THROW(simulation::checkKernelInput(kernel, dats, maps));
  }
};

TEST_F(InputChecks, AcceptARunWithoutTheDataTheyLookAt) {
  dats[DataID::NodeStrg_ListSize] = nullptr;
  for (int kernel = 0; kernel <= 25; ++kernel) expectAccepted(static_cast<KernelID>(kernel));
}

TEST_F(InputChecks, AcceptWhatAnotherKernelReads) {
  give(DataID::NodeStrg_ListSize, 1, std::vector<int>{41});
  give(DataID::CellsAll_EdgeSign, 3, std::vector<int>{9, 9, 9});
  give(DataID::EdInterp_KeyPostn, 2, std::vector<int>{0, 7});
  expectAccepted(KernelID::HydInternalFluxes);
  expectAccepted(KernelID::MorFixBedCorrection);
}

// A nodestring of less than no edges is as good as an empty one.
TEST_F(InputChecks, NodestringsHaveAtMostFortyEdges) {
  give(DataID::NodeStrg_ListSize, 1, std::vector<int>{0, 40, -1, INT_MIN});
  expectAccepted(KernelID::NodeStringStateCalc);
  give(DataID::NodeStrg_ListSize, 1, std::vector<int>{3, 41});
  EXPECT_EQ(refusal(KernelID::NodeStringStateCalc),
            " -> data <NodeStrg/ListSize> in row 1, column 0 is 41: number of edges of a "
            "nodestring must be at most 40\n");
}

TEST_F(InputChecks, EdgeSignsPickComponentsThatAreThere) {
  give(DataID::CellsAll_EdgeSign, 3, std::vector<int>{1, -1, 1, -1, 0, 2});
  expectAccepted(KernelID::Update);
  give(DataID::CellsAll_EdgeSign, 3, std::vector<int>{1, -1, 1, -1, 3, 1});
  EXPECT_EQ(refusal(KernelID::Update),
            " -> data <CellsAll/EdgeSign> in row 1, column 1 is 3: edge sign (1 or -1 by "
            "convention) must be from -1 to 2\n");
  give(DataID::CellsAll_EdgeSign, 3, std::vector<int>{1, -1, -2});
  EXPECT_EQ(refusal(KernelID::Update),
            " -> data <CellsAll/EdgeSign> in row 0, column 2 is -2: edge sign (1 or -1 by "
            "convention) must be from -1 to 2\n");
}

TEST_F(InputChecks, PositionsOfInterpolationsLieInTheirRecord) {
  give(DataID::EdInterp_KeyPostn, 2, std::vector<int>{-9, 0, 99, 6});
  give(DataID::ClInterp_KeyPostn, 2, std::vector<int>{-9, 0, 99, 1});
  expectAccepted(KernelID::EdgeDataInterpolation);
  expectAccepted(KernelID::CellDataInterpolation);
  give(DataID::EdInterp_KeyPostn, 2, std::vector<int>{0, 0, 0, 7});
  EXPECT_EQ(refusal(KernelID::EdgeDataInterpolation),
            " -> data <EdInterp/KeyPostn> in row 1, column 1 is 7: position in a boundary record "
            "must be from 0 to 6\n");
  give(DataID::ClInterp_KeyPostn, 2, std::vector<int>{0, -1});
  EXPECT_EQ(refusal(KernelID::CellDataInterpolation),
            " -> data <ClInterp/KeyPostn> in row 0, column 1 is -1: position in a source record "
            "must be from 0 to 1\n");
}

/// The columns of a modification that its type writes or reads.
std::vector<int> edgeColumns(int type) {
  // clang-format off
  switch (type) {
    case 1: case 2: case 4: case 5: case 10: case 11: case 12: return {1, 2};
    case 3:                                                    return {1, 2, 3, 4};
    case 8:                                                    return {1, 2, 3, 4, 5, 6};
    case 9: case 13: case 14: case 15: case 16:                return {1};
    default:                                                   return {};
  }
  // clang-format on
}

TEST_F(InputChecks, ModificationsOfEdgesAreCheckedWhereTheirTypeLooks) {
  for (int type = -1; type <= 40; ++type) {
    const std::vector<int> columns = edgeColumns(type);
    for (int column = 1; column < 7; ++column) {
      for (const int position : {-1, 7}) {
        std::vector<int> info{type, 0, 6, 0, 6, 0, 6};
        info[static_cast<std::size_t>(column)] = position;
        give(DataID::EdModDat_ModfInfo, 7, info);
        if (std::find(columns.begin(), columns.end(), column) == columns.end()) {
          expectAccepted(KernelID::EdgeDataModification);
          continue;
        }
        EXPECT_EQ(refusal(KernelID::EdgeDataModification),
                  " -> data <EdModDat/ModfInfo> in row 0, column " + std::to_string(column) +
                      " is " + std::to_string(position) +
                      ": position in a boundary record must be from 0 to 6\n");
      }
    }
  }
}

TEST_F(InputChecks, ModificationsOfCellsAreCheckedWhereTheirTypeLooks) {
  for (const int type : {6, 7}) {
    give(DataID::ClModDat_ModfInfo, 7, std::vector<int>{type, 1, 0, 99, 99, 99, 99});
    expectAccepted(KernelID::CellDataModification);
    for (const int column : {1, 2}) {
      std::vector<int> info{type, 0, 0, 0, 0, 0, 0};
      info[static_cast<std::size_t>(column)] = 2;
      give(DataID::ClModDat_ModfInfo, 7, info);
      EXPECT_EQ(refusal(KernelID::CellDataModification),
                " -> data <ClModDat/ModfInfo> in row 0, column " + std::to_string(column) +
                    " is 2: position in a source record must be from 0 to 1\n");
    }
  }
  give(DataID::ClModDat_ModfInfo, 7, std::vector<int>{5, 99, 99, 99, 99, 99, 99});
  expectAccepted(KernelID::CellDataModification);
}

// The runtime refuses entries by the end of the process: a throw would be seen.
TEST_F(InputChecks, FixedBedsThatAreNotCorrectedNeedNoMap) {
  double& accuracy = G_REAL[static_cast<int>(model::ParameterID::FixBedAccuracy)];
  int& iterations = G_INT[static_cast<int>(model::ParameterID::FixBedMaxIter)];
  const std::vector<int>& table = giveMap(MapID::CellsFix_CellsAll, 1, {-1});
  accuracy = 1e12;
  iterations = 5;
  expectAccepted(KernelID::MorFixBedCorrection);
  accuracy = 1e-6;
  iterations = 0;
  expectAccepted(KernelID::MorFixBedCorrection);
  iterations = 1;
  EXPECT_EXIT(simulation::checkKernelInput(KernelID::MorFixBedCorrection, dats, maps),
              ::testing::ExitedWithCode(2), "");
  EXPECT_EQ(table[0], -1);
}

TEST(CheckParameterSize, RefusesMoreValuesThanThereAreSlots) {
  EXPECT_NO_THROW(simulation::checkParameterSize("Parameters/BedloadInts", 19, 9));
  ::testing::internal::CaptureStderr();
  EXPECT_THROW(simulation::checkParameterSize("Parameters/BedloadInts", 19, 10), BaseException);
  EXPECT_EQ(::testing::internal::GetCapturedStderr(),
            " -> parameter <Parameters/BedloadInts> has 10 values, but there is room for 9\n");
}

TEST(CheckRecordData, RefusesARunWithoutIt) {
  op_dat_core state{};
  simulation::Dats dats{{DataID::HydState, &state}, {DataID::BottomEl, nullptr}};
  EXPECT_NO_THROW(simulation::checkRecordData({DataID::HydState}, dats));
  ::testing::internal::CaptureStderr();
  EXPECT_THROW(simulation::checkRecordData({DataID::HydState, DataID::BottomEl}, dats),
               BaseException);
  EXPECT_THROW(simulation::checkRecordData({DataID::ChezyCoe}, dats), BaseException);
  EXPECT_EQ(::testing::internal::GetCapturedStderr(),
            " -> data <CellsAll/BottomEl> not found in runfile: a run cannot start without it\n"
            " -> data <CellsAll/ChezyCoe> not found in runfile: a run cannot start without it\n");
}

}  // namespace
