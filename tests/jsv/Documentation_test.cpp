// Runs the examples of docs/schema.md: each report belongs to the document and the schema before
// it.
#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <string>

#include "jsv/report.h"

namespace jsv {
namespace {

/// Reads up to the end of a fenced block.
std::string readBlock(std::ifstream& page) {
  std::string block;
  for (std::string line; std::getline(page, line) && line != "```";) block += line + '\n';
  return block;
}

TEST(Documentation, ExamplesGiveTheirReports) {
  std::ifstream page(JSV_DOCUMENTATION);
  ASSERT_TRUE(page.is_open());
  std::map<std::string, std::string> blocks;
  int reports = 0;
  for (std::string line; std::getline(page, line);) {
    if (line.rfind("```", 0) != 0) continue;
    blocks[line] = readBlock(page);
    if (line != "```text report") continue;
    ++reports;
    EXPECT_EQ(test::validate(blocks["```json document"], blocks["```json schema"]).text,
              blocks[line])
        << "report " << reports;
  }
  EXPECT_GT(reports, 15);
}

}  // namespace
}  // namespace jsv
