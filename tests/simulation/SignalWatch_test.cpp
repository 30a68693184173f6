#include "simulation/SignalWatch.h"

#include <gtest/gtest.h>

#include <csignal>

namespace {

using simulation::SignalWatch;

TEST(SignalWatch, IsQuietWithoutSignals) {
  const SignalWatch watch;
  EXPECT_EQ(SignalWatch::stopSignal(), 0);
  EXPECT_FALSE(SignalWatch::takeRecordRequest());
}

TEST(SignalWatch, TellsTheSignalThatAsksToEnd) {
  for (const int signal : {SIGINT, SIGTERM}) {
    const SignalWatch watch;
    std::raise(signal);
    EXPECT_EQ(SignalWatch::stopSignal(), signal);
    EXPECT_EQ(SignalWatch::stopSignal(), signal);
  }
}

TEST(SignalWatch, HandsOutAWishForARecordOnce) {
  const SignalWatch watch;
  std::raise(SIGUSR1);
  std::raise(SIGUSR1);
  EXPECT_TRUE(SignalWatch::takeRecordRequest());
  EXPECT_FALSE(SignalWatch::takeRecordRequest());
  EXPECT_EQ(SignalWatch::stopSignal(), 0);
}

TEST(SignalWatch, ForgetsWhatCameBeforeIt) {
  {
    const SignalWatch watch;
    std::raise(SIGTERM);
    std::raise(SIGUSR1);
  }
  const SignalWatch watch;
  EXPECT_EQ(SignalWatch::stopSignal(), 0);
  EXPECT_FALSE(SignalWatch::takeRecordRequest());
}

// A write to the results file that a signal comes upon goes on by itself.
TEST(SignalWatch, LetsCallsOfTheSystemGoOn) {
  const SignalWatch watch;
  for (const int signal : {SIGINT, SIGTERM, SIGUSR1}) {
    struct sigaction current {};
    ASSERT_EQ(sigaction(signal, nullptr, &current), 0);
    EXPECT_NE(current.sa_flags & SA_RESTART, 0) << signal;
  }
}

TEST(SignalWatch, ASecondSignalEndsTheProcess) {
  EXPECT_EXIT(
      {
        const SignalWatch watch;
        std::raise(SIGINT);
        std::raise(SIGTERM);
      },
      ::testing::KilledBySignal(SIGTERM), "");
}

TEST(SignalWatch, LeavesTheSignalsAsTheyWere) {
  std::signal(SIGUSR1, SIG_IGN);
  { const SignalWatch watch; }
  EXPECT_EQ(std::signal(SIGUSR1, SIG_DFL), SIG_IGN);
}

}  // namespace
