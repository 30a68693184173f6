#include "export/tables/string_series.h"

#include <gmock/gmock.h>

#include "dataio/failures.h"
#include "export/SampleResults.h"
#include "export/Table.h"

namespace {

using exporter::Results;
using exporter::writeStringSeries;
using samples::readTable;
using ::testing::ElementsAre;

class StringSeries : public samples::SampleResults {
 protected:
  std::vector<std::vector<std::string>> table() const {
    writeStringSeries(Results(file), csv);
    return readTable(csv);
  }

  const std::string csv = dir.file("strings.csv");
};

TEST_F(StringSeries, HasAColumnForEachStringAndForItsSediment) {
  use("full_model");
  const auto rows = table();
  EXPECT_THAT(rows.at(0), ElementsAre("time [s]", "west [m3/s]", "east [m3/s]", "middle [m3/s]",
                                      "west sediment [m3/s]", "east sediment [m3/s]",
                                      "middle sediment [m3/s]"));
  ASSERT_EQ(rows.size(), 6U);
  const std::string record = "RESULTS/NodeStrg/StateVar/0000003";
  EXPECT_EQ(rows[4][0], "3");
  for (std::size_t string = 0; string < 3; ++string) {
    EXPECT_EQ(std::stod(rows[4][1 + string]), stored(record, 10, 1)[string]);
    EXPECT_EQ(std::stod(rows[4][4 + string]), stored(record, 10, 8)[string]);
  }
  EXPECT_NE(rows[4][1], "0");
}

TEST_F(StringSeries, HasNoColumnsOfSedimentUnlessTheyWereAskedFor) {
  use("interpolation_keys");
  EXPECT_THAT(table().at(0), ElementsAre("time [s]", "west [m3/s]", "east [m3/s]", "nothing [m3/s]",
                                         "south [m3/s]"));
}

TEST_F(StringSeries, LeavesOutWhatIsNotInARecord) {
  use("interpolation_keys");
  remove("RESULTS/NodeStrg/StateVar/0000001");
  EXPECT_THAT(table().at(2), ElementsAre("2", "", "", "", ""));
}

TEST_F(StringSeries, NumbersStringsWithoutNames) {
  use("interpolation_keys");
  remove("NodeStrg/StrNames");
  EXPECT_EQ(table().at(0).at(4), "nodestring 4 [m3/s]");
}

TEST_F(StringSeries, AreRefusedIfTheRunWasNotAskedForThem) {
  use("dam_dry");
  EXPECT_THAT(failures::reportOf([this] { table(); }),
              " -> results file <" + file +
                  "> holds no discharges of nodestrings: ask for ns_hyd_discharge in "
                  "SIMULATION/OUTPUT of the command file\n");
}

}  // namespace
