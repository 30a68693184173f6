#include "op/core/op_lib_core.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <cstdlib>
#include <string>
#include <vector>

#include "op/core/op_seq.h"
#include "op/op_test_support.h"

namespace {

using op_test::literally;
using op_test::outputOf;
using op_test::outputToStderr;
using testing::ExitedWithCode;
using testing::HasSubstr;

constexpr auto DeclarationError = 255;  // what the shell sees of status -1

class OpInit : public testing::Test {
 protected:
  void SetUp() override {
    op_test::resetSettings();
    unsetenv("OP_HYBRID_BALANCE");
    unsetenv("OP_AUTO_SOA");
  }
  void TearDown() override {
    unsetenv("OP_HYBRID_BALANCE");
    unsetenv("OP_AUTO_SOA");
    op_exit();
    op_test::resetSettings();
  }
};

TEST_F(OpInit, GreetsAndStoresTheDiagnosticLevel) {
  EXPECT_EQ(outputOf([] { op_init(0, nullptr, 3); }), "\n Initializing SKEILID\n");
  EXPECT_EQ(OP_diags, 3);
  EXPECT_EQ(OP_dat_list.first, nullptr);
}

TEST_F(OpInit, TakesTheHybridBalanceOfTheEnvironment) {
  setenv("OP_HYBRID_BALANCE", "0.25", 1);
  EXPECT_EQ(outputOf([] { op_init(0, nullptr, 0); }),
            "\n Initializing SKEILID\n\n OP_hybrid_balance  = 0.25 \n");
  EXPECT_EQ(OP_hybrid_balance, 0.25);
}

TEST_F(OpInit, TakesTheStorageOrderOfTheEnvironment) {
  setenv("OP_AUTO_SOA", "", 1);
  EXPECT_EQ(outputOf([] { op_init(0, nullptr, 0); }),
            "\n Initializing SKEILID\n\n Enabling Automatic AoS->SoA Conversion\n");
  EXPECT_EQ(OP_auto_soa, 1);
}

TEST_F(OpInit, TakesTheStorageOrderOfTheCaller) {
  EXPECT_THAT(outputOf([] { op_init_soa(0, nullptr, 0, 1); }), HasSubstr("AoS->SoA"));
  EXPECT_EQ(OP_auto_soa, 1);
  EXPECT_EQ(outputOf([] { op_mpi_init_soa(0, nullptr, 0, 0); }), "\n Initializing SKEILID\n");
  EXPECT_EQ(OP_auto_soa, 0);
}

TEST_F(OpInit, NamesAnotherBaseIndex) {
  set_maps_base(1);
  EXPECT_EQ(outputOf([] { op_mpi_init(0, nullptr, 0); }),
            "\n Initializing SKEILID\n\n Application written using Fortran API:     \n Default "
            "OP_maps_base_index = 1 assumed\n");
}

TEST_F(OpInit, ScansTheArgumentsBehindTheFirst) {
  std::string program = "OP_PART_SIZE=1";
  std::string setting = "OP_BLOCK_SIZE=256";
  std::array<char*, 2> argv{program.data(), setting.data()};
  EXPECT_EQ(outputOf([&] { op_init(2, argv.data(), 0); }),
            "\n Initializing SKEILID\n\n OP_block_size = 256 \n");
  EXPECT_EQ(OP_block_size, 256);
  EXPECT_EQ(OP_part_size, 0);
}

TEST_F(OpInit, KeepsAValidBaseIndexOnly) {
  set_maps_base(1);
  set_maps_base(2);
  EXPECT_EQ(OP_maps_base_index, 1);
  set_maps_base(-1);
  EXPECT_EQ(OP_maps_base_index, 1);
  set_maps_base(0);
  EXPECT_EQ(OP_maps_base_index, 0);
}

class OpSetArgs : public op_test::RuntimeTest {
 protected:
  static std::string scan(const char* argument) {
    return outputOf([=] { op_set_args(2, argument); });
  }
};

TEST_F(OpSetArgs, TakesEachKey) {
  EXPECT_EQ(scan("OP_BLOCK_SIZE=32"), "\n OP_block_size = 32 \n");
  EXPECT_EQ(OP_block_size, 32);
  EXPECT_EQ(scan("OP_PART_SIZE=16"), "\n OP_part_size = 16 \n");
  EXPECT_EQ(OP_part_size, 16);
  EXPECT_EQ(scan("OP_CACHE_LINE_SIZE=64"), "\n OP_cache_line_size  = 64 \n");
  EXPECT_EQ(OP_cache_line_size, 64);
  EXPECT_EQ(scan("-gpudirect"), "\n Enabling GPU Direct\n");
  EXPECT_EQ(OP_gpu_direct, 1);
  EXPECT_EQ(scan("OP_AUTO_SOA"), "\n Enabling Automatic AoS->SoA Conversion\n");
  EXPECT_EQ(OP_auto_soa, 1);
  EXPECT_EQ(scan("OP_HYBRID_BALANCE=0.5"), "\n OP_hybrid_balance  = 0.5 \n");
  EXPECT_EQ(OP_hybrid_balance, 0.5);
}

TEST_F(OpSetArgs, FindsKeysAnywhereInTheArgument) {
  EXPECT_EQ(scan("x OP_PART_SIZE=16 OP_BLOCK_SIZE=32"),
            "\n OP_block_size = 32 \n\n OP_part_size = 16 \n");
}

TEST_F(OpSetArgs, TakesALimitedNumberOfCharacters) {
  scan("OP_BLOCK_SIZE=1234567");
  EXPECT_EQ(OP_block_size, 123456);
  scan("OP_CACHE_LINE_SIZE=1234567");
  EXPECT_EQ(OP_cache_line_size, 123456);
}

TEST_F(OpSetArgs, IgnoresWhatItDoesNotKnow) {
  EXPECT_EQ(scan("OP_BLOCK_SIZE"), "");
}

TEST_F(OpSetArgs, ReportsANewBaseIndex) {
  EXPECT_EQ(scan("OP_MAPS_BASE_INDEX=1"),
            "\n OP_maps_base_index  = 1 (Default value 0 overridden)\n");
  EXPECT_EQ(scan("OP_MAPS_BASE_INDEX=1"), "");
  EXPECT_EQ(OP_maps_base_index, 1);
}

TEST_F(OpSetArgs, StoresAnUnsupportedBaseIndexWithAWarning) {
  EXPECT_EQ(
      scan("OP_MAPS_BASE_INDEX=2"),
      "\n Unsupported OP_maps_base_index : 2 --       reverting to C/C++ style (i.e. 0 besed) "
      "indexing \n");
  EXPECT_EQ(OP_maps_base_index, 2);
}

class OpDeclSet : public op_test::RuntimeTest {};

TEST_F(OpDeclSet, FillsTheRecord) {
  std::string name = "cells";
  const op_set set = op_decl_set(7, name.c_str());
  name = "other";
  EXPECT_EQ(set->index, 0);
  EXPECT_EQ(set->size, 7);
  EXPECT_STREQ(set->name, "cells");
  EXPECT_EQ(set->core_size, 7);
  EXPECT_EQ(set->exec_size, 0);
  EXPECT_EQ(set->nonexec_size, 0);
}

TEST_F(OpDeclSet, AcceptsAnEmptySet) {
  EXPECT_EQ(op_decl_set(0, "none")->size, 0);
  EXPECT_EQ(OP_set_index, 1);
}

TEST_F(OpDeclSet, StoresTheEleventhSetInAGrownList) {
  for (int i = 0; i < 10; ++i) op_decl_set(i, "set");
  EXPECT_EQ(OP_set_max, 10);
  const op_set set = op_decl_set(10, "eleventh");
  EXPECT_EQ(OP_set_max, 20);
  EXPECT_EQ(OP_set_index, 11);
  EXPECT_EQ(OP_set_list[10], set);
  EXPECT_EQ(OP_set_list[9]->size, 9);
}

TEST_F(OpDeclSet, RefusesANegativeSize) {
  EXPECT_EXIT((outputToStderr(), op_decl_set(-1, "cells")), ExitedWithCode(DeclarationError),
              literally(" op_decl_set error -- negative/zero size for set: cells\n"));
}

class OpDeclMap : public op_test::RuntimeTest {
 protected:
  op_set edges_ = nullptr;
  op_set cells_ = nullptr;
  std::vector<int> table_{0, 1, 1, 2, 2, 0};

  void SetUp() override {
    RuntimeTest::SetUp();
    edges_ = op_decl_set(3, "edges");
    cells_ = op_decl_set(3, "cells");
  }
};

TEST_F(OpDeclMap, FillsTheRecord) {
  const op_map map = op_decl_map(edges_, cells_, 2, table_.data(), "edges/cells");
  EXPECT_EQ(map->index, 0);
  EXPECT_EQ(map->from, edges_);
  EXPECT_EQ(map->to, cells_);
  EXPECT_EQ(map->dim, 2);
  EXPECT_EQ(map->map, table_.data());
  EXPECT_EQ(map->map_d, nullptr);
  EXPECT_STREQ(map->name, "edges/cells");
  EXPECT_EQ(map->user_managed, 1);
}

TEST_F(OpDeclMap, GrowsTheList) {
  for (int i = 0; i < 11; ++i) op_decl_map(edges_, cells_, 2, table_.data(), "map");
  EXPECT_EQ(OP_map_max, 20);
  EXPECT_EQ(OP_map_list[10]->index, 10);
}

TEST_F(OpDeclMap, CountsFromZeroUnderBaseIndexOne) {
  set_maps_base(1);
  std::vector<int> table{1, 2, 2, 3, 3, 1};
  op_decl_map(edges_, cells_, 2, table.data(), "map");
  EXPECT_EQ(table, table_);
}

TEST_F(OpDeclMap, RefusesAMissingSourceFirst) {
  EXPECT_EXIT((outputToStderr(), op_decl_map(nullptr, nullptr, 0, nullptr, "map")),
              ExitedWithCode(DeclarationError),
              literally(" op_decl_map error -- invalid 'from' set for map map\n"));
}

TEST_F(OpDeclMap, RefusesAMissingTarget) {
  EXPECT_EXIT((outputToStderr(), op_decl_map(edges_, nullptr, 0, nullptr, "map")),
              ExitedWithCode(DeclarationError),
              "^op_decl_map error -- invalid 'to' set for map map\n");
}

TEST_F(OpDeclMap, RefusesADimBelowOne) {
  EXPECT_EXIT((outputToStderr(), op_decl_map(edges_, cells_, 0, nullptr, "map")),
              ExitedWithCode(DeclarationError),
              "^op_decl_map error -- negative/zero dimension for map map\n");
}

TEST_F(OpDeclMap, CheckMapPassesAValidTable) {
  check_map("map", edges_, cells_, 2, table_.data());
  SUCCEED();
}

TEST_F(OpDeclMap, CheckMapStopsAtTheFirstEntryOutOfRange) {
  table_[3] = 3;
  table_[4] = -1;
  EXPECT_EXIT((outputToStderr(), check_map("map", edges_, cells_, 2, table_.data())),
              ExitedWithCode(DeclarationError),
              "^op_decl_map error -- invalid data for map map\n"
              "element = 1, dimension = 1, map = 3\n$");
}

TEST_F(OpDeclMap, CheckMapEntryLooksAtThatEntryOnly) {
  table_ = {0, -7, 3, 2, 99, 0};
  const op_map map = op_decl_map(edges_, cells_, 2, table_.data(), "map");
  EXPECT_EQ(outputOf([=] { op_check_map_entry(map, 0, 0); }), "");
  EXPECT_EQ(outputOf([=] { op_check_map_entry(map, 1, 1); }), "");
  EXPECT_EQ(outputOf([=] { op_check_map_entry(map, 2, 1); }), "");
}

TEST_F(OpDeclMap, CheckMapEntryNamesTheEntry) {
  table_[4] = -1;
  table_[5] = 3;
  const op_map map = op_decl_map(edges_, cells_, 2, table_.data(), "map");
  EXPECT_EXIT((outputToStderr(), op_check_map_entry(map, 2, 0)), ExitedWithCode(2),
              literally("map map: row 2, column 0 holds -1, which is not in the range 0 to 2 of "
                        "set cells\n"));
  EXPECT_EXIT((outputToStderr(), op_check_map_entry(map, 2, 1)), ExitedWithCode(2),
              literally("map map: row 2, column 1 holds 3, which is not in the range 0 to 2 of "
                        "set cells\n"));
}

TEST_F(OpDeclMap, CheckMapEntryTellsOfAnEmptyTarget) {
  const op_map map = op_decl_map(edges_, op_decl_set(0, "none"), 2, table_.data(), "map");
  EXPECT_EXIT((outputToStderr(), op_check_map_entry(map, 0, 0)), ExitedWithCode(2),
              "row 0, column 0 holds 0, but the set none has no elements");
}

TEST_F(OpDeclMap, CheckMapEntryCountsAsTheCallerDoes) {
  set_maps_base(1);
  table_ = {1, 2, 2, 3, INT_MIN, 1};
  const op_map map = op_decl_map(edges_, cells_, 2, table_.data(), "map");
  EXPECT_EQ(outputOf([=] { op_check_map_entry(map, 1, 1); }), "");
  EXPECT_EXIT((outputToStderr(), op_check_map_entry(map, 2, 0)), ExitedWithCode(2),
              "row 2, column 0 holds .* not in the range 1 to 3 of set cells");
}

class OpDeclDat : public op_test::RuntimeTest {
 protected:
  op_set cells_ = nullptr;
  std::vector<double> values_{1, 2, 3, 4, 5, 6};

  void SetUp() override {
    RuntimeTest::SetUp();
    cells_ = op_decl_set(3, "cells");
  }
  char* data() { return reinterpret_cast<char*>(values_.data()); }
};

TEST_F(OpDeclDat, FillsTheRecord) {
  const op_dat dat = op_decl_dat_char(cells_, 2, "double", 8, data(), "flow");
  EXPECT_EQ(dat->index, 0);
  EXPECT_EQ(dat->set, cells_);
  EXPECT_EQ(dat->dim, 2);
  EXPECT_EQ(dat->size, 16);
  EXPECT_EQ(dat->data, data());
  EXPECT_EQ(dat->data_d, nullptr);
  EXPECT_STREQ(dat->type, "double");
  EXPECT_STREQ(dat->name, "flow");
  EXPECT_EQ(dat->buffer_d, nullptr);
  EXPECT_EQ(dat->buffer_d_r, nullptr);
  EXPECT_EQ(dat->dirty_hd, 0);
  EXPECT_EQ(dat->user_managed, 1);
  EXPECT_EQ(dat->mpi_buffer, nullptr);
}

TEST_F(OpDeclDat, KeepsTheOrderOfDeclaration) {
  const op_dat first = op_decl_dat_char(cells_, 2, "double", 8, data(), "a");
  const op_dat second = op_decl_dat_char(cells_, 2, "double", 8, data(), "b");
  ASSERT_NE(OP_dat_list.first, nullptr);
  EXPECT_EQ(OP_dat_list.first->dat, first);
  EXPECT_EQ(OP_dat_list.first->next->dat, second);
  EXPECT_EQ(OP_dat_list.first->next->prev, &OP_dat_list.first->next);
  EXPECT_EQ(OP_dat_list.last, &OP_dat_list.first->next->next);
  EXPECT_EQ(second->index, 1);
}

TEST_F(OpDeclDat, RefusesAMissingSet) {
  EXPECT_EXIT((outputToStderr(), op_decl_dat_char(nullptr, 2, "double", 8, data(), "flow")),
              ExitedWithCode(DeclarationError),
              literally("op_decl_dat error -- invalid set for data: flow\n"));
}

TEST_F(OpDeclDat, RefusesADimBelowOne) {
  EXPECT_EXIT((outputToStderr(), op_decl_dat_char(cells_, 0, "double", 8, data(), "flow")),
              ExitedWithCode(DeclarationError),
              literally("op_decl_dat error -- negative/zero dimension for data: flow\n"));
}

TEST_F(OpDeclDat, RefusesElementsOfTooManyBytes) {
  EXPECT_EXIT((outputToStderr(), op_decl_dat_char(cells_, INT_MAX, "double", 8, data(), "flow")),
              ExitedWithCode(DeclarationError), "too many for one element: flow");
}

TEST_F(OpDeclDat, TemporaryStorageIsZeroAndTheRuntimes) {
  const op_dat dat = op_decl_dat_temp_char(cells_, 2, "double", 8, "temp");
  EXPECT_EQ(dat->user_managed, 0);
  EXPECT_EQ(std::vector<char>(dat->data, dat->data + 48), std::vector<char>(48, 0));
}

TEST_F(OpDeclDat, TemporaryStorageOfAnEmptySetIsNull) {
  const op_dat dat = op_decl_dat_temp_char(op_decl_set(0, "none"), 2, "double", 8, "temp");
  EXPECT_EQ(dat->set->size, 0);
}

TEST_F(OpDeclDat, RefusesATemporaryThatExists) {
  op_decl_dat_temp_char(cells_, 2, "double", 8, "temp");
  EXPECT_EXIT((outputToStderr(), op_decl_dat_temp_char(cells_, 2, "double", 8, "temp")),
              ExitedWithCode(2),
              literally("op_dat with name temp already exists, cannot create temporary op_dat\n "));
}

TEST_F(OpDeclDat, AcceptsATemporaryThatDiffers) {
  const op_set other = op_decl_set(3, "cells");
  op_decl_dat_temp_char(cells_, 2, "double", 8, "temp");
  op_decl_dat_temp_char(cells_, 1, "double", 8, "temp");
  op_decl_dat_temp_char(cells_, 2, "double", 4, "temp");
  op_decl_dat_temp_char(cells_, 2, "float", 8, "temp");
  op_decl_dat_temp_char(cells_, 2, "double", 8, "temp2");
  op_decl_dat_temp_char(other, 2, "double", 8, "temp");
  EXPECT_EQ(OP_dat_index, 6);
}

TEST_F(OpDeclDat, FreesATemporaryOnce) {
  op_decl_dat_char(cells_, 2, "double", 8, data(), "before");
  const op_dat temp = op_decl_dat_temp_char(cells_, 2, "double", 8, "temp");
  const op_dat after = op_decl_dat_char(cells_, 2, "double", 8, data(), "after");
  EXPECT_EQ(op_free_dat_temp_char(temp), 1);
  EXPECT_EQ(OP_dat_list.first->next->dat, after);
  EXPECT_EQ(OP_dat_list.first->next->prev, &OP_dat_list.first->next);
}

TEST_F(OpDeclDat, FreeingTheTailMovesTheEndOfTheList) {
  const op_dat temp = op_decl_dat_temp_char(cells_, 2, "double", 8, "temp");
  EXPECT_EQ(op_free_dat_temp_char(temp), 1);
  EXPECT_EQ(OP_dat_list.first, nullptr);
  EXPECT_EQ(OP_dat_list.last, &OP_dat_list.first);
  op_decl_dat_char(cells_, 2, "double", 8, data(), "flow");
  EXPECT_STREQ(OP_dat_list.first->dat->name, "flow");
}

TEST_F(OpDeclDat, FreeingAnUnknownDatIsMinusOne) {
  op_dat_core unknown = *op_decl_dat_char(cells_, 2, "double", 8, data(), "flow");
  unknown.name = "other";
  EXPECT_EQ(op_free_dat_temp_char(&unknown), -1);
}

TEST_F(OpDeclDat, SearchComparesEveryField) {
  const op_dat dat = op_decl_dat_char(cells_, 2, "double", 8, data(), "flow");
  const op_set other = op_decl_set(3, "cells");
  ASSERT_NE(search_dat(cells_, 2, 8, "double", "flow"), nullptr);
  EXPECT_EQ(search_dat(cells_, 2, 8, "double", "flow")->dat, dat);
  EXPECT_EQ(search_dat(other, 2, 8, "double", "flow"), nullptr);
  EXPECT_EQ(search_dat(cells_, 1, 8, "double", "flow"), nullptr);
  EXPECT_EQ(search_dat(cells_, 2, 4, "double", "flow"), nullptr);
  EXPECT_EQ(search_dat(cells_, 2, 8, "int", "flow"), nullptr);
  EXPECT_EQ(search_dat(cells_, 2, 8, "double", "bed"), nullptr);
}

TEST_F(OpDeclDat, SetsAreEqualByIndexAndName) {
  op_set_core copy = *cells_;
  EXPECT_TRUE(compare_sets(cells_, &copy));
  copy.name = "edges";
  EXPECT_FALSE(compare_sets(cells_, &copy));
  copy = *cells_;
  copy.index = 1;
  EXPECT_FALSE(compare_sets(cells_, &copy));
}

TEST(OpExit, ClearsTheListsSoThatTheRuntimeCanStartAgain) {
  outputOf([] { op_init(0, nullptr, 0); });
  std::vector<int> table{0};
  const op_set set = op_decl_set(1, "cells");
  op_decl_map(set, set, 1, table.data(), "map");
  op_decl_dat_temp_char(set, 1, "int", 4, "dat");
  op_exit();
  EXPECT_EQ(OP_set_index + OP_set_max + OP_map_index + OP_map_max, 0);
  EXPECT_EQ(OP_dat_index + OP_kern_max, 0);
  EXPECT_EQ(OP_set_list, nullptr);
  EXPECT_EQ(OP_map_list, nullptr);
  EXPECT_EQ(OP_dat_list.first, nullptr);
  EXPECT_EQ(OP_kernels, nullptr);

  outputOf([] { op_init(0, nullptr, 0); });
  EXPECT_EQ(op_decl_set(2, "again")->index, 0);
  op_exit();
}

}  // namespace
