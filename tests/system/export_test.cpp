// What `export` makes of results as the simulation leaves them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "system/Simulation.h"

namespace {

using support::linesWith;
using support::Outcome;
using ::testing::HasSubstr;
using ::testing::SizeIs;

class Export : public support::Simulation {
 protected:
  Outcome exported(std::vector<std::string> arguments) const {
    arguments.insert(arguments.begin(), {"-r", resultFile});
    return support::runIn(side.path(), EXPORT_EXE, arguments);
  }

  /// The lines of a table, without those of comment.
  std::vector<std::string> table(const std::string& file) const {
    return linesWith(",", support::readFile(side.file(file)));
  }

  /// Where the output of a run that goes on is not in the way.
  const support::TempDir side;
};

TEST_F(Export, ListsTheTimesFromWhichARunContinues) {
  useSample("rerun_continue");
  ASSERT_EQ(simulate().status, 0);
  const auto times = nlohmann::json::parse(exported({"--json"}).out).at("restart_times");
  ASSERT_GT(times.size(), 2U);
  const std::string time = times.at(1).dump();
  setCommand(R"("start": )" + time + R"(, "end": )" + time + R"(1, "out": 0)");
  EXPECT_EQ(simulate().status, 0);
  setCommand(R"("start": )" + time + R"(1, "end": 9, "out": 0)");
  EXPECT_EQ(simulate().status, 1);
}

TEST_F(Export, LeavesOutARecordWhoseAttributeGoesBeyondItsHeader) {
  useSample("time_out_tenth");
  ASSERT_EQ(simulate().status, 0);
  // The time of a record: name, type and extents of the attribute, each behind the size of all.
  std::string bytes = support::readFile(resultFile);
  const std::size_t sizes = bytes.find(std::string("\2\0\24\0\30\0t\0", 8));
  ASSERT_NE(sizes, std::string::npos);
  bytes[sizes + 3] = '\xFF';
  support::writeFile(resultFile, bytes);
  const Outcome listed = exported({"--list"});
  EXPECT_EQ(listed.status, 0) << listed.err;
  EXPECT_THAT(listed.out, HasSubstr("1 record is not valid and left out"));

  setCommand(R"("start": 0.5, "end": 1, "out": 0.1)");
  const Outcome run = simulate();
  EXPECT_EQ(run.status, 1);
  EXPECT_THAT(run.err, HasSubstr("Unable to open the attribute \"t\": \"/"));
  EXPECT_THAT(run.err, HasSubstr("has a header whose parts are larger than their room"));
  EXPECT_TRUE(support::readFile(resultFile) == bytes);
}

TEST_F(Export, LeavesGapsWhereARunWasContinuedWithOtherOutputs) {
  useSample("interpolation_keys");
  setCommand(R"("start": 0, "end": 2, "out": 1)", R"("water_depth")");
  ASSERT_EQ(simulate().status, 0);
  setCommand(R"("start": 1, "end": 2, "out": 1)", R"("water_depth", "ns_hyd_discharge")");
  ASSERT_EQ(simulate().status, 0);
  const Outcome run = exported({"--csv", "strings.csv"});
  ASSERT_EQ(run.status, 0) << run.err;
  const std::vector<std::string> rows = table("strings.csv");
  ASSERT_THAT(rows, SizeIs(4));
  EXPECT_EQ(rows[1], "0,,,,");
  EXPECT_THAT(rows[3], ::testing::MatchesRegex("2,[-.0-9e]+,[-.0-9e]+,[-.0-9e]+,[-.0-9e]+"));
}

TEST_F(Export, ShowsARunThatWasStopped) {
  useSample("dam_dry");
  setCommand(R"("start": 0, "end": 1e6, "out": 0.5)", R"("water_depth")");
  const pid_t process = startSimulation();
  const auto hasRecord = [this] {
    return exported({"--list"}).out.find("t[s]: 1,") != std::string::npos;
  };
  int tries = 0;
  while (!hasRecord() && ++tries < 10000) {
  }
  ::kill(process, SIGKILL);
  support::finish(dir.path(), process);
  const Outcome run = exported({"-o", "run.xdmf", "--list"});
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_THAT(run.out, HasSubstr("t[s]: 1, a run can be continued from it"));
}

}  // namespace
