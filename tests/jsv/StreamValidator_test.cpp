#include "jsv/StreamValidator.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>

#include "jsv/report.h"

namespace jsv {
namespace {

using test::schemaFault;
using test::validate;
using ::testing::HasSubstr;
using ::testing::StartsWith;

std::string repeated(const std::string& text, std::size_t times) {
  std::string result;
  for (std::size_t i = 0; i < times; ++i) result += text;
  return result;
}

std::string nested(const std::string& open, const std::string& inner, const std::string& close,
                   std::size_t levels) {
  return repeated(open, levels) + inner + repeated(close, levels);
}

std::string listOf(std::size_t length, const std::string& item) {
  return "[" + (length == 0 ? "" : item + repeated("," + item, length - 1)) + "]";
}

TEST(StreamValidator, WritesNothingForACleanDocument) {
  const auto report = validate(R"({"a": 1})", R"({"required": ["a"]})");
  EXPECT_EQ(report.verdict, 0);
  EXPECT_EQ(report.text, "");
}

TEST(StreamValidator, WritesNothingForInformation) {
  const auto report = validate("1", R"({"description": "A number.", "type": "number",
      "default": 2, "optional": []})");
  EXPECT_EQ(report.verdict, 0);
  EXPECT_EQ(report.text, "");
}

TEST(StreamValidator, WarningsAloneGiveOne) {
  const auto report = validate(R"({"a": 1})", "{}");
  EXPECT_EQ(report.verdict, 1);
  EXPECT_EQ(report.text, "/a: The value of this item will not be used.\n");
}

TEST(StreamValidator, AnErrorAmongWarningsGivesTwo) {
  const auto report = validate(R"({"a": 1})", R"({"required": ["b"]})");
  EXPECT_EQ(report.verdict, 2);
  EXPECT_EQ(report.text,
            "/a: The value of this item will not be used.\n"
            "/b: This item is required but missing.\n");
}

TEST(StreamValidator, ReportsAllFaultsInTheOrderOfTheirPlaces) {
  const auto report = validate(
      R"({"z": "x", "list": ["a",1,"b",1,1,1,1,1,1,1,1], "number": -1, "y": {"k": 1}})", R"({
      "required": ["z", "list", "number", "absent"],
      "properties": {
        "z": {"type": "number"},
        "list": {"items": {"type": "string", "enum": ["b", "a"]}},
        "number": {"minimum": 0, "type": "string"}}})");
  EXPECT_EQ(report.verdict, 2);
  const auto faults = [](const std::string& index) {
    return "/list/" + index + ": This value must be equal to one of the following: 'a', 'b'.\n" +
           "/list/" + index + ": This value must be a string.\n";
  };
  EXPECT_EQ(report.text, "/absent: This item is required but missing.\n" + faults("1") +
                             faults("10") + faults("3") + faults("4") + faults("5") + faults("6") +
                             faults("7") + faults("8") + faults("9") +
                             "/number: This value must be greater than or equal to 0.000000.\n"
                             "/number: This value must be a string.\n"
                             "/y: The value of this item will not be used.\n"
                             "/y/k: The value of this item will not be used.\n"
                             "/z: This value must be a number.\n");
}

TEST(StreamValidator, TheSameFaultAtOnePlaceIsReportedOnce) {
  const auto report = validate("{}", R"({"required": ["a", "a"], "oneOf": [{"required": ["b"]}]})");
  EXPECT_EQ(report.text,
            "/: One of the following items must be provided: 'b'.\n"
            "/a: This item is required but missing.\n");
}

TEST(StreamValidator, ABooleanIsNoNumber) {
  const auto report =
      validate(R"({"a": true})", R"({"required": ["a"], "properties": {"a": {"type": "number"}}})");
  EXPECT_EQ(report.verdict, 2);
  EXPECT_EQ(report.text, "/a: This value must be a number.\n");
}

TEST(StreamValidator, PlacesAreEscaped) {
  const auto report = validate(R"({"a/b": {"c~d": 1, "": {"": 2}}, "Gefälle": 1})", "{}");
  EXPECT_EQ(report.text,
            "/Gefälle: The value of this item will not be used.\n"
            "/a~1b: The value of this item will not be used.\n"
            "/a~1b/: The value of this item will not be used.\n"
            "/a~1b//: The value of this item will not be used.\n"
            "/a~1b/c~0d: The value of this item will not be used.\n");
}

TEST(StreamValidator, OddNamesCanBeRequiredAndHaveSchemas) {
  const auto report = validate(R"({"a/b": 1, "": 1, "~1": 1, "é": 1, "0": 1})", R"({
      "required": ["a/b", "", "~1", "é", "0", "~0/"],
      "properties": {"a/b": {"type": "string"}, "": {"type": "string"}, "~1": {"type": "string"},
                     "é": {"type": "string"}, "0": {"type": "string"}}})");
  EXPECT_EQ(report.text,
            "/: This value must be a string.\n"
            "/0: This value must be a string.\n"
            "/a~1b: This value must be a string.\n"
            "/~00~1: This item is required but missing.\n"
            "/~01: This value must be a string.\n"
            "/é: This value must be a string.\n");
}

TEST(StreamValidator, ADocumentThatIsNoJsonIsReportedBeforeTheSchemaIsRead) {
  std::istringstream document("start = 0");
  std::istringstream schema("{}");
  std::ostringstream output;
  EXPECT_EQ(StreamValidator(&output).validate(document, schema), 2);
  EXPECT_EQ(output.str(),
            "Parsing the JSON data file failed: [json.exception.parse_error.101] parse error at "
            "line 1, column 1: syntax error while parsing value - invalid literal; last read: "
            "'s'\n");
  EXPECT_EQ(schema.tellg(), 0);
}

TEST(StreamValidator, ASchemaThatIsNoJsonIsReported) {
  const auto report = validate("{}", R"({"type": })");
  EXPECT_EQ(report.verdict, 2);
  EXPECT_THAT(report.text, StartsWith("Parsing the JSON schema file failed: "
                                      "[json.exception.parse_error.101] parse error at line 1, "
                                      "column 10: "));
}

TEST(StreamValidator, UnreadableDocumentsAreRefused) {
  for (const auto* document :
       {"", " ", "{} {}", "{}x", "[1,]", "{\"a\": 1", "\"\xff\"", "nul", "1e999"}) {
    const auto report = validate(document, "true");
    EXPECT_EQ(report.verdict, 2) << document;
    EXPECT_THAT(report.text, StartsWith("Parsing the JSON data file failed: [json.exception."))
        << document;
  }
}

TEST(StreamValidator, AFaultySchemaIsReportedAlone) {
  const auto report = validate(R"({"a": 1})", R"({"required": ["b"], "type": 3})");
  EXPECT_EQ(report.verdict, 2);
  EXPECT_EQ(report.text, schemaFault("/type: This keyword requires a string parameter."));
}

TEST(StreamValidator, NeedsNoOutput) {
  std::istringstream document(R"({"a": 1})");
  std::istringstream schema(R"({"required": ["b"]})");
  EXPECT_EQ(StreamValidator(nullptr).validate(document, schema), 2);
}

TEST(StreamValidator, AMessageIsALineAndAnEmptyOneIsNothing) {
  std::ostringstream output;
  const StreamValidator validator(&output);
  validator.outputMessage("");
  EXPECT_EQ(output.str(), "");
  validator.outputMessage("text");
  EXPECT_EQ(output.str(), "text\n");
  StreamValidator(nullptr).outputMessage("text");
}

TEST(StreamValidator, TheDeepestDocumentIsReportedInFull) {
  const auto report = validate(nested("{\"a\":", "1", "}", MAX_NESTING), "{}");
  EXPECT_EQ(report.verdict, 1);
  EXPECT_THAT(report.text, HasSubstr("\n" + repeated("/a", MAX_NESTING) +
                                     ": The value of this item will not be used.\n"));
}

TEST(StreamValidator, TheDeepestDocumentIsWalkedWithADeepSchema) {
  const auto depth = MAX_NESTING / 2 - 1;
  const auto schema =
      nested(R"({"required":["a"],"properties":{"a":)", R"({"type":"string"})", "}}", depth);
  EXPECT_EQ(validate(nested("{\"a\":", "1", "}", depth), schema).text,
            repeated("/a", depth) + ": This value must be a string.\n");
  EXPECT_EQ(validate(nested("[", "1", "]", depth),
                     nested(R"({"items":)", R"({"type":"string"})", "}", depth))
                .text,
            repeated("/0", depth) + ": This value must be a string.\n");
}

TEST(StreamValidator, DeepCasesAreFollowed) {
  const auto schema = nested(R"({"properties":{"k":{"const":"x"}},"oneOf":[)",
                             R"({"properties":{"k":{"const":"x"}},"required":["b"]})", "]}", 300);
  EXPECT_EQ(validate(R"({"k": "x"})", R"({"oneOf": [)" + schema + "]}").text,
            "/b: This item is required but missing.\n");
}

TEST(StreamValidator, DeeperDocumentsAndSchemasAreRefused) {
  const auto refusal = "nested too deeply, at most 1024 levels can be read\n";
  for (const std::size_t levels : {MAX_NESTING + 1, std::size_t{1000000}}) {
    const auto document = validate(nested("{\"a\":", "1", "}", levels), "{}");
    EXPECT_EQ(document.verdict, 2);
    EXPECT_EQ(document.text, std::string("Parsing the JSON data file failed: ") + refusal);
    const auto schema = validate("[]", nested("[", "", "]", levels));
    EXPECT_EQ(schema.verdict, 2);
    EXPECT_EQ(schema.text, std::string("Parsing the JSON schema file failed: ") + refusal);
  }
}

TEST(StreamValidator, AnUnfinishedDeepDocumentIsNoJson) {
  EXPECT_THAT(validate(repeated("[", 1000000), "{}").text,
              StartsWith("Parsing the JSON data file failed: [json.exception.parse_error.101]"));
}

// Quadratic time would turn each of these into minutes.

TEST(StreamValidator, ALongListIsChecked) {
  constexpr std::size_t LENGTH = 100000;
  const auto report = validate(listOf(LENGTH, "\"c\""), R"({"items": {"enum": ["a", "b"]}})");
  EXPECT_EQ(report.verdict, 2);
  EXPECT_EQ(std::count(report.text.begin(), report.text.end(), '\n'), LENGTH);
  EXPECT_THAT(report.text,
              HasSubstr("\n/99999: This value must be equal to one of the following: 'a', 'b'.\n"));
}

TEST(StreamValidator, ALongListOfReferencesIntoALongListIsChecked) {
  constexpr std::size_t LENGTH = 100000;
  const auto document = R"({"names": )" + listOf(LENGTH, R"({"id":"x"})") + R"(, "references": )" +
                        listOf(LENGTH, "\"x\"") + "}";
  const auto report = validate(document, R"({"optional": ["names", "references"], "properties": {
      "references": {"items": {"requiredIn": {"$array_ref": "/names", "itemProperty": "id"}}}}})");
  EXPECT_EQ(report.verdict, 0);
  EXPECT_EQ(report.text, "");
}

TEST(StreamValidator, AnObjectOfManyUnknownItemsIsReported) {
  constexpr std::size_t LENGTH = 100000;
  nlohmann::json document;
  for (std::size_t i = 0; i < LENGTH; ++i) document["key" + std::to_string(i)] = i;
  const auto report = validate(document.dump(), "{}");
  EXPECT_EQ(report.verdict, 1);
  EXPECT_EQ(std::count(report.text.begin(), report.text.end(), '\n'), LENGTH);
}

}  // namespace
}  // namespace jsv
