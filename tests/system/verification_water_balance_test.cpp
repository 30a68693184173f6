// Where does the water go?
//
// All water that the examples begin with, that comes in or that falls as rain must be there in the
// end or have gone out: through inflows, outlets, gates and weirs, over ground that falls dry and
// floods again. See AccountedRun.h for how each term is counted.
//
//   R. J. LeVeque: Finite Volume Methods for Hyperbolic Problems. Cambridge University Press, 2002,
//   sections 4.1 and 13.2.
//
// To expect: an account that closes at the end of every step but for rounding. The largest error
// was 5e-15 of the water in these runs when the test was written: no term is missing, and the
// solver cuts nothing off.
#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <string>

#include "support/Process.h"
#include "support/TempDir.h"
#include "system/verification/AccountedRun.h"

namespace verification {
namespace {

class WaterBalance : public ::testing::Test {
 protected:
  /// Runs an example from its first to its last record and expects that its account closes.
  Account ofExample(const std::string& name) {
    std::filesystem::copy(std::string(EXAMPLES_FOLDER) + "/" + name, dir.path(),
                          std::filesystem::copy_options::recursive);
    const support::Outcome setup = support::runIn(dir.path(), SETUP_EXE, {"-f", "study.json"});
    EXPECT_EQ(setup.status, 0) << setup.err;
    return ofRunFile();
  }
  Account ofSample(const std::string& name) {
    support::copySample(name, dir.path());
    return ofRunFile();
  }

 private:
  Account ofRunFile() {
    ::testing::internal::CaptureStdout();
    AccountedRun run(dir.file("command.json"), dir.file("run.h5"));
    run.go(dir.file("results.h5"));
    std::fflush(stdout);
    ::testing::internal::GetCapturedStdout();
    EXPECT_LE(run.largestError(), 1e-13 * run.account().turnover());
    EXPECT_GE(run.steps(), 50);
    return run.account();
  }

  const support::TempDir dir;
};

TEST_F(WaterBalance, ClosesForAFloodInARiver) {
  const Account water = ofExample("river_reach");
  // The hydrograph up to 4800 s: 10 * 600 + 35 * 900 + 35 * 2100 + 10 * 1200 m3, in steps.
  EXPECT_NEAR(water.in, 123000.0, 5.0);
  EXPECT_GT(water.out, 0.9 * water.in);
  EXPECT_EQ(water.added, 0.0);
}

TEST_F(WaterBalance, ClosesForGateAndWeirOfAPolder) {
  const Account water = ofExample("polder");
  EXPECT_NEAR(water.stored - water.atStart, 26373.0, 20.0);
  EXPECT_GT(water.out, 0.1 * water.in);
}

TEST_F(WaterBalance, ClosesForRainOnADryHillslope) {
  const Account water = ofExample("hillslope_rain");
  EXPECT_EQ(water.atStart, 0.0);
  EXPECT_NEAR(water.added, 4.5, 1e-9);  // 60 mm/h on 100 m2 for 45 min
  EXPECT_GT(water.out, 0.9 * water.added);
}

TEST_F(WaterBalance, ClosesForADamBreakBetweenWalls) {
  const Account water = ofExample("dam_break");
  EXPECT_EQ(water.in, 0.0);
  EXPECT_EQ(water.out, 0.0);
}

TEST_F(WaterBalance, ClosesForSinksThatFindLessWaterThanTheyWant) {
  const Account water = ofSample("sink_types");
  EXPECT_GT(water.added, 0.0);
  EXPECT_GT(water.taken, 0.1 * water.atStart);
}

}  // namespace
}  // namespace verification
