#include "simulation/InputChecks.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <list>
#include <memory>
#include <string>
#include <vector>

#include "common/BaseException.h"
#include "model/Factory.h"
#include "op/op_seq.h"
#include "simulation/kernels/missing_value.h"
#include "simulation/kernels/parameters.h"

namespace {

using model::DataID;
using model::MapID;

class InputChecks : public ::testing::Test {
 protected:
  InputChecks() {
    ::testing::internal::CaptureStdout();
    op_init(0, nullptr, 0);
    ::testing::internal::GetCapturedStdout();
    std::fill(std::begin(G_INT), std::end(G_INT), 0);
  }
  ~InputChecks() override { op_exit(); }
  InputChecks(const InputChecks&) = delete;
  InputChecks& operator=(const InputChecks&) = delete;
  InputChecks(InputChecks&&) = delete;
  InputChecks& operator=(InputChecks&&) = delete;

  /// Gives the run a datum with `dim` values per element.
  void give(DataID id, int dim, const std::vector<int>& content) {
    values.push_back(content);
    const op_set set = op_decl_set(static_cast<int>(content.size()) / dim, "set");
    dats[id] = op_decl_dat_char(set, dim, "int", sizeof(int),
                                reinterpret_cast<char*>(values.back().data()), "dat");
  }

  /// Gives the run a map into a set of ten elements.
  std::vector<int>& giveMap(MapID id, int dim, const std::vector<int>& content) {
    values.push_back(content);
    const op_set from = op_decl_set(static_cast<int>(content.size()) / dim, "from/set");
    const op_set to = op_decl_set(10, "ten/set");
    maps[id] = op_decl_map(from, to, dim, values.back().data(), "strings");
    return values.back();
  }

  /// Gives the run one series with the given points (x, y), of which `size` values are in use, and
  /// looks it up by the given key.
  void giveSeries(const std::vector<double>& points, int size, int key) {
    series.assign(12000, kernels::MISSING_VALUE);
    std::copy(points.begin(), points.end(), series.begin());
    const op_set set = op_decl_set(1, "InSeries/set");
    dats[DataID::InSeries_NumValue] = op_decl_dat_char(
        set, 12000, "double", sizeof(double), reinterpret_cast<char*>(series.data()), "series");
    give(DataID::InSeries_ListSize, 1, {size});
    give(DataID::EdInterp_KeyPostn, 2, {key, 0});
    giveMap(MapID::EdInterp_InSeries, 1, {0});
  }

  /// As many points as a row can hold, one per second from time 0 on.
  static std::vector<double> fullSeries() {
    std::vector<double> points;
    for (int i = 0; i < 6000; ++i) points.insert(points.end(), {1.0 * i, 0.5});
    return points;
  }

  /// What the checks say when they refuse.
  std::string refusal() {
    ::testing::internal::CaptureStderr();
    EXPECT_THROW(simulation::checkInputData(dats, maps, endTime), BaseException);
    return ::testing::internal::GetCapturedStderr();
  }
  static void setFriction(int value) {
    G_INT[static_cast<int>(model::ParameterID::FrictionOn)] = value;
  }
  void expectAccepted() { EXPECT_NO_THROW(simulation::checkInputData(dats, maps, endTime)); }

  double endTime = 10.0;
  simulation::Dats dats;
  simulation::Maps maps;
  std::list<std::vector<int>> values;
  std::vector<double> series;
};

TEST_F(InputChecks, acceptARunWithoutTheDataTheyLookAt) {
  dats[DataID::NodeStrg_ListSize] = nullptr;
  expectAccepted();
}

TEST_F(InputChecks, nodestringsHaveNoEdgesToForty) {
  give(DataID::NodeStrg_ListSize, 1, {0, 40});
  expectAccepted();
  give(DataID::NodeStrg_ListSize, 1, {3, 41});
  EXPECT_EQ(refusal(),
            " -> data <NodeStrg/ListSize> in row 1, column 0 is 41: number of edges of a "
            "nodestring must be from 0 to 40\n");
  give(DataID::NodeStrg_ListSize, 1, {-1});
  EXPECT_EQ(refusal(),
            " -> data <NodeStrg/ListSize> in row 0, column 0 is -1: number of edges of a "
            "nodestring must be from 0 to 40\n");
}

TEST_F(InputChecks, seriesHaveTwoTo12000Values) {
  give(DataID::InSeries_ListSize, 1, {2, 12000});
  expectAccepted();
  for (const int length : {1, 0, -4, 12001}) {
    give(DataID::InSeries_ListSize, 1, {2, length});
    EXPECT_EQ(refusal(), " -> data <InSeries/ListSize> in row 1, column 0 is " +
                             std::to_string(length) +
                             ": length of a series must be from 2 to 12000\n");
  }
}

TEST_F(InputChecks, edgeSignsAreOneOrMinusOne) {
  give(DataID::CellsAll_EdgeSign, 3, {1, -1, 1, -1, -1, 1});
  expectAccepted();
  give(DataID::CellsAll_EdgeSign, 3, {1, -1, 1, -1, 0, 1});
  EXPECT_EQ(refusal(),
            " -> data <CellsAll/EdgeSign> in row 1, column 1 is 0: an edge sign must be 1 or -1\n");
  give(DataID::CellsAll_EdgeSign, 3, {1, -1, 2});
  EXPECT_EQ(refusal(),
            " -> data <CellsAll/EdgeSign> in row 0, column 2 is 2: an edge sign must be 1 or -1\n");
}

TEST_F(InputChecks, boundariesAtNormalDepthNeedFriction) {
  for (const int code : {100, 104}) {
    give(DataID::HydBType, 2, {114, 1, code, -1});
    setFriction(1);
    expectAccepted();
    setFriction(0);
    EXPECT_EQ(refusal(), " -> data <EdgHydBC/HydBType> in row 1 has the type " +
                             std::to_string(code) +
                             ", which needs bed friction: parameter <FrictionOn> must be 1\n");
  }
}

TEST_F(InputChecks, boundariesAtTransportCapacityNeedFriction) {
  for (const int code : {408, 414}) {
    give(DataID::MorBType, 2, {code, 1});
    setFriction(1);
    expectAccepted();
    setFriction(2);
    EXPECT_EQ(refusal(), " -> data <EdgMorBC/MorBType> in row 0 has the type " +
                             std::to_string(code) +
                             ", which needs bed friction: parameter <FrictionOn> must be 1\n");
  }
}

TEST_F(InputChecks, otherBoundariesDoWithoutFriction) {
  give(DataID::HydBType, 2, {102, 100, 999, 104});
  give(DataID::MorBType, 2, {400, 408, 402, 414});
  expectAccepted();
}

TEST_F(InputChecks, positionsOfInterpolationsLieInTheirRecord) {
  give(DataID::EdInterp_KeyPostn, 2, {-9, 0, 99, 6});
  give(DataID::ClInterp_KeyPostn, 2, {-9, 0, 99, 1});
  expectAccepted();
  give(DataID::EdInterp_KeyPostn, 2, {0, 0, 0, 7});
  EXPECT_EQ(refusal(),
            " -> data <EdInterp/KeyPostn> in row 1, column 1 is 7: position in a boundary record "
            "must be from 0 to 6\n");
  give(DataID::EdInterp_KeyPostn, 2, {0, 0});
  give(DataID::ClInterp_KeyPostn, 2, {0, -1});
  EXPECT_EQ(refusal(),
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

TEST_F(InputChecks, modificationsOfEdgesAreCheckedWhereTheirTypeLooks) {
  for (int type = -1; type <= 40; ++type) {
    const std::vector<int> columns = edgeColumns(type);
    for (int column = 1; column < 7; ++column) {
      for (const int position : {-1, 7}) {
        std::vector<int> info{type, 0, 6, 0, 6, 0, 6};
        info[static_cast<std::size_t>(column)] = position;
        give(DataID::EdModDat_ModfInfo, 7, info);
        if (std::find(columns.begin(), columns.end(), column) == columns.end()) {
          expectAccepted();
          continue;
        }
        EXPECT_EQ(refusal(), " -> data <EdModDat/ModfInfo> in row 0, column " +
                                 std::to_string(column) + " is " + std::to_string(position) +
                                 ": position in a boundary record must be from 0 to 6\n");
      }
    }
  }
}

TEST_F(InputChecks, modificationsOfCellsAreCheckedWhereTheirTypeLooks) {
  for (const int type : {6, 7}) {
    give(DataID::ClModDat_ModfInfo, 7, {type, 1, 0, 99, 99, 99, 99});
    expectAccepted();
    for (const int column : {1, 2}) {
      std::vector<int> info{type, 0, 0, 0, 0, 0, 0};
      info[static_cast<std::size_t>(column)] = 2;
      give(DataID::ClModDat_ModfInfo, 7, info);
      EXPECT_EQ(refusal(), " -> data <ClModDat/ModfInfo> in row 0, column " +
                               std::to_string(column) +
                               " is 2: position in a source record must be from 0 to 1\n");
    }
  }
  give(DataID::ClModDat_ModfInfo, 7, {5, 99, 99, 99, 99, 99, 99});
  expectAccepted();
}

TEST_F(InputChecks, aSeriesNeedsAPoint) {
  giveSeries({1.0, 2.0}, 2, 0);
  expectAccepted();
  giveSeries({}, 2, 0);
  EXPECT_EQ(refusal(),
            " -> series 0 in <InSeries/NumValue> has no point: it must have at least one\n");
}

// The last pass starts before the end of the run.
TEST_F(InputChecks, aFullSeriesMustReachTheEndOfTheRun) {
  giveSeries(fullSeries(), 12000, 0);
  endTime = 5999.0;
  expectAccepted();
  endTime = 6000.0;
  const std::string expected =
      " -> series 0 in <InSeries/NumValue> has 6000 points and no end mark: at most 5999 points "
      "can "
      "be looked up beyond the last one\n";
  EXPECT_EQ(refusal(), expected);
  endTime = 1.0;
  giveSeries(fullSeries(), 12000, 1);  // a rating curve, of which no one knows how far it is asked
  EXPECT_EQ(refusal(), expected);
}

TEST_F(InputChecks, aSeriesWithAnEndMarkMayEndBeforeTheRun) {
  std::vector<double> points = fullSeries();
  points.resize(11998);
  giveSeries(points, 11998, 0);
  endTime = 1e6;
  expectAccepted();
  giveSeries(points, 11998, 3);
  expectAccepted();
}

TEST_F(InputChecks, unusedColumnsOfNodestringMapsMayHoldAnythingAndBecomeZero) {
  give(DataID::NodeStrg_ListSize, 1, {1, 3, 0});
  for (const MapID id : {MapID::NodeStrg_EdgesAll, MapID::NodeStrg_CellsAll}) {
    const std::vector<int>& table = giveMap(id, 3, {9, -7, 10, 0, 5, 9, 99, 99, 99});
    expectAccepted();
    EXPECT_EQ(table, (std::vector<int>{9, 0, 0, 0, 5, 9, 0, 0, 0}));
  }
}

// The runtime refuses maps: on standard output, and by the end of the process.
TEST_F(InputChecks, usedColumnsOfNodestringMapsAreChecked) {
  give(DataID::NodeStrg_ListSize, 1, {1, 2});
  giveMap(MapID::NodeStrg_CellsAll, 3, {9, -7, 10, 0, 10, 9});
  EXPECT_EXIT(
      {
        ::dup2(2, 1);
        simulation::checkInputData(dats, maps, endTime);
      },
      ::testing::ExitedWithCode(2),
      "^map strings: row 1, column 1 holds 10, which is not in the range 0 to 9 of set ten/set\n$");
}

TEST(CheckParameterSize, refusesAnotherNumberOfValues) {
  EXPECT_NO_THROW(simulation::checkParameterSize("Parameters/BedloadInts", 2, 2));
  ::testing::internal::CaptureStderr();
  EXPECT_THROW(simulation::checkParameterSize("Parameters/BedloadInts", 3, 2), BaseException);
  EXPECT_EQ(::testing::internal::GetCapturedStderr(),
            " -> parameter <Parameters/BedloadInts> has 3 values, but must have 2\n");
}

TEST(CheckStateData, refusesARunWithoutItsState) {
  ::testing::internal::CaptureStdout();
  const std::unique_ptr<api::IModel> model(model::Factory::createModel("a.0"));
  ::testing::internal::GetCapturedStdout();
  op_dat_core state{};
  simulation::Dats dats{{DataID::HydState, &state}, {DataID::BottomEl, nullptr}};
  EXPECT_NO_THROW(simulation::checkStateData(*model, dats));
  dats[DataID::HydState] = nullptr;
  ::testing::internal::CaptureStderr();
  EXPECT_THROW(simulation::checkStateData(*model, dats), BaseException);
  EXPECT_EQ(::testing::internal::GetCapturedStderr(),
            " -> data <CellsAll/HydState> not found in runfile: a run cannot start without it\n");
}

}  // namespace
