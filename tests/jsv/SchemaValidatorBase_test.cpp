#include "jsv/SchemaValidatorBase.h"

#include <gtest/gtest.h>

#include "jsv/SchemaException.h"

namespace jsv {
namespace {

using nlohmann::json;

class SchemaValidatorBaseTest : public ::testing::Test {
 protected:
  /// The fault that `access` raises; empty if there is none.
  template <class Access>
  std::string faultOf(const Access& access) const {
    try {
      access(validator_);
      return "";
    } catch (const InvalidSchemaException& fault) {
      return fault.what();
    }
  }

  template <JsonTypeClass TYPE_CLASS>
  std::string typeFault(const std::string& pointer) const {
    return faultOf([&](const auto& validator) {
      validator.template throwIfTypeIsNot<TYPE_CLASS>(JsonPointer(pointer));
    });
  }

  std::string sizeFault(const std::string& pointer) const {
    return faultOf(
        [&](const auto& validator) { validator.throwIfSizeNotOne(JsonPointer(pointer)); });
  }

  const json document_ = json::parse(R"({"a": [1, 2]})");
  const json schema_ = json::parse(R"({
    "integer": 1, "number": 1.5, "string": "text", "object": {"only": 1}, "array": [1, 2],
    "empty": [], "boolean": true, "null": null})");
  const SchemaValidatorBase validator_{document_, schema_};
};

TEST_F(SchemaValidatorBaseTest, RefersToTheDocumentsWithoutCopies) {
  EXPECT_EQ(&validator_.json(JsonPointer("/a/1")), &document_["a"][1]);
  EXPECT_EQ(&validator_.schema(JsonPointer("/object")), &schema_["object"]);
  EXPECT_EQ(&validator_.schema(JsonPointer()), &schema_);
}

TEST_F(SchemaValidatorBaseTest, GoesOnUnderAnotherSchema) {
  const json other = {{"type", "string"}};
  const SchemaValidatorBase below(validator_, other);
  EXPECT_EQ(&below.json(JsonPointer("/a")), &document_["a"]);
  EXPECT_EQ(&below.schema(JsonPointer()), &other);
}

TEST_F(SchemaValidatorBaseTest, AccessToTheDocumentIsChecked) {
  EXPECT_THROW(validator_.json(JsonPointer("/a/2")), json::exception);
  EXPECT_THROW(validator_.json(JsonPointer("/b")), json::exception);
}

TEST_F(SchemaValidatorBaseTest, AMissingItemOfTheSchemaIsRequired) {
  for (const auto* pointer : {"/absent", "/array/2", "/string/x", "/null/x", "/array/-"}) {
    EXPECT_EQ(faultOf([&](const auto& validator) { validator.schema(JsonPointer(pointer)); }),
              std::string(pointer) + ": This item is required.");
  }
}

TEST_F(SchemaValidatorBaseTest, ANameWhereTheSchemaHasAnArrayIsQuotedFromTheLibrary) {
  EXPECT_EQ(
      faultOf([](const auto& validator) { validator.schema(JsonPointer("/array/required")); }),
      "/array/required: Parsing the schema file failed ([json.exception.parse_error.109] parse "
      "error: array index 'required' is not a number).");
}

TEST_F(SchemaValidatorBaseTest, TellsWhetherAPathExists) {
  for (const auto* pointer : {"", "/object", "/object/only", "/array/1", "/null"}) {
    EXPECT_TRUE(validator_.validSchemaPath(JsonPointer(pointer))) << pointer;
  }
  for (const auto* pointer :
       {"/absent", "/object/x", "/array/2", "/array/x", "/array/xy", "/array/", "/array/-",
        "/array/01", "/string/0", "/null/0", "/array/99999999999999999999"}) {
    EXPECT_FALSE(validator_.validSchemaPath(JsonPointer(pointer))) << pointer;
  }
}

TEST_F(SchemaValidatorBaseTest, ValuesOfTheRightClassPass) {
  EXPECT_EQ(typeFault<JsonTypeClass::Integer>("/integer"), "");
  EXPECT_EQ(typeFault<JsonTypeClass::Number>("/integer"), "");
  EXPECT_EQ(typeFault<JsonTypeClass::Number>("/number"), "");
  EXPECT_EQ(typeFault<JsonTypeClass::String>("/string"), "");
  EXPECT_EQ(typeFault<JsonTypeClass::Object>("/object"), "");
  EXPECT_EQ(typeFault<JsonTypeClass::Array>("/array"), "");
}

TEST_F(SchemaValidatorBaseTest, ValuesOfAnotherClassAreFaults) {
  EXPECT_EQ(typeFault<JsonTypeClass::Integer>("/number"),
            "/number: This keyword requires an integer parameter.");
  EXPECT_EQ(typeFault<JsonTypeClass::Number>("/string"),
            "/string: This keyword requires a number parameter.");
  EXPECT_EQ(typeFault<JsonTypeClass::String>("/object"),
            "/object: This keyword requires a string parameter.");
  EXPECT_EQ(typeFault<JsonTypeClass::Object>("/array"),
            "/array: This keyword requires an object parameter.");
  EXPECT_EQ(typeFault<JsonTypeClass::Array>("/boolean"),
            "/boolean: This keyword requires an array parameter.");
  EXPECT_EQ(typeFault<JsonTypeClass::Array>(""), "/: This keyword requires an array parameter.");
}

TEST_F(SchemaValidatorBaseTest, AMissingValueHasNoClass) {
  EXPECT_EQ(typeFault<JsonTypeClass::Array>("/absent"), "/absent: This item is required.");
}

TEST_F(SchemaValidatorBaseTest, OnlyASingleElementHasSizeOne) {
  EXPECT_EQ(sizeFault("/object"), "");
  EXPECT_EQ(sizeFault("/array"), "/array: Only single items are supported.");
  EXPECT_EQ(sizeFault("/empty"), "/empty: Only single items are supported.");
  EXPECT_EQ(sizeFault("/absent"), "/absent: This item is required.");
}

}  // namespace
}  // namespace jsv
