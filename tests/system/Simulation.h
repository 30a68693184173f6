// Runs of the executable over a copy of a sample, which a test may damage before.
//
//   class BadInput : public support::Simulation {};
//   TEST_F(BadInput, ...) {
//     useSample("one_cell");
//     removeLink(runFile, "CellsAll/set");
//     EXPECT_EQ(simulate().status, 2);
//   }
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/H5Compare.h"
#include "support/Process.h"
#include "support/TempDir.h"

namespace support {

/// The banner, of five lines.
extern const char* const HEADER;
/// The closing lines of a regular end.
extern const char* const FOOTER;

/// Replaces what depends on the machine: times, rates and the numbers of the timing table behind
/// the counts become "#".
std::string masked(const std::string& output);

/// A report without what the HDF5 library prints by itself, which differs between its versions.
std::string ownLines(const std::string& report);

/// The number of calls in the timing table of an output, 0 if the kernel is not listed.
int callsOf(const std::string& kernel, const std::string& output);

/// The lines of a text that contain `part`.
std::vector<std::string> linesWith(const std::string& part, const std::string& text);

/// Replaces a dataset by one of another shape, filled with `value`; a row for each value of
/// `shape[0]`.
void replace(const std::string& file, const std::string& path, const std::vector<int>& shape,
             double value);
/// The same with ints.
void replaceInts(const std::string& file, const std::string& path, const std::vector<int>& shape,
                 int value);
/// Replaces a dataset by one text.
void replaceText(const std::string& file, const std::string& path, const std::string& value);
/// Puts an empty group in the place of a dataset.
void replaceByGroup(const std::string& file, const std::string& path);
/// The text of a dataset that holds one.
std::string readText(const std::string& file, const std::string& path);

class Simulation : public ::testing::Test {
 protected:
  /// Makes the working folder a copy of a sample, with the executable as `simulation` in it, so
  /// that no path of the machine shows in its output.
  void useSample(const std::string& name);

  /// The same for an example, which has no run file yet.
  void useExample(const std::string& name);
  /// Replaces a text of the study in the working folder, which must hold it.
  void changeStudy(const std::string& text, const std::string& by);
  /// Makes the run file of the study in the working folder.
  void makeRunFile();

  /// Writes a command file. The first argument is the content of TIME, as
  /// R"("start": 0, "end": 1, "out": 0.5)".
  void setCommand(const std::string& time, const std::string& outputs = "",
                  const std::string& timeStep = "");

  /// Runs the sample, with more options if there are any.
  Outcome simulate(const std::vector<std::string>& options = {});
  /// Runs the executable with just these arguments.
  Outcome program(const std::vector<std::string>& arguments);
  /// Starts the sample; end it with finish().
  pid_t startSimulation(const std::vector<std::string>& options = {});
  /// Runs the sample from a shell, behind a command that sets limits or the environment.
  Outcome simulateBehind(const std::string& shellCommand);

  TempDir dir;
  std::string commandFile = dir.file("command.json");
  std::string runFile = dir.file("run.h5");
  std::string resultFile = dir.file("results_results.h5");
};

}  // namespace support
