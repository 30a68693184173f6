#include "jsv/SchemaException.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace jsv {
namespace {

TEST(InvalidSchemaException, PutsThePlaceBeforeTheText) {
  EXPECT_STREQ(InvalidSchemaException(JsonPointer("/items/type"), "Some fault.").what(),
               "/items/type: Some fault.");
}

TEST(InvalidSchemaException, TheRootIsASlash) {
  EXPECT_STREQ(InvalidSchemaException(JsonPointer(), "Some fault.").what(), "/: Some fault.");
}

TEST(InvalidSchemaException, QuotesTheLibrary) {
  try {
    nlohmann::json::array().at(JsonPointer("/0"));
    FAIL() << "there is no element 0";
  } catch (const nlohmann::detail::exception& cause) {
    EXPECT_EQ(std::string(InvalidSchemaException(JsonPointer("/a~1b"), cause).what()),
              "/a~1b: Parsing the schema file failed (" + std::string(cause.what()) + ").");
  }
}

TEST(InvalidTypeSchemaException, SaysWhichTypeTheKeywordRequires) {
  using Exception = InvalidTypeSchemaException;
  EXPECT_EQ(Exception::createMessage(JsonTypeClass::Integer),
            "This keyword requires an integer parameter.");
  EXPECT_EQ(Exception::createMessage(JsonTypeClass::Number),
            "This keyword requires a number parameter.");
  EXPECT_EQ(Exception::createMessage(JsonTypeClass::String),
            "This keyword requires a string parameter.");
  EXPECT_EQ(Exception::createMessage(JsonTypeClass::Object),
            "This keyword requires an object parameter.");
  EXPECT_EQ(Exception::createMessage(JsonTypeClass::Array),
            "This keyword requires an array parameter.");
  EXPECT_STREQ(Exception(JsonPointer("/enum"), JsonTypeClass::Array).what(),
               "/enum: This keyword requires an array parameter.");
}

TEST(SchemaValidationException, IsTheBaseOfAllSchemaFaults) {
  static_assert(std::is_base_of_v<std::runtime_error, SchemaValidationException>);
  static_assert(std::is_base_of_v<SchemaValidationException, InvalidSchemaException>);
  EXPECT_THROW(throw InvalidTypeSchemaException(JsonPointer(), JsonTypeClass::Array),
               SchemaValidationException);
}

}  // namespace
}  // namespace jsv
