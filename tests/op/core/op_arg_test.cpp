#include "op/core/op_arg.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "op/core/op_seq.h"
#include "op/op_test_support.h"

namespace {

using op_test::outputOf;

class OpArg : public op_test::RuntimeTest {
 protected:
  op_set edges_ = nullptr;
  op_set cells_ = nullptr;
  op_map map_ = nullptr;
  op_dat dat_ = nullptr;
  std::vector<int> table_{0, 1, 1, 0};
  std::vector<double> values_{1, 2, 3, 4};

  void SetUp() override {
    RuntimeTest::SetUp();
    edges_ = op_decl_set(2, "edges");
    cells_ = op_decl_set(2, "cells");
    map_ = op_decl_map(edges_, cells_, 2, table_.data(), "edges/cells");
    dat_ = op_decl_dat_char(cells_, 2, "double", 8, reinterpret_cast<char*>(values_.data()), "bed");
  }
};

TEST_F(OpArg, OfADatThroughAMap) {
  const op_arg arg = op_arg_dat(dat_, 1, map_, 2, "double", OP_RW);
  EXPECT_EQ(arg.index, -1);
  EXPECT_EQ(arg.dat, dat_);
  EXPECT_EQ(arg.map, map_);
  EXPECT_EQ(arg.dim, 2);
  EXPECT_EQ(arg.idx, 1);
  EXPECT_EQ(arg.size, 16);
  EXPECT_EQ(arg.data, dat_->data);
  EXPECT_EQ(arg.data_d, nullptr);
  EXPECT_EQ(arg.map_data, table_.data());
  EXPECT_EQ(arg.map_data_d, nullptr);
  EXPECT_STREQ(arg.type, "double");
  EXPECT_EQ(arg.acc, OP_RW);
  EXPECT_EQ(arg.argtype, 1);
  EXPECT_EQ(arg.opt, 1);
}

TEST_F(OpArg, DirectAccessIgnoresTheMap) {
  EXPECT_EQ(op_arg_dat(dat_, -1, map_, 2, "double", OP_READ).map_data, nullptr);
}

TEST_F(OpArg, OptionalAccessTakesTheTableOfTheMapAnyway) {
  EXPECT_EQ(op_opt_arg_dat(1, dat_, -1, map_, 2, "double", OP_READ).map_data, table_.data());
  EXPECT_EQ(op_opt_arg_dat(0, nullptr, 0, map_, 2, "double", OP_READ).map_data, table_.data());
  EXPECT_EQ(op_opt_arg_dat(1, dat_, -1, nullptr, 2, "double", OP_READ).map_data, nullptr);
}

TEST_F(OpArg, VectorAccessTakesTheTable) {
  EXPECT_EQ(op_arg_dat(dat_, -2, map_, 2, "double", OP_READ).map_data, table_.data());
}

TEST_F(OpArg, OptionalAccessKeepsTheCallersFlag) {
  EXPECT_EQ(op_opt_arg_dat(0, dat_, 0, map_, 2, "double", OP_READ).opt, 0);
  EXPECT_EQ(op_opt_arg_dat(1, dat_, 0, map_, 2, "double", OP_READ).opt, 1);
}

TEST_F(OpArg, WithoutADatHasNoData) {
  const op_arg arg = op_arg_dat(nullptr, 0, map_, 2, "double", OP_READ);
  EXPECT_EQ(arg.data, nullptr);
  EXPECT_EQ(arg.size, -1);
  EXPECT_EQ(arg.map_data, nullptr);
}

TEST_F(OpArg, SharesTheUsualTypeStrings) {
  for (const std::string type : {"double", "float", "int", "bool"}) {
    const std::string copy = type;
    const char* const first = op_arg_dat(dat_, -1, nullptr, 2, type.c_str(), OP_READ).type;
    EXPECT_EQ(first, op_arg_dat(dat_, -1, nullptr, 2, copy.c_str(), OP_READ).type);
    EXPECT_EQ(first, type);
  }
}

TEST_F(OpArg, KeepsACopyOfOtherTypeStrings) {
  std::string type = "double:soa";
  const op_arg arg = op_arg_dat(dat_, -1, nullptr, 2, type.c_str(), OP_READ);
  type = "overwritten";
  EXPECT_STREQ(arg.type, "double:soa");
}

TEST_F(OpArg, OfAGlobal) {
  double value = 1.5;
  const op_arg arg = op_arg_gbl(&value, 3, "double", OP_MIN);
  EXPECT_EQ(arg.index, -1);
  EXPECT_EQ(arg.dat, nullptr);
  EXPECT_EQ(arg.map, nullptr);
  EXPECT_EQ(arg.dim, 3);
  EXPECT_EQ(arg.idx, -1);
  EXPECT_EQ(arg.size, 24);
  EXPECT_EQ(arg.data, reinterpret_cast<char*>(&value));
  EXPECT_EQ(arg.map_data, nullptr);
  EXPECT_STREQ(arg.type, "double");
  EXPECT_EQ(arg.acc, OP_MIN);
  EXPECT_EQ(arg.argtype, 0);
  EXPECT_EQ(arg.opt, 1);
  int flag = 0;
  EXPECT_EQ(op_arg_gbl(&flag, 2, "int", OP_MAX).size, 8);
}

TEST_F(OpArg, OfANullGlobalIsNotInUse) {
  EXPECT_EQ(op_arg_gbl(static_cast<double*>(nullptr), 1, "double", OP_READ).opt, 0);
}

TEST_F(OpArg, OfAGlobalOfUnknownTypeHasNoType) {
  char value = 0;
  EXPECT_EQ(op_arg_gbl_char(&value, 1, "char", 1, OP_READ).type, nullptr);
}

class OpArgCheck : public OpArg {
 protected:
  int ninds_ = 0;

  std::string check(op_set set, const op_arg& arg) {
    return outputOf([&] { op_arg_check(set, 4, arg, &ninds_, "loop"); });
  }
  static std::string error(const std::string& message) {
    return "error: arg 4 in kernel \"loop\"\n" + message + " \n";
  }
};

TEST_F(OpArgCheck, AcceptsWhatFits) {
  EXPECT_EQ(check(cells_, op_arg_dat(dat_, -1, nullptr, 2, "double", OP_READ)), "");
  EXPECT_EQ(ninds_, 0);
  EXPECT_EQ(check(edges_, op_arg_dat(dat_, 1, map_, 2, "double", OP_READ)), "");
  EXPECT_EQ(ninds_, 1);
  EXPECT_EQ(check(edges_, op_arg_dat(dat_, -2, map_, 2, "double", OP_READ)), "");
  EXPECT_EQ(ninds_, 1);
  EXPECT_EQ(check(cells_, op_arg_gbl(values_.data(), 1, "double", OP_READ)), "");
}

TEST_F(OpArgCheck, PassesOverWhatIsNotInUse) {
  EXPECT_EQ(check(nullptr, op_opt_arg_dat(0, dat_, 5, map_, 9, "int", OP_READ)), "");
  EXPECT_EQ(ninds_, 0);
}

TEST_F(OpArgCheck, ReportsAMissingSet) {
  EXPECT_EQ(check(nullptr, op_arg_dat(dat_, -1, nullptr, 2, "double", OP_READ)),
            error("invalid set"));
}

TEST_F(OpArgCheck, ReportsAMissingDat) {
  EXPECT_EQ(check(cells_, op_arg_dat(nullptr, -1, nullptr, 2, "double", OP_READ)),
            error("invalid dat"));
}

TEST_F(OpArgCheck, ReportsAMapThatLeadsElsewhere) {
  EXPECT_EQ(check(cells_, op_arg_dat(dat_, 0, map_, 2, "double", OP_READ)), error("mapping error"));
}

TEST_F(OpArgCheck, ReportsADatOfAnotherSet) {
  EXPECT_EQ(check(edges_, op_arg_dat(dat_, -1, nullptr, 2, "double", OP_READ)),
            error("dataset set does not match loop set"));
}

TEST_F(OpArgCheck, ReportsAnIndexOutOfRange) {
  EXPECT_EQ(check(cells_, op_arg_dat(dat_, 0, nullptr, 2, "double", OP_READ)),
            error("invalid index"));
  EXPECT_EQ(check(edges_, op_arg_dat(dat_, 2, map_, 2, "double", OP_READ)), error("invalid index"));
  EXPECT_EQ(check(edges_, op_arg_dat(dat_, -3, map_, 2, "double", OP_READ)),
            error("invalid index"));
}

TEST_F(OpArgCheck, ReportsAnotherDim) {
  EXPECT_EQ(check(cells_, op_arg_dat(dat_, -1, nullptr, 1, "double", OP_READ)),
            error("dataset dim does not match declared dim"));
}

TEST_F(OpArgCheck, ReportsAnotherType) {
  EXPECT_EQ(check(cells_, op_arg_dat(dat_, -1, nullptr, 2, "int", OP_READ)),
            "cells double int (bed)\n" + error("dataset type does not match declared type"));
}

TEST_F(OpArgCheck, AcceptsTheShortFormsOfTypes) {
  const op_dat soa = op_decl_dat_char(cells_, 2, "double:soa", 8, dat_->data, "soa");
  const op_dat whole = op_decl_dat_char(cells_, 2, "int", 4, dat_->data, "whole");
  const auto passes = [&](op_dat dat, const char* type) {
    return check(cells_, op_arg_dat(dat, -1, nullptr, 2, type, OP_READ)).empty();
  };
  EXPECT_TRUE(passes(dat_, "r8"));
  EXPECT_TRUE(passes(dat_, "r8x"));
  EXPECT_FALSE(passes(dat_, "r8:soa"));
  EXPECT_FALSE(passes(dat_, "i4"));
  EXPECT_TRUE(passes(soa, "r8:soa"));
  EXPECT_FALSE(passes(soa, "r8"));
  EXPECT_TRUE(passes(whole, "i4"));
  EXPECT_FALSE(passes(whole, "r8"));
}

TEST_F(OpArgCheck, ReportsGlobals) {
  char value = 0;
  EXPECT_EQ(check(cells_, op_arg_gbl_char(&value, 1, "char", 1, OP_READ)),
            error("datatype does not match declared type"));
  EXPECT_EQ(check(cells_, op_arg_gbl(values_.data(), 0, "double", OP_READ)),
            error("dimension should be strictly positive"));
  op_arg arg = op_arg_gbl(values_.data(), 1, "double", OP_READ);
  arg.data = nullptr;
  EXPECT_EQ(check(cells_, arg), error("NULL pointer for global data"));
  arg = op_arg_gbl(values_.data(), 1, "double", OP_READ);
  arg.type = "error";
  EXPECT_EQ(check(cells_, arg), error("datatype does not match declared type"));
}

TEST(OpTypeEquivalence, HoldsWithinEachGroup) {
  const std::vector<std::vector<const char*>> groups{
      {"double", "double:soa", "real(8)", "double precision"},
      {"float", "float:soa", "real(4)", "real"},
      {"int", "int:soa", "integer(4)", "integer"},
  };
  for (const auto& one : groups) {
    for (const auto& other : groups) {
      for (const char* const a : one) {
        for (const char* const b : other) {
          EXPECT_EQ(op_type_equivalence(a, b), &one == &other) << a << ", " << b;
        }
      }
    }
  }
}

TEST(OpTypeEquivalence, LeavesOtherTypesInNoGroup) {
  EXPECT_FALSE(op_type_equivalence("int(4)", "int"));
  EXPECT_FALSE(op_type_equivalence("int(4)", "int(4)"));
  EXPECT_FALSE(op_type_equivalence("long", "long"));
}

}  // namespace
