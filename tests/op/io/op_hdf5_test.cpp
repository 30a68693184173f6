#include "op/io/op_hdf5.h"

#include <gtest/gtest.h>
#include <hdf5.h>

#include <climits>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "op/core/op_seq.h"
#include "op/op_test_support.h"

namespace {

using op_test::FileWriter;
using op_test::literally;
using op_test::outputOf;
using op_test::outputToStderr;
using testing::ExitedWithCode;

class OpHdf5 : public op_test::FileTest {
 protected:
  std::string file_;

  void SetUp() override {
    FileTest::SetUp();
    file_ = path("run.h5");
  }
  const char* file() const { return file_.c_str(); }

  // A file that holds a valid one, but for its second half.
  void truncate() const {
    FileWriter(file_).ints("cells/set", {1000}, std::vector<int>(1000));
    std::filesystem::resize_file(file_, std::filesystem::file_size(file_) / 2);
  }

  template <class Call>
  void expectExit(Call call, int status, const std::string& message) {
    EXPECT_EXIT((outputToStderr(), call()), ExitedWithCode(status), literally(message));
  }
};

bool fileIsOpen() {
  return H5Fget_obj_count(H5F_OBJ_ALL, H5F_OBJ_ALL) > 0;
}

template <class T>
std::vector<T> valuesOf(op_dat dat) {
  const auto* const values = reinterpret_cast<const T*>(dat->data);
  return {values, values + static_cast<std::ptrdiff_t>(dat->set->size) * dat->dim};
}

class OpDeclSetHdf5 : public OpHdf5 {};

TEST_F(OpDeclSetHdf5, ReadsTheSize) {
  FileWriter(file_).ints("cells/set", {1}, {12});
  const op_set set = op_decl_set_hdf5(file(), "cells/set");
  EXPECT_EQ(set->size, 12);
  EXPECT_STREQ(set->name, "cells/set");
  EXPECT_FALSE(fileIsOpen());
}

TEST_F(OpDeclSetHdf5, ReadsASizeOfRankZeroAndOfTwoExtents) {
  FileWriter(file_).ints("scalar", {}, {3});
  FileWriter(file_).ints("table", {1, 1}, {4});
  EXPECT_EQ(op_decl_set_hdf5(file(), "scalar")->size, 3);
  EXPECT_EQ(op_decl_set_hdf5(file(), "table")->size, 4);
}

TEST_F(OpDeclSetHdf5, TurnsTheErrorPrintingOff) {
  FileWriter(file_).ints("cells/set", {1}, {12});
  H5Eset_auto2(H5E_DEFAULT, reinterpret_cast<H5E_auto2_t>(H5Eprint2), nullptr);
  op_decl_set_hdf5(file(), "cells/set");
  H5E_auto2_t function = nullptr;
  void* data = nullptr;
  H5Eget_auto2(H5E_DEFAULT, &function, &data);
  EXPECT_EQ(function, nullptr);
}

TEST_F(OpDeclSetHdf5, RefusesAMissingFile) {
  expectExit([&] { op_decl_set_hdf5(file(), "cells/set"); }, 2,
             "File " + file_ + " does not exist .... aborting op_decl_set_hdf5()\n");
}

TEST_F(OpDeclSetHdf5, RefusesAFileOfAnotherKind) {
  std::ofstream(file_) << "no HDF5";
  expectExit([&] { op_decl_set_hdf5(file(), "cells/set"); }, 2,
             "Could not obtain read access to file '" + file_ + "'");
}

TEST_F(OpDeclSetHdf5, RefusesATruncatedFile) {
  truncate();
  expectExit([&] { op_decl_set_hdf5(file(), "cells/set"); }, 2,
             "Could not obtain read access to file '" + file_ + "'");
}

TEST_F(OpDeclSetHdf5, RefusesAMissingDataset) {
  FileWriter(file_).ints("cells/set", {1}, {12});
  expectExit([&] { op_decl_set_hdf5(file(), "edges/set"); }, 2,
             "Dataset 'edges/set' not found in file '" + file_ + "'\n");
}

TEST_F(OpDeclSetHdf5, RefusesMoreOrLessThanOneValue) {
  FileWriter(file_).ints("two", {2}, {1, 2});
  FileWriter(file_).ints("none", {0}, {});
  expectExit([&] { op_decl_set_hdf5(file(), "two"); }, 2, "holds 2 values");
  expectExit([&] { op_decl_set_hdf5(file(), "none"); }, 2, "holds 0 values");
}

TEST_F(OpDeclSetHdf5, RefusesASizeBeyondTheRange) {
  FileWriter(file_).longs("cells/set", {1}, {1L + INT_MAX});
  expectExit([&] { op_decl_set_hdf5(file(), "cells/set"); }, 2, "holds 2147483648");
}

TEST_F(OpDeclSetHdf5, RefusesANegativeSize) {
  FileWriter(file_).ints("cells/set", {1}, {-1});
  expectExit([&] { op_decl_set_hdf5(file(), "cells/set"); }, 255,
             " op_decl_set error -- negative/zero size for set: cells/set\n");
}

TEST_F(OpDeclSetHdf5, RefusesAText) {
  const hid_t text = H5Tcopy(H5T_C_S1);
  H5Tset_size(text, 4);
  FileWriter(file_).write("cells/set", {1}, text, text, std::vector<char>{'a', 'b', 'c', 'd'});
  H5Tclose(text);
  expectExit([&] { op_decl_set_hdf5(file(), "cells/set"); }, 2,
             "Could not read dataset 'cells/set' of file '" + file_ + "'\n");
}

class OpDeclMapHdf5 : public OpHdf5 {
 protected:
  op_set edges_ = nullptr;
  op_set cells_ = nullptr;

  void SetUp() override {
    OpHdf5::SetUp();
    edges_ = op_decl_set(2, "edges");
    cells_ = op_decl_set(3, "cells");
  }
  op_map declare(const char* name, int dim = 2) {
    return op_decl_map_hdf5(edges_, cells_, dim, file(), name);
  }
};

TEST_F(OpDeclMapHdf5, ReadsTheTableForTheRuntime) {
  FileWriter(file_).ints("edges/cells", {2, 2}, {0, 1, 1, 2});
  const op_map map = declare("edges/cells");
  ASSERT_NE(map, nullptr);
  EXPECT_EQ(std::vector<int>(map->map, map->map + 4), (std::vector<int>{0, 1, 1, 2}));
  EXPECT_STREQ(map->name, "edges/cells");
  EXPECT_EQ(map->user_managed, 0);
  EXPECT_FALSE(fileIsOpen());
}

TEST_F(OpDeclMapHdf5, TakesOneExtentForOneColumn) {
  FileWriter(file_).ints("edges/cells", {2}, {2, 1});
  EXPECT_EQ(declare("edges/cells", 1)->map[0], 2);
}

TEST_F(OpDeclMapHdf5, ReadsAnotherByteOrder) {
  FileWriter(file_).write("edges/cells", {2, 1}, H5T_STD_I32BE, H5T_NATIVE_INT,
                          std::vector<int>{2, 1});
  EXPECT_EQ(declare("edges/cells", 1)->map[0], 2);
}

TEST_F(OpDeclMapHdf5, ReadsAnEmptyTable) {
  FileWriter(file_).ints("none/cells", {0, 2}, {});
  const op_set none = op_decl_set(0, "none");
  const op_map map = op_decl_map_hdf5(none, cells_, 2, file(), "none/cells");
  ASSERT_NE(map, nullptr);
  EXPECT_EQ(map->map, nullptr);
}

TEST_F(OpDeclMapHdf5, NarrowsWideEntries) {
  FileWriter(file_).longs("edges/cells", {2, 2}, {0, 1, 1, 2});
  const op_map map = declare("edges/cells");
  EXPECT_EQ(std::vector<int>(map->map, map->map + 4), (std::vector<int>{0, 1, 1, 2}));
}

TEST_F(OpDeclMapHdf5, RefusesWideEntriesThatDoNotFit) {
  FileWriter(file_).longs("edges/cells", {2, 2}, {0, 1, 1L << 32, 2});
  expectExit([&] { declare("edges/cells"); }, 2,
             "dataset 'edges/cells' of file '" + file_ + "': row 1, column 0 holds 4294967296");
}

TEST_F(OpDeclMapHdf5, CountsFromZeroUnderBaseIndexOne) {
  FileWriter(file_).ints("edges/cells", {2, 1}, {1, 3});
  set_maps_base(1);
  const op_map map = declare("edges/cells", 1);
  EXPECT_EQ(map->map[0], 0);
  EXPECT_EQ(map->map[1], 2);
}

TEST_F(OpDeclMapHdf5, IsNullForAMissingDataset) {
  FileWriter(file_).ints("edges/cells", {2, 2}, {0, 1, 1, 2});
  op_map map = nullptr;
  EXPECT_EQ(outputOf([&] { map = declare("edges/nodes"); }),
            "op_map with name : edges/nodes not found in file : " + file_ + " \n");
  EXPECT_EQ(map, nullptr);
  EXPECT_EQ(OP_map_index, 0);
  EXPECT_FALSE(fileIsOpen());
}

TEST_F(OpDeclMapHdf5, RefusesAMissingFile) {
  expectExit([&] { declare("edges/cells"); }, 2,
             "File " + file_ + " does not exist .... aborting op_decl_map_hdf5()\n");
}

TEST_F(OpDeclMapHdf5, RefusesATruncatedFile) {
  truncate();
  expectExit([&] { declare("edges/cells"); }, 2, "Could not obtain read access to file");
}

TEST_F(OpDeclMapHdf5, RefusesAnotherNumberOfRows) {
  FileWriter(file_).ints("edges/cells", {3, 2}, {0, 1, 1, 2, 2, 0});
  expectExit([&] { declare("edges/cells"); }, 2,
             "map from set size 3 in file " + file_ + " and size 2 do not match \n");
}

TEST_F(OpDeclMapHdf5, RefusesAnotherNumberOfColumns) {
  FileWriter(file_).ints("edges/cells", {2, 2}, {0, 1, 1, 2});
  expectExit([&] { declare("edges/cells", 3); }, 2,
             "map.dim 2 in file " + file_ + " and dim 3 do not match\n");
}

TEST_F(OpDeclMapHdf5, RefusesRankZero) {
  FileWriter(file_).ints("edges/cells", {}, {0});
  expectExit([&] { declare("edges/cells", 1); }, 2,
             "map from set size 0 in file " + file_ + " and size 2 do not match \n");
}

TEST_F(OpDeclMapHdf5, RefusesRankThree) {
  FileWriter(file_).ints("edges/cells", {2, 1, 2}, {0, 1, 1, 2});
  expectExit([&] { declare("edges/cells"); }, 2,
             "Error: dataset '/edges/cells' has 3 extents, at most 2 are possible\n");
}

TEST_F(OpDeclMapHdf5, RefusesExtentsBeyondTheRange) {
  FileWriter(file_).hollow("edges/cells", {2, 1UL << 32}, H5T_NATIVE_INT);
  expectExit([&] { declare("edges/cells"); }, 2,
             "Error: dataset '/edges/cells' has an extent of 4294967296");
}

TEST_F(OpDeclMapHdf5, RefusesRealEntries) {
  FileWriter(file_).doubles("edges/cells", {2, 2}, {0, 1, 1, 2});
  expectExit([&] { declare("edges/cells"); }, 2,
             "Unknown type in file " + file_ + " for map edges/cells\n");
}

TEST_F(OpDeclMapHdf5, RefusesATypeWithoutAName) {
  FileWriter(file_).write("edges/cells", {2, 2}, H5T_NATIVE_SHORT, H5T_NATIVE_INT,
                          std::vector<int>{0, 1, 1, 2});
  expectExit([&] { declare("edges/cells"); }, 2,
             "Error: Do not recognise type of dataset '/edges/cells'\n");
}

TEST_F(OpDeclMapHdf5, RefusesMissingSets) {
  FileWriter(file_).ints("edges/cells", {2, 2}, {0, 1, 1, 2});
  expectExit([&] { op_decl_map_hdf5(nullptr, cells_, 2, file(), "edges/cells"); }, 255,
             " op_decl_map error -- invalid 'from' set for map edges/cells\n");
  expectExit([&] { op_decl_map_hdf5(edges_, nullptr, 2, file(), "edges/cells"); }, 255,
             "op_decl_map error -- invalid 'to' set for map edges/cells\n");
}

TEST_F(OpDeclMapHdf5, LeavesTheEntriesToALaterCheck) {
  FileWriter(file_).ints("edges/cells", {2, 2}, {0, -1, 3, 2});
  const op_map map = declare("edges/cells");
  ASSERT_NE(map, nullptr);
  op_check_map_entry(map, 0, 0);
  expectExit([&] { op_check_map_entry(map, 0, 1); }, 2,
             "map edges/cells: row 0, column 1 holds -1, which is not in the range 0 to 2 of set "
             "cells\n");
}

TEST_F(OpDeclMapHdf5, RefusesATableBeyondItsFile) {
  FileWriter(file_).hollow("huge/cells", {INT_MAX, 1U << 30}, H5T_NATIVE_INT);
  const op_set huge = op_decl_set(INT_MAX, "huge");
  expectExit([&] { op_decl_map_hdf5(huge, cells_, 1 << 30, file(), "huge/cells"); }, 2,
             "Dataset 'huge/cells' declares more values than a file of this size can hold\n");
}

class OpDeclDatHdf5 : public OpHdf5 {
 protected:
  op_set cells_ = nullptr;

  void SetUp() override {
    OpHdf5::SetUp();
    cells_ = op_decl_set(3, "cells");
  }
  op_dat declare(const char* name, const char* type, int dim = 1) {
    return op_decl_dat_hdf5(cells_, dim, type, file(), name);
  }
};

TEST_F(OpDeclDatHdf5, ReadsTheValuesForTheRuntime) {
  FileWriter(file_).doubles("cells/flow", {3, 2}, {1.5, 2, 3, 4, 5, 6});
  op_dat dat = nullptr;
  EXPECT_EQ(outputOf([&] { dat = declare("cells/flow", "double", 2); }), "");
  ASSERT_NE(dat, nullptr);
  EXPECT_EQ(valuesOf<double>(dat), (std::vector<double>{1.5, 2, 3, 4, 5, 6}));
  EXPECT_EQ(dat->size, 16);
  EXPECT_STREQ(dat->name, "cells/flow");
  EXPECT_STREQ(dat->type, "double");
  EXPECT_EQ(dat->user_managed, 0);
  EXPECT_FALSE(fileIsOpen());
}

TEST_F(OpDeclDatHdf5, ConvertsAnotherPrecisionWithAWarning) {
  FileWriter(file_).write("cells/bed", {3, 1}, H5T_NATIVE_FLOAT, H5T_NATIVE_DOUBLE,
                          std::vector<double>{0.5, 1.5, 2.5});
  op_dat dat = nullptr;
  EXPECT_EQ(outputOf([&] { dat = declare("cells/bed", "double"); }),
            "dat.type float in file " + file_ +
                " and type double do not match, performing automatic conversion\n");
  EXPECT_EQ(valuesOf<double>(dat), (std::vector<double>{0.5, 1.5, 2.5}));
}

TEST_F(OpDeclDatHdf5, ReadsEveryTypeFamily) {
  FileWriter(file_).doubles("real", {3}, {1, 2, 3});
  FileWriter(file_).ints("whole", {3}, {1, 2, 3});
  FileWriter(file_).longs("wide", {3}, {1, 2, 3});
  outputOf([&] {
    for (const char* const type : {"double", "double:soa", "double precision", "real(8)"}) {
      EXPECT_EQ(valuesOf<double>(declare("real", type)), (std::vector<double>{1, 2, 3})) << type;
    }
    for (const char* const type : {"float", "float:soa", "real(4)", "real"}) {
      EXPECT_EQ(valuesOf<float>(declare("real", type)), (std::vector<float>{1, 2, 3})) << type;
    }
    for (const char* const type : {"int", "int:soa", "int(4)", "integer", "integer(4)"}) {
      EXPECT_EQ(valuesOf<int>(declare("whole", type)), (std::vector<int>{1, 2, 3})) << type;
    }
    for (const char* const type : {"long", "long:soa"}) {
      EXPECT_EQ(valuesOf<int>(declare("wide", type)), (std::vector<int>{1, 2, 3})) << type;
      EXPECT_EQ(OP_dat_list.first->dat->dim, 1);
    }
    for (const char* const type : {"long long", "long long:soa"}) {
      EXPECT_EQ(valuesOf<long long>(declare("wide", type)), (std::vector<long long>{1, 2, 3}))
          << type;
    }
  });
}

TEST_F(OpDeclDatHdf5, RefusesLongValuesThatDoNotFit) {
  FileWriter(file_).longs("cells/count", {3, 1}, {1, 2, LONG_MIN});
  expectExit([&] { declare("cells/count", "long"); }, 2,
             "row 2, column 0 holds -9223372036854775808");
}

TEST_F(OpDeclDatHdf5, ReadsNoValuesForAnEmptySet) {
  FileWriter(file_).doubles("none/bed", {0, 1}, {});
  const op_dat dat = op_decl_dat_hdf5(op_decl_set(0, "none"), 1, "double", file(), "none/bed");
  ASSERT_NE(dat, nullptr);
  EXPECT_EQ(dat->data, nullptr);
}

TEST_F(OpDeclDatHdf5, IsNullForAMissingDataset) {
  FileWriter(file_).doubles("cells/bed", {3, 1}, {1, 2, 3});
  op_dat dat = nullptr;
  EXPECT_EQ(outputOf([&] { dat = declare("cells/flow", "double"); }),
            "op_dat with name : cells/flow not found in file : " + file_ + " \n");
  EXPECT_EQ(dat, nullptr);
  EXPECT_EQ(OP_dat_list.first, nullptr);
}

TEST_F(OpDeclDatHdf5, RefusesAMissingFile) {
  expectExit([&] { declare("cells/bed", "double"); }, 2,
             "File " + file_ + " does not exist .... aborting op_decl_dat_hdf5()\n");
}

TEST_F(OpDeclDatHdf5, RefusesAnotherDim) {
  FileWriter(file_).doubles("cells/bed", {3, 1}, {1, 2, 3});
  expectExit([&] { declare("cells/bed", "double", 2); }, 2,
             "dat.dim 1 in file " + file_ + " and dim 2 do not match\n");
}

TEST_F(OpDeclDatHdf5, RefusesMoreOrFewerRowsThanElements) {
  FileWriter(file_).doubles("more", {4, 1}, {1, 2, 3, 4});
  FileWriter(file_).doubles("fewer", {2, 1}, {1, 2});
  expectExit([&] { declare("more", "double"); }, 2,
             "dat more has 4 rows in file " + file_ + ", but its set cells has 3 elements\n");
  expectExit([&] { declare("fewer", "double"); }, 2, "dat fewer has 2 rows in file " + file_);
}

TEST_F(OpDeclDatHdf5, RefusesAnUnknownRequestedType) {
  FileWriter(file_).doubles("cells/bed", {3, 1}, {1, 2, 3});
  expectExit([&] { declare("cells/bed", "bool"); }, 2, "unknown type for dat\n");
}

TEST_F(OpDeclDatHdf5, RefusesRankThree) {
  FileWriter(file_).doubles("cells/bed", {3, 1, 1}, {1, 2, 3});
  expectExit([&] { declare("cells/bed", "double"); }, 2, "has 3 extents, at most 2 are possible");
}

TEST_F(OpDeclDatHdf5, RefusesAMissingSet) {
  FileWriter(file_).doubles("cells/bed", {3, 1}, {1, 2, 3});
  expectExit([&] { op_decl_dat_hdf5(nullptr, 1, "double", file(), "cells/bed"); }, 255,
             "op_decl_dat error -- invalid set for data: cells/bed\n");
}

TEST_F(OpDeclDatHdf5, RefusesValuesBeyondItsFile) {
  FileWriter(file_).hollow("huge/bed", {INT_MAX, 1U << 24}, H5T_NATIVE_DOUBLE);
  const op_set huge = op_decl_set(INT_MAX, "huge");
  expectExit([&] { op_decl_dat_hdf5(huge, 1 << 24, "double", file(), "huge/bed"); }, 2,
             "Dataset 'huge/bed' declares more values than a file of this size can hold\n");
}

TEST_F(OpDeclDatHdf5, RefusesValuesOfAnotherFile) {
  FileWriter(file_).external("cells/bed", {3, 1}, H5T_NATIVE_DOUBLE);
  expectExit([&] { op_decl_dat_hdf5(cells_, 1, "double", file(), "cells/bed"); }, 2,
             "Dataset 'cells/bed' has its values in another file, which is not read");
}

}  // namespace
