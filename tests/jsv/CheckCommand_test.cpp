// Runs jsv-check as its users do.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/Process.h"
#include "support/TempDir.h"

namespace jsv {
namespace {

using ::testing::StartsWith;

class CheckCommandTest : public ::testing::Test {
 protected:
  void write(const std::string& name, const std::string& text) const {
    support::writeFile(folder_.file(name), text);
  }

  support::Outcome run(const std::vector<std::string>& arguments) const {
    return support::runIn(folder_.path(), JSV_CHECK, arguments);
  }

 private:
  support::TempDir folder_;
};

TEST_F(CheckCommandTest, TheExitStatusIsTheVerdict) {
  write("schema", R"({"optional": ["a"], "properties": {"a": {"type": "string"}}})");
  write("clean", R"({"a": "text"})");
  write("unused", R"({"b": 1})");
  write("wrong", R"({"a": 1})");
  const auto clean = run({"schema", "clean"});
  EXPECT_EQ(clean.status, 0);
  EXPECT_EQ(clean.out, "");
  const auto unused = run({"schema", "unused"});
  EXPECT_EQ(unused.status, 1);
  EXPECT_EQ(unused.out, "/b: The value of this item will not be used.\n");
  const auto wrong = run({"schema", "wrong"});
  EXPECT_EQ(wrong.status, 2);
  EXPECT_EQ(wrong.out, "/a: This value must be a string.\n");
  EXPECT_EQ(wrong.err, "");
}

TEST_F(CheckCommandTest, AFaultySchemaGivesTwo) {
  write("schema", R"({"pattern": "a*"})");
  write("document", "{}");
  const auto outcome = run({"schema", "document"});
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.out,
            "An error occurred while validating the JSON file using the provided schema:\n"
            "/pattern: The keyword 'pattern' is not supported.\n");
}

TEST_F(CheckCommandTest, AnUnreadableFileGivesTwo) {
  write("file", "{}");
  const auto noSchema = run({"absent", "file"});
  EXPECT_EQ(noSchema.status, 2);
  EXPECT_EQ(noSchema.err, " -> cannot read schema <absent>\n");
  const auto noDocument = run({"file", "absent"});
  EXPECT_EQ(noDocument.status, 2);
  EXPECT_EQ(noDocument.err, " -> cannot read document <absent>\n");
  const auto folder = run({"file", "."});
  EXPECT_EQ(folder.status, 2);
  EXPECT_EQ(folder.err, " -> document <.> is a folder, but must be a JSON file\n");
  EXPECT_EQ(folder.out, "");
}

TEST_F(CheckCommandTest, AFileThatIsNoJsonGivesTwo) {
  write("schema", "{}");
  write("document", "");
  const auto outcome = run({"schema", "document"});
  EXPECT_EQ(outcome.status, 2);
  EXPECT_THAT(outcome.out, StartsWith("Parsing the JSON data file failed: "));
}

TEST_F(CheckCommandTest, WrongArgumentsGiveTheUsage) {
  const std::vector<std::vector<std::string>> wrong = {{}, {"schema"}, {"a", "b", "c"}};
  for (const auto& arguments : wrong) {
    const auto outcome = run(arguments);
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.err, " -> usage: jsv-check SCHEMA DOCUMENT\n");
  }
}

}  // namespace
}  // namespace jsv
