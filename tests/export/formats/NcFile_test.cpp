#include "export/formats/NcFile.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "dataio/failures.h"
#include "export/formats/NcReader.h"
#include "support/TempDir.h"

namespace {

using exporter::NcFile;
using ::testing::ElementsAre;

class NcFileTest : public ::testing::Test {
 protected:
  const support::TempDir dir;
  const std::string name = dir.file("a.nc");
};

TEST_F(NcFileTest, HoldsVariablesAndAttributes) {
  NcFile file(name);
  const int rows = file.addDimension("rows", 2);
  const int columns = file.addDimension("columns", 3);
  const int table = file.addVariable("table", NC_DOUBLE, {rows, columns});
  const int letters = file.addVariable("letters", NC_CHAR, {columns});
  const int numbers = file.addVariable("numbers", NC_INT, {rows});
  file.expectEntries(table);
  file.attach(table, "units", "m");
  file.attach(table, "count", 7);
  file.attach(NC_GLOBAL, "limit", 0.25);
  file.endDefinitions();
  const std::vector<double> second = {4, 5, 6};
  file.writeEntry(table, 1, second.data());
  file.write(letters, "abc");
  const std::vector<int> two = {-1, 8};
  file.write(numbers, two.data());
  file.finish();

  const samples::NcReader nc(name);
  EXPECT_THAT(nc.values("table"),
              ElementsAre(NC_FILL_DOUBLE, NC_FILL_DOUBLE, NC_FILL_DOUBLE, 4, 5, 6));
  EXPECT_EQ(nc.letters("letters"), "abc");
  EXPECT_THAT(nc.values("numbers"), ElementsAre(-1, 8));
  EXPECT_EQ(nc.text("table", "units"), "m");
  EXPECT_EQ(nc.number("table", "count"), 7.0);
  EXPECT_EQ(nc.number("", "limit"), 0.25);
}

TEST_F(NcFileTest, EqualEntriesCostLittle) {
  std::vector<double> values(5000);
  for (std::size_t i = 0; i < values.size(); ++i) values[i] = 1.0 / (1.0 + static_cast<double>(i));
  const auto write = [&](const std::string& target, std::size_t entries) {
    NcFile file(target);
    const int times = file.addDimension("time", entries);
    const int cells = file.addDimension("cells", values.size());
    const int variable = file.addVariable("v", NC_DOUBLE, {times, cells});
    file.expectEqualEntries(variable);
    file.endDefinitions();
    file.writeEqualEntries(variable, values.data());
    file.finish();
    return std::filesystem::file_size(target);
  };
  EXPECT_LT(write(dir.file("many.nc"), 300), 10 * write(dir.file("one.nc"), 1));
  const std::vector<double> all = samples::NcReader(dir.file("many.nc")).values("v");
  ASSERT_EQ(all.size(), 300 * values.size());
  for (std::size_t i = 0; i < all.size(); ++i) ASSERT_EQ(all[i], values[i % values.size()]);
}

TEST_F(NcFileTest, ManyEntriesAreWrittenInNarrowPieces) {
  NcFile file(name);
  const int times = file.addDimension("time", 400000);
  const int cells = file.addDimension("cells", 5);
  const int variable = file.addVariable("v", NC_DOUBLE, {times, cells});
  file.expectEqualEntries(variable);
  file.endDefinitions();
  const std::vector<double> values = {1, 2, 3, 4, 5};
  file.writeEqualEntries(variable, values.data());
  file.finish();
  const std::vector<double> all = samples::NcReader(name).values("v");
  for (std::size_t i = 0; i < all.size(); ++i) ASSERT_EQ(all[i], values[i % 5]);
}

TEST_F(NcFileTest, TellsTheWordsOfTheLibrary) {
  NcFile file(name);
  file.addDimension("rows", 2);
  EXPECT_EQ(failures::textOf<std::runtime_error>([&] { file.addDimension("rows", 2); }),
            "NetCDF: String match to name in use");
}

}  // namespace
