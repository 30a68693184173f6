// A driver whose kernels are those of a test, over a copy of a sample: the loop without numerics.
//
//   TEST_F(TimeLoop, ...) {
//     setTimes(R"("start": 0, "end": 1, "out": 0.5)");
//     driver().allowSteps(0.25);
//     run();
//     EXPECT_EQ(driver().time(), 1.0);
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "simulation/RHEOcommon_op.h"
#include "support/Process.h"
#include "support/TempDir.h"

namespace support {

class Driver : public simulation::RHEOcommon {
 public:
  using Kernel = model::KernelID;
  struct Call {
    Kernel kernel;
    double time;
    bool operator==(const Call&) const = default;
  };

  using RHEOcommon::RHEOcommon;

  /// Makes `action` the work of a kernel; each call of it is noted.
  void on(Kernel kernel, std::function<void()> action) {
    kernels[kernel] = [this, kernel, action = std::move(action)] {
      calls.push_back({kernel, currentTime});
      action();
    };
  }
  /// Lets the time step kernel allow at most `longest` seconds.
  void allowSteps(double longest) {
    on(Kernel::TimeStepCalculation, [this, longest] {
      if (longest < timeStep) timeStep = longest;
    });
  }
  void setStep(double seconds) { timeStep = seconds; }
  void replaceModel(std::unique_ptr<api::IModel> other) { model = std::move(other); }

  double time() const { return currentTime; }
  int records() const { return outputCounter; }

  std::vector<Call> calls;
};

/// Runs a driver over a sample; see `run` for what it returns.
class Driven : public ::testing::Test {
 protected:
  using Kernel = Driver::Kernel;

  explicit Driven(const std::string& sample = "one_cell") {
    // As in the executable: results are looked at while the driver has them open.
    ::setenv("HDF5_USE_FILE_LOCKING", "FALSE", 1);
    copySample(sample, dir.path());
  }

  /// The TIME object of the command file, as R"("start": 0, "end": 1, "out": 0.5)".
  void setTimes(const std::string& times, const std::string& timeStep = "") {
    writeFile(commandFile, R"({"SIMULATION": {"TIME": {)" + times + "}" +
                               (timeStep.empty() ? "" : R"(, "TIMESTEP": {)" + timeStep + "}") +
                               R"(, "OUTPUT": []}})");
  }

  /// Makes the driver anew from the command file, as at the start of the process.
  Driver& driver() {
    if (!current) {
      ::testing::internal::CaptureStdout();
      current = std::make_unique<Driver>(commandFile, runFile);
      ::testing::internal::GetCapturedStdout();
    }
    return *current;
  }
  void dropDriver() { current.reset(); }

  /// Initialises the driver and runs it.
  /// @return what both printed on standard output
  std::string run(int logLevel = 0, bool progress = false) {
    Driver& domain = driver();
    ::testing::internal::CaptureStdout();
    try {
      domain.init(logLevel, progress, false, outputOption);
      domain.run();
    } catch (...) {
      ::testing::internal::GetCapturedStdout();
      throw;
    }
    std::fflush(stdout);
    return ::testing::internal::GetCapturedStdout();
  }

  TempDir dir;
  std::string commandFile = dir.file("command.json");
  std::string runFile = dir.file("run.h5");
  std::string outputOption = dir.file("out.h5");
  std::string resultFile = dir.file("out_results.h5");

 private:
  std::unique_ptr<Driver> current;
};

}  // namespace support
