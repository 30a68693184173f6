#include <gtest/gtest.h>
#include <hdf5.h>

#include <fstream>
#include <string>
#include <vector>

#include "op/io/op_hdf5.h"
#include "op/op_test_support.h"

namespace {

using op_test::FileWriter;
using op_test::literally;
using op_test::outputOf;
using op_test::outputToStderr;

class OpDeclSetHdf5InferSize : public op_test::FileTest {
 protected:
  std::string file_;

  void SetUp() override {
    FileTest::SetUp();
    file_ = path("run.h5");
  }
  op_set declare(const char* dataset) const {
    return op_decl_set_hdf5_infer_size(file_.c_str(), "cells", dataset);
  }
  void expectExit(const char* dataset, const std::string& message) const {
    EXPECT_EXIT((outputToStderr(), declare(dataset)), testing::ExitedWithCode(2),
                literally(message));
  }
};

TEST_F(OpDeclSetHdf5InferSize, TakesTheNumberOfRows) {
  FileWriter(file_).ints("cells/nodes", {4, 3}, std::vector<int>(12));
  FileWriter(file_).doubles("cells/none", {0, 2}, {});
  const op_set set = declare("cells/nodes");
  EXPECT_EQ(set->size, 4);
  EXPECT_STREQ(set->name, "cells");
  EXPECT_EQ(declare("cells/none")->size, 0);
  EXPECT_EQ(H5Fget_obj_count(H5F_OBJ_ALL, H5F_OBJ_ALL), 0);
}

TEST_F(OpDeclSetHdf5InferSize, IsNullForAGroup) {
  FileWriter(file_).ints("cells/nodes", {4, 3}, std::vector<int>(12));
  op_set set = nullptr;
  EXPECT_EQ(outputOf([&] { set = declare("cells"); }),
            "Could not open dataset 'cells' in file '" + file_ + "'\n");
  EXPECT_EQ(set, nullptr);
  EXPECT_EQ(OP_set_index, 0);
}

TEST_F(OpDeclSetHdf5InferSize, RefusesAMissingFile) {
  expectExit("cells/nodes",
             "File " + file_ + " does not exist .... aborting op_decl_set_hdf5_infer_size()\n");
}

TEST_F(OpDeclSetHdf5InferSize, RefusesAFileOfAnotherKind) {
  std::ofstream(file_) << "no HDF5";
  expectExit("cells/nodes", "Could not obtain read access to file '" + file_ + "'\n");
}

TEST_F(OpDeclSetHdf5InferSize, RefusesAMissingDataset) {
  FileWriter(file_).ints("cells/nodes", {4, 3}, std::vector<int>(12));
  expectExit("cells/edges", "Dataset 'cells/edges' not found in file '" + file_ + "'\n");
  expectExit("edges/cells", "Dataset 'edges/cells' not found in file '" + file_ + "'\n");
}

TEST_F(OpDeclSetHdf5InferSize, RefusesExtentsBeyondTheRange) {
  FileWriter(file_).hollow("cells/nodes", {1UL << 32, 1}, H5T_NATIVE_INT);
  expectExit("cells/nodes", "Error: dataset '/cells/nodes' has an extent of 4294967296");
}

}  // namespace
