// The frames as functions that anybody can call.
#include "simulation/loops/all_loops.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <type_traits>

#include "op/core/op_seq.h"
#include "simulation/kernels/RunParameters.h"

static_assert(std::is_same_v<decltype(op_par_loop_kernel_MORPHOLOGY_WallFluxes),
                             void(const char*, op_set, op_arg)>);
static_assert(std::is_same_v<decltype(op_par_loop_kernel_HYDRAULICS_TimeStep),
                             void(const char*, op_set, op_arg, op_arg, op_arg, op_arg, op_arg,
                                  op_arg, op_arg, op_arg, op_arg)>);

namespace {

/// Two cells: the first one 0.5 m deep, the second one as deep as a dry cell may be.
class Frames : public support::Parameters {
 protected:
  Frames() {
    ::testing::internal::CaptureStdout();
    op_init(0, nullptr, 0);
    ::testing::internal::GetCapturedStdout();
    set(ParameterID::MinWaterDepth, 0.25);
    cells = op_decl_set(2, "cells");
  }
  ~Frames() override { op_exit(); }
  Frames(const Frames&) = delete;
  Frames& operator=(const Frames&) = delete;
  Frames(Frames&&) = delete;
  Frames& operator=(Frames&&) = delete;

  template <class T, std::size_t N>
  op_arg direct(std::array<T, N>& values, const char* name, op_access access) {
    const int dim = static_cast<int>(N) / 2;
    const char* const type = std::is_same_v<T, int> ? "int" : "double";
    const op_dat dat =
        op_decl_dat_char(cells, dim, type, sizeof(T), reinterpret_cast<char*>(values.data()), name);
    return op_arg_dat(dat, -1, nullptr, dim, type, access);
  }

  op_set cells = nullptr;
  std::array<double, 6> state{1.5, 0.0, 0.0, 1.25, 0.0, 0.0};
  std::array<double, 2> bed{1.0, 1.0};
  std::array<int, 2> wetted{-1, -1};
};

TEST_F(Frames, TakeAnArgumentEachAndRunTheirBodyWithTheParametersOfTheRun) {
  op_par_loop_kernel_HYDRAULICS_InitializeCellFeatures(
      "wet", cells, direct(state, "state", OP_READ), direct(bed, "bed", OP_READ),
      direct(wetted, "wetted", OP_WRITE));
  EXPECT_EQ(wetted, (std::array<int, 2>{1, 0}));
  EXPECT_EQ(OP_kernels[0].name, std::string("wet"));
  EXPECT_EQ(OP_kernels[0].count, 1);
}

TEST_F(Frames, AreFoundByTheirDescription) {
  static_assert(loops::FrameOf<loops::InitCellHydFeatures>::run ==
                op_par_loop_kernel_HYDRAULICS_InitializeCellFeatures);
  EXPECT_EQ(loops::FrameOf<loops::InitCellHydFeatures>::name,
            std::string("kernel_HYDRAULICS_InitializeCellFeatures"));
}

}  // namespace
