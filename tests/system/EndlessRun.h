// Runs that do not end by themselves, and what they have told so far.
//
//   class Kill : public support::EndlessRun {};
//   TEST_F(Kill, ...) {
//     startEndless();
//     awaitRecords(3);
//     stop(SIGKILL);
#pragma once

#include <sys/wait.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <thread>

#include "system/Simulation.h"

namespace support {

/// How often a test kills runs at random moments: a few times, or RHEOMARK_KILLS times.
inline int killsPerTest() {
  const char* const wish = std::getenv("RHEOMARK_KILLS");
  return wish == nullptr ? 20 : std::atoi(wish);
}

class EndlessRun : public Simulation {
 protected:
  ~EndlessRun() override {
    if (process > 0) {
      ::kill(process, SIGKILL);
      ::waitpid(process, nullptr, 0);
    }
  }

  /// Starts a run that does not end by itself and announces its steps and its records, one in
  /// several steps.
  void startEndless() {
    useSample("time_out_tenth");
    setCommand(R"("start": 0, "end": 1e9, "out": 0.1)", R"("water_surface")");
    process = startSimulation({"-l", "3"});
  }
  /// Waits until so many records have been announced.
  void awaitRecords(std::size_t count) {
    while (announced() < count) {
      if (!isRunning()) throw std::runtime_error(readFile(dir.file("stderr.txt")));
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
  }
  std::size_t announced() const {
    return linesWith(" -> writing output at t = ", readFile(dir.file("stdout.txt"))).size();
  }
  bool isRunning() {
    int status = 0;
    if (::waitpid(process, &status, WNOHANG) == 0) return true;
    process = -1;
    return false;
  }
  Outcome stop(int signal) {
    // A run that has ended has no number any more, and -1 would mean all processes there are.
    if (process <= 0) throw std::runtime_error("the run has ended by itself");
    ::kill(process, signal);
    const pid_t stopped = process;
    process = -1;
    return finish(dir.path(), stopped);
  }

  static std::string record(std::size_t number, const std::string& datum = "HydState") {
    std::string digits = std::to_string(number);
    return "RESULTS/CellsAll/" + datum + "/" + std::string(7 - digits.size(), '0') + digits;
  }
  pid_t process = -1;
};

}  // namespace support
