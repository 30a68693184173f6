#include "op/core/op_seq.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "op/op_test_support.h"

namespace {

using op_test::literally;
using op_test::outputOf;
using op_test::outputToStderr;
using testing::ExitedWithCode;

class OpSeq : public op_test::RuntimeTest {
 protected:
  op_set cells_ = nullptr;
  op_dat dat_ = nullptr;
  std::vector<int> values_{10, 11, 20, 21, 30, 31, 40, 41, 50, 51};

  void SetUp() override {
    RuntimeTest::SetUp();
    cells_ = op_decl_set(5, "cells");
    dat_ = op_decl_dat_char(cells_, 2, "int", 4, reinterpret_cast<char*>(values_.data()), "pairs");
  }
};

TEST_F(OpSeq, FetchesAllValues) {
  std::vector<int> copy(10);
  op_fetch_data_char(dat_, reinterpret_cast<char*>(copy.data()));
  EXPECT_EQ(copy, values_);
}

TEST_F(OpSeq, FetchesNothingFromAnEmptySet) {
  const op_dat none = op_decl_dat_char(op_decl_set(0, "none"), 2, "int", 4, nullptr, "no pairs");
  op_fetch_data_char(none, nullptr);
  SUCCEED();
}

TEST_F(OpSeq, FetchesHighPlusOneElementsFromLowOn) {
  std::vector<int> copy(6);
  op_fetch_data_idx_char(dat_, reinterpret_cast<char*>(copy.data()), 2, 2);
  EXPECT_EQ(copy, (std::vector<int>{30, 31, 40, 41, 50, 51}));
}

TEST_F(OpSeq, RefusesToFetchWhatTheDatDoesNotHold) {
  std::vector<int> copy(20);
  auto* const to = reinterpret_cast<char*>(copy.data());
  const std::string message =
      literally("op_fetch_data: Indices not within range of elements held in pairs\n");
  EXPECT_EXIT((outputToStderr(), op_fetch_data_idx_char(dat_, to, -1, 2)), ExitedWithCode(2),
              message);
  EXPECT_EXIT((outputToStderr(), op_fetch_data_idx_char(dat_, to, 0, 5)), ExitedWithCode(2),
              message);
  EXPECT_EXIT((outputToStderr(), op_fetch_data_idx_char(dat_, to, 3, 2)), ExitedWithCode(2),
              message);
  EXPECT_EXIT((outputToStderr(), op_fetch_data_idx_char(dat_, to, 0, -2)), ExitedWithCode(2),
              message);
}

TEST_F(OpSeq, FetchesNoElementsUpToTheOneBeforeTheFirst) {
  std::vector<int> copy(4, 7);
  for (const int low : {0, 4, 5}) {
    op_fetch_data_idx_char(dat_, reinterpret_cast<char*>(copy.data()), low, -1);
  }
  EXPECT_EQ(copy, std::vector<int>(4, 7));
}

TEST_F(OpSeq, DeclaresValuesOfATypeTheCompilerKnows) {
  std::vector<double> reals(5);
  EXPECT_EQ(op_decl_dat(cells_, 2, "int", values_.data(), "ints")->size, 8);
  EXPECT_EQ(op_decl_dat(cells_, 1, "double:soa", reals.data(), "reals")->size, 8);
}

TEST_F(OpSeq, RefusesATypeThatIsNotTheOneOfTheValues) {
  std::vector<double> reals(5);
  EXPECT_EXIT((outputToStderr(), op_decl_dat(cells_, 1, "int", reals.data(), "reals")),
              ExitedWithCode(2), literally("incorrect type specified for dataset \"reals\" \n"));
  EXPECT_EXIT((outputToStderr(), op_decl_dat(cells_, 1, "integer", values_.data(), "ints")),
              ExitedWithCode(2), literally("incorrect type specified for dataset \"ints\" \n"));
}

TEST_F(OpSeq, TellsSizes) {
  EXPECT_EQ(op_get_size(cells_), 5);
  cells_->exec_size = 2;
  cells_->nonexec_size = 1;
  EXPECT_EQ(op_size_of_set("cells"), 8);
}

TEST_F(OpSeq, RefusesTheSizeOfAnUnknownSet) {
  EXPECT_EXIT((outputToStderr(), op_size_of_set("edges")), ExitedWithCode(255),
              literally("Error: set edges not found\n"));
}

TEST_F(OpSeq, TellsTheSizeBehindAnArgument) {
  op_arg arg = op_arg_dat(dat_, -1, nullptr, 2, "int", OP_READ);
  EXPECT_EQ(getSetSizeFromOpArg(&arg), 5);
  arg.opt = 0;
  EXPECT_EQ(getSetSizeFromOpArg(&arg), 0);
}

TEST_F(OpSeq, PrintsAsTheLibraryDoes) {
  EXPECT_EQ(outputOf([] {
              op_printf("%d of %s", 3, "five");
              op_print("\nline");
            }),
            "3 of five\nline\n");
  EXPECT_EQ(op_is_root(), 1);
}

TEST_F(OpSeq, LeavesConstantsAlone) {
  int value = 7;
  EXPECT_EQ(
      outputOf([&] { op_decl_const_char(1, "int", 4, reinterpret_cast<char*>(&value), "seven"); }),
      "");
  EXPECT_EQ(value, 7);
}

TEST_F(OpSeq, ExchangesNothingAndRunsOverTheWholeSet) {
  op_arg arg = op_arg_dat(dat_, -1, nullptr, 2, "int", OP_RW);
  EXPECT_EQ(op_mpi_halo_exchanges(cells_, 1, &arg), 5);
  EXPECT_EQ(op_mpi_halo_exchanges_cuda(cells_, 1, &arg), 5);
}

TEST_F(OpSeq, ParallelCallsHaveNoEffect) {
  double real = 1.5;
  float small = 2.5F;
  int whole = 3;
  bool flag = true;
  op_arg arg = op_arg_gbl(&real, 1, "double", OP_INC);
  EXPECT_EQ(outputOf([&] {
              op_mpi_wait_all(1, &arg);
              op_mpi_wait_all_cuda(1, &arg);
              op_mpi_set_dirtybit(1, &arg);
              op_mpi_set_dirtybit_cuda(1, &arg);
              op_mpi_reduce_double(&arg, &real);
              op_mpi_reduce_float(&arg, &small);
              op_mpi_reduce_int(&arg, &whole);
              op_mpi_reduce_bool(&arg, &flag);
              op_mpi_reduce_combined(&arg, 1);
              op_mpi_reset_halos(1, &arg);
              op_mpi_barrier();
              op_mpi_perf_time("loop", 1.0);
              op_partition();
              op_partition_reverse();
              op_renumber();
              op_upload_all();
              deviceSync();
            }),
            "");
  EXPECT_EQ(real, 1.5);
  EXPECT_EQ(small, 2.5F);
  EXPECT_EQ(whole, 3);
  EXPECT_TRUE(flag);
}

TEST_F(OpSeq, AbsentFeaturesEndTheProcess) {
  EXPECT_EXIT((outputToStderr(), op_theta_init()), ExitedWithCode(1), "op_theta_init");
  EXPECT_EXIT((outputToStderr(), op_inc_theta()), ExitedWithCode(1), "op_inc_theta");
  EXPECT_EXIT((outputToStderr(), op_import_init_size()), ExitedWithCode(1), "op_import_init_size");
  EXPECT_EXIT((outputToStderr(), op_import_init()), ExitedWithCode(1), "op_import_init");
  EXPECT_EXIT((outputToStderr(), op_import_data()), ExitedWithCode(1), "op_import_data");
  EXPECT_EXIT((outputToStderr(), op_export_init()), ExitedWithCode(1), "op_export_init");
  EXPECT_EXIT((outputToStderr(), op_export_data()), ExitedWithCode(1), "op_export_data");
}

}  // namespace
