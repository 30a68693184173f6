#include "setup/study/document/study_document.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "setup/faults.h"
#include "setup/studies.h"
#include "support/Process.h"
#include "support/TempDir.h"

using nlohmann::json;
using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::StartsWith;

namespace {

class StudyDocument : public ::testing::Test {
 protected:
  json read(const std::string& text) {
    support::writeFile(file, text);
    return setup::readStudyDocument(file);
  }

  struct Refusal {
    std::string report;   ///< on standard output
    std::string message;  ///< on standard error
  };

  Refusal refusalOf(const std::string& text) {
    ::testing::internal::CaptureStdout();
    const std::string message = faults::messageOf([&] { read(text); });
    return {::testing::internal::GetCapturedStdout(), message};
  }

  Refusal refusalOf(const std::string& place, const json& value) {
    json study = studies::withRectangle();
    study[json::json_pointer(place)] = value;
    return refusalOf(study.dump());
  }

  const support::TempDir dir;
  const std::string file = dir.file("s.json");
  const std::string start = "study file <" + file + ">";
  const std::string terminating =
      "Terminating setup due to JSON validation errors in study file <" + file + ">";
};

}  // namespace

TEST_F(StudyDocument, IsGivenAsItIsAndWithoutAWord) {
  for (const json& study : studies::all()) {
    ::testing::internal::CaptureStdout();
    EXPECT_EQ(read(study.dump(2)), study);
    EXPECT_EQ(::testing::internal::GetCapturedStdout(), "");
  }
}

TEST_F(StudyDocument, MayBeginWithAByteOrderMark) {
  EXPECT_EQ(read("\xEF\xBB\xBF" + studies::withFile().dump()), studies::withFile());
}

TEST_F(StudyDocument, IsRefusedIfTheFileCannotBeRead) {
  EXPECT_EQ(faults::messageOf([&] { setup::readStudyDocument(dir.file("none.json")); }),
            "study file <" + dir.file("none.json") + "> cannot be read");
}

TEST_F(StudyDocument, IsRefusedIfItIsNotJson) {
  const Refusal refusal = refusalOf("{\"SETUP\": \n oops}");
  EXPECT_EQ(refusal.report, "");
  EXPECT_THAT(refusal.message, AllOf(StartsWith(start + " is not a JSON document: "),
                                     HasSubstr("line 2, column 2")));
}

TEST_F(StudyDocument, IsRefusedIfItIsNestedTooDeeply) {
  const Refusal refusal = refusalOf(std::string(100000, '[') + std::string(100000, ']'));
  EXPECT_EQ(refusal.report,
            "Parsing the JSON data file failed: nested too deeply, at most 1024 levels can be "
            "read\n");
  EXPECT_EQ(refusal.message, terminating + ".");
}

TEST_F(StudyDocument, IsRefusedForAKeyThatStandsTwice) {
  EXPECT_EQ(
      refusalOf(studies::document("{}", R"({"INITIAL": {"water_level": 1, "water_level": 2}})"))
          .message,
      start + ": key <" + studies::INITIAL + "/water_level> stands twice in one group");
  EXPECT_EQ(refusalOf(R"({"SETUP": 1, "SETUP": 2})").message,
            start + ": key </SETUP> stands twice in one group");
}

TEST_F(StudyDocument, IsRefusedForAKeyThatStandsTwiceInAGroupOfAList) {
  EXPECT_EQ(refusalOf(R"({"A": [1, [2, 3], {"b": 4}, {"b": [5], "c": {}, "b": 6}]})").message,
            start + ": key </A/3/b> stands twice in one group");
}

TEST_F(StudyDocument, MayHoldTheSameKeyInDifferentGroups) {
  EXPECT_NO_THROW(read(studies::withFile().dump()));
}

TEST_F(StudyDocument, IsRefusedForAMisspeltKey) {
  const std::string place = studies::HYDRAULICS + "/PARAMETER/gravty";
  const Refusal refusal = refusalOf(place, 9.81);
  EXPECT_EQ(refusal.report, place + ": The value of this item will not be used.\n");
  EXPECT_EQ(refusal.message, terminating + ": a study must not hold keys that are not used.");
}

TEST_F(StudyDocument, IsRefusedForPhysicsThatCannotBeSetUp) {
  const std::string place = studies::HYDRAULICS + "/TURBULENCE";
  const Refusal refusal = refusalOf(place, {{"type", "mixing"}});
  EXPECT_EQ(refusal.report, place + ": The value of this item will not be used.\n" + place +
                                "/type: The value of this item will not be used.\n");
  EXPECT_EQ(refusal.message, terminating + ": a study must not hold keys that are not used.");
}

TEST_F(StudyDocument, ASlashInAKeyDoesNotReachIntoAGroup) {
  json study = studies::withFile();
  study["SETUP/DOMAIN"] = 1;
  EXPECT_EQ(refusalOf(study.dump()).report,
            "/SETUP~1DOMAIN: The value of this item will not be used.\n");
}

TEST_F(StudyDocument, IsRefusedForErrorsAllOfWhichAreReported) {
  json study = studies::withRectangle();
  study[json::json_pointer(studies::HYDRAULICS + "/PARAMETER/cfl")] = 2;
  study[json::json_pointer(studies::HYDRAULICS + "/PARAMETER/gravty")] = 9.81;
  study[json::json_pointer(studies::GEOMETRY + "/RECTANGLE/length")] = "4";
  const Refusal refusal = refusalOf(study.dump());
  EXPECT_EQ(refusal.report,
            studies::GEOMETRY + "/RECTANGLE/length: This value must be a number.\n" +
                studies::HYDRAULICS +
                "/PARAMETER/cfl: This value must be less than or equal to 1.000000.\n" +
                studies::HYDRAULICS +
                "/PARAMETER/gravty: The value of this item will not be used.\n");
  EXPECT_EQ(refusal.message, terminating + ".");
}

/// A value that only its emptiness makes a fault.
struct EmptyValue {
  std::string name;
  std::string place;
  std::string value;
};

class EmptyValues : public StudyDocument, public ::testing::WithParamInterface<EmptyValue> {};

TEST_P(EmptyValues, AreRefused) {
  const auto& [name, place, value] = GetParam();
  const Refusal refusal = refusalOf(place, json::parse(value));
  EXPECT_EQ(refusal.report, "");
  EXPECT_EQ(refusal.message, start + ": key <" + place + "> must not be empty");
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(All, EmptyValues, ::testing::Values(
  EmptyValue{"name",       "/SETUP/DOMAIN/name",                    "\"\""},
  EmptyValue{"bed",        studies::GEOMETRY + "/BED",              "[]"},
  EmptyValue{"origin",     studies::GEOMETRY + "/RECTANGLE/origin", "[]"},
  EmptyValue{"hydraulics", studies::HYDRAULICS,                     "{}"},
  EmptyValue{"parameter",  studies::HYDRAULICS + "/PARAMETER",      "{}"},
  EmptyValue{"initial",    studies::INITIAL,                        "{}"},
  EmptyValue{"zones",      studies::INITIAL + "/ZONES",             "[]"},
  EmptyValue{"level",      studies::INITIAL + "/water_level",       "null"}
), [](const ::testing::TestParamInfo<EmptyValue>& empty) { return empty.param.name; });
// clang-format on

TEST_F(StudyDocument, AnEmptyFloodGroupWouldTrackNothing) {
  EXPECT_EQ(refusalOf(studies::HYDRAULICS + "/FLOOD", json::object()).report,
            studies::HYDRAULICS + "/FLOOD/track: This item is required but missing.\n");
}

TEST_F(StudyDocument, AnEmptyDocumentLacksItsGroup) {
  const Refusal refusal = refusalOf("{}");
  EXPECT_EQ(refusal.report, "/SETUP: This item is required but missing.\n");
  EXPECT_EQ(refusal.message, terminating + ".");
}
