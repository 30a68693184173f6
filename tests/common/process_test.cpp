#include "common/process.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <new>
#include <stdexcept>

#include "common/console.h"
#include "support/FileSizeLimit.h"
#include "support/TempDir.h"

namespace {

using common::endFailed;
using ::testing::ExitedWithCode;

constexpr const char* KILLED = " -> ... unfortunately RHEOMARK is killed!\n";

TEST(ProcessDeathTest, EndsWithStatusOneAfterWhatIsToldAlready) {
  EXPECT_EXIT(endFailed(BaseException()), ExitedWithCode(1), std::string("^") + KILLED + "$");
}

TEST(ProcessDeathTest, TellsOfAnUnexpectedFailure) {
  EXPECT_EXIT(endFailed(std::out_of_range("map::at")), ExitedWithCode(1),
              std::string("^ -> unhandled exception \\(actually, this should never happen\\)\n") +
                  " -> map::at\n" + KILLED + "$");
}

TEST(ProcessDeathTest, NamesALackOfMemory) {
  EXPECT_EXIT(endFailed(std::bad_alloc()), ExitedWithCode(1), "^ -> there is not enough memory\n");
}

TEST(ProcessDeathTest, RunsNothingElseAtTheEnd) {
  EXPECT_EXIT(
      {
        std::atexit([] { std::cerr << "cleaned up" << std::endl; });
        endFailed(BaseException());
      },
      ExitedWithCode(1), std::string("^") + KILLED + "$");
}

TEST(ProcessDeathTest, ALimitOnTheSizeOfFilesLetsWritesFail) {
  const support::TempDir dir;
  EXPECT_EXIT(
      {
        const support::FileSizeLimit limit(16);
        std::signal(SIGXFSZ, SIG_DFL);
        common::startProcess();
        std::ofstream stream(dir.file("a"));
        stream << std::string(100, 'x');
        stream.close();
        std::_Exit(stream ? 0 : 3);
      },
      ExitedWithCode(3), "");
}

TEST(ProcessDeathTest, EndsWellWithoutCleaningUp) {
  EXPECT_EXIT(
      {
        std::atexit([] { std::cerr << "cleaned up" << std::endl; });
        common::endWell();
      },
      ExitedWithCode(0), "^$");
}

TEST(ProcessDeathTest, StandardOutputThatIsLostIsAFailure) {
  EXPECT_EXIT(
      {
        common::requireStandardOutput();
        std::cout.setstate(std::ios::badbit);
        try {
          common::requireStandardOutput();
        } catch (const BaseException& fault) {
          endFailed(fault);
        }
      },
      ExitedWithCode(1), "^ -> standard output cannot be written: is the disk full\\?\n");
}

}  // namespace
