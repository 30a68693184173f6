#include "simulation/SignalWatch.h"

namespace simulation {

namespace {

volatile std::sig_atomic_t stopRequest = 0;
volatile std::sig_atomic_t recordRequest = 0;

extern "C" void requestStop(int signal) {
  stopRequest = signal;
  std::signal(SIGINT, SIG_DFL);
  std::signal(SIGTERM, SIG_DFL);
}

extern "C" void requestRecord(int /*signal*/) {
  recordRequest = 1;
}

void watch(int signal, void (*handler)(int), struct sigaction& previous) {
  struct sigaction action {};
  action.sa_handler = handler;
  action.sa_flags = SA_RESTART;  // a write that is under way goes on
  sigemptyset(&action.sa_mask);
  sigaction(signal, &action, &previous);
}

}  // namespace

SignalWatch::SignalWatch() {
  stopRequest = 0;
  recordRequest = 0;
  watch(SIGINT, requestStop, interrupt);
  watch(SIGTERM, requestStop, terminate);
  watch(SIGUSR1, requestRecord, user);
}

SignalWatch::~SignalWatch() {
  sigaction(SIGINT, &interrupt, nullptr);
  sigaction(SIGTERM, &terminate, nullptr);
  sigaction(SIGUSR1, &user, nullptr);
}

int SignalWatch::stopSignal() {
  return stopRequest;
}

bool SignalWatch::takeRecordRequest() {
  const bool requested = recordRequest != 0;
  recordRequest = 0;
  return requested;
}

}  // namespace simulation
