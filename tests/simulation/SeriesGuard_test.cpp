#include "simulation/SeriesGuard.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

#include "catalogue/Limits.h"
#include "simulation/RunData.h"

namespace {

using model::DataID;
using model::KernelID;
using model::MapID;
using simulation::SeriesGuard;

class SeriesGuards : public support::RunData {
 protected:
  SeriesGuards() {
    give(DataID::StateVar, 10, std::vector<double>(20, 0.0));
    giveMap(MapID::EdInterp_NodeStrg, 1, {1});
    giveMap(MapID::EdInterp_InSeries, 1, {0});
    giveMap(MapID::ClInterp_InSeries, 1, {0});
  }

  /// Gives the run one series with the given points (x, y), of which `size` values are in use, and
  /// looks it up by the given key.
  void giveSeries(const std::vector<double>& points, int size, int key = 0) {
    std::vector<double> row(points);
    row.resize(12000, model::MISSING_VALUE);
    give(DataID::InSeries_NumValue, 12000, row);
    give(DataID::InSeries_ListSize, 1, std::vector<int>{size});
    give(DataID::EdInterp_KeyPostn, 2, std::vector<int>{key, 0});
    give(DataID::ClInterp_KeyPostn, 2, std::vector<int>{key, 0});
  }

  /// As many points as a row can hold, one per second from time 0 on.
  static std::vector<double> fullSeries() {
    std::vector<double> points;
    for (int i = 0; i < 6000; ++i) points.insert(points.end(), {1.0 * i, 0.5});
    return points;
  }

  SeriesGuard guard(KernelID kernel = KernelID::EdgeDataInterpolation) const {
    return {kernel, dats, maps};
  }
  std::string refusal(double time) {
    return refusalOf([&] { guard().check(time); });
  }
};

TEST_F(SeriesGuards, HaveNothingToWatchInASoundSeries) {
  giveSeries({0.0, 1.0, 2.0, 3.0}, 4);
  EXPECT_TRUE(guard().empty());
  EXPECT_TRUE(guard(KernelID::CellDataInterpolation).empty());
  std::vector<double> longest = fullSeries();
  longest.resize(11998);
  giveSeries(longest, 11998);
  EXPECT_TRUE(guard().empty());
  giveSeries(longest, 12001);  // the end mark tells how far it reaches
  EXPECT_TRUE(guard().empty());
}

TEST_F(SeriesGuards, WatchInterpolationsOnly) {
  giveSeries({}, 0);
  EXPECT_FALSE(guard().empty());
  EXPECT_FALSE(guard(KernelID::CellDataInterpolation).empty());
  EXPECT_TRUE(guard(KernelID::EdgeDataModification).empty());
}

TEST_F(SeriesGuards, HaveNothingToWatchWhereDataAreMissing) {
  giveSeries({}, 0);
  for (const DataID id :
       {DataID::InSeries_NumValue, DataID::InSeries_ListSize, DataID::EdInterp_KeyPostn}) {
    simulation::Dats rest = dats;
    rest[id] = nullptr;
    EXPECT_TRUE(SeriesGuard(KernelID::EdgeDataInterpolation, rest, maps).empty());
  }
  maps[MapID::EdInterp_InSeries] = nullptr;
  EXPECT_TRUE(guard().empty());
}

TEST_F(SeriesGuards, LetASeriesOfAnyLengthTellItsFirstValue) {
  for (const int size : {1, 0, -4, 12002}) {
    giveSeries({5.0, 1.0}, size);
    EXPECT_NO_THROW(guard().check(5.0));
    EXPECT_EQ(refusal(5.5),
              " -> series 0 in <InSeries/NumValue> is asked at 5.5, behind its first point, but "
              "its <InSeries/ListSize> is " +
                  std::to_string(size) + ": it must be from 2 to 12000\n");
  }
}

TEST_F(SeriesGuards, RefuseASeriesWithoutAPoint) {
  giveSeries({}, 2);
  EXPECT_NO_THROW(guard().check(0.0));
  EXPECT_EQ(refusal(1.0),
            " -> series 0 in <InSeries/NumValue> has no point: it must have at least one\n");
}

TEST_F(SeriesGuards, LetAFullSeriesBeAskedUpToItsLastPoint) {
  giveSeries(fullSeries(), 12000);
  EXPECT_NO_THROW(guard().check(5998.75));
  const std::string asked = " -> series 0 in <InSeries/NumValue> is asked at ";
  const std::string expected =
      ", but its 6000 points end at 5999 without an end mark: at most 5999 points can be followed "
      "by one\n";
  EXPECT_EQ(refusal(5999.0), asked + "5999" + expected);
  EXPECT_EQ(refusal(1e9), asked + "1e+09" + expected);
  EXPECT_EQ(refusal(std::numeric_limits<double>::quiet_NaN()), asked + "nan" + expected);
}

TEST_F(SeriesGuards, AskARatingCurveAsItsKeySays) {
  std::vector<double>& states = give(DataID::StateVar, 10, std::vector<double>(20, 0.0));
  states[10] = 7000.0;  // the water surface of string 1
  states[13] = 6000.0;  // and its bed
  states[11] = 6500.0;  // and its discharge
  giveSeries(fullSeries(), 12000, 1);
  EXPECT_NO_THROW(guard().check(1e9));
  states[13] = 1000.0;
  EXPECT_NE(refusal(0.0).find("is asked at 6000,"), std::string::npos);
  giveSeries(fullSeries(), 12000, 2);
  EXPECT_NE(refusal(0.0).find("is asked at 7000,"), std::string::npos);
  giveSeries(fullSeries(), 12000, 3);
  EXPECT_NE(refusal(0.0).find("is asked at 6500,"), std::string::npos);
  giveSeries(fullSeries(), 12000, 4);  // an unknown key asks at 0
  EXPECT_NO_THROW(guard().check(1e9));
}

TEST_F(SeriesGuards, OfSourcesKnowTimeOnly) {
  giveSeries(fullSeries(), 12000, 0);
  EXPECT_THROW(guard(KernelID::CellDataInterpolation).check(5999.0), BaseException);
  giveSeries(fullSeries(), 12000, 2);
  EXPECT_NO_THROW(guard(KernelID::CellDataInterpolation).check(5999.0));
}

}  // namespace
