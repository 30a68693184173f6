#include "op/io/op_dump.h"

#include <gtest/gtest.h>

#include <cstring>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "op/op_test_support.h"

namespace {

using op_test::literally;
using op_test::outputOf;
using op_test::outputToStderr;
using testing::ExitedWithCode;

class OpDump : public op_test::FileTest {
 protected:
  template <class T>
  static op_dat dat(const char* type, std::vector<T>& values, int dim = 1) {
    const int elements = static_cast<int>(values.size()) / dim;
    return op_decl_dat_char(op_decl_set(elements, "cells"), dim, type, sizeof(T),
                            reinterpret_cast<char*>(values.data()), "bed");
  }
  std::string text(op_dat what) const {
    op_print_dat_to_txtfile(what, path("dat.txt").c_str());
    return contents("dat.txt");
  }
  std::string contents(const std::string& name) const {
    std::ifstream file(path(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  template <class Call>
  static void expectExit(Call call, int status, const std::string& message) {
    EXPECT_EXIT((outputToStderr(), call()), ExitedWithCode(status), literally(message));
  }
};

TEST_F(OpDump, PrintsRealValues) {
  std::vector<double> wide{1.5, -2.0};
  std::vector<float> narrow{0.25F};
  EXPECT_EQ(outputOf([&] { op_dump_dat(dat("real(8)", wide)); }), "1.500000\n-2.000000\n");
  EXPECT_EQ(outputOf([&] { op_dump_dat(dat("really", wide, 2)); }), "1.500000\n-2.000000\n");
  EXPECT_EQ(outputOf([&] { op_dump_dat(dat("real", narrow)); }), "0.250000\n");
}

TEST_F(OpDump, PrintsIntegerValues) {
  std::vector<int> values{3, -4, 5, 6};
  EXPECT_EQ(outputOf([&] { op_dump_dat(dat("integer(4)", values, 2)); }), "3\n-4\n5\n6\n");
}

TEST_F(OpDump, PrintsNothingWithoutADat) {
  EXPECT_EQ(outputOf([] { op_dump_dat(nullptr); }), "");
}

TEST_F(OpDump, EndsWithoutAnErrorForAnotherType) {
  std::vector<double> values{1.5};
  expectExit([&] { op_dump_dat(dat("double", values)); }, 0,
             "Unsupported type for dumping double\n");
  expectExit([&] { op_dump_dat(dat("rea", values)); }, 0, "Unsupported type for dumping rea\n");
}

TEST_F(OpDump, RefusesValuesThatAreNotOfTheSizeOfTheirType) {
  std::vector<short> values{1, 2};
  const std::string message = "dat bed has values of 2 bytes, which is not the size of its type ";
  expectExit([&] { op_dump_dat(dat("real", values)); }, 2, message + "real\n");
  expectExit([&] { op_dump_dat(dat("integer", values)); }, 2, message + "integer\n");
  for (const std::string type : {"double", "float", "int", "long"}) {
    expectExit([&] { text(dat(type.c_str(), values)); }, 2, message + type + "\n");
  }
}

class OpPrintDatToTxtfile : public OpDump {};

TEST_F(OpPrintDatToTxtfile, WritesALineForEachElement) {
  std::vector<double> values{1, 2, 3, 4, 5, 6.5};
  EXPECT_EQ(text(dat("double", values, 2)),
            "3 2\n1.000000 2.000000 \n3.000000 4.000000 \n5.000000 6.500000 \n");
}

TEST_F(OpPrintDatToTxtfile, KnowsTheTypeFamilies) {
  std::vector<double> doubles{1.5};
  std::vector<float> floats{2.5F};
  std::vector<int> ints{-3};
  std::vector<long> longs{1L << 40};
  for (const char* const type : {"double", "double:soa", "double precision", "real(8)"}) {
    EXPECT_EQ(text(dat(type, doubles)), "1 1\n1.500000 \n") << type;
  }
  for (const char* const type : {"float", "float:soa", "real(4)", "real"}) {
    EXPECT_EQ(text(dat(type, floats)), "1 1\n2.500000 \n") << type;
  }
  for (const char* const type : {"int", "int:soa", "int(4)", "integer", "integer(4)"}) {
    EXPECT_EQ(text(dat(type, ints)), "1 1\n-3 \n") << type;
  }
  for (const char* const type : {"long", "long:soa"}) {
    EXPECT_EQ(text(dat(type, longs)), "1 1\n1099511627776 \n") << type;
    EXPECT_EQ(text(dat(type, ints)), "1 1\n-3 \n") << type << " as the runtime reads it";
  }
}

TEST_F(OpPrintDatToTxtfile, RefusesOtherTypesAndKeepsTheFile) {
  std::ofstream(path("dat.txt")) << "earlier";
  std::vector<long long> values{1};
  for (const std::string type : {"long long", "bool"}) {
    expectExit([&] { text(dat(type.c_str(), values)); }, 2,
               "Unknown type " + type + ", cannot be written to file " + path("dat.txt") + "\n");
  }
  EXPECT_EQ(contents("dat.txt"), "earlier");
}

TEST_F(OpPrintDatToTxtfile, WritesTheHeaderOfAnEmptySet) {
  std::vector<int> none;
  EXPECT_EQ(text(dat("int", none, 3)), "0 3\n");
}

TEST_F(OpPrintDatToTxtfile, ReportsWhatCannotBeWritten) {
  std::vector<int> values{1};
  const op_dat bed = dat("int", values);
  const std::string nowhere = path("nowhere") + "/dat.txt";
  expectExit([&] { op_print_dat_to_txtfile(bed, nowhere.c_str()); }, 2,
             "can't open file " + nowhere + "\n");
  expectExit([&] { op_print_dat_to_txtfile(bed, "/dev/full"); }, 2, "error writing to /dev/full\n");
  expectExit([&] { op_print_dat_to_txtfile(nullptr, nowhere.c_str()); }, 2,
             "There is no dat to write to file " + nowhere + "\n");
}

class OpPrintDatToBinfile : public OpDump {};

TEST_F(OpPrintDatToBinfile, WritesAHeaderOfEightBytesAndTheValues) {
  std::vector<double> values{1, 2, 3, 4, 5, 6.5};
  op_print_dat_to_binfile(dat("double", values, 2), path("dat.bin").c_str());
  const std::string file = contents("dat.bin");
  ASSERT_EQ(file.size(), 8U + 48U);
  std::vector<int> header(2);
  std::vector<double> rows(6);
  std::memcpy(header.data(), file.data(), 8);
  std::memcpy(rows.data(), file.data() + 8, 48);
  EXPECT_EQ(header, (std::vector<int>{3, 2}));
  EXPECT_EQ(rows, values);
}

TEST_F(OpPrintDatToBinfile, WritesTheHeaderOfAnEmptySet) {
  std::vector<int> none;
  op_print_dat_to_binfile(dat("int", none, 3), path("dat.bin").c_str());
  EXPECT_EQ(contents("dat.bin").size(), 8U);
}

TEST_F(OpPrintDatToBinfile, ReportsWhatCannotBeWritten) {
  std::vector<int> values{1};
  const op_dat bed = dat("int", values);
  const std::string nowhere = path("nowhere") + "/dat.bin";
  expectExit([&] { op_print_dat_to_binfile(bed, nowhere.c_str()); }, 2,
             "can't open file " + nowhere + "\n");
  EXPECT_EXIT((outputToStderr(), op_print_dat_to_binfile(bed, "/dev/full")), ExitedWithCode(2),
              "error writing to /dev/full$");
  expectExit([&] { op_print_dat_to_binfile(nullptr, nowhere.c_str()); }, 2,
             "There is no dat to write to file " + nowhere + "\n");
}

// The header fits on the disk, the values do not.
TEST_F(OpPrintDatToBinfile, ReportsADiskThatIsFullBehindTheHeader) {
  std::vector<double> values(1000, 1.0);
  const op_dat bed = dat("double", values);
  const std::string file = path("dat.bin");
  for (const rlim_t bytes : {rlim_t{200}, rlim_t{4000}}) {
    EXPECT_EXIT(
        (outputToStderr(), op_test::limitFiles(bytes), op_print_dat_to_binfile(bed, file.c_str())),
        ExitedWithCode(2), literally("error writing to " + file + "\n"))
        << bytes;
  }
}

}  // namespace
