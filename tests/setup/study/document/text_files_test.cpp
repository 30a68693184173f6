#include "setup/study/document/text_files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <utility>

#include "support/Process.h"
#include "support/TempDir.h"

using ::testing::ElementsAre;
using ::testing::Pair;

namespace {

std::vector<std::pair<int, std::string>> linesOf(const std::string& text) {
  std::vector<std::pair<int, std::string>> lines;
  setup::forEachLine(text, [&lines](int number, std::string_view line) {
    lines.emplace_back(number, std::string(line));
  });
  return lines;
}

std::vector<std::string_view> wordsOf(std::string_view line) {
  std::vector<std::string_view> words;
  setup::splitWords(line, words);
  return words;
}

}  // namespace

TEST(Cards, LinesEndWithAnyOfTheLineEndsAndAreCounted) {
  EXPECT_THAT(linesOf("a\r\nb\n\nc\rd"),
              ElementsAre(Pair(1, "a"), Pair(2, "b"), Pair(3, ""), Pair(4, "c"), Pair(5, "d")));
}

TEST(Cards, ATextWithoutCharactersHasNoLine) {
  EXPECT_TRUE(linesOf("").empty());
}

TEST(Cards, WordsAreSeparatedByBlanksAndTabs) {
  EXPECT_THAT(wordsOf(" ND\t1  2.5 "), ElementsAre("ND", "1", "2.5"));
  EXPECT_TRUE(wordsOf(" \t ").empty());
}

TEST(Cards, AWordIsANumberOnlyAsAWhole) {
  EXPECT_EQ(setup::toNumber("-1.5e3"), -1500.0);
  EXPECT_EQ(setup::toNumber("+2.5"), 2.5);
  for (const char* word : {"", "1,5", "1.5m", "+-1", "nan", "inf", "1e999"}) {
    EXPECT_FALSE(setup::toNumber(word)) << word;
  }
}

TEST(Cards, AWordIsAWholeNumberOnlyAsAWhole) {
  EXPECT_EQ(setup::toInteger("-17"), -17);
  EXPECT_EQ(setup::toInteger("+17"), 17);
  for (const char* word : {"", "1.0", "1a", "--1", "99999999999999999999"}) {
    EXPECT_FALSE(setup::toInteger(word)) << word;
  }
}

TEST(Cards, AFileIsReadWithoutItsByteOrderMark) {
  const support::TempDir dir;
  support::writeFile(dir.file("a.txt"), "\xEF\xBB\xBFone\r\ntwo");
  EXPECT_EQ(setup::readTextFile(dir.file("a.txt")), "one\r\ntwo");
}

TEST(Cards, AnEmptyFileIsAnEmptyText) {
  const support::TempDir dir;
  support::writeFile(dir.file("a.txt"), "");
  EXPECT_EQ(setup::readTextFile(dir.file("a.txt")), "");
}

TEST(Cards, AMissingFileAndAFolderCannotBeRead) {
  const support::TempDir dir;
  EXPECT_FALSE(setup::readTextFile(dir.file("none")));
  EXPECT_FALSE(setup::readTextFile(dir.path()));
}
