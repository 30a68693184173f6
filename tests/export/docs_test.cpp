// docs/export.md tells of the program that there is.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <regex>
#include <set>

#include "catalogue/Outputs.h"
#include "export/results/quantities.h"
#include "support/Process.h"
#include "support/TempDir.h"

namespace {

const std::string& page() {
  static const std::string text = support::readFile(std::string(DOCS_FOLDER) + "/export.md");
  return text;
}

/// All words of the form --option.
std::set<std::string> optionsIn(const std::string& text) {
  static const std::regex option("--[a-z][-a-z]+");
  return {std::sregex_token_iterator(text.begin(), text.end(), option),
          std::sregex_token_iterator()};
}

TEST(DocsOfExport, NameTheOptionsOfTheProgram) {
  const support::TempDir dir;
  std::set<std::string> options = optionsIn(support::runIn(dir.path(), EXPORT_EXE, {"--help"}).out);
  options.erase("--ignore_rest");
  options.erase("--ignore");
  EXPECT_EQ(optionsIn(page()), options);
}

TEST(DocsOfExport, NameEachOutputWithItsUnit) {
  for (const auto& [id, property] : model::OutputProps) {
    const std::size_t row = page().find("`" + property.name + "`");
    ASSERT_NE(row, std::string::npos) << property.name;
    for (const exporter::Quantity& quantity : exporter::quantitiesOf(id)) {
      EXPECT_NE(page().find("[" + quantity.unit + "]", row), std::string::npos) << property.name;
    }
  }
}

}  // namespace
