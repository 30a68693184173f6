// Takes what a kernel body notes, and puts it in the words in which users read it.
//
//   Notices notices;
//   kernels::morphology::source(notices.diagnostics(), ...);
//   EXPECT_EQ(notices.text(), "");
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <string>

#include "simulation/kernels/Diagnostics.h"
#include "simulation/loops/notices.h"

namespace support {

class Notices {
 public:
  /// Of an element: room for one notice.
  kernels::Diagnostics diagnostics(int element = 0) { return {noted.data(), &count, element}; }

  std::string text() const {
    ::testing::internal::CaptureStdout();
    simulation::printNotices(noted.data(), count);
    std::fflush(stdout);
    return ::testing::internal::GetCapturedStdout();
  }

  const kernels::Notice& front() const { return noted[0]; }

 private:
  std::array<kernels::Notice, 1> noted{};
  int count = 0;
};

}  // namespace support
