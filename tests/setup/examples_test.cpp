// The studies of examples/ give the numbers of their pages.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <numeric>

#include "support/H5Compare.h"
#include "support/Process.h"
#include "support/TempDir.h"

using ::testing::DoubleNear;
using ::testing::HasSubstr;
using ::testing::Not;

namespace {

class Examples : public ::testing::Test {
 protected:
  void run(const std::string& name) {
    std::filesystem::copy(std::string(EXAMPLES_FOLDER) + "/" + name, dir.path(),
                          std::filesystem::copy_options::recursive);
    setUp();
    const support::Outcome outcome = support::runIn(
        dir.path(), SIMULATION_EXE, {"-f", "command.json", "-r", "run.h5", "-o", "results.h5"});
    ASSERT_EQ(outcome.status, 0) << outcome.err;
  }

  void setUp() {
    const support::Outcome outcome = support::runIn(dir.path(), SETUP_EXE, {"-f", "study.json"});
    ASSERT_EQ(outcome.status, 0) << outcome.err;
    report = outcome.out;
  }

  /// A value of the state of a string in a record.
  double state(int record, std::size_t string, std::size_t component) const {
    return numbers("NodeStrg/StateVar", record).at(10 * string + component);
  }

  double discharge(int record, std::size_t string) const { return state(record, string, 1); }

  /// The record with the largest discharge.
  int peak(std::size_t string, int records) const {
    int found = 0;
    for (int k = 0; k < records; ++k) {
      if (discharge(k, string) > discharge(found, string)) found = k;
    }
    return found;
  }

  /// All water in a record [m3].
  double volume(int record) const {
    const std::vector<double> flow = numbers("CellsAll/HydState", record);
    const std::vector<double> bed = support::readNumbers(results(), "CellsAll/BottomEl");
    const std::vector<double> areas = support::readNumbers(dir.file("run.h5"), "CellsAll/GeomArea");
    double sum = 0.0;
    for (std::size_t cell = 0; cell < bed.size(); ++cell) {
      sum += areas[cell] * (flow[3 * cell] - bed[cell]);
    }
    return sum;
  }

  /// x of the centroid of each cell [m].
  std::vector<double> places() const {
    const std::vector<double> corners = support::readNumbers(results(), "CellsAll/Topology");
    const std::vector<double> nodes = support::readNumbers(results(), "NodesAll/Coordnts");
    std::vector<double> x(corners.size() / 3, 0.0);
    for (std::size_t k = 0; k < corners.size(); ++k) {
      x[k / 3] += nodes.at(3 * static_cast<std::size_t>(corners[k])) / 3.0;
    }
    return x;
  }

  std::vector<double> bed(int record) const { return numbers("CellsAll/BottomEl", record); }

  /// All bed, with its pores, in a record, over the elevation 0 [m3].
  double bedVolume(int record) const {
    const std::vector<double> areas = support::readNumbers(dir.file("run.h5"), "CellsAll/GeomArea");
    const std::vector<double> beds = bed(record);
    return std::inner_product(beds.begin(), beds.end(), areas.begin(), 0.0);
  }

  /// The cell farthest upstream with its bed below an elevation [m].
  double firstBelow(double elevation, int record) const {
    const std::vector<double> x = places();
    const std::vector<double> beds = bed(record);
    double first = 1e9;
    for (std::size_t cell = 0; cell < x.size(); ++cell) {
      if (beds[cell] < elevation) first = std::min(first, x[cell]);
    }
    return first;
  }

  /// Mean bed of the cells between two places [m].
  double meanBed(double from, double to, int record) const {
    const std::vector<double> x = places();
    const std::vector<double> beds = bed(record);
    double sum = 0.0;
    int count = 0;
    for (std::size_t cell = 0; cell < x.size(); ++cell) {
      if (x[cell] < from || x[cell] > to) continue;
      sum += beds[cell];
      ++count;
    }
    return sum / count;
  }

  std::string results() const { return dir.file("results_results.h5"); }

  std::vector<double> numbers(const std::string& datum, int record) const {
    const std::string digits = std::to_string(record);
    return support::readNumbers(
        results(), "RESULTS/" + datum + "/" + std::string(7 - digits.size(), '0') + digits);
  }

  const support::TempDir dir;
  std::string report;
};

}  // namespace

TEST_F(Examples, TheFloodOfTheRiverReachGetsLowerOnItsWay) {
  run("river_reach");
  EXPECT_THAT(discharge(25, 0), DoubleNear(60.0, 0.5));
  const int gauge = peak(1, 81);
  EXPECT_EQ(gauge, 29);
  EXPECT_THAT(discharge(gauge, 1), DoubleNear(51.35, 0.1));
  const int outlet = peak(2, 81);
  EXPECT_EQ(outlet, 35);
  EXPECT_THAT(discharge(outlet, 2), DoubleNear(48.05, 0.1));
  double balance = 0.0;
  for (int k = 1; k < 81; ++k) {
    balance += 30.0 * (discharge(k - 1, 0) + discharge(k, 0));
    balance -= 30.0 * (discharge(k - 1, 2) + discharge(k, 2));
  }
  EXPECT_THAT(volume(80) - volume(0), DoubleNear(balance, 0.005 * 122700.0));
}

TEST_F(Examples, ThePolderFillsByGateAndWeirAndKeepsItsWater) {
  constexpr std::size_t WEIR = 2;
  constexpr std::size_t GATE = 4;
  run("polder");
  EXPECT_EQ(discharge(6, GATE), 0.0);
  EXPECT_GT(discharge(8, GATE), 5.0);
  EXPECT_THAT(discharge(18, WEIR), DoubleNear(11.33, 0.02));
  EXPECT_THAT(discharge(18, GATE), DoubleNear(20.2, 0.1));
  EXPECT_EQ(discharge(27, GATE), 0.0);
  EXPECT_THAT(volume(40) - volume(0), DoubleNear(26373.0, 20.0));
}

TEST_F(Examples, TheHillslopeComesNearToTheKinematicWave) {
  run("hillslope_rain");
  EXPECT_THAT(report, Not(HasSubstr("no cell is wet")));
  EXPECT_THAT(discharge(45, 0), DoubleNear(0.001667, 0.00009));
  EXPECT_THAT(volume(45), DoubleNear(1.77, 0.06));
}

TEST_F(Examples, TheHillslopeIsToldOfATimeStepThatIsTooLong) {
  std::filesystem::copy(std::string(EXAMPLES_FOLDER) + "/hillslope_rain", dir.path(),
                        std::filesystem::copy_options::recursive);
  std::string study = support::readFile(dir.file("study.json"));
  const std::string step = "\"maximum_time_step\": 6.0";
  study.replace(study.find(step), step.size(), "\"maximum_time_step\": 100.0");
  support::writeFile(dir.file("study.json"), study);
  setUp();
  EXPECT_THAT(report, HasSubstr(" -> no cell is wet at the start: until one is, a step is "
                                "cfl * maximum_time_step = 50 s, in which the strongest source "
                                "adds 0.000833333 m of water; a maximum_time_step of about 6 s "));
}

TEST_F(Examples, TheTrenchFillsFromUpstreamAtTheSpeedOfItsBalance) {
  constexpr double HALFWAY = -0.0423;
  run("trench");
  EXPECT_EQ(bed(1), bed(0));
  EXPECT_THAT(state(21, 0, 8), DoubleNear(1.09e-5, 2e-7));
  EXPECT_THAT(firstBelow(HALFWAY, 21) - firstBelow(HALFWAY, 1), DoubleNear(1.3, 0.2));
  const std::vector<double> beds = bed(21);
  EXPECT_THAT(*std::min_element(beds.begin(), beds.end()), DoubleNear(-0.086, 0.001));
  double balance = 0.0;
  for (int k = 2; k <= 21; ++k) {
    balance += 120.0 * (state(k, 0, 8) - state(k, 1, 8)) / 0.6;
  }
  EXPECT_THAT(bedVolume(21) - bedVolume(1), DoubleNear(balance, 3e-5));
}

TEST_F(Examples, TheDamBreakDigsAtTheGateAndDropsSandUnderItsFront) {
  run("dam_break_mobile");
  EXPECT_THAT(bedVolume(5), DoubleNear(0.0, 1e-15));
  EXPECT_THAT(meanBed(0.1, 0.3, 4), DoubleNear(-0.0036, 0.0005));
  EXPECT_THAT(meanBed(2.0, 2.2, 4), DoubleNear(0.0027, 0.0005));
  const std::vector<double> x = places();
  const std::vector<double> beds = bed(4);
  const std::vector<double> flow = numbers("CellsAll/HydState", 4);
  double front = 0.0;
  for (std::size_t cell = 0; cell < x.size(); ++cell) {
    if (flow[3 * cell] - beds[cell] > 0.001) front = std::max(front, x[cell]);
  }
  EXPECT_THAT(front, DoubleNear(2.3, 0.1));
}
