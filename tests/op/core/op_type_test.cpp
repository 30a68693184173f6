#include "op/core/op_type.h"

#include <gtest/gtest.h>

namespace {

TEST(OpTypeOf, KnowsTheNamesOfEachFamily) {
  for (const char* const name : {"double", "double:soa", "double precision", "real(8)"}) {
    EXPECT_EQ(op_type_of(name), op_type::Double) << name;
  }
  for (const char* const name : {"float", "float:soa", "real(4)", "real"}) {
    EXPECT_EQ(op_type_of(name), op_type::Float) << name;
  }
  for (const char* const name : {"int", "int:soa", "int(4)", "integer", "integer(4)"}) {
    EXPECT_EQ(op_type_of(name), op_type::Int) << name;
  }
  for (const char* const name : {"long", "long:soa"}) {
    EXPECT_EQ(op_type_of(name), op_type::Long) << name;
  }
  for (const char* const name : {"long long", "long long:soa"}) {
    EXPECT_EQ(op_type_of(name), op_type::LongLong) << name;
  }
}

TEST(OpTypeOf, KnowsNoOtherNames) {
  for (const char* const name : {"bool", "", "Double", "double:", "long double", "real(16)"}) {
    EXPECT_EQ(op_type_of(name), op_type::Unknown) << name;
  }
}

TEST(OpTypeIsStored, IsTrueOfTheNamesOfCOnly) {
  for (const char* const name : {"double", "double:soa", "float", "int:soa", "long", "long long"}) {
    EXPECT_TRUE(op_type_is_stored(name)) << name;
  }
  for (const char* const name :
       {"real(8)", "double precision", "real", "integer", "bool", ":soa"}) {
    EXPECT_FALSE(op_type_is_stored(name)) << name;
  }
}

}  // namespace
