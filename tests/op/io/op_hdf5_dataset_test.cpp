#include "op/io/op_hdf5_dataset.h"

#include <gtest/gtest.h>
#include <hdf5.h>

#include <string>

#include "op/op_test_support.h"

namespace {

using op_test::FileWriter;

class OpHdf5Dataset : public op_test::FileTest {
 protected:
  op_hdf5_dataset_properties propertiesOf(const std::string& name) {
    const H5Handle file(H5Fopen(path("run.h5").c_str(), H5F_ACC_RDONLY, H5P_DEFAULT), H5Fclose);
    const H5Handle dataset(H5Dopen2(file.get(), name.c_str(), H5P_DEFAULT), H5Dclose);
    op_hdf5_dataset_properties properties{};
    EXPECT_EQ(get_dataset_properties(dataset.get(), &properties), 0);
    return properties;
  }
};

TEST_F(OpHdf5Dataset, PropertiesOfTwoExtents) {
  FileWriter(path("run.h5")).doubles("a", {3, 2}, {1, 2, 3, 4, 5, 6});
  const op_hdf5_dataset_properties properties = propertiesOf("a");
  EXPECT_EQ(properties.type, "double");
  EXPECT_EQ(properties.size, 3);
  EXPECT_EQ(properties.dim, 2);
  EXPECT_EQ(properties.elem_bytes, 16U);
}

TEST_F(OpHdf5Dataset, PropertiesOfOneExtent) {
  FileWriter(path("run.h5")).longs("a", {3}, {1, 2, 3});
  const op_hdf5_dataset_properties properties = propertiesOf("a");
  EXPECT_EQ(properties.type, "long");
  EXPECT_EQ(properties.size, 3);
  EXPECT_EQ(properties.dim, 1);
  EXPECT_EQ(properties.elem_bytes, 4U);
}

TEST_F(OpHdf5Dataset, PropertiesOfRankZero) {
  FileWriter(path("run.h5")).ints("a", {}, {1});
  const op_hdf5_dataset_properties properties = propertiesOf("a");
  EXPECT_EQ(properties.size, 0);
  EXPECT_EQ(properties.dim, 0);
  EXPECT_EQ(properties.elem_bytes, 0U);
}

TEST_F(OpHdf5Dataset, PropertiesNeedARecordAndADataset) {
  const H5Silence silence;
  op_hdf5_dataset_properties properties{};
  EXPECT_EQ(get_dataset_properties(H5I_INVALID_HID, &properties), -1);
  EXPECT_EQ(get_dataset_properties(H5I_INVALID_HID, nullptr), -1);
}

TEST_F(OpHdf5Dataset, TypesHaveNames) {
  EXPECT_STREQ(op_hdf5_type_to_string(H5T_NATIVE_INT), "int");
  EXPECT_STREQ(op_hdf5_type_to_string(H5T_NATIVE_LONG), "long");
  EXPECT_STREQ(op_hdf5_type_to_string(H5T_NATIVE_FLOAT), "float");
  EXPECT_STREQ(op_hdf5_type_to_string(H5T_NATIVE_DOUBLE), "double");
  EXPECT_STREQ(op_hdf5_type_to_string(H5T_IEEE_F64BE), "double");
  EXPECT_STREQ(op_hdf5_type_to_string(H5T_NATIVE_SHORT), "UNRECOGNISED");
  EXPECT_STREQ(op_hdf5_type_to_string(H5T_NATIVE_UINT), "UNRECOGNISED");
  EXPECT_STREQ(op_hdf5_type_to_string(H5T_C_S1), "UNRECOGNISED");
}

TEST_F(OpHdf5Dataset, CreatesTheGroupsThatAreMissing) {
  const H5Handle file(H5Fcreate(path("a.h5").c_str(), H5F_ACC_TRUNC, H5P_DEFAULT, H5P_DEFAULT),
                      H5Fclose);
  const auto exists = [&](const char* name) {
    return H5Lexists(file.get(), name, H5P_DEFAULT) > 0;
  };
  EXPECT_TRUE(create_path("a/data", file.get()));
  EXPECT_TRUE(create_path("//a//b/c/data", file.get()));
  EXPECT_TRUE(exists("a"));
  EXPECT_TRUE(exists("a/b"));
  EXPECT_TRUE(exists("a/b/c"));
  EXPECT_FALSE(exists("a/data"));
  EXPECT_FALSE(exists("a/b/c/data"));
}

TEST_F(OpHdf5Dataset, CreatesLongPaths) {
  const H5Handle file(H5Fcreate(path("a.h5").c_str(), H5F_ACC_TRUNC, H5P_DEFAULT, H5P_DEFAULT),
                      H5Fclose);
  const std::string group(120, 'g');
  EXPECT_TRUE(create_path((group + "/" + group + "/data").c_str(), file.get()));
  EXPECT_GT(H5Lexists(file.get(), (group + "/" + group).c_str(), H5P_DEFAULT), 0);
}

TEST_F(OpHdf5Dataset, CannotCreateAGroupBelowADataset) {
  const H5Silence silence;
  FileWriter(path("a.h5")).ints("a", {1}, {1});
  const H5Handle file(H5Fopen(path("a.h5").c_str(), H5F_ACC_RDWR, H5P_DEFAULT), H5Fclose);
  EXPECT_FALSE(create_path("a/b/data", file.get()));
}

TEST_F(OpHdf5Dataset, SilenceEndsWithItsScope) {
  const auto printer = reinterpret_cast<H5E_auto2_t>(H5Eprint2);
  H5Eset_auto2(H5E_DEFAULT, printer, nullptr);
  H5E_auto2_t function = nullptr;
  void* data = nullptr;
  {
    const H5Silence silence;
    H5Eget_auto2(H5E_DEFAULT, &function, &data);
    EXPECT_EQ(function, nullptr);
  }
  H5Eget_auto2(H5E_DEFAULT, &function, &data);
  EXPECT_EQ(function, printer);
}

}  // namespace
