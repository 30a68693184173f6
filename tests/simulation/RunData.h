// Data and maps of a run that a test makes up, as the checks of the driver see them.
#pragma once

#include <gtest/gtest.h>

#include <list>
#include <string>
#include <vector>

#include "common/BaseException.h"
#include "op/core/op_seq.h"
#include "simulation/InputChecks.h"

namespace support {

class RunData : public ::testing::Test {
 protected:
  RunData() {
    ::testing::internal::CaptureStdout();
    op_init(0, nullptr, 0);
    ::testing::internal::GetCapturedStdout();
  }
  ~RunData() override { op_exit(); }
  RunData(const RunData&) = delete;
  RunData& operator=(const RunData&) = delete;
  RunData(RunData&&) = delete;
  RunData& operator=(RunData&&) = delete;

  /// Gives the run a datum with `dim` values per element.
  void give(model::DataID id, int dim, const std::vector<int>& content) {
    ints.push_back(content);
    const op_set set = op_decl_set(static_cast<int>(content.size()) / dim, "set");
    dats[id] = op_decl_dat_char(set, dim, "int", sizeof(int),
                                reinterpret_cast<char*>(ints.back().data()), "dat");
  }
  /// The same with doubles.
  std::vector<double>& give(model::DataID id, int dim, const std::vector<double>& content) {
    doubles.push_back(content);
    const op_set set = op_decl_set(static_cast<int>(content.size()) / dim, "set");
    dats[id] = op_decl_dat_char(set, dim, "double", sizeof(double),
                                reinterpret_cast<char*>(doubles.back().data()), "dat");
    return doubles.back();
  }

  /// Gives the run a map into a set of ten elements.
  /// @return its table
  std::vector<int>& giveMap(model::MapID id, int dim, const std::vector<int>& content) {
    ints.push_back(content);
    const op_set from = op_decl_set(static_cast<int>(content.size()) / dim, "from/set");
    const op_set to = op_decl_set(10, "ten/set");
    maps[id] = op_decl_map(from, to, dim, ints.back().data(), "map");
    return ints.back();
  }

  /// What is said on standard error by an action that refuses.
  template <class Action>
  static std::string refusalOf(Action&& action) {
    ::testing::internal::CaptureStderr();
    EXPECT_THROW(action(), BaseException);
    return ::testing::internal::GetCapturedStderr();
  }

  simulation::Dats dats;
  simulation::Maps maps;
  std::list<std::vector<int>> ints;
  std::list<std::vector<double>> doubles;
};

}  // namespace support
