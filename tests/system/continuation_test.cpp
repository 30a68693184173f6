// Runs that are continued from one of their records: at all later record times they must hold the
// bits of the run that went through, but for what docs/simulation.md says.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <filesystem>
#include <ostream>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "system/Simulation.h"

namespace {

using support::Outcome;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

/// A study of the examples, what is changed in it, and how it is run.
struct River {
  std::string name;
  std::string example;
  std::vector<std::pair<std::string, std::string>> changes;
  std::string end;            ///< [s]
  std::string out;            ///< [s]
  std::vector<int> restarts;  ///< records to continue from
};

void PrintTo(const River& river, std::ostream* stream) {
  *stream << river.name;
}

class Continued : public support::Simulation {
 protected:
  /// Runs the study from its start to its end.
  void runThrough(const River& river) {
    useExample(river.example);
    for (const auto& [text, by] : river.changes) changeStudy(text, by);
    makeRunFile();
    end = river.end;
    out = river.out;
    runFrom("0");
    std::filesystem::copy_file(resultFile, through);
  }

  /// Continues from a record.
  /// @return what differs in the end: in the state from the first record to the last, in the states
  ///         of strings at all times but that of the restart
  std::vector<std::string> differencesFrom(int restart) {
    std::filesystem::copy_file(through, resultFile,
                               std::filesystem::copy_options::overwrite_existing);
    std::ostringstream time;
    time.precision(17);
    time << support::readTime(through, record("CellsAll/HydState", restart));
    EXPECT_THAT(runFrom(time.str()).out, HasSubstr(" -> Re-run properly set at "));
    std::vector<std::string> found = support::differences(through, resultFile);
    const std::string strings = record("NodeStrg/StateVar", restart);
    std::erase_if(found, [&strings](const std::string& difference) {
      return difference.starts_with(".config/simulation ") || difference.starts_with(strings);
    });
    return found;
  }

  /// The discharge through a string in a record [m3/s].
  static double discharge(const std::string& file, std::size_t string, int number) {
    return support::readNumbers(file, record("NodeStrg/StateVar", number)).at(10 * string + 1);
  }

  /// The largest difference of a surface between the two runs in a record [m].
  double surfaceDifference(int number) const {
    const std::string path = record("CellsAll/HydState", number);
    const std::vector<double> expected = support::readNumbers(through, path);
    const std::vector<double> actual = support::readNumbers(resultFile, path);
    double largest = 0.0;
    for (std::size_t i = 0; i < expected.size(); i += 3) {
      largest = std::fmax(largest, std::abs(actual.at(i) - expected[i]));
    }
    return largest;
  }

  std::string through = dir.file("through_results.h5");

 private:
  Outcome runFrom(const std::string& start) {
    setCommand(R"("start": )" + start + R"(, "end": )" + end + R"(, "out": )" + out,
               R"("water_surface", "ns_hyd_discharge")");
    Outcome run = simulate();
    EXPECT_EQ(run.status, 0) << run.err;
    return run;
  }

  static std::string record(const std::string& datum, int number) {
    const std::string digits = std::to_string(number);
    return "RESULTS/" + datum + "/" + std::string(7 - digits.size(), '0') + digits;
  }

  std::string end;
  std::string out;
};

// -- what gives the same bits ---------------------------------------------------------------------

class ContinuedRiver : public Continued, public ::testing::WithParamInterface<River> {};

TEST_P(ContinuedRiver, HasTheBitsOfTheRunThatWentThrough) {
  runThrough(GetParam());
  for (const int restart : GetParam().restarts) {
    EXPECT_THAT(differencesFrom(restart), IsEmpty()) << restart;
  }
}

const std::string MANNING = R"("type": "manning",
            "value": 0.05,
            "ZONES": [{ "box": [0, -10, 1000, 10], "value": 0.03 }])";
const std::string NORMAL_DEPTH = R"("type": "normal_depth", "slope": 0.001)";
const std::string BOUNDARY = R"("BOUNDARY": [)";
const std::string RAIN =
    R"("SOURCE": [{ "region": "all", "type": "rain", "intensity": 36.0 }], "BOUNDARY": [)";
const std::string STRINGS = R"("STRINGDEF": [)";
const std::string REGION = R"("REGIONDEF": [{ "index": 1, "name": "all" }], "STRINGDEF": [)";
const std::string GATE_BY_LEVEL =
    R"("type": "gate_by_level", "upper_level": 1.5, "lower_level": 1.2)";

const std::vector<River> RIVERS{
    {"FloodAtNormalDepth", "river_reach", {}, "1800", "60", {1, 9, 20, 29}},
    {"FloodOverARoughBed",
     "river_reach",
     {{MANNING, R"("type": "sand_roughness_shallow", "value": 0.2)"}},
     "1200",
     "60",
     {1, 13}},
    {"FloodInTheRainOverAWeir",
     "river_reach",
     {{NORMAL_DEPTH, R"("type": "weir", "crest": 100.5)"}, {BOUNDARY, RAIN}, {STRINGS, REGION}},
     "1200",
     "60",
     {1, 13}},
    {"PolderWithAGateThatOpensInTime",
     "polder",
     {{GATE_BY_LEVEL, R"("type": "gate_by_time", "opens_at": 300)"}},
     "1200",
     "60",
     {1, 4, 6, 19}},
    {"HillslopeWhileRainEnds", "hillslope_rain", {}, "3000", "60", {1, 30, 45, 48}},
};

std::string nameOf(const ::testing::TestParamInfo<River>& river) {
  return river.param.name;
}

INSTANTIATE_TEST_SUITE_P(Of, ContinuedRiver, ::testing::ValuesIn(RIVERS), nameOf);

// -- what does not, since it is no part of the records --------------------------------------------

TEST_F(Continued, TakesTheInitialStepOnceMoreWhereNoWaterLimitsIt) {
  // Level ground that counts as dry up to 1 mm, and 1 mm of rain a minute.
  runThrough({"",
              "hillslope_rain",
              {{"0.0001", "0.001"}, {"0.05,", "0.0,"}, {R"("slope": 0.001)", R"("slope": 0.0)"}},
              "40",
              "10",
              {}});
  EXPECT_THAT(differencesFrom(2), Not(IsEmpty()));
  EXPECT_LT(surfaceDifference(4), 1e-15);
}

TEST_F(Continued, BeginsWithAShutGateThatWasOpenBetweenItsLevels) {
  constexpr std::size_t GATE = 4;
  runThrough({"", "polder", {}, "1515", "15", {}});
  // The falling river stands between the levels.
  EXPECT_THAT(differencesFrom(100), Not(IsEmpty()));
  EXPECT_GT(discharge(through, GATE, 101), 2.0);
  EXPECT_EQ(discharge(resultFile, GATE, 101), 0.0);
}

TEST_F(Continued, LooksUpTheDischargeOfAStringAsZeroInItsFirstStep) {
  support::writeFile(dir.file("key.txt"), "0 100.3\n10 100.7\n60 101.5\n");
  runThrough({"",
              "river_reach",
              {{NORMAL_DEPTH, R"("type": "level", "level_file": "key.txt", "over": "discharge")"}},
              "600",
              "60",
              {}});
  EXPECT_THAT(differencesFrom(8), Not(IsEmpty()));
  EXPECT_LT(surfaceDifference(9), 0.1);
}

TEST_F(Continued, HasTheFrictionOfTheRainBeforeItAtAnOutletOverASlope) {
  runThrough({"", "river_reach", {{BOUNDARY, RAIN}, {STRINGS, REGION}}, "300", "60", {}});
  EXPECT_THAT(differencesFrom(2), Not(IsEmpty()));
  EXPECT_LT(surfaceDifference(3), 1e-7);
}

TEST_F(Continued, WritesTheRecordOfItsStartAnewWithoutTheStatesOfStrings) {
  constexpr std::size_t GAUGE = 1;
  runThrough({"", "river_reach", {}, "180", "60", {}});
  EXPECT_THAT(differencesFrom(2), IsEmpty());
  EXPECT_GT(discharge(through, GAUGE, 2), 5.0);
  EXPECT_EQ(discharge(resultFile, GAUGE, 2), 0.0);
  EXPECT_EQ(discharge(resultFile, GAUGE, 1), discharge(through, GAUGE, 1));
}

}  // namespace
