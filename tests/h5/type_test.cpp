#include "h5/type.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using h5::Handle;
using h5::typeOf;

TEST(TypeOf, NumbersAreNative) {
  EXPECT_GT(H5Tequal(typeOf<int>().id(), H5T_NATIVE_INT), 0);
  EXPECT_GT(H5Tequal(typeOf<double>().id(), H5T_NATIVE_DOUBLE), 0);
}

TEST(TypeOf, StringsAreOfVariableLengthInUtf8EndedByZero) {
  const Handle type = typeOf<std::string>();
  EXPECT_GT(H5Tis_variable_str(type.id()), 0);
  EXPECT_EQ(H5Tget_cset(type.id()), H5T_CSET_UTF8);
  EXPECT_EQ(H5Tget_strpad(type.id()), H5T_STR_NULLTERM);
}

}  // namespace
