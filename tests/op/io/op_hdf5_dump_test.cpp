#include <gtest/gtest.h>
#include <hdf5.h>

#include <string>
#include <vector>

#include "op/io/op_hdf5.h"
#include "op/io/op_hdf5_dataset.h"
#include "op/op_test_support.h"

namespace {

using op_test::literally;
using op_test::outputOf;
using op_test::outputToStderr;

class OpDumpToHdf5 : public op_test::FileTest {
 protected:
  std::string file_;
  op_set cells_ = nullptr;
  std::vector<double> flow_{1, 2, 3, 4, 5, 6.5};
  std::vector<int> wet_{1, 0, 1};

  void SetUp() override {
    FileTest::SetUp();
    file_ = path("dump.h5");
    cells_ = op_decl_set(3, "cells");
  }
  template <class T>
  op_dat dat(int dim, const char* type, std::vector<T>& values, const char* name) {
    return op_decl_dat_char(cells_, dim, type, sizeof(T), reinterpret_cast<char*>(values.data()),
                            name);
  }
  template <class T>
  std::vector<T> read(int dim, const char* type, const char* name) {
    const op_dat stored = op_decl_dat_hdf5(cells_, dim, type, file_.c_str(), name);
    if (stored == nullptr) return {};
    const auto* const values = reinterpret_cast<const T*>(stored->data);
    return {values, values + 3L * dim};
  }
  std::string dump() const {
    return outputOf([&] { op_dump_to_hdf5(file_.c_str()); });
  }
  void expectExit(const std::string& message) const {
    EXPECT_EXIT((outputToStderr(), op_dump_to_hdf5(file_.c_str())), testing::ExitedWithCode(2),
                literally(message));
  }
};

TEST_F(OpDumpToHdf5, WritesEachDatUnderItsName) {
  dat(2, "double", flow_, "cells/flow");
  dat(1, "int", wet_, "wet");
  EXPECT_EQ(dump(), "Writing to " + file_ + "\n");
  EXPECT_EQ(read<double>(2, "double", "cells/flow"), flow_);
  EXPECT_EQ(read<int>(1, "int", "wet"), wet_);
}

TEST_F(OpDumpToHdf5, UpdatesAnEarlierDump) {
  dat(2, "double", flow_, "flow");
  dump();
  flow_[0] = 7.0;
  dat(1, "int", wet_, "wet");
  dump();
  EXPECT_EQ(read<double>(2, "double", "flow"), flow_);
  EXPECT_EQ(read<int>(1, "int", "wet"), wet_);
}

TEST_F(OpDumpToHdf5, AttachesShapeAndType) {
  dat(2, "double", flow_, "flow");
  dump();
  // An update checks the attributes.
  std::vector<float> narrow(6);
  op_exit();
  outputOf([] { op_init(0, nullptr, 0); });
  cells_ = op_decl_set(3, "cells");
  dat(2, "float", narrow, "flow");
  expectExit("dat.size 16 in file " + file_ + " and dim 8 do not match ... aborting\n");
}

TEST_F(OpDumpToHdf5, RefusesAnUnknownType) {
  dat(1, "bool", wet_, "wet");
  expectExit("Writing to " + file_ + "\nUnknown type for data elements bool\n");
}

TEST_F(OpDumpToHdf5, RefusesTwoDatsOfOneName) {
  dat(2, "double", flow_, "flow");
  dat(1, "int", wet_, "wet");
  dat(2, "double", flow_, "flow");
  expectExit("There are two dats of the name flow, which cannot both be written\n");
  EXPECT_FALSE(std::filesystem::exists(file_));
}

TEST_F(OpDumpToHdf5, OfOneDatTakesItsNameAsPath) {
  const op_dat flow = dat(2, "double", flow_, "cells/flow");
  EXPECT_EQ(outputOf([&] { op_fetch_data_hdf5_file(flow, file_.c_str()); }),
            "Writing 'cells/flow' to file '" + file_ + "'\n");
  EXPECT_EQ(read<double>(2, "double", "cells/flow"), flow_);
  EXPECT_EXIT((outputToStderr(), op_fetch_data_hdf5_file(nullptr, file_.c_str())),
              testing::ExitedWithCode(2),
              literally("There is no dat to write to '' in file '" + file_ + "'\n"));
}

}  // namespace
