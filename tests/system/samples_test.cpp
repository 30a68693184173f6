// Run files that `setup` has not made, and the results of other code of the same formulas: ours
// must agree with them bit for bit. See tests/samples/README.md for what each covers.
//
// A difference of about 1e-16 in the first record that differs is the order of an operation,
// anything larger is a formula.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "support/H5Compare.h"
#include "support/Process.h"
#include "support/TempDir.h"

namespace {

class Samples : public ::testing::TestWithParam<std::string> {};

TEST_P(Samples, GivesTheExpectedResultsBitForBit) {
  const support::TempDir dir;
  support::copySample(GetParam(), dir.path());
  for (const std::string command : {"command.json", "command2.json"}) {
    if (!std::filesystem::exists(dir.file(command))) continue;
    const support::Outcome run = support::runIn(
        dir.path(), SIMULATION_EXE, {"-f", command, "-r", "run.h5", "-o", "results.h5"});
    ASSERT_EQ(run.status, 0) << run.out << run.err;
  }
  for (const std::string& difference :
       support::differences(dir.file("expected_results.h5"), dir.file("results_results.h5"))) {
    ADD_FAILURE() << difference;
  }
}

std::string nameOf(const ::testing::TestParamInfo<std::string>& info) {
  return info.param;
}

INSTANTIATE_TEST_SUITE_P(Hydraulics, Samples,
                         ::testing::Values("lake_islands", "dam_circular", "dam_dry",
                                           "dam_scrambled", "one_cell", "time_out_tenth", "bowl"),
                         nameOf);

INSTANTIATE_TEST_SUITE_P(RiversAndFloods, Samples,
                         ::testing::Values("friction_manning", "friction_sand_shallow",
                                           "bc_100_104", "bc_114_levels", "bc_218_gate",
                                           "interpolation_keys", "rerun_continue", "sink_types"),
                         nameOf);

INSTANTIATE_TEST_SUITE_P(Morphology, Samples,
                         ::testing::Values("mor_grass", "mor_mpm", "mor_curvature_ikeda",
                                           "fixbed_many", "full_model"),
                         nameOf);

}  // namespace
