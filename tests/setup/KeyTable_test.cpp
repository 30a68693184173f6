#include "setup/KeyTable.h"

#include <gtest/gtest.h>

#include "setup/faults.h"

using nlohmann::json;
using setup::Kind;
using setup::Range;

namespace {

// clang-format off
const setup::KeyTable TABLE = {
  {"BASIN",        Kind::Group,  {.required = true}},
  {"BASIN/depth",  Kind::Number, {.required = true, .range = Range::Positive}},
  {"BASIN/fill",   Kind::Number, {.range = Range::UpToOne}},
  {"BASIN/name",   Kind::Text},
  {"BASIN/open",   Kind::Flag},
  {"BASIN/count",  Kind::Integer},
  {"BASIN/level",  Kind::Level},
  {"BASIN/at",     Kind::Point},
  {"BASIN/box",    Kind::Box},
  {"BASIN/two",    Kind::Counts2, {.range = Range::Positive}},
  {"BASIN/three",  Kind::Counts3},
  {"BASIN/colour", Kind::Text,   {.choices = {"red", "blue"}}},
  {"GATES",        Kind::Groups},
  {"GATES[]/sill", Kind::Number, {.required = true, .range = Range::NotNegative}},
};
// clang-format on

void check(const std::string& document) {
  setup::checkKeys(json::parse(document), TABLE, "s.json");
}

/// A value for a key of the basin, and what is said of it; nothing if it is sound.
struct Value {
  std::string key;
  std::string text;
  std::string message;
};

class KeyTableValue : public ::testing::TestWithParam<Value> {};

}  // namespace

TEST_P(KeyTableValue, isCheckedForItsKind) {
  const auto& [key, text, message] = GetParam();
  const std::string depth = key == "depth" ? "" : "\"depth\": 1, ";
  const std::string document = R"({"BASIN": {)" + depth + "\"" + key + "\": " + text + "}}";
  if (message.empty()) {
    EXPECT_NO_THROW(check(document));
  } else {
    EXPECT_EQ(faults::messageOf([&document] { check(document); }),
              "study file <s.json>: key <BASIN/" + key + "> must be " + message);
  }
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(All, KeyTableValue, ::testing::Values(
  Value{"depth",  "2",               ""},
  Value{"depth",  "\"2\"",           "a number, but is \"2\""},
  Value{"depth",  "0",               "greater than 0, but is 0"},
  Value{"fill",   "1.0",             ""},
  Value{"fill",   "1.5",             "greater than 0 and at most 1, but is 1.5"},
  Value{"name",   "\"a\"",           ""},
  Value{"name",   "\"\"",            "a text, but is \"\""},
  Value{"name",   "7",               "a text, but is 7"},
  Value{"open",   "false",           ""},
  Value{"open",   "0",               "true or false, but is 0"},
  Value{"count",  "-3",              ""},
  Value{"count",  "2.5",             "a whole number, but is 2.5"},
  Value{"count",  "3000000000",      "a whole number, but is 3000000000"},
  Value{"level",  "-1.5",            ""},
  Value{"level",  "\"dry\"",         ""},
  Value{"level",  "\"wet\"",         "a number or \"dry\", but is \"wet\""},
  Value{"at",     "[1, 2.5]",        ""},
  Value{"at",     "[1]",             "a list of two numbers, [x, y], but is [1]"},
  Value{"box",    "[0, 0, 1, 2]",    ""},
  Value{"box",    "[0, 0, 0, 2]",    "a list of four numbers, [xmin, ymin, xmax, ymax], but is [0,0,0,2]"},
  Value{"box",    "[0, 3, 1, 2]",    "a list of four numbers, [xmin, ymin, xmax, ymax], but is [0,3,1,2]"},
  Value{"two",    "[1, 2]",          ""},
  Value{"two",    "[1, 2.5]",        "a list of two whole numbers, but is [1,2.5]"},
  Value{"two",    "[1, 0]",          "greater than 0, but is 0"},
  Value{"three",  "[1, 2, 3]",       ""},
  Value{"three",  "[1, 2]",          "a list of three whole numbers, but is [1,2]"},
  Value{"colour", "\"blue\"",        ""},
  Value{"colour", "\"green\"",       "one of \"red\", \"blue\", but is \"green\""}
));
// clang-format on

TEST(KeyTable, acceptsASoundDocument) {
  EXPECT_NO_THROW(check(R"({"BASIN": {"depth": 1}, "GATES": [{"sill": 0}, {"sill": 2.5}]})"));
}

TEST(KeyTable, refusesADocumentThatIsNoObject) {
  EXPECT_EQ(faults::messageOf([] { check("[1]"); }),
            "study file <s.json>: the document must be an object, but is array");
}

TEST(KeyTable, refusesAnUnknownKeyAndNamesThePossibleOnes) {
  EXPECT_EQ(faults::messageOf([] { check(R"({"BASIN": {"depth": 1}, "GATE": 1})"); }),
            "study file <s.json>: unknown key <GATE>, possible are: BASIN, GATES");
}

TEST(KeyTable, refusesAnUnknownKeyInAList) {
  EXPECT_EQ(faults::messageOf(
                [] { check(R"({"BASIN": {"depth": 1}, "GATES": [{"sill": 1}, {"sil": 1}]})"); }),
            "study file <s.json>: unknown key <GATES[1]/sil>, possible are: sill");
}

TEST(KeyTable, aSlashInAKeyDoesNotReachIntoAGroup) {
  EXPECT_EQ(faults::messageOf([] { check(R"({"BASIN": {"depth": 1}, "BASIN/depth": 1})"); }),
            "study file <s.json>: unknown key <BASIN/depth>, possible are: BASIN, GATES");
}

TEST(KeyTable, refusesAMissingKey) {
  EXPECT_EQ(faults::messageOf([] { check(R"({"GATES": [{"sill": 1}]})"); }),
            "study file <s.json>: key <BASIN> is missing");
  EXPECT_EQ(faults::messageOf([] { check(R"({"BASIN": {"name": "a"}})"); }),
            "study file <s.json>: key <BASIN/depth> is missing");
}

TEST(KeyTable, refusesAnEmptyGroup) {
  EXPECT_EQ(faults::messageOf([] { check(R"({"BASIN": {}})"); }),
            "study file <s.json>: key <BASIN> must be an object with at least one key, but is {}");
}

TEST(KeyTable, refusesAListThatHoldsOtherThanGroups) {
  EXPECT_EQ(faults::messageOf([] { check(R"({"BASIN": {"depth": 1}, "GATES": [1]})"); }),
            "study file <s.json>: key <GATES> must be a list of objects that are not empty, but "
            "is [1]");
  EXPECT_EQ(faults::messageOf([] { check(R"({"BASIN": {"depth": 1}, "GATES": []})"); }),
            "study file <s.json>: key <GATES> must be a list of objects that are not empty, but "
            "is []");
}
