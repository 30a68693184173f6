// What a run survives, and what survives a run: kills, viewers, full disks, signals.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <hdf5.h>
#include <sys/file.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <csignal>
#include <filesystem>
#include <random>
#include <sstream>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "h5/journal/Journal.h"
#include "system/EndlessRun.h"

namespace {

using support::linesWith;
using support::Outcome;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

class Robustness : public support::EndlessRun {
 protected:
  /// A run that starts and ends at the time of a record.
  Outcome continueFrom(std::size_t number) {
    std::ostringstream time;
    time.precision(17);
    double reached = 0.0;
    for (std::size_t i = 0; i < number; ++i) reached += 0.1;
    time << "\"start\": " << reached << ", \"end\": " << reached << ", \"out\": 0.1";
    setCommand(time.str(), R"("water_surface")");
    return simulate();
  }
  /// Expects whole records 0 to `count` - 1.
  void expectRecords(std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
      SCOPED_TRACE(record(i));
      EXPECT_NEAR(support::readTime(resultFile, record(i)), 0.1 * static_cast<double>(i), 1e-12);
      const std::vector<double> state = support::readNumbers(resultFile, record(i));
      EXPECT_EQ(state.size(), 3U * 128U);
      for (const double value : state) EXPECT_TRUE(std::isfinite(value));
    }
  }
};

// -- kills ----------------------------------------------------------------------------------------

class Kill : public Robustness, public ::testing::WithParamInterface<int> {};

// The delays are no multiple of anything, so that the kills fall on different moments of a pass,
// and of a record.
TEST_P(Kill, LeavesAllRecordsThatWereReportedAsWritten) {
  startEndless();
  awaitRecords(static_cast<std::size_t>(3 + 5 * GetParam()));
  std::this_thread::sleep_for(std::chrono::microseconds(313 * GetParam()));
  EXPECT_EQ(stop(SIGKILL).status, 128 + SIGKILL);
  // The last one that was announced may have been under way.
  const std::size_t written = announced() - 1;
  EXPECT_EQ(continueFrom(written - 1).status, 0);
  expectRecords(written);
}

INSTANTIATE_TEST_SUITE_P(Moments, Kill, ::testing::Range(0, 12));

class Torn : public Robustness {
 protected:
  /// Leaves the results of a whole run as a process does that is killed where it brings the change
  /// of the first page into the file.
  void leaveTorn() {
    useSample("time_out_tenth");
    ASSERT_EQ(simulate().status, 0);
    whole = support::readFile(resultFile);
    const std::string page = whole.substr(0, h5::PAGE_SIZE);
    const std::string before(page.size(), '\0');
    h5::Journal change;
    change.pages[0] = {{page.begin(), page.end()}, h5::hash(before.data(), before.size())};
    change.end = whole.size();
    change.write(journal);
    support::writeFile(resultFile, before + whole.substr(before.size()));
  }

  std::string whole;
  const std::string journal = resultFile + ".rheomark-journal";
};

TEST_F(Torn, ResultsAreCompletedByTheRunThatContinues) {
  leaveTorn();
  EXPECT_EQ(continueFrom(5).status, 0);
  EXPECT_FALSE(std::filesystem::exists(journal));
  expectRecords(6);
}

TEST_F(Torn, ResultsAreCompletedByARunThatOnlyReads) {
  leaveTorn();
  EXPECT_EQ(program({"-f", "command.json", "-r", "results_results.h5", "-a", "study.json"}).status,
            0);
  EXPECT_FALSE(std::filesystem::exists(journal));
  EXPECT_TRUE(support::readFile(resultFile) == whole);
}

TEST_F(Torn, ResultsAreCompletedByALookAtThem) {
  leaveTorn();
  EXPECT_EQ(support::runIn(dir.path(), EXPORT_EXE, {"-r", "results_results.h5", "--list"}).status,
            0);
  EXPECT_FALSE(std::filesystem::exists(journal));
  EXPECT_TRUE(support::readFile(resultFile) == whole);
}

TEST_F(Torn, ResultsOfAnotherRunAreLeftAlone) {
  leaveTorn();
  support::writeFile(resultFile, support::readFile(dir.file("expected_results.h5")));
  EXPECT_EQ(continueFrom(5).status, 0);
  EXPECT_FALSE(std::filesystem::exists(journal));
  expectRecords(6);
}

// -- failures within a record, and before the first -----------------------------------------------

class FailedReRun : public Robustness {
 protected:
  FailedReRun() {
    useSample("mor_grass");
    setCommand(R"("start": 0, "end": 0.4, "out": 0.1)");
    EXPECT_EQ(simulate().status, 0);
  }
  void removeAttribute(const std::string& dataset, const char* name) const {
    const hid_t file = H5Fopen(resultFile.c_str(), H5F_ACC_RDWR, H5P_DEFAULT);
    H5Adelete_by_name(file, dataset.c_str(), name, H5P_DEFAULT);
    H5Fclose(file);
  }
  double time(const std::string& data, int number) const {
    return support::readTime(resultFile,
                             "RESULTS/CellsAll/" + data + "/000000" + std::to_string(number));
  }
};

TEST_F(FailedReRun, KeepsTheRecordsThatItWasToReplaceUntilTheFirstNewOne) {
  support::overwrite(runFile, "CellsAll/EdgeSign", 1, 3);
  setCommand(R"("start": 0.1, "end": 0.4, "out": 0.1)");
  EXPECT_EQ(simulate().status, 1);
  for (int i = 0; i < 5; ++i) EXPECT_NEAR(time("HydState", i), 0.1 * i, 1e-12);
}

// The state of the water is written before that of the bed.
TEST_F(FailedReRun, KeepsWholeRecordsOnly) {
  removeAttribute("RESULTS/CellsAll/BottomEl/0000003", "size");
  setCommand(R"("start": 0.1, "end": 0.4, "out": 0.1)");
  const Outcome run = simulate();
  EXPECT_EQ(run.status, 2);
  EXPECT_THAT(run.out, HasSubstr("Writing '/RESULTS/CellsAll/HydState/0000003'"));
  for (const char* data : {"HydState", "BottomEl"}) {
    EXPECT_NEAR(time(data, 2), 0.2, 1e-12);
    EXPECT_EQ(time(data, 3), -1.0);
    EXPECT_EQ(time(data, 4), -1.0);
  }
}

// -- viewers --------------------------------------------------------------------------------------

/// Opens a file as a viewer does; while a record is under way it may take more than one attempt.
hid_t openAsViewer(const std::string& file) {
  H5Eset_auto2(H5E_DEFAULT, nullptr, nullptr);
  for (int attempt = 0; attempt < 1000; ++attempt) {
    const hid_t id = H5Fopen(file.c_str(), H5F_ACC_RDONLY, H5P_DEFAULT);
    if (id >= 0) return id;
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
  }
  throw std::runtime_error("cannot open " + file);
}

TEST_F(Robustness, AViewerThatHoldsTheResultsOpenDoesNotEndTheRun) {
  startEndless();
  awaitRecords(3);
  const hid_t file = openAsViewer(resultFile);
  awaitRecords(announced() + 5);
  EXPECT_TRUE(isRunning());
  H5Fclose(file);
}

TEST_F(Robustness, AViewerThatLocksTheResultsDoesNotEndTheRun) {
  startEndless();
  awaitRecords(3);
  const int file = ::open(resultFile.c_str(), O_RDONLY | O_CLOEXEC);
  ASSERT_GE(file, 0);
  EXPECT_EQ(::flock(file, LOCK_SH | LOCK_NB), 0);
  awaitRecords(announced() + 5);
  EXPECT_TRUE(isRunning());
  ::close(file);
}

class Locking : public Robustness {
 protected:
  /// Whether a run that is started with this in front of it holds a lock on its results.
  bool locks(const std::string& environment) {
    useSample("time_out_tenth");
    setCommand(R"("start": 0, "end": 1e9, "out": 0.01)");
    process =
        support::start(dir.path(), "/bin/sh",
                       {"-c", environment + "; exec ./simulation -l 2 -f command.json -r run.h5"});
    awaitRecords(2);
    const int file = ::open(resultFile.c_str(), O_RDONLY | O_CLOEXEC);
    const bool locked = ::flock(file, LOCK_SH | LOCK_NB) != 0;
    ::close(file);
    stop(SIGKILL);
    return locked;
  }
};

TEST_F(Locking, IsOffUnlessTheUserHasAskedForIt) {
  EXPECT_FALSE(locks("unset HDF5_USE_FILE_LOCKING"));
}

TEST_F(Locking, IsAsTheUserHasSetIt) {
  EXPECT_TRUE(locks("export HDF5_USE_FILE_LOCKING=TRUE"));
}

TEST_F(Locking, CanBeSwitchedOffByTheUser) {
  EXPECT_FALSE(locks("export HDF5_USE_FILE_LOCKING=FALSE"));
}

// -- full disks -----------------------------------------------------------------------------------

#ifndef __SANITIZE_ADDRESS__  // which takes terabytes of addresses for itself
// From limits at which not even the libraries find their place to those at which the run does.
TEST_F(Robustness, LittleMemoryEndsInAMessageNeverInASignal) {
  useSample("one_cell");
  int refused = 0;
  int done = 0;
  for (int megabytes = 8; megabytes <= 40; megabytes += 2) {
    const Outcome run = simulateBehind("ulimit -v " + std::to_string(megabytes * 1024));
    if (run.status == 1) {
      EXPECT_THAT(run.err, HasSubstr("memory"));
      ++refused;
    } else if (run.status == 0) {
      ++done;
    } else {
      EXPECT_EQ(run.status, 127) << megabytes << " MB: " << run.err;  // of the loader
    }
  }
  EXPECT_GT(refused, 0);
  EXPECT_GT(done, 0);
}
#endif

class FullDisk : public Robustness {
 protected:
  /// Runs the dry dam break where no file may grow beyond so many bytes.
  Outcome simulateWithin(int bytes) {
    useSample("dam_dry");
    before = support::readFile(runFile);
    return simulateBehind("ulimit -f " + std::to_string(bytes / 512));
  }

  /// The paths of the records of the state.
  static std::vector<std::string> records(const std::string& file) {
    std::vector<std::string> paths = support::datasetPaths(file);
    std::erase_if(paths, [](const std::string& path) {
      return path.rfind("RESULTS/CellsAll/HydState/", 0) != 0;
    });
    return paths;
  }

  std::string before;
};

constexpr const char* NO_ROOM =
    "for the next record: the disk is full, or the size of files is limited. All records before it "
    "are kept\n -> ... unfortunately RHEOMARK is killed!\n";

TEST_F(FullDisk, EndsTheRunAtTheRecordThatDoesNotFitAndKeepsAllBefore) {
  const Outcome run = simulateWithin(64 * 1024);
  EXPECT_EQ(run.status, 1);
  EXPECT_THAT(run.err, StartsWith(" -> results file <results_results.h5> cannot grow by "));
  EXPECT_THAT(run.err, EndsWith(NO_ROOM));
  EXPECT_EQ(support::readFile(runFile), before);

  const std::vector<std::string> kept = records(resultFile);
  ASSERT_GE(kept.size(), 2U);
  EXPECT_LT(kept.size(), records(dir.file("expected_results.h5")).size());
  for (const std::string& path : kept) {
    EXPECT_EQ(support::readNumbers(resultFile, path),
              support::readNumbers(dir.file("expected_results.h5"), path));
  }
}

TEST_F(FullDisk, EndsTheRunWhereItIsFullFromTheStart) {
  const Outcome run = simulateWithin(4 * 1024);
  EXPECT_EQ(run.status, 1);
  EXPECT_THAT(run.err, EndsWith(NO_ROOM));
  EXPECT_EQ(support::readFile(runFile), before);
}

TEST_F(FullDisk, DoesNotCostAReRunTheRecordsThatItStartsFrom) {
  useSample("one_cell");
  setCommand(R"("start": 0, "end": 1, "out": 0.5)");
  ASSERT_EQ(simulate().status, 0);
  setCommand(R"("start": 0.5, "end": 1, "out": 0.5)");
  const std::size_t blocks = support::readFile(resultFile).size() / 512 + 1;
  const Outcome run = simulateBehind("ulimit -f " + std::to_string(blocks));
  EXPECT_EQ(run.status, 1);
  EXPECT_THAT(run.err, EndsWith(NO_ROOM));
  EXPECT_EQ(support::readTime(resultFile, record(1)), 0.5);
  EXPECT_EQ(support::readTime(resultFile, record(2)), 1.0);
}

TEST_F(FullDisk, DoesNotEndAReRunThatOverwritesItsRecordsInPlace) {
  useSample("bowl");
  setCommand(R"("start": 0, "end": 2, "out": 0.25)");
  ASSERT_EQ(simulate().status, 0);
  setCommand(R"("start": 1, "end": 2, "out": 0.25)");
  const std::size_t blocks = support::readFile(resultFile).size() / 512 + 1;
  const Outcome run = simulateBehind("trap '' XFSZ; ulimit -f " + std::to_string(blocks));
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(support::readTime(resultFile, record(8)), 2.0);
}

// -- signals --------------------------------------------------------------------------------------

class Stop : public Robustness, public ::testing::WithParamInterface<int> {};

TEST_P(Stop, EndsTheRunAfterARecordAndItsTiming) {
  startEndless();
  awaitRecords(3);
  const Outcome run = stop(GetParam());
  EXPECT_EQ(run.status, 128 + GetParam());
  EXPECT_EQ(run.err, "");
  EXPECT_THAT(run.out, HasSubstr(" -> simulation finished! (cpu-time = "));
  EXPECT_THAT(run.out, HasSubstr(";   Update \n"));
  EXPECT_THAT(run.out, Not(HasSubstr("successfully processed")));
  EXPECT_FALSE(std::isnan(support::readTime(resultFile, record(announced() - 1))));
}

INSTANTIATE_TEST_SUITE_P(Signals, Stop, ::testing::Values(SIGTERM, SIGINT));

TEST_F(Robustness, ARecordCanBeAskedForAtAnyTime) {
  useSample("time_out_tenth");
  setCommand(R"("start": 0, "end": 1e9, "out": 1e9)", R"("water_surface")");
  process = startSimulation({"-l", "2", "-p"});
  // The run listens from its first line of progress on.
  while (support::readFile(dir.file("stdout.txt")).find(" -> Progress: 0/100") ==
         std::string::npos) {
    ASSERT_TRUE(isRunning());
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
  ::kill(process, SIGUSR1);
  awaitRecords(2);
  EXPECT_TRUE(isRunning());
  EXPECT_EQ(stop(SIGTERM).status, 128 + SIGTERM);
  const double first = support::readTime(resultFile, record(1));
  EXPECT_GT(first, 0.0);
  EXPECT_GT(support::readTime(resultFile, record(2)), first);
}

// -- kills at any moment --------------------------------------------------------------------------

/// A run over a moving bed, with two datasets a record, that is killed again and again and
/// continued from the last record that it has reported as written.
class KilledAgainAndAgain : public Robustness {
 protected:
  using Clock = std::chrono::steady_clock;

  KilledAgainAndAgain() { useSample("mor_grass"); }

  void startFromLastRecord() {
    command(kept.empty() ? 0 : kept.size() - 1, 1e9);
    support::writeFile(dir.file("stdout.txt"), "");  // what the run before has told
    process = startSimulation({"-l", "3"});
  }
  void command(std::size_t first, double end) {
    std::ostringstream time;
    time << "\"start\": " << OUT * static_cast<double>(first) << ", \"end\": " << end
         << ", \"out\": " << OUT;
    setCommand(time.str(), R"("water_surface")");
  }

  /// Waits for a number of records and then for a part of what the next one may take, or for a part
  /// of the time that a run takes until its first record; all as the runs before have shown.
  void await(std::size_t records, double part) {
    Clock::time_point last = Clock::now();
    for (std::size_t number = 1; number <= records; ++number) {
      while (announced() < number) {
        if (!isRunning()) throw std::runtime_error(told());
        std::this_thread::sleep_for(std::chrono::microseconds(200));
      }
      const Clock::time_point now = Clock::now();
      (number == 1 ? untilFirst : untilNext) = now - last;
      last = now;
    }
    std::this_thread::sleep_for(part * (records == 0 ? untilFirst : untilNext));
  }

  std::string told() const {
    return support::readFile(dir.file("stdout.txt")) + support::readFile(dir.file("stderr.txt"));
  }
  /// The number of records that the run has reported as written: it has gone on behind them.
  std::size_t written() const {
    const std::string text = told();
    const std::size_t record = text.rfind(" -> writing output at t = ");
    if (record == std::string::npos) return 0;
    const bool gone = text.find(" -> time: ", record) != std::string::npos;
    return announced() - (gone ? 0 : 1);
  }

  /// What a kill has cut short is completed when the program opens the file the next time.
  void completeRecord() {
    const Outcome run =
        program({"-f", "command.json", "-r", "results_results.h5", "-a", "study.json"});
    ASSERT_EQ(run.status, 0) << run.err;
  }

  /// Expects all records that ever were reported, with the values that they had at first.
  void expectAll(std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
      SCOPED_TRACE(record(i));
      const std::string bed = record(i, "BottomEl");
      std::vector<double> values = support::readNumbers(resultFile, record(i));
      for (const double z : support::readNumbers(resultFile, bed)) values.push_back(z);
      EXPECT_EQ(support::readTime(resultFile, record(i)), OUT * static_cast<double>(i));
      EXPECT_EQ(support::readTime(resultFile, bed), OUT * static_cast<double>(i));
      if (i == kept.size()) kept.push_back(values);
      EXPECT_EQ(values, kept[i]);
    }
  }

  static constexpr double OUT = 0.125;    ///< time between two records [s], a few steps
  std::vector<std::vector<double>> kept;  ///< state and bed of the records that were reported
  Clock::duration untilFirst{};
  Clock::duration untilNext{};
};

TEST_F(KilledAgainAndAgain, LosesNothingThatItHasReportedAsWritten) {
  std::mt19937 random(20);
  for (int kill = 0; kill < support::killsPerTest(); ++kill) {
    const std::size_t records = kill == 0 ? 3 : random() % 5;
    const double part = static_cast<double>(random()) / 4294967296.0;
    SCOPED_TRACE(::testing::Message() << "kill " << kill << ", behind " << records
                                      << " records and " << part << " of a record");
    const std::size_t first = kept.empty() ? 0 : kept.size() - 1;
    startFromLastRecord();
    await(records, part);
    const Outcome run = stop(SIGKILL);
    ASSERT_EQ(run.status, 128 + SIGKILL) << run.err;
    const std::size_t reported = std::max(kept.size(), first + written());
    completeRecord();
    expectAll(reported);
    ASSERT_FALSE(HasFailure());
  }
  // What is continued in the end is the run that nobody has killed.
  const double end = OUT * static_cast<double>(kept.size() + 1);
  command(kept.size() - 1, end);
  ASSERT_EQ(simulate().status, 0);
  command(0, end);
  ASSERT_EQ(program({"-f", "command.json", "-r", "run.h5", "-o", "reference.h5"}).status, 0);
  for (const std::string& difference :
       support::differences(dir.file("reference_results.h5"), resultFile)) {
    EXPECT_THAT(difference, StartsWith(".config/simulation"));
  }
}

}  // namespace
