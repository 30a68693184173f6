#include <gtest/gtest.h>
#include <hdf5.h>

#include <fstream>
#include <string>
#include <vector>

#include "op/io/op_hdf5.h"
#include "op/io/op_hdf5_dataset.h"
#include "op/op_test_support.h"

namespace {

using op_test::FileWriter;
using op_test::literally;
using op_test::outputOf;
using op_test::outputToStderr;

class OpConstHdf5 : public op_test::FileTest {
 protected:
  std::string file_;
  std::vector<double> gravity_{9.81, 0.5};

  void SetUp() override {
    FileTest::SetUp();
    file_ = path("constants.h5");
  }
  template <class T>
  void write(const std::string& name, const char* type, const std::vector<T>& values) const {
    op_write_const_hdf5(name.c_str(), static_cast<int>(values.size()), type,
                        reinterpret_cast<const char*>(values.data()), file_.c_str());
  }
  template <class T>
  std::vector<T> read(const std::string& name, const char* type, int dim) const {
    std::vector<T> values(static_cast<std::size_t>(dim));
    op_get_const_hdf5(name.c_str(), dim, type, reinterpret_cast<char*>(values.data()),
                      file_.c_str());
    return values;
  }
  template <class Call>
  static void expectExit(Call call, const std::string& message) {
    EXPECT_EXIT((outputToStderr(), call()), testing::ExitedWithCode(2), literally(message));
  }
};

TEST_F(OpConstHdf5, ComesBackAsItWasWritten) {
  std::vector<double> stored;
  EXPECT_EQ(outputOf([&] { write("gravity", "double", gravity_); }),
            "Writing 'gravity' to file '" + file_ + "'\nWriting constant to " + file_ + "\n");
  EXPECT_EQ(outputOf([&] { stored = read<double>("gravity", "double", 2); }), "");
  EXPECT_EQ(stored, gravity_);
  EXPECT_EQ(H5Fget_obj_count(H5F_OBJ_ALL, H5F_OBJ_ALL), 0);
}

TEST_F(OpConstHdf5, ComesBackInEachTypeFamily) {
  const std::string output = outputOf([&] {
    write("a/real", "real(8)", gravity_);
    write("a/small", "float", std::vector<float>{0.5F});
    write("a/whole", "integer", std::vector<int>{-3});
    write("b/wide", "long", std::vector<long>{1L << 40});
    write("b/wider", "long long", std::vector<long long>{-1LL << 50});
    EXPECT_EQ(read<double>("a/real", "double", 2), gravity_);
    EXPECT_EQ(read<float>("a/small", "real", 1), std::vector<float>{0.5F});
    EXPECT_EQ(read<int>("a/whole", "int(4)", 1), std::vector<int>{-3});
    EXPECT_EQ(read<long>("b/wide", "long", 1), std::vector<long>{1L << 40});
    EXPECT_EQ(read<long long>("b/wider", "long long", 1), std::vector<long long>{-1LL << 50});
  });
  EXPECT_EQ(output.find("conversion"), std::string::npos);
}

TEST_F(OpConstHdf5, CarriesItsDimAndType) {
  outputOf([&] { write("gravity", "double:soa", gravity_); });
  const H5Handle file(H5Fopen(file_.c_str(), H5F_ACC_RDONLY, H5P_DEFAULT), H5Fclose);
  const H5Handle dataset(H5Dopen2(file.get(), "gravity", H5P_DEFAULT), H5Dclose);
  const H5Handle dim(H5Aopen(dataset.get(), "dim", H5P_DEFAULT), H5Aclose);
  int number = 0;
  H5Aread(dim.get(), H5T_NATIVE_INT, &number);
  EXPECT_EQ(number, 2);
  const H5Handle type(H5Aopen(dataset.get(), "type", H5P_DEFAULT), H5Aclose);
  const H5Handle text(H5Aget_type(type.get()), H5Tclose);
  std::string value(H5Tget_size(text.get()), ' ');
  H5Aread(type.get(), text.get(), value.data());
  EXPECT_EQ(value, "double:soa");
}

TEST_F(OpConstHdf5, IsUpdatedInPlace) {
  outputOf([&] {
    write("count", "long", std::vector<long>{3});
    write("gravity", "double", gravity_);
    write("count", "long", std::vector<long>{4});
  });
  EXPECT_EQ(read<long>("count", "long", 1), std::vector<long>{4});
  EXPECT_EQ(read<double>("gravity", "double", 2), gravity_);
}

TEST_F(OpConstHdf5, IsNotReplacedByAnotherOne) {
  outputOf([&] { write("a/gravity", "double", gravity_); });
  const std::string file = "' in file '" + file_ + "' is not a constant of ";
  expectExit(
      [&] {
        write("a/gravity", "float", std::vector<float>{1, 2});
      },
      "'a/gravity" + file + "2 values of type float ... aborting\n");
  expectExit(
      [&] {
        write("a/gravity", "double", std::vector<double>{1, 2, 3});
      },
      "'a/gravity" + file + "3 values of type double ... aborting\n");
  expectExit([&] { write("a", "double", gravity_); },
             "'a" + file + "2 values of type double ... aborting\n");
}

TEST_F(OpConstHdf5, OfAnotherTypeIsConvertedWithAWarning) {
  outputOf([&] { write("gravity", "double", gravity_); });
  std::vector<float> values;
  EXPECT_EQ(outputOf([&] { values = read<float>("gravity", "float", 2); }),
            "type of constant double in file " + file_ +
                " and requested type float do not match, performing automatic type conversion\n");
  EXPECT_EQ(values, (std::vector<float>{9.81F, 0.5F}));
}

TEST_F(OpConstHdf5, OfAnotherDimIsRefused) {
  outputOf([&] { write("gravity", "double", gravity_); });
  FileWriter(file_).hollow("huge", {(1UL << 32) + 1}, H5T_NATIVE_DOUBLE);
  expectExit([&] { read<double>("gravity", "double", 1); },
             "dim of constant 2 in file " + file_ + " and requested dim 1 do not match\n");
  expectExit([&] { read<double>("huge", "double", 1); },
             "dim of constant 2147483647 in file " + file_ + " and requested dim 1 do not match\n");
}

TEST_F(OpConstHdf5, OfAnUnknownTypeIsRefused) {
  outputOf([&] { write("gravity", "double", gravity_); });
  FileWriter(file_).write("short", {1}, H5T_NATIVE_SHORT, H5T_NATIVE_INT, std::vector<int>{1});
  expectExit([&] { read<double>("gravity", "bool", 2); },
             "Unknown type in file " + file_ + " for constant gravity\n");
  expectExit([&] { read<int>("short", "int", 1); },
             "Unknown type in file " + file_ + " for constant short\n");
  expectExit([&] { write("gravity", "bool", gravity_); }, "Unknown type for write_const\n");
}

TEST_F(OpConstHdf5, WithoutValuesIsRefused) {
  expectExit([&] { write("none", "double", std::vector<double>()); },
             "constant none has 0 values, must be 1 or more\n");
}

TEST_F(OpConstHdf5, ThatIsMissingIsRefused) {
  expectExit([&] { read<double>("gravity", "double", 2); },
             "File " + file_ + " does not exist .... aborting op_get_const_hdf5()\n");
  outputOf([&] { write("gravity", "double", gravity_); });
  expectExit([&] { read<double>("density", "double", 2); },
             "dataset 'density' not found in file '" + file_ + "'\n");
}

TEST_F(OpConstHdf5, OfAFileOfAnotherKindIsRefused) {
  std::ofstream(file_) << "no HDF5";
  expectExit([&] { read<double>("gravity", "double", 2); },
             "Could not obtain read access to file '" + file_ + "'\n");
  expectExit([&] { write("gravity", "double", gravity_); },
             "Could not obtain write access to file '" + file_ + "'\n");
}

TEST_F(OpConstHdf5, ThatCannotBeWrittenIsReported) {
  const std::vector<double> many(20000, 1.0);
  for (const rlim_t bytes : {rlim_t{1000}, rlim_t{100000}}) {
    expectExit(
        [&] {
          op_test::limitFiles(bytes);
          write("many", "double", many);
        },
        "Could not write dataset 'many' to file '" + file_ + "'\n");
    std::filesystem::remove(file_);
  }
  file_ = path("nowhere") + "/constants.h5";
  expectExit([&] { write("gravity", "double", gravity_); },
             "Could not write dataset 'gravity' to file '" + file_ + "'\n");
}

}  // namespace
