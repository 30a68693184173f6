// The snippets of docs/setup.md do what the text says.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "common/BaseException.h"
#include "common/console.h"
#include "setup/codes.h"
#include "setup/domain/Series.h"
#include "setup/mesh/Reader2dm.h"
#include "setup/study/Study.h"
#include "setup/study/boundary_types.h"
#include "setup/study/friction.h"
#include "support/Process.h"
#include "support/TempDir.h"

using nlohmann::json;

namespace {

/// The block of code that begins with `begin`.
std::string snippet(const std::string& begin) {
  const std::string text = support::readFile(std::string(DOCS_FOLDER) + "/setup.md");
  const std::size_t start = text.find("\n" + begin);
  if (start == std::string::npos) return "";
  return text.substr(start + 1, text.find("\n```", start + 1) - start);
}

const std::string& text() {
  static const std::string all = support::readFile(std::string(DOCS_FOLDER) + "/setup.md");
  return all;
}

/// How many positions a modification reads.
std::size_t readsOf(int type) {
  if (type == 3) return 3;
  if (type == 8) return 5;
  return type == 9 || type > 12 ? 0 : 1;
}

std::string nameOf(const setup::Input& input) {
  using setup::Takes;
  if (input.takes == Takes::Nothing) return common::console::text(*input.fallback);
  return "`" + input.key + (input.takes == Takes::Series ? "_file`" : "`") +
         (input.takes == Takes::SeriesToo ? "+" : "");
}

/// The columns behind what a type does: keys, lookups, modifications.
std::string technicalColumnsOf(const setup::BoundaryType& type) {
  std::string keys;
  std::string lookups;
  std::string modifications;
  for (const setup::Input& input : type.inputs) {
    keys +=
        (keys.empty() ? "" : ", ") + nameOf(input) + " (" + std::to_string(input.position) + ")";
  }
  for (const setup::Lookup lookup : type.lookups) {
    lookups += (lookups.empty() ? "" : ", ") + nameOf(lookup);
  }
  for (const setup::Modification& entry : type.modifications) {
    const int number = codes::numberOf(entry.type);
    modifications += (modifications.empty() ? "" : "; ") + std::to_string(number) + ":";
    for (std::size_t k = 0; k < readsOf(number); ++k) {
      modifications += " " + std::to_string(entry.sources.at(k));
    }
    modifications += " to " + std::to_string(entry.target);
  }
  const auto cell = [](const std::string& content) {
    return " |" + (content.empty() ? "" : " " + content);
  };
  return cell(keys) + cell(lookups) + cell(modifications) + " |";
}

}  // namespace

class TablesOfBoundaries
    : public ::testing::TestWithParam<const std::vector<setup::BoundaryType>*> {};

TEST_P(TablesOfBoundaries, AreThoseOfTheProgram) {
  for (const setup::BoundaryType& type : *GetParam()) {
    const std::string codes =
        std::to_string(setup::numberOf(type.code)) +
        (type.receivingCode ? ", " + std::to_string(setup::numberOf(*type.receivingCode)) : "");
    const std::size_t begin = text().find("\n| `" + type.name + "` | " + codes + " | ");
    ASSERT_NE(begin, std::string::npos) << type.name;
    const std::string row = text().substr(begin + 1, text().find('\n', begin + 1) - begin - 1);
    EXPECT_TRUE(row.ends_with(technicalColumnsOf(type))) << row << "\n" << technicalColumnsOf(type);
    EXPECT_EQ(row.find("needs `FRICTION`") != std::string::npos, type.needsFriction) << row;
  }
}

INSTANTIATE_TEST_SUITE_P(DocsOfSetup, TablesOfBoundaries,
                         ::testing::Values(&setup::boundaryTypes(), &setup::bedBoundaryTypes()));

namespace {

std::string textOf(const setup::Coefficient& coefficient) {
  if (!coefficient.value) return "required";
  return common::console::text(*coefficient.value, coefficient.isTaken ? "+" : "");
}

}  // namespace

TEST(DocsOfSetup, TheFormulasAreThoseOfTheProgram) {
  for (const setup::BedloadFormula& formula : setup::bedloadFormulas()) {
    std::string row = "\n| `" + formula.name + "` | ";
    if (formula.form == model::BedloadCode::PowerLaw) {
      row += "4 | | | |";
    } else {
      const std::string A = formula.takesChezy ? "from `chezy`" : textOf(formula.coefficient);
      row += common::console::text(static_cast<int>(formula.form), " | ", A, " | ",
                                   textOf(formula.exponent), " | ", textOf(formula.critical), " |");
    }
    EXPECT_THAT(text(), ::testing::HasSubstr(row));
  }
}

TEST(DocsOfSetup, TheMovingBedIsUnderstood) {
  const support::TempDir dir;
  support::writeFile(dir.file("study.json"),
                     R"({"SETUP": {"DOMAIN": {"RHEOPLANE_2D": {"GEOMETRY": {
                         "MESH": {"file": "m.2dm"}, "REGIONDEF": [{"index": 1, "name": "gravel"},
                         {"index": 2, "name": "ramp"}, {"index": 3, "name": "harbour"}],
                         "STRINGDEF": [{"name": "inlet"}, {"name": "outlet"}]},
                         "HYDRAULICS": {"FRICTION": {"type": "manning", "value": 0.03}}, )" +
                         snippet("\"MORPHOLOGY\"") + "}}}}");
  const setup::Study study = setup::readStudy(dir.file("study.json"));
  EXPECT_EQ(study.morphology.value().fixedBed.value().zones.size(), 2U);
  EXPECT_EQ(study.morphology->boundaries.size(), 2U);
}

TEST(DocsOfSetup, TheClosuresAreThoseOfTheProgram) {
  for (const setup::FrictionClosure& closure : setup::frictionClosures()) {
    EXPECT_NE(text().find("\n| `\"" + closure.name + "\"` | " +
                          std::to_string(codes::numberOf(closure.code)) + " | "),
              std::string::npos)
        << closure.name;
  }
}

TEST(DocsOfSetup, TheSeriesIsUnderstood) {
  const support::TempDir dir;
  support::writeFile(dir.file("s.txt"), snippet("# time [s], discharge"));
  const setup::Series series = setup::readSeries(dir.file("s.txt"));
  ASSERT_EQ(series.points.size(), 4U);
  EXPECT_EQ(series.points[2][1], 55.0);
}

TEST(DocsOfSetup, StringsAndBoundariesAreUnderstood) {
  const support::TempDir dir;
  support::writeFile(dir.file("study.json"),
                     R"({"SETUP": {"DOMAIN": {"RHEOPLANE_2D": {"GEOMETRY": {
                         "MESH": {"file": "m.2dm"}, )" +
                         snippet("\"STRINGDEF\"") +
                         R"(}, "HYDRAULICS": {"FRICTION": {"type": "manning", "value": 0.03}, )" +
                         snippet("\"BOUNDARY\"") + "}}}}}");
  const setup::Study study = setup::readStudy(dir.file("study.json"));
  EXPECT_EQ(study.strings.size(), 3U);
  EXPECT_EQ(study.boundaries.size(), 3U);
}

TEST(DocsOfSetup, TheStudyIsThatOfTheExample) {
  EXPECT_EQ(json::parse(snippet("{\n  \"SETUP\"")),
            json::parse(support::readFile(std::string(EXAMPLES_FOLDER) + "/dam_break/study.json")));
}

TEST(DocsOfSetup, TheZonesOfTheBedAreUnderstood) {
  const support::TempDir dir;
  support::writeFile(dir.file("study.json"),
                     R"({"SETUP": {"DOMAIN": {"RHEOPLANE_2D": {"GEOMETRY": {
                         "MESH": {"file": "m.2dm"}, )" +
                         snippet("\"BED\"") +
                         R"(}, "HYDRAULICS": {"INITIAL": {"water_level": 1}}}}}})");
  EXPECT_EQ(setup::readStudy(dir.file("study.json")).bed.size(), 2U);
}

TEST(DocsOfSetup, TheReportIsThatOfTheProgram) {
  const support::TempDir dir;
  support::writeFile(dir.file("study.json"),
                     R"({"SETUP": {"DOMAIN": {"RHEOPLANE_2D": {
                         "GEOMETRY": {"MESH": {"file": "m.2dm"}},
                         "HYDRAULICS": {"PARAMETER": {"cfl": 2, "gravty": 9.81}}}}}})");
  ::testing::internal::CaptureStdout();
  EXPECT_THROW(setup::readStudy(dir.file("study.json")), BaseException);
  const std::string report = ::testing::internal::GetCapturedStdout();
  const std::string page = support::readFile(std::string(DOCS_FOLDER) + "/setup.md");
  std::size_t lines = 0;
  for (std::size_t start = 0; start < report.size(); ++lines) {
    const std::size_t stop = report.find('\n', start);
    EXPECT_THAT(page, ::testing::HasSubstr("\n    " + report.substr(start, stop + 1 - start)));
    start = stop + 1;
  }
  EXPECT_EQ(lines, 2U);
}

TEST(DocsOfSetup, TheMeshIsUnderstood) {
  const support::TempDir dir;
  support::writeFile(dir.file("m.2dm"), snippet("MESH2D"));
  const setup::Mesh mesh = setup::readMesh2dm(dir.file("m.2dm"));
  EXPECT_EQ(mesh.nodes.size(), 3U);
  EXPECT_EQ(mesh.cells.size(), 1U);
  ASSERT_EQ(mesh.strings.size(), 1U);
  EXPECT_EQ(mesh.strings[0].name, "outlet");
}
