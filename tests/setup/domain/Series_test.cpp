#include "setup/domain/Series.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "setup/faults.h"
#include "support/Process.h"
#include "support/TempDir.h"

using ::testing::ElementsAre;

namespace {

class Series : public ::testing::Test {
 protected:
  setup::Series read(const std::string& text) {
    support::writeFile(file, text);
    return setup::readSeries(file);
  }

  /// The message behind "series file <...>".
  std::string refusalOf(const std::string& text) {
    const std::string message = faults::messageOf([&] { read(text); });
    const std::string start = "series file <" + file + ">";
    EXPECT_TRUE(message.starts_with(start)) << message;
    return message.substr(start.size());
  }

  static std::string points(int count) {
    std::string text;
    for (int k = 0; k < count; ++k) text += std::to_string(k) + " 1\n";
    return text;
  }

  const support::TempDir dir;
  const std::string file = dir.file("q.txt");
};

}  // namespace

TEST_F(Series, ColumnsAreSeparatedByBlanksCommasOrBoth) {
  EXPECT_THAT(read("0 1\n1,2\n 2 , 3 \n3,\t4\n4\t5\n").points,
              ElementsAre(ElementsAre(0, 1), ElementsAre(1, 2), ElementsAre(2, 3),
                          ElementsAre(3, 4), ElementsAre(4, 5)));
}

TEST_F(Series, CommentsAndEmptyLinesArePassedOver) {
  EXPECT_THAT(read("# t, q, and more\n\n0 1 # the start\n  # x\n1e1 -2.5\n").points,
              ElementsAre(ElementsAre(0, 1), ElementsAre(10, -2.5)));
}

TEST_F(Series, LinesMayEndAsOnAnySystem) {
  EXPECT_THAT(read("0,1\r\n1,2\r\n").points, ElementsAre(ElementsAre(0, 1), ElementsAre(1, 2)));
  EXPECT_THAT(read("0 1\n1 2").points, ElementsAre(ElementsAre(0, 1), ElementsAre(1, 2)));
}

TEST_F(Series, OneValueTwiceIsAJump) {
  EXPECT_THAT(read("0 1\n5 1\n5 3\n").points,
              ElementsAre(ElementsAre(0, 1), ElementsAre(5, 1), ElementsAre(5, 3)));
}

TEST_F(Series, RefusesAFirstColumnThatDescends) {
  EXPECT_EQ(refusalOf("# t q\n0 1\n10 1\n9.5 2\n"),
            ", line 4: the first column descends from 10 to 9.5, but it must ascend");
}

TEST_F(Series, RefusesLinesThatAreNotTwoNumbers) {
  EXPECT_EQ(refusalOf("0 1\n1\n"), ", line 2: there must be two numbers, but there are 1 columns");
  EXPECT_EQ(refusalOf("0 1 2\n"), ", line 1: there must be two numbers, but there are 3 columns");
  EXPECT_EQ(refusalOf("0,,1\n"), ", line 1: there must be two numbers, but there are 3 columns");
  EXPECT_EQ(refusalOf("1,5 2,5\n"), ", line 1: there must be two numbers, but there are 4 columns");
  EXPECT_EQ(refusalOf("t q\n"),
            ", line 1: <t> is not a number; lines of text must begin with #, "
            "decimals with a point");
  EXPECT_EQ(refusalOf("0,\n"),
            ", line 1: <> is not a number; lines of text must begin with #, "
            "decimals with a point");
  EXPECT_EQ(refusalOf("0 nan\n"),
            ", line 1: <nan> is not a number; lines of text must begin with "
            "#, decimals with a point");
}

TEST_F(Series, RefusesTheMarkThatEndsASeriesAsAPlace) {
  EXPECT_EQ(refusalOf("2.2250738585072014e-308 1\n"),
            ", line 1: 2.2250738585072014e-308 is not possible in the first column");
}

TEST_F(Series, RefusesAFileWithoutPoints) {
  EXPECT_EQ(refusalOf(""), ": there is no point in it");
  EXPECT_EQ(refusalOf("# t q\n"), ": there is no point in it");
}

TEST_F(Series, RefusesAFileThatIsNotThere) {
  EXPECT_EQ(faults::messageOf([] { setup::readSeries("none/q.txt"); }),
            "series file <none/q.txt>: the file cannot be read");
}

TEST_F(Series, Has5999PointsAtMost) {
  EXPECT_EQ(read(points(5999)).points.size(), 5999U);
  EXPECT_EQ(refusalOf(points(6123)),
            ": there are 6123 points, 124 more than the 5999 that are possible");
}

TEST_F(Series, OfOneFileAreOneInAList) {
  support::writeFile(file, "0 1\n");
  support::writeFile(dir.file("p.txt"), "0 2\n");
  setup::SeriesList list;
  EXPECT_EQ(list.add(file), 0);
  EXPECT_EQ(list.add(dir.file("p.txt")), 1);
  EXPECT_EQ(list.add(file), 0);
  EXPECT_EQ(list.all().size(), 2U);
  EXPECT_EQ(list.at(1).points[0][1], 2.0);
}
