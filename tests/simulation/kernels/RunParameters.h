// Fixture for kernel tests: parameters start at 0 in each test and are set by name.
//
//   class Friction : public support::Parameters {};
//   TEST_F(Friction, ...) { set(ParameterID::MinWaterDepth, 0.01); ... }
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

#include "simulation/kernels/Parameters.h"

namespace support {

class Parameters : public ::testing::Test {
 protected:
  using ParameterID = model::ParameterID;

  Parameters() {
    std::fill(std::begin(G_REAL), std::end(G_REAL), 0.0);
    std::fill(std::begin(G_INT), std::end(G_INT), 0);
    G_Debug = 0;
  }

  /// What bodies get.
  static kernels::Parameters par() { return kernels::Parameters::ofRun(); }

  static void set(ParameterID id, double value) { G_REAL[static_cast<int>(id)] = value; }
  static void setInt(ParameterID id, int value) { G_INT[static_cast<int>(id)] = value; }
  /// Value `offset` of a parameter with several values.
  static void setInt(ParameterID id, int offset, int value) {
    G_INT[static_cast<int>(id) + offset] = value;
  }
};

}  // namespace support
