#include <gtest/gtest.h>
#include <hdf5.h>

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "h5/journal/driver.h"
#include "op/core/op_seq.h"
#include "op/io/op_hdf5.h"
#include "op/io/op_hdf5_dataset.h"
#include "op/op_test_support.h"

namespace {

using op_test::FileWriter;
using op_test::limitFiles;
using op_test::literally;
using op_test::outputOf;
using op_test::outputToStderr;
using testing::ExitedWithCode;

const char* const Path = "/RESULTS/cells/flow/0000000";

class OpFetchDataHdf5 : public op_test::FileTest {
 protected:
  std::string file_;
  op_set cells_ = nullptr;
  op_dat flow_ = nullptr;
  std::vector<double> values_{1, 2, 3, 4, 5, 6};

  void SetUp() override {
    FileTest::SetUp();
    file_ = path("results.h5");
    cells_ = op_decl_set(3, "cells");
    flow_ = dat("double", 8, values_.data());
  }
  template <class T>
  op_dat dat(const char* type, int bytes, T* values, int dim = 2) {
    return op_decl_dat_char(cells_, dim, type, bytes, reinterpret_cast<char*>(values), "flow");
  }
  std::string write(op_dat what) const {
    return outputOf([&] { op_fetch_data_hdf5_file_path(what, file_.c_str(), Path); });
  }
  std::string announcement() const {
    return "Writing '" + std::string(Path) + "' to file '" + file_ + "'\n";
  }
  void expectExit(op_dat what, const std::string& message) const {
    EXPECT_EXIT((outputToStderr(), op_fetch_data_hdf5(what, file_.c_str(), Path)),
                ExitedWithCode(2), literally(message));
  }

  template <class T>
  std::vector<T> stored(hid_t type, std::size_t count = 6) const {
    std::vector<T> values(count);
    const H5Handle file(H5Fopen(file_.c_str(), H5F_ACC_RDONLY, H5P_DEFAULT), H5Fclose);
    const H5Handle dataset(H5Dopen2(file.get(), Path, H5P_DEFAULT), H5Dclose);
    EXPECT_GE(H5Dread(dataset.get(), type, H5S_ALL, H5S_ALL, H5P_DEFAULT, values.data()), 0);
    return values;
  }
  // Does something to the dataset that has been written.
  template <class Change>
  void change(Change what) const {
    const H5Handle file(H5Fopen(file_.c_str(), H5F_ACC_RDWR, H5P_DEFAULT), H5Fclose);
    const H5Handle dataset(H5Dopen2(file.get(), Path, H5P_DEFAULT), H5Dclose);
    what(dataset.get());
  }
  void attach(const char* name, hid_t type, const std::vector<hsize_t>& extents,
              const void* value) const {
    change([&](hid_t dataset) {
      if (H5Aexists(dataset, name) > 0) H5Adelete(dataset, name);
      const H5Handle space(
          H5Screate_simple(static_cast<int>(extents.size()), extents.data(), nullptr), H5Sclose);
      const H5Handle attribute(
          H5Acreate2(dataset, name, type, space.get(), H5P_DEFAULT, H5P_DEFAULT), H5Aclose);
      H5Awrite(attribute.get(), type, value);
    });
  }
  void detach(const char* name) const {
    change([&](hid_t dataset) { H5Adelete(dataset, name); });
  }
};

TEST_F(OpFetchDataHdf5, CreatesTheFileTheGroupsAndTheDataset) {
  EXPECT_EQ(write(flow_), announcement());
  EXPECT_EQ(stored<double>(H5T_NATIVE_DOUBLE), values_);
  EXPECT_EQ(H5Fget_obj_count(H5F_OBJ_ALL, H5F_OBJ_ALL), 0);
  const H5Handle file(H5Fopen(file_.c_str(), H5F_ACC_RDONLY, H5P_DEFAULT), H5Fclose);
  for (const char* const group : {"/RESULTS", "/RESULTS/cells", "/RESULTS/cells/flow"}) {
    const H5Handle opened(H5Gopen2(file.get(), group, H5P_DEFAULT), H5Gclose);
    EXPECT_TRUE(static_cast<bool>(opened)) << group;
  }
}

TEST_F(OpFetchDataHdf5, StoresShapeAndType) {
  write(flow_);
  change([](hid_t dataset) {
    op_hdf5_dataset_properties properties{};
    ASSERT_EQ(get_dataset_properties(dataset, &properties), 0);
    EXPECT_EQ(properties.type, "double");
    EXPECT_EQ(properties.size, 3);
    EXPECT_EQ(properties.dim, 2);

    const H5Handle type(H5Aopen(dataset, "type", H5P_DEFAULT), H5Aclose);
    const H5Handle text(H5Aget_type(type.get()), H5Tclose);
    const H5Handle space(H5Aget_space(type.get()), H5Sclose);
    EXPECT_EQ(H5Tget_class(text.get()), H5T_STRING);
    EXPECT_EQ(H5Tget_size(text.get()), 6U);
    EXPECT_EQ(H5Sget_simple_extent_type(space.get()), H5S_SCALAR);
    std::string value(6, ' ');
    H5Aread(type.get(), text.get(), value.data());
    EXPECT_EQ(value, "double");

    for (const auto& [name, expected] : {std::pair("size", 16), std::pair("dim", 2)}) {
      const H5Handle attribute(H5Aopen(dataset, name, H5P_DEFAULT), H5Aclose);
      const H5Handle extents(H5Aget_space(attribute.get()), H5Sclose);
      EXPECT_EQ(H5Sget_simple_extent_ndims(extents.get()), 1);
      int number = 0;
      H5Aread(attribute.get(), H5T_NATIVE_INT, &number);
      EXPECT_EQ(number, expected);
    }
  });
}

TEST_F(OpFetchDataHdf5, AddsToAFileThatIsThere) {
  FileWriter(file_).ints("RESULTS/other", {1}, {7});
  write(flow_);
  EXPECT_EQ(stored<double>(H5T_NATIVE_DOUBLE), values_);
  const H5Handle file(H5Fopen(file_.c_str(), H5F_ACC_RDONLY, H5P_DEFAULT), H5Fclose);
  EXPECT_GT(H5Lexists(file.get(), "RESULTS/other", H5P_DEFAULT), 0);
}

TEST_F(OpFetchDataHdf5, AddsToAFileThatIsOpenForWriting) {
  const H5Handle open(H5Fcreate(file_.c_str(), H5F_ACC_TRUNC, H5P_DEFAULT, h5::accessList()),
                      H5Fclose);
  write(flow_);
  EXPECT_GT(H5Oexists_by_name(open.get(), Path, H5P_DEFAULT), 0);
}

TEST_F(OpFetchDataHdf5, UpdatesInPlaceAndLeavesTheAttributesAlone) {
  write(flow_);
  const double time = 4.5;
  attach("t", H5T_NATIVE_DOUBLE, {1}, &time);
  haddr_t before = 0;
  change([&](hid_t dataset) { before = H5Dget_offset(dataset); });
  values_[5] = -1.0;
  EXPECT_EQ(write(flow_), announcement());
  EXPECT_EQ(stored<double>(H5T_NATIVE_DOUBLE), values_);
  change([&](hid_t dataset) {
    EXPECT_EQ(H5Dget_offset(dataset), before);
    EXPECT_GT(H5Aexists(dataset, "t"), 0);
    EXPECT_EQ(H5Aget_num_attrs(dataset), 4);
  });
}

TEST_F(OpFetchDataHdf5, TellsItsStepsAtAHighDiagnosticLevel) {
  OP_diags = 4;
  EXPECT_EQ(write(flow_), announcement() +
                              "op_dat flow does not exists in the file ... creating data set\n" +
                              "File " + file_ + " does not exist .... creating file\n");
  const std::string existing = announcement() + "File " + file_ +
                               " exists .... checking for dataset and path " + Path + " in file\n";
  EXPECT_EQ(write(flow_),
            existing + "dataset '" + Path + "' exists in the file ... updating data\n");
  std::filesystem::remove(file_);
  FileWriter(file_).ints("other", {1}, {7});
  EXPECT_EQ(write(flow_),
            existing + "op_dat flow does not exists in the file ... creating data set\n");
}

TEST_F(OpFetchDataHdf5, WritesEveryType) {
  std::vector<int> wholes{1, 2, 3, 4, 5, 6};
  std::vector<float> reals{1, 2, 3, 4, 5, 6};
  std::vector<long long> wides{1, 2, 3, 4, 5, 6};
  const auto roundTrip = [&](op_dat what, hid_t type) {
    std::filesystem::remove(file_);
    write(what);
    change([&](hid_t dataset) {
      const H5Handle stored(H5Dget_type(dataset), H5Tclose);
      EXPECT_GT(H5Tequal(stored.get(), type), 0) << what->type;
    });
    EXPECT_EQ(stored<double>(H5T_NATIVE_DOUBLE), values_) << what->type;
  };
  roundTrip(dat("double:soa", 8, values_.data()), H5T_NATIVE_DOUBLE);
  roundTrip(dat("float", 4, reals.data()), H5T_NATIVE_FLOAT);
  roundTrip(dat("float:soa", 4, reals.data()), H5T_NATIVE_FLOAT);
  roundTrip(dat("int", 4, wholes.data()), H5T_NATIVE_INT);
  roundTrip(dat("int:soa", 4, wholes.data()), H5T_NATIVE_INT);
  roundTrip(dat("long", 4, wholes.data()), H5T_NATIVE_LONG);
  roundTrip(dat("long:soa", 8, wides.data()), H5T_NATIVE_LONG);
  roundTrip(dat("long long", 8, wides.data()), H5T_NATIVE_LLONG);
  roundTrip(dat("long long:soa", 8, wides.data()), H5T_NATIVE_LLONG);
}

TEST_F(OpFetchDataHdf5, WritesADatOfAnEmptySet) {
  const op_dat none = op_decl_dat_char(op_decl_set(0, "none"), 2, "double", 8, nullptr, "no flow");
  write(none);
  write(none);
  change([](hid_t dataset) {
    op_hdf5_dataset_properties properties{};
    get_dataset_properties(dataset, &properties);
    EXPECT_EQ(properties.size, 0);
    EXPECT_EQ(properties.dim, 2);
  });
}

TEST_F(OpFetchDataHdf5, ReadsBackWhatItWrote) {
  write(flow_);
  const op_dat back = op_decl_dat_hdf5(cells_, 2, "double", file_.c_str(), Path);
  ASSERT_NE(back, nullptr);
  const auto* const values = reinterpret_cast<const double*>(back->data);
  EXPECT_EQ(std::vector<double>(values, values + 6), values_);
}

TEST_F(OpFetchDataHdf5, AcceptsAnEquivalentType) {
  write(flow_);
  write(dat("real(8)", 8, values_.data()));
  EXPECT_EQ(stored<double>(H5T_NATIVE_DOUBLE), values_);
}

TEST_F(OpFetchDataHdf5, MakesNoDatasetOfATypeOfFortran) {
  for (const char* const type : {"real(8)", "double precision"}) {
    expectExit(dat(type, 8, values_.data()), "Unknown type for data elements\n");
  }
}

TEST_F(OpFetchDataHdf5, AcceptsATypeOfVariableLength) {
  write(flow_);
  const H5Handle text(H5Tcopy(H5T_C_S1), H5Tclose);
  H5Tset_size(text.get(), H5T_VARIABLE);
  H5Tset_cset(text.get(), H5T_CSET_UTF8);
  const char* const name = "double";
  attach("type", text.get(), {1}, &name);
  values_[0] = 7.0;
  write(flow_);
  EXPECT_EQ(stored<double>(H5T_NATIVE_DOUBLE), values_);
}

TEST_F(OpFetchDataHdf5, RefusesAnotherSize) {
  write(flow_);
  expectExit(dat("double", 8, values_.data(), 1),
             "dat.size 16 in file " + file_ + " and dim 8 do not match ... aborting\n");
}

TEST_F(OpFetchDataHdf5, RefusesAnotherDim) {
  write(flow_);
  std::vector<float> reals(12);
  expectExit(dat("float", 4, reals.data(), 4),
             "dat.dim 2 in file " + file_ + " and dim 4 do not match ... aborting\n");
}

TEST_F(OpFetchDataHdf5, RefusesAnotherType) {
  write(flow_);
  std::vector<long long> wides(6);
  expectExit(dat("long long", 8, wides.data()),
             "dat.type double in file " + file_ + " and type long long do not match\n");
}

TEST_F(OpFetchDataHdf5, RefusesAnotherNumberOfElements) {
  write(flow_);
  const op_dat other = op_decl_dat_char(op_decl_set(2, "fewer"), 2, "double", 8,
                                        reinterpret_cast<char*>(values_.data()), "flow");
  expectExit(other, "is 3 by 2 and dat flow is 2 by 2 ... aborting\n");
}

TEST_F(OpFetchDataHdf5, RefusesADatasetWithoutItsAttributes) {
  for (const std::string name : {"size", "dim", "type"}) {
    std::filesystem::remove(file_);
    write(flow_);
    detach(name.c_str());
    expectExit(flow_, "data set " + std::string(Path) + " on file " + file_ +
                          " does not have attribute '" + name + "' -- cannot check " + name +
                          " ... aborting\n");
  }
}

TEST_F(OpFetchDataHdf5, RefusesAttributesOfAnotherForm) {
  const int numbers[2] = {16, 2};  // NOLINT(modernize-avoid-c-arrays)
  write(flow_);
  attach("type", H5T_NATIVE_INT, {1}, numbers);
  expectExit(flow_, "Could not read attribute 'type' of dataset '" + std::string(Path));
  attach("dim", H5T_NATIVE_INT, {2}, numbers);
  expectExit(flow_, "Could not read attribute 'dim' of dataset '" + std::string(Path));
}

TEST_F(OpFetchDataHdf5, RefusesAnAttributeThatGoesBeyondItsHeader) {
  write(flow_);
  std::fstream file(file_, std::ios::in | std::ios::out | std::ios::binary);
  const std::string bytes(std::istreambuf_iterator<char>(file), {});
  const std::size_t name = bytes.find(std::string("size\0\0\0", 8));
  ASSERT_NE(name, std::string::npos);
  file.seekp(static_cast<std::streamoff>(name) - 3);  // the high byte of the size of the type
  file.put('\x7F');
  file.close();
  expectExit(flow_, "Dataset '" + std::string(Path) + "' in file '" + file_ +
                        "' has a header whose parts are larger than their room");
}

TEST_F(OpFetchDataHdf5, RefusesNumbersWithBitsOutsideOfTheirBytes) {
  write(flow_);
  const H5Handle wide(H5Tcopy(H5T_NATIVE_INT), H5Tclose);
  H5Tset_size(wide.get(), 2000);
  const std::vector<char> value(2000, 1);
  attach("size", wide.get(), {1}, value.data());
  expectExit(flow_, "Could not read attribute 'size' of dataset '" + std::string(Path));
}

TEST_F(OpFetchDataHdf5, RefusesAGroupInPlaceOfTheDataset) {
  FileWriter(file_).ints(std::string(Path) + "/inner", {1}, {7});
  expectExit(flow_, std::string("'") + Path + "' in file '" + file_ + "' is not a dataset\n");
}

TEST_F(OpFetchDataHdf5, RefusesADatasetInPlaceOfAGroup) {
  FileWriter(file_).ints("RESULTS", {1}, {7});
  expectExit(flow_, "Could not write dataset '" + std::string(Path) + "' to file '" + file_);
}

TEST_F(OpFetchDataHdf5, RefusesAnUnknownType) {
  expectExit(dat("bool", 1, values_.data()), "Unknown type for data elements\n");
}

TEST_F(OpFetchDataHdf5, RefusesValuesThatAreNotOfTheSizeOfTheirType) {
  expectExit(dat("double", 4, values_.data()), "dat flow has values of 4 bytes");
}

TEST_F(OpFetchDataHdf5, RefusesToWriteNoDat) {
  expectExit(nullptr, "There is no dat to write to '" + std::string(Path) + "'");
}

TEST_F(OpFetchDataHdf5, RefusesAFileOfAnotherKind) {
  std::ofstream(file_) << "no HDF5";
  expectExit(flow_, "Could not obtain write access to file '" + file_ + "'\n");
}

TEST_F(OpFetchDataHdf5, ReportsAFileThatCannotBeCreated) {
  file_ = path("nowhere") + "/results.h5";
  expectExit(flow_,
             "Could not write dataset '" + std::string(Path) + "' to file '" + file_ + "'\n");
}

TEST_F(OpFetchDataHdf5, ReportsAFullDiskAtEverySize) {
  cells_ = op_decl_set(20000, "many cells");
  std::vector<double> many(20000, 1.0);
  const op_dat bed = dat("double", 8, many.data(), 1);
  const std::string message =
      literally("Could not write dataset '" + std::string(Path) + "' to file '" + file_ + "'\n");
  write(bed);
  const rlim_t size = std::filesystem::file_size(file_);
  for (const rlim_t bytes : {rlim_t{1000}, rlim_t{2100}, rlim_t{4096}, size / 2, size - 1}) {
    std::filesystem::remove(file_);
    EXPECT_EXIT((outputToStderr(), limitFiles(bytes), op_fetch_data_hdf5(bed, file_.c_str(), Path)),
                ExitedWithCode(2), message)
        << bytes;
  }
}

TEST_F(OpFetchDataHdf5, ReportsAFullDiskOfAFileThatGrows) {
  write(flow_);
  const rlim_t size = std::filesystem::file_size(file_);
  EXPECT_EXIT((outputToStderr(), limitFiles(size),
               op_fetch_data_hdf5(flow_, file_.c_str(), "/RESULTS/cells/flow/0000001")),
              ExitedWithCode(2), "Could not write dataset '/RESULTS/cells/flow/0000001'");
}

}  // namespace
