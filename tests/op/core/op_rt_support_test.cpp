#include "op/core/op_rt_support.h"

#include <gtest/gtest.h>

#include <array>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "op/core/op_seq.h"
#include "op/op_test_support.h"

namespace {

using op_test::outputOf;

const char* const TableHead =
    "\n  count   plan time     MPI time(std)        time(std)           GB/s      GB/s   kernel "
    "name "
    "\n -----------------------------------------------------------------------------------------"
    "--\n";

TEST(OpTimers, TellTheSecondsSinceTheEpochAndLeaveTheCpuTimeAlone) {
  double cpu = -1.0;
  double wall = 0.0;
  const auto before = static_cast<double>(std::time(nullptr));
  op_timers(&cpu, &wall);
  EXPECT_GE(wall, before);
  EXPECT_EQ(cpu, -1.0);
  double later = 0.0;
  op_timers_core(&cpu, &later);
  EXPECT_GE(later, wall);
}

class OpTiming : public op_test::RuntimeTest {};

TEST_F(OpTiming, MakesTenRecordsFromTheSlotOn) {
  op_timing_realloc(3);
  EXPECT_EQ(OP_kern_curr, 3);
  ASSERT_EQ(OP_kern_max, 13);
  for (int i = 0; i < 13; ++i) {
    const op_kernel& kernel = OP_kernels[i];
    EXPECT_STREQ(kernel.name, "unused");
    EXPECT_EQ(kernel.count, 0);
    EXPECT_EQ(kernel.time, 0.0);
    ASSERT_EQ(kernel.ntimes, 1);
    EXPECT_EQ(kernel.times[0], 0.0);
    EXPECT_EQ(kernel.plan_time + kernel.transfer + kernel.transfer2, 0.0F);
    EXPECT_EQ(kernel.mpi_time, 0.0);
  }
}

TEST_F(OpTiming, KeepsTheRecordsThatExist) {
  op_timing_realloc(0);
  OP_kernels[0].count = 5;
  op_timing_realloc(9);
  EXPECT_EQ(OP_kern_max, 10);
  EXPECT_EQ(OP_kern_curr, 9);
  op_timing_realloc(10);
  EXPECT_EQ(OP_kern_max, 20);
  EXPECT_EQ(OP_kernels[0].count, 5);
  EXPECT_EQ(OP_kernels[19].count, 0);
}

TEST_F(OpTiming, MakesATimeForEachThread) {
  op_timing_realloc_manytime(0, 4);
  ASSERT_EQ(OP_kernels[9].ntimes, 4);
  for (int i = 0; i < 4; ++i) EXPECT_EQ(OP_kernels[9].times[i], 0.0);
}

TEST_F(OpTiming, PrintsNothingWithoutLoops) {
  EXPECT_EQ(outputOf(op_timing_output), "");
}

TEST_F(OpTiming, PrintsNoLineForAnUnusedSlot) {
  op_timing_realloc(2);
  EXPECT_EQ(outputOf(op_timing_output), TableHead);
}

TEST_F(OpTiming, PrintsTheTimeOfTheWholeLoop) {
  op_timing_realloc(1);
  OP_kernels[1].name = "loop";
  OP_kernels[1].count = 12;
  OP_kernels[1].time = 2.0;
  OP_kernels[1].transfer = 3e9F;
  EXPECT_EQ(outputOf(op_timing_output),
            std::string(TableHead) +
                "     12;    0.0000;    0.0000(  0.0000);    2.0000(  0.0000);    1.5000;         ;"
                "   loop \n");
  EXPECT_EQ(OP_kernels[1].times[0], 2.0);
}

TEST_F(OpTiming, PrintsBothBandwidths) {
  op_timing_realloc(0);
  OP_kernels[0].name = "loop";
  OP_kernels[0].count = 1;
  OP_kernels[0].time = 2.0;
  OP_kernels[0].transfer = 3e9F;
  OP_kernels[0].transfer2 = 5e9F;
  EXPECT_EQ(outputOf(op_timing_output),
            std::string(TableHead) +
                "      1;    0.0000;    0.0000(  0.0000);    2.0000(  0.0000);   1.5000;   2.5000;"
                "   loop \n");
}

TEST_F(OpTiming, PrintsMeanAndDeviationOfTheThreads) {
  op_timing_realloc_manytime(0, 3);
  OP_kernels[0].name = "loop";
  OP_kernels[0].count = 1;
  OP_kernels[0].times[0] = 1.0;
  OP_kernels[0].times[2] = 3.0;
  OP_kernels[0].transfer = 3e9F;
  EXPECT_EQ(outputOf(op_timing_output),
            std::string(TableHead) +
                "      1;    0.0000;    0.0000(  0.0000);    2.0000(  1.0000);    1.0000;         ;"
                "   loop \n");
}

TEST_F(OpTiming, FloorsTheBandwidthAtZero) {
  op_timing_realloc(0);
  OP_kernels[0].name = "loop";
  OP_kernels[0].count = 1;
  OP_kernels[0].time = 1e-9;
  OP_kernels[0].mpi_time = 2.0;
  OP_kernels[0].transfer = 3e9F;
  EXPECT_EQ(outputOf(op_timing_output),
            std::string(TableHead) +
                "      1;    0.0000;    2.0000(  0.0000);    0.0000(  0.0000);    0.0000;         ;"
                "   loop \n");
}

class OpTimingFile : public op_test::FileTest {
 protected:
  static op_kernel& loop(int slot, int threads = 1) {
    op_timing_realloc_manytime(slot, threads);
    OP_kernels[slot].name = "loop";
    OP_kernels[slot].count = 12;
    OP_kernels[slot].transfer = 3e9F;
    return OP_kernels[slot];
  }
  std::string report() const {
    op_timing_output_2_file(path("report").c_str());
    return contents();
  }
  std::string values() const {
    op_timings_to_csv(path("report").c_str());
    return contents();
  }
  std::string contents() const {
    std::ifstream file(path("report"));
    return {std::istreambuf_iterator<char>(file), {}};
  }
};

const char* const ReportHead =
    "\n  count     time     GB/s     GB/s   kernel name "
    "\n ----------------------------------------------- \n";

const char* const ValuesHead =
    "rank,thread,nranks,nthreads,count,total time,plan time,mpi time,GB used,GB total,kernel "
    "name\n";

TEST_F(OpTimingFile, ReportIsEmptyWithoutLoops) {
  EXPECT_EQ(report(), "");
  EXPECT_TRUE(std::filesystem::exists(path("report")));
}

TEST_F(OpTimingFile, ReportListsTheLongestTimeOfEachLoop) {
  loop(1, 2).times[1] = 2.0;
  loop(3, 2).times[0] = 0.5;
  OP_kernels[3].transfer2 = 5e9F;
  EXPECT_EQ(report(), std::string(ReportHead) +
                          "     12    2.0000   1.5000            loop \n"
                          "     12    0.5000   6.0000  10.0000   loop \n"
                          "Total kernel time = 2.500000\n");
}

TEST_F(OpTimingFile, ReportTakesTheTimesAsTheyAre) {
  loop(0).time = 2.0;
  EXPECT_EQ(report(), std::string(ReportHead) +
                          "     12    0.0000      inf            loop \n"
                          "Total kernel time = 0.000000\n");
  outputOf(op_timing_output);
  EXPECT_EQ(report(), std::string(ReportHead) +
                          "     12    2.0000   1.5000            loop \n"
                          "Total kernel time = 2.000000\n");
}

TEST_F(OpTimingFile, ReportEndsTheProcessIfItCannotBeWritten) {
  loop(0);
  const std::string nowhere = path("nowhere") + "/report";
  for (const std::string& file : {nowhere, std::string("/dev/full")}) {
    EXPECT_EXIT((op_test::outputToStderr(), op_timing_output_2_file(file.c_str())),
                testing::ExitedWithCode(1), "^Bad output file$");
  }
}

TEST_F(OpTimingFile, ValuesHaveALineForEachThread) {
  op_kernel& kernel = loop(0, 3);
  kernel.times[0] = 1.0;
  kernel.times[2] = 2.0;
  kernel.plan_time = 0.5F;
  kernel.mpi_time = 0.25;
  kernel.transfer2 = 5e9F;
  EXPECT_EQ(values(), std::string(ValuesHead) +
                          "0,0,1,3,12,1.000000,0.500000,0.250000,3.000000,5.000000,loop\n"
                          "0,2,1,3,12,2.000000,0.500000,0.250000,3.000000,5.000000,loop\n");
}

TEST_F(OpTimingFile, ValuesTakeTheTimeOfTheWholeLoop) {
  loop(0).time = 2.0;
  EXPECT_EQ(values(), std::string(ValuesHead) +
                          "0,0,1,1,12,2.000000,0.000000,0.000000,3.000000,0.000000,loop\n");
}

TEST_F(OpTimingFile, ValuesLeaveOutLoopsWithoutTime) {
  loop(2);
  EXPECT_EQ(values(), ValuesHead);
}

TEST_F(OpTimingFile, ValuesThatCannotBeWrittenAreReported) {
  const std::string nowhere = path("nowhere") + "/report";
  EXPECT_EQ(outputOf([&] { op_timings_to_csv(nowhere.c_str()); }),
            "ERROR: Failed to open file for writing: '" + nowhere + "'\n");
  EXPECT_EQ(outputOf([] { op_timings_to_csv("/dev/full"); }),
            "ERROR: Failed to write file: '/dev/full'\n");
}

TEST(OpComputeMoment, IsTheValueAndItsSquare) {
  double first = 0.0;
  double second = 0.0;
  op_compute_moment(3.0, &first, &second);
  EXPECT_EQ(first, 3.0);
  EXPECT_EQ(second, 9.0);
}

TEST(OpComputeMomentAcrossTimes, CountsZerosOrLeavesThemOut) {
  const std::array<double, 4> values{0.0, 2.0, 4.0, 0.0};
  double first = 0.0;
  double second = 0.0;
  op_compute_moment_across_times(values.data(), 4, false, &first, &second);
  EXPECT_EQ(first, 1.5);
  EXPECT_EQ(second, 5.0);
  op_compute_moment_across_times(values.data(), 4, true, &first, &second);
  EXPECT_EQ(first, 3.0);
  EXPECT_EQ(second, 10.0);
}

TEST(OpComputeMomentAcrossTimes, IsZeroIfAllValuesAre) {
  const std::array<double, 2> values{0.0, 0.0};
  double first = 1.0;
  double second = 1.0;
  op_compute_moment_across_times(values.data(), 2, true, &first, &second);
  EXPECT_EQ(first, 0.0);
  EXPECT_EQ(second, 0.0);
}

class OpDiagnosticOutput : public op_test::RuntimeTest {};

TEST_F(OpDiagnosticOutput, IsSilentBelowLevelTwo) {
  op_decl_set(3, "cells");
  OP_diags = 1;
  EXPECT_EQ(outputOf(op_diagnostic_output), "");
}

TEST_F(OpDiagnosticOutput, PrintsThreeTables) {
  std::vector<int> table{0, 1, 1, 2};
  const op_set edges = op_decl_set(2, "edges");
  const op_set cells = op_decl_set(3, "cells");
  op_decl_map(edges, cells, 2, table.data(), "neighbour");
  op_decl_dat_temp_char(cells, 1, "double", 8, "bed");
  op_decl_dat_temp_char(edges, 2, "double", 8, "a longer name");
  OP_diags = 2;
  EXPECT_EQ(outputOf(op_diagnostic_output),
            "\n  OP diagnostic output\n"
            "  --------------------\n"
            "\n       set       size\n"
            "  -------------------\n"
            "     edges          2\n"
            "     cells          3\n"
            "\n       map        dim       from         to\n"
            "  -----------------------------------------\n"
            " neighbour          2      edges      cells\n"
            "\n       dat        dim        set\n"
            "  ------------------------------\n"
            "       bed          1      cells\n"
            "a longer name          2      edges\n"
            "\n");
}

}  // namespace
