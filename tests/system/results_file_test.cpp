// The life of a results file: what it replaces and when, who may write to it, what lies beside it.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstddef>
#include <filesystem>
#include <random>
#include <string>
#include <thread>

#include "h5/journal/JournaledFile.h"
#include "system/EndlessRun.h"

namespace {

using support::Outcome;
using ::testing::HasSubstr;
using ::testing::IsSupersetOf;

// -- earlier results ------------------------------------------------------------------------------

class EarlierResults : public support::EndlessRun {
 protected:
  /// What is left of an earlier results file after a run that must fail.
  std::string afterFailedRun() {
    support::writeFile(resultFile, "earlier results");
    EXPECT_EQ(simulate().status, 1);
    return support::readFile(resultFile);
  }
  std::ptrdiff_t filesNamedAsTheResults() const {
    const std::filesystem::directory_iterator files(dir.path());
    return std::count_if(begin(files), end(files), [](const auto& entry) {
      return entry.path().filename().string().starts_with("results_results.h5");
    });
  }
};

TEST_F(EarlierResults, OutliveARunFileWithoutAParameter) {
  useSample("one_cell");
  support::removeLink(runFile, "Parameters/Gravity");
  EXPECT_EQ(afterFailedRun(), "earlier results");
}

TEST_F(EarlierResults, OutliveARunFileWithoutASchedule) {
  useSample("one_cell");
  support::removeLink(runFile, "kernels/execution");
  EXPECT_EQ(afterFailedRun(), "earlier results");
}

TEST_F(EarlierResults, OutliveARunFileWithAWrongSign) {
  useSample("one_cell");
  support::overwrite(runFile, "CellsAll/EdgeSign", 1, 3);
  EXPECT_EQ(afterFailedRun(), "earlier results");
}

TEST_F(EarlierResults, OutliveACommandFileWithATooSmallStep) {
  useSample("one_cell");
  support::writeFile(dir.file("command.json"),
                     R"({"SIMULATION": {"TIME": {"start": 0, "end": 1, "out": 1},
                         "TIMESTEP": {"init": 0.1, "minimum": 1e-12}, "OUTPUT": ["water_depth"]}})");
  EXPECT_EQ(afterFailedRun(), "earlier results");
}

TEST_F(EarlierResults, OutliveARunThatFailsAtItsFirstRecord) {
  useSample("one_cell");
  support::writeFile(resultFile, "earlier results");
  EXPECT_EQ(simulateBehind("trap '' XFSZ; ulimit -f 24").status, 1);
  EXPECT_EQ(support::readFile(resultFile), "earlier results");
  EXPECT_EQ(filesNamedAsTheResults(), 1);
}

TEST_F(EarlierResults, AreReplacedByTheFirstRecord) {
  useSample("one_cell");
  support::writeFile(resultFile, "earlier results");
  ASSERT_EQ(simulate().status, 0);
  EXPECT_EQ(support::readTime(resultFile, record(0)), 0.0);
  EXPECT_EQ(filesNamedAsTheResults(), 1);
}

TEST_F(EarlierResults, ThatAreNotThereLeaveAFileThatShowsHowFarARunCame) {
  useSample("one_cell");
  EXPECT_EQ(simulateBehind("trap '' XFSZ; ulimit -f 40").status, 1);
  EXPECT_THAT(support::datasetPaths(resultFile),
              IsSupersetOf({".config/model", ".config/simulation", "CellsAll/Topology",
                            "NodesAll/Coordnts", "Parameters/MinWaterDepth"}));
}

TEST_F(EarlierResults, AreReplacedThroughALink) {
  useSample("one_cell");
  const std::string other = dir.file("elsewhere.h5");
  support::writeFile(other, "earlier results");
  std::filesystem::create_symlink("elsewhere.h5", resultFile);
  ASSERT_EQ(simulate().status, 0);
  EXPECT_TRUE(std::filesystem::is_symlink(resultFile));
  EXPECT_EQ(support::readTime(other, record(0)), 0.0);
}

// -- a second run ---------------------------------------------------------------------------------

class SecondRun : public support::EndlessRun {
 protected:
  /// Starts one more run while the first goes on, and expects that it changes nothing.
  void expectRefused(const std::string& times, const std::string& environment) {
    startEndless();
    awaitRecords(3);
    setCommand(times, R"("water_surface")");
    const std::string first = support::readFile(dir.file("stdout.txt"));
    const pid_t second = support::start(other.path(), "/bin/sh",
                                        {"-c", "cd " + dir.path() + "; " + environment +
                                                   " exec ./simulation -f command.json -r run.h5"});
    const Outcome run = support::finish(other.path(), second);
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err,
              " -> another process is writing to file results_results.h5: wait for its end, or "
              "give this one another file\n -> ... unfortunately RHEOMARK is killed!\n");
    const std::size_t reported = announced();
    awaitRecords(reported + 3);
    ASSERT_EQ(stop(SIGTERM).status, 128 + SIGTERM);
    for (std::size_t i = 0; i < reported; ++i) {
      EXPECT_NEAR(support::readTime(resultFile, record(i)), 0.1 * static_cast<double>(i), 1e-12);
    }
  }

  const support::TempDir other;
};

TEST_F(SecondRun, ThatIsFreshIsRefused) {
  expectRefused(R"("start": 0, "end": 1, "out": 0.5)", "");
}

TEST_F(SecondRun, ThatIsFreshIsRefusedWhereTheUserWantsLocks) {
  expectRefused(R"("start": 0, "end": 1, "out": 0.5)", "HDF5_USE_FILE_LOCKING=TRUE");
}

TEST_F(SecondRun, ThatContinuesIsRefused) {
  expectRefused(R"("start": 0.1, "end": 1, "out": 0.5)", "");
}

TEST_F(SecondRun, MayReadWhatTheFirstWrites) {
  startEndless();
  awaitRecords(3);
  const int file = ::open(resultFile.c_str(), O_RDONLY | O_CLOEXEC);
  EXPECT_EQ(::flock(file, LOCK_SH | LOCK_NB), 0);
  const pid_t look = support::start(other.path(), EXPORT_EXE, {"-r", resultFile, "--list"});
  EXPECT_EQ(support::finish(other.path(), look).status, 0);
  ::close(file);
  EXPECT_TRUE(isRunning());
}

TEST_F(SecondRun, MayWriteOnceTheFirstWasKilled) {
  startEndless();
  awaitRecords(3);
  ASSERT_EQ(stop(SIGKILL).status, 128 + SIGKILL);
  setCommand(R"("start": 0, "end": 1, "out": 0.5)", R"("water_surface")");
  EXPECT_EQ(simulate().status, 0);
}

// -- kills before the first record ----------------------------------------------------------------

/// A fresh run over a moving bed, with two datasets a record.
class KilledAtItsStart : public support::EndlessRun {
 protected:
  using Clock = std::chrono::steady_clock;

  KilledAtItsStart() {
    useSample("mor_grass");
    setCommand(R"("start": 0, "end": 0.25, "out": 0.125)", R"("water_surface")");
    EXPECT_EQ(simulate().status, 0);
    earlier = support::readFile(resultFile);
    setCommand(R"("start": 0, "end": 1e9, "out": 0.125)", R"("water_surface")");
  }
  void start() {
    support::writeFile(dir.file("stdout.txt"), "");
    process = startSimulation({"-l", "3"});
  }
  /// Whether the run has gone on behind its first record.
  bool hasRecord() const {
    return support::readFile(dir.file("stdout.txt")).find(" -> time: ") != std::string::npos;
  }
  Clock::duration timeToTheFirstRecord() {
    const Clock::time_point begin = Clock::now();
    start();
    while (!hasRecord()) std::this_thread::sleep_for(std::chrono::microseconds(200));
    const Clock::duration passed = Clock::now() - begin;
    stop(SIGKILL);
    return passed;
  }
  void expectFirstRecord() {
    { const h5::JournaledFile completed(resultFile, O_RDONLY); }
    for (const char* data : {"HydState", "BottomEl"}) {
      EXPECT_EQ(support::readTime(resultFile, record(0, data)), 0.0);
      EXPECT_FALSE(support::readNumbers(resultFile, record(0, data)).empty());
    }
  }

  std::string earlier;
};

TEST_F(KilledAtItsStart, LeavesTheEarlierResultsOrARecordOfItsOwn) {
  const Clock::duration whole = timeToTheFirstRecord();
  std::mt19937 random(11);
  for (int kill = 0; kill < support::killsPerTest(); ++kill) {
    const double part = 1.2 * static_cast<double>(random()) / 4294967296.0;
    SCOPED_TRACE(::testing::Message() << "kill " << kill << " at " << part);
    const bool hasEarlier = kill % 2 == 0;
    std::filesystem::remove(resultFile);
    if (hasEarlier) support::writeFile(resultFile, earlier);
    start();
    std::this_thread::sleep_for(part * whole);
    stop(SIGKILL);
    const bool isReported = hasRecord();
    const bool isEarlier =
        std::filesystem::exists(resultFile) && support::readFile(resultFile) == earlier;
    if (isReported || (hasEarlier && !isEarlier)) expectFirstRecord();
    ASSERT_FALSE(HasFailure());
  }
}

// -- what lies in the way -------------------------------------------------------------------------

class InTheWay : public support::EndlessRun {
 protected:
  InTheWay() { useSample("one_cell"); }

  void expectRefusal(const std::string& reason) {
    const Outcome run = simulate();
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.err, HasSubstr(reason));
  }
  Outcome list() {
    return support::runIn(dir.path(), EXPORT_EXE, {"-r", "results_results.h5", "--list"});
  }

  const std::string journal = resultFile + ".rheomark-journal";
};

TEST_F(InTheWay, AFileThatHasTheNameOfTheJournalIsNamedAndSpared) {
  ASSERT_EQ(simulate().status, 0);
  support::writeFile(journal, "a user's own");
  const std::string results = support::readFile(resultFile);
  expectRefusal(".rheomark-journal has the name that the journal of the results needs");
  EXPECT_EQ(list().status, 0);
  EXPECT_EQ(support::readFile(journal), "a user's own");
  EXPECT_EQ(support::readFile(resultFile), results);
}

TEST_F(InTheWay, AUsersFileWithTheEndingJournalIsNot) {
  support::writeFile(resultFile + ".journal", "a user's own");
  EXPECT_EQ(simulate().status, 0);
  EXPECT_EQ(support::readFile(resultFile + ".journal"), "a user's own");
}

TEST_F(InTheWay, AJournalOfAnEarlierReleaseIsTold) {
  ASSERT_EQ(simulate().status, 0);
  support::writeFile(resultFile + ".journal", "\x89\x1aRHEOJ1 and so on");
  expectRefusal("is the journal of a record that release 3.0.1 was writing");
  const Outcome look = list();
  EXPECT_EQ(look.status, 1);
  EXPECT_THAT(look.err, HasSubstr("release 3.0.1"));
}

TEST_F(InTheWay, APipeIsNotWaitedFor) {
  ASSERT_EQ(::mkfifo(resultFile.c_str(), 0666), 0);
  expectRefusal("file results_results.h5 is a pipe or a device");
  EXPECT_THAT(list().err, HasSubstr("is a pipe or a device"));
}

TEST_F(InTheWay, APipeForAJournalIsNotWaitedFor) {
  ASSERT_EQ(simulate().status, 0);
  ASSERT_EQ(::mkfifo(journal.c_str(), 0666), 0);
  expectRefusal(".rheomark-journal is a pipe or a device");
  EXPECT_THAT(list().err, HasSubstr("is a pipe or a device"));
}

TEST_F(InTheWay, ALockedJournalIsNotWaitedForForEver) {
  ASSERT_EQ(simulate().status, 0);
  support::writeFile(journal, "");
  const int file = ::open(journal.c_str(), O_RDONLY | O_CLOEXEC);
  ASSERT_EQ(::flock(file, LOCK_EX | LOCK_NB), 0);
  const Outcome look = list();
  ::close(file);
  EXPECT_EQ(look.status, 1);
  EXPECT_THAT(look.err, HasSubstr("is locked by another process"));
}

}  // namespace
