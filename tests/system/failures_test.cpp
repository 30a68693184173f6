// Each call that changes a file fails, once or for good: a message, status 1, and nothing is lost
// that was reported; or the failure does no harm.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <limits>
#include <nlohmann/json.hpp>
#include <regex>
#include <set>
#include <sstream>

#include "support/FailingCalls.h"
#include "system/Simulation.h"

namespace {

using support::FailingCall;
using support::Outcome;
using ::testing::EndsWith;
using ::testing::IsEmpty;
using ::testing::StartsWith;

using Words = std::vector<std::string>;

/// A failure for each call from the first on and of both kinds; the reasons take turns.
std::vector<FailingCall> failuresOf(const Words& calls, std::size_t first = 1) {
  constexpr std::array<int, 3> REASONS = {ENOSPC, EIO, EDQUOT};
  std::vector<FailingCall> failures;
  for (std::size_t call = first; call <= calls.size(); ++call) {
    failures.push_back({call, REASONS[call % 3], false});
    failures.push_back({call, REASONS[(call + 1) % 3], true});
  }
  return failures;
}

class Failures : public support::Simulation {
 protected:
  static std::string describe(const FailingCall& failing, const Words& calls) {
    return calls[failing.call - 1] + " " + std::to_string(failing.call) + " of " +
           std::to_string(calls.size()) + (failing.lasts ? " and all later ones" : "");
  }
  /// The message may have words of the HDF5 library before it.
  static void expectMessage(const Outcome& run) {
    EXPECT_EQ(run.status, 1) << run.out;
    EXPECT_GE(support::linesWith(" -> ", run.err).size(), 2U);
    EXPECT_THAT(run.err, EndsWith("\n -> ... unfortunately RHEOMARK is killed!\n"));
  }
};

// -- simulation -----------------------------------------------------------------------------------

/// Over a moving bed, with two datasets a record.
class FailuresOfRuns : public Failures {
 protected:
  FailuresOfRuns() { useSample("mor_grass"); }

  void command(std::size_t first, std::size_t end) {
    std::ostringstream time;
    time << "\"start\": " << OUT * static_cast<double>(first)
         << ", \"end\": " << OUT * static_cast<double>(end) << ", \"out\": " << OUT;
    setCommand(time.str(), R"("water_surface")");
  }

  /// Runs with each call failing.
  /// @param first record that the run starts from, on the results that are there
  void failEachCall(std::size_t first) {
    const bool hasResults = std::filesystem::exists(resultFile);
    if (hasResults) std::filesystem::rename(resultFile, earlier);
    const auto restore = [&] {
      std::filesystem::remove(resultFile);
      if (hasResults) std::filesystem::copy_file(earlier, resultFile);
      command(first, last);
    };
    restore();
    const Words calls = support::callsOf(dir.path(), "./simulation", ARGUMENTS);
    std::filesystem::rename(resultFile, reference);
    for (const FailingCall& failing : failuresOf(calls)) {
      SCOPED_TRACE(describe(failing, calls));
      restore();
      const Outcome run = support::runWithFailure(dir.path(), "./simulation", ARGUMENTS, failing);
      if (run.status == 0) {
        EXPECT_THAT(support::differences(reference, resultFile), IsEmpty());
      } else {
        expectMessage(run);
        expectKept(first, first + reported(run.out));
      }
      ASSERT_FALSE(HasFailure()) << run.err;
    }
  }

  /// The number of records behind which the run has gone on.
  static std::size_t reported(const std::string& output) {
    const std::size_t announced = support::linesWith(" -> writing output at t = ", output).size();
    const std::size_t last = output.rfind(" -> writing output at t = ");
    const bool isLastDone = announced > 0 && output.find(" -> time: ", last) != std::string::npos;
    return announced - (announced > 0 && !isLastDone ? 1 : 0);
  }

  /// Whether the results of an earlier run are still there instead of new ones.
  bool areEarlier(std::size_t first, std::size_t told) const {
    return first == 0 && told == 0 && std::filesystem::exists(earlier) &&
           support::differences(earlier, resultFile).empty();
  }

  /// Expects whole records, at least those that were reported, and that a run continues from them.
  /// A re-run has those up to the one that it starts from, whether or not it has written it again.
  void expectKept(std::size_t first, std::size_t told) {
    const bool isReRun = first > 0;
    std::size_t whole = 0;
    if (!areEarlier(first, told) && (told > 0 || std::filesystem::exists(earlier))) {
      const Outcome list = support::runIn(dir.path(), EXPORT_EXE, {"-r", resultFile, "--json"});
      ASSERT_EQ(list.status, 0) << list.err;
      whole = nlohmann::json::parse(list.out).at("records").size();
      EXPECT_GE(whole, isReRun ? std::max(first + 1, told) : std::max<std::size_t>(1, told));
      for (const std::string& path : support::datasetPaths(resultFile)) {
        if (numberOf(path) < whole) continue;
        EXPECT_EQ(support::readTime(resultFile, path), -1.0) << path;
      }
      for (const std::string& difference : support::differences(reference, resultFile)) {
        if (!difference.starts_with("RESULTS/")) {
          EXPECT_THAT(difference, StartsWith(".config/simulation"));
        } else {
          EXPECT_GE(numberOf(difference), whole) << difference;
        }
      }
    }
    command(whole == 0 ? 0 : whole - 1, last);
    const Outcome next = simulate();
    ASSERT_EQ(next.status, 0) << next.err;
    for (const std::string& difference : support::differences(reference, resultFile)) {
      EXPECT_THAT(difference, StartsWith(".config/simulation"));
    }
  }

  /// Of the record that a path lies in; 0 for what is in none.
  static std::size_t numberOf(const std::string& path) {
    std::smatch match;
    return std::regex_search(path, match, std::regex("^RESULTS/.*/([0-9]{7})"))
               ? std::stoul(match[1])
               : 0;
  }

  static constexpr double OUT = 0.125;  ///< time between two records [s], a few steps
  std::size_t last = 2;                 ///< record of the runs
  const Words ARGUMENTS = {"-f", "command.json", "-r", "run.h5", "-o", "results.h5", "-l", "3"};
  const std::string reference = dir.file("reference.h5");
  const std::string earlier = dir.file("earlier.h5");
};

TEST_F(FailuresOfRuns, LoseNothingThatWasReported) {
  failEachCall(0);
}

TEST_F(FailuresOfRuns, LeaveEarlierResultsUntilTheFirstRecordIsWhole) {
  last = 1;
  setCommand(R"("start": 0, "end": 0.0625, "out": 0.0625)", R"("water_surface")");
  ASSERT_EQ(simulate().status, 0);
  failEachCall(0);
}

TEST_F(FailuresOfRuns, LoseNothingThatAReRunHasFound) {
  command(0, last);
  ASSERT_EQ(simulate().status, 0);
  failEachCall(1);
}

// -- archive, setup and export --------------------------------------------------------------------

class FailuresOfTools : public Failures {
 protected:
  /// Runs with each call failing, or only the last ones; the files that are made stand there
  /// already, of earlier runs.
  void failEachCall(const std::string& program, const Words& arguments, const Words& products,
                    std::size_t most = std::numeric_limits<std::size_t>::max()) {
    const Words calls = support::callsOf(dir.path(), program, arguments);
    for (const std::string& product : products) {
      std::filesystem::copy_file(dir.file(product), referenceOf(product));
    }
    const std::set<std::filesystem::path> files = filesHere();
    for (const FailingCall& failing :
         failuresOf(calls, calls.size() - std::min(calls.size(), most) + 1)) {
      SCOPED_TRACE(describe(failing, calls));
      for (const std::string& product : products) {
        support::writeFile(dir.file(product), "earlier");
      }
      const Outcome run = support::runWithFailure(dir.path(), program, arguments, failing);
      if (run.status != 0) expectMessage(run);
      for (const std::string& product : products) {
        const bool isKept = support::readFile(dir.file(product)) == "earlier";
        if (run.status != 0 && isKept) continue;
        EXPECT_TRUE(isWhole(product)) << product;
      }
      for (const std::filesystem::path& file : filesHere()) {
        if (files.contains(file)) continue;
        // The next run takes a journal up.
        EXPECT_TRUE(failing.lasts || file.extension() == ".rheomark-journal") << file << " is left";
        std::filesystem::remove(file);
      }
      ASSERT_FALSE(HasFailure()) << run.err;
    }
  }

  std::set<std::filesystem::path> filesHere() const {
    std::set<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(dir.path())) {
      files.insert(entry.path());
    }
    return files;
  }

  std::string referenceOf(const std::string& product) const {
    return dir.file("reference_" + product);
  }
  /// Whether a file is as it is to be, but for the time at which it was made.
  bool isWhole(const std::string& product) const {
    const std::string made = dir.file(product);
    if (made.ends_with(".h5") || made.ends_with(".nc")) {
      Words found = support::differences(referenceOf(product), made);
      std::erase_if(found,
                    [](const std::string& line) { return line.starts_with(".config/history"); });
      return found.empty();
    }
    static const std::regex moment("20[0-9]{2}-[0-9]{2}-[0-9]{2}T[0-9]{2}:[0-9]{2}:[0-9]{2}Z");
    const auto timeless = [](const std::string& text) {
      return std::regex_replace(text, moment, "");
    };
    return timeless(support::readFile(made)) == timeless(support::readFile(referenceOf(product)));
  }
  void exportEach(const Words& options, const Words& products) {
    useSample("one_cell");
    setCommand(R"("start": 0, "end": 0.25, "out": 0.25)", R"("water_depth")");
    ASSERT_EQ(simulate().status, 0);
    Words arguments = {"-r", "results_results.h5"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    failEachCall(EXPORT_EXE, arguments, products);
  }
};

TEST_F(FailuresOfTools, ArchiveLeavesATextAsItWas) {
  useSample("one_cell");
  failEachCall("./simulation", {"-f", "command.json", "-r", "run.h5", "-a", "out.txt"},
               {"out.txt"});
}

TEST_F(FailuresOfTools, SetupLeavesTheRunFileAsItWas) {
  useExample("dam_break");
  failEachCall(SETUP_EXE, {"-f", "study.json"}, {"run.h5"});
}

TEST_F(FailuresOfTools, ExportLeavesMaskedValuesAsTheyWere) {
  exportEach({"-m", "dry.h5"}, {"dry.h5", "dry.xdmf"});
}

TEST_F(FailuresOfTools, ExportLeavesTextsAsTheyWere) {
  exportEach({"-o", "a.xdmf", "--mesh", "a.2dm", "-g", "0.5,0.2"},
             {"a.xdmf", "a.2dm", "gauges.csv"});
}

#ifdef HAVE_GDAL
TEST_F(FailuresOfTools, ExportLeavesARasterAsItWas) {
  exportEach({"--geotiff", "a.tif", "--resolution", "0.5", "--quantity", "water_depth"}, {"a.tif"});
}
#endif

#ifdef HAVE_NETCDF
TEST_F(FailuresOfTools, ExportLeavesNetcdfAsItWas) {
  exportEach({"-u", "a.nc"}, {"a.nc"});
}

TEST_F(FailuresOfTools, ExportEndsWellIfANetcdfFileOfManyPiecesCannotBeClosed) {
  useSample("full_model");
  failEachCall(EXPORT_EXE, {"-r", "expected_results.h5", "-u", "a.nc"}, {"a.nc"}, 16);
}
#endif

}  // namespace
