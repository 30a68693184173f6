// The snippets of docs/setup.md do what the text says.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "common/BaseException.h"
#include "setup/Reader2dm.h"
#include "setup/Study.h"
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

}  // namespace

TEST(DocsOfSetup, theStudyIsThatOfTheExample) {
  EXPECT_EQ(json::parse(snippet("{\n  \"SETUP\"")),
            json::parse(support::readFile(std::string(EXAMPLES_FOLDER) + "/dam_break/study.json")));
}

TEST(DocsOfSetup, theZonesOfTheBedAreUnderstood) {
  const support::TempDir dir;
  support::writeFile(dir.file("study.json"),
                     R"({"SETUP": {"DOMAIN": {"RHEOPLANE_2D": {"GEOMETRY": {
                         "MESH": {"file": "m.2dm"}, )" +
                         snippet("\"BED\"") +
                         R"(}, "HYDRAULICS": {"INITIAL": {"water_level": 1}}}}}})");
  EXPECT_EQ(setup::readStudy(dir.file("study.json")).bed.size(), 2U);
}

TEST(DocsOfSetup, theReportIsThatOfTheProgram) {
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

TEST(DocsOfSetup, theMeshIsUnderstood) {
  const support::TempDir dir;
  support::writeFile(dir.file("m.2dm"), snippet("MESH2D"));
  const setup::Mesh mesh = setup::readMesh2dm(dir.file("m.2dm"));
  EXPECT_EQ(mesh.nodes.size(), 3U);
  EXPECT_EQ(mesh.cells.size(), 1U);
  ASSERT_EQ(mesh.strings.size(), 1U);
  EXPECT_EQ(mesh.strings[0].name, "outlet");
}
