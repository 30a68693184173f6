#include "export/results/Csv.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <limits>

namespace {

using exporter::Csv;
using exporter::numberText;
using ::testing::MatchesRegex;

TEST(Csv, TellsWhereItComesFromBeforeTheRows) {
  Csv table("some/where/run_results.h5");
  table.add("time [s]");
  table.add(0.25);
  table.addNothing();
  table.endRow();
  table.add(-1.0);
  table.endRow();
  EXPECT_THAT(table.text(),
              MatchesRegex("# RHEOMARK v[0-9.]+\n"
                           "# [0-9]+-[0-9]+-[0-9]+T[0-9]+:[0-9]+:[0-9]+Z: export v[0-9.]+ of "
                           "run_results.h5\n"
                           "time \\[s\\],0.25,\n"
                           "-1\n"));
}

TEST(Csv, QuotesTextsThatWouldBreakTheTable) {
  Csv table("r.h5");
  const std::size_t start = table.text().size();
  table.add("a,b");
  table.add("the \"old\" mill");
  table.add("plain");
  EXPECT_EQ(table.text().substr(start), "\"a,b\",\"the \"\"old\"\" mill\",plain");
}

TEST(NumberText, ReadsBackToTheSameNumber) {
  for (const double value : {0.1, 1.0 / 3.0, 1e300, 5e-324, -123456.789}) {
    EXPECT_EQ(std::strtod(numberText(value).c_str(), nullptr), value);
  }
  EXPECT_EQ(numberText(2.5), "2.5");
  EXPECT_EQ(numberText(std::numeric_limits<double>::infinity()), "inf");
  EXPECT_EQ(numberText(std::numeric_limits<double>::quiet_NaN()), "nan");
}

}  // namespace
