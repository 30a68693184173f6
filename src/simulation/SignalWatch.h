// Lets users stop a run, or look into it, without losing what it has computed.
//
// The first SIGINT or SIGTERM asks the run to end after the pass that is under way; a second one
// ends the process at once. SIGUSR1 asks for a record of the current state.
#pragma once

#include <csignal>

namespace simulation {

/// Watches as long as it lives; one at a time.
class SignalWatch {
 public:
  SignalWatch();
  ~SignalWatch();
  SignalWatch(const SignalWatch&) = delete;
  SignalWatch& operator=(const SignalWatch&) = delete;
  SignalWatch(SignalWatch&&) = delete;
  SignalWatch& operator=(SignalWatch&&) = delete;

  /// The signal that asked the run to end, or 0.
  static int stopSignal();
  /// Whether a record is wanted; asking takes the wish back.
  static bool takeRecordRequest();

 private:
  struct sigaction interrupt {};
  struct sigaction terminate {};
  struct sigaction user {};
};

}  // namespace simulation
