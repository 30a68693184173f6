#include "dataio/ResultReader.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "dataio/H5Writer.h"
#include "dataio/failures.h"
#include "h5/Handle.h"
#include "support/TempDir.h"

namespace {

using dataio::H5Writer;
using dataio::ResultReader;
using failures::hdf5Words;
using failures::reportOf;
using failures::textOf;

using Times = std::map<double, int>;

const std::string HYD = "CellsAll/HydState";
const std::string MOR = "CellsAll/BottomEl";

class ResultReaderTest : public ::testing::Test {
 protected:
  void SetUp() override { const H5Writer empty(name); }

  /// One record per time.
  void write(const std::string& path, const std::vector<double>& times) const {
    H5Writer writer(name, "rw");
    for (std::size_t position = 0; position < times.size(); ++position) {
      const std::string record = ResultReader::getOutputPath(path, static_cast<int>(position));
      writer.writeDoubleScalar(record, 0.0);
      writer.attachAttributeDouble(record, "t", times[position]);
    }
  }

  static std::string outputOf(const ResultReader& reader, const std::vector<std::string>& paths) {
    ::testing::internal::CaptureStdout();
    reader.printValidTimes(paths);
    return ::testing::internal::GetCapturedStdout();
  }

  const support::TempDir dir;
  const std::string name = dir.file("run_results.h5");
};

void expectIncomplete(const std::string& report, const std::string& time) {
  EXPECT_EQ(report.rfind(" -> not all needed results are found for t=" + time +
                             ", in file: src/dataio/ResultReader on line ",
                         0),
            0U)
      << report;
}

TEST(ResultReaderPaths, FollowFromTheDataPath) {
  EXPECT_EQ(ResultReader::getOutputGroup(HYD), "/RESULTS/CellsAll/HydState");
  EXPECT_EQ(ResultReader::getOutputPath(HYD, 7), "/RESULTS/CellsAll/HydState/0000007");
  EXPECT_EQ(ResultReader::getOutputPath(HYD, 12345678), "/RESULTS/CellsAll/HydState/12345678");
  EXPECT_EQ(ResultReader::getOutputPath(HYD, std::numeric_limits<int>::max()),
            "/RESULTS/CellsAll/HydState/2147483647");
}

TEST_F(ResultReaderTest, PositionsOfAllPathsAreCollectedByTime) {
  write(HYD, {0.0, 10.0, 5.0});
  write(MOR, {0.0, 10.0});
  const ResultReader reader(name);
  const std::map<double, std::vector<int>> expected{{0.0, {0, 0}}, {5.0, {2}}, {10.0, {1, 1}}};
  EXPECT_EQ(reader.getAllTimesWithPosition({HYD, MOR}), expected);
}

TEST_F(ResultReaderTest, EachTimeHasOnePosition) {
  write(HYD, {0.0, 10.0, 20.0});
  write(MOR, {0.0, 10.0, 20.0});
  const ResultReader reader(name);
  EXPECT_EQ(reader.getTimesWithPosition({HYD, MOR}, true), (Times{{0.0, 0}, {10.0, 1}, {20.0, 2}}));
}

TEST_F(ResultReaderTest, NoPathsGiveNoTimes) {
  write(HYD, {0.0});
  const ResultReader reader(name);
  EXPECT_TRUE(reader.getTimesWithPosition({}, true).empty());
  EXPECT_TRUE(reader.getAllTimesWithPosition({}).empty());
  EXPECT_EQ(reader.findTime({}, 0.0, 2), -1);
}

TEST_F(ResultReaderTest, DataWithFewerRecordsIsIncomplete) {
  write(HYD, {0.0, 10.5});
  write(MOR, {0.0});
  const ResultReader reader(name);
  expectIncomplete(reportOf([&] { reader.getTimesWithPosition({HYD, MOR}, true); }), "10.5");
  expectIncomplete(reportOf([&] { reader.findTime({HYD, MOR}, 0.0, 2); }), "10.5");
  EXPECT_EQ(reader.getTimesWithPosition({HYD, MOR}, false), (Times{{0.0, 0}, {10.5, 1}}));
}

TEST_F(ResultReaderTest, TimeAtTwoPositionsIsCorrupt) {
  write(HYD, {0.0, 10.0});
  write(MOR, {10.0, 0.0});
  const ResultReader reader(name);
  EXPECT_EQ(reportOf([&] {
              reader.getTimesWithPosition({HYD, MOR}, false);
            }),
            " -> corrupt result file!\n");
  EXPECT_EQ(reportOf([&] {
              reader.getTimesWithPosition({HYD, MOR}, true);
            }),
            " -> corrupt result file!\n");
}

TEST_F(ResultReaderTest, DataWithoutResultsIsReported) {
  write(HYD, {0.0});
  const ResultReader reader(name);
  EXPECT_EQ(textOf<h5::Error>([&] { reader.getAllTimesWithPosition({MOR}); }),
            "Unable to open the group \"/RESULTS/CellsAll/BottomEl\":" +
                hdf5Words(H5E_SYM, H5E_NOTFOUND));
}

TEST_F(ResultReaderTest, TimeThatIsNoNumberIsReported) {
  write(HYD, {0.0, std::nan("")});
  const ResultReader reader(name);
  EXPECT_EQ(reportOf([&] { reader.getAllTimesWithPosition({HYD}); }),
            " -> time of results </RESULTS/CellsAll/HydState/0000001> is not a number!\n");
}

TEST_F(ResultReaderTest, TimesAreFoundAfterRounding) {
  write(HYD, {0.0, 10.001, 20.0});
  const ResultReader reader(name);
  EXPECT_EQ(reader.findTime({HYD}, 20.0, 2), 2);
  EXPECT_EQ(reader.findTime({HYD}, 10.0, 2), 1);
  EXPECT_EQ(reader.findTime({HYD}, 10.004, 2), 1);
  EXPECT_EQ(reader.findTime({HYD}, 10.006, 2), -1);
  EXPECT_EQ(reader.findTime({HYD}, 10.0, 3), -1);
  EXPECT_EQ(reader.findTime({HYD}, 30.0, 2), -1);
}

TEST_F(ResultReaderTest, FirstOfTwoTimesThatRoundAlikeIsFound) {
  write(HYD, {10.004, 10.001});
  EXPECT_EQ(ResultReader(name).findTime({HYD}, 10.0, 2), 1);
}

TEST_F(ResultReaderTest, ManyDigitsRoundToTheOverflownFactor) {
  const double step = std::ldexp(1.0, -31);
  write(HYD, {0.0, 10.0, 20.0 + 0.6 * step});
  const ResultReader reader(name);
  EXPECT_EQ(reader.findTime({HYD}, 10.0 + 0.4 * step, 100), 1);
  EXPECT_EQ(reader.findTime({HYD}, 10.0 + 0.6 * step, 100), -1);
  EXPECT_EQ(reader.findTime({HYD}, 20.0 + step, 100), 2);
  EXPECT_EQ(reader.findTime({HYD}, 20.0, 100), -1);
  EXPECT_EQ(reader.findTime({HYD}, 10.0 + 0.4 * step, 10), 1);
  EXPECT_EQ(reader.findTime({HYD}, 10.0 + 0.4 * step, 400), 1);
}

TEST_F(ResultReaderTest, FactorBelowOneFindsNothing) {
  write(HYD, {0.0});
  EXPECT_EQ(ResultReader(name).findTime({HYD}, 0.0, -1), -1);
}

TEST_F(ResultReaderTest, ValidTimesArePrintedInOrder) {
  write(HYD, {0.0, 20.0, 10.25});
  const ResultReader reader(name);
  EXPECT_EQ(outputOf(reader, {HYD}), " -> t[s]: 0\n -> t[s]: 10.25\n -> t[s]: 20\n");
}

TEST_F(ResultReaderTest, DeletedRecordsKeepTheirDataset) {
  write(HYD, {0.0, 10.0, 20.0});
  ResultReader reader(name);
  reader.deleteResults(HYD, 2);
  EXPECT_EQ(reader.getNumberObjs("/RESULTS/" + HYD), 3);
  EXPECT_EQ(reader.readAttributeDouble(ResultReader::getOutputPath(HYD, 1), "t"), 10.0);
  EXPECT_EQ(reader.readAttributeDouble(ResultReader::getOutputPath(HYD, 2), "t"), -1.0);
  EXPECT_EQ(reader.readDoubleScalar(ResultReader::getOutputPath(HYD, 2)), 0.0);
}

TEST_F(ResultReaderTest, OneDeletedRecordIsNotPrinted) {
  write(HYD, {0.0, 10.0, 20.0});
  ResultReader reader(name);
  reader.deleteResults(HYD, 2);
  EXPECT_EQ(reader.getTimesWithPosition({HYD}, true), (Times{{-1.0, 2}, {0.0, 0}, {10.0, 1}}));
  EXPECT_EQ(outputOf(reader, {HYD}), " -> t[s]: 0\n -> t[s]: 10\n");
}

TEST_F(ResultReaderTest, TwoDeletedRecordsMakeTheFileIncomplete) {
  write(HYD, {0.0, 10.0, 20.0});
  ResultReader reader(name);
  reader.deleteResults(HYD, 1);
  const std::map<double, std::vector<int>> expected{{-1.0, {1, 2}}, {0.0, {0}}};
  EXPECT_EQ(reader.getAllTimesWithPosition({HYD}), expected);
  expectIncomplete(reportOf([&] { reader.getTimesWithPosition({HYD}, true); }), "-1");
}

TEST_F(ResultReaderTest, DeletingBehindTheLastRecordChangesNothing) {
  write(HYD, {0.0, 10.0});
  ResultReader reader(name);
  reader.deleteResults(HYD, 2);
  EXPECT_EQ(reader.getTimesWithPosition({HYD}, true), (Times{{0.0, 0}, {10.0, 1}}));
}

TEST_F(ResultReaderTest, FileHasToExist) {
  const std::string missing = dir.file("missing.h5");
  EXPECT_EQ(textOf<h5::Error>([&] { const ResultReader reader(missing); }),
            "Unable to open file " + missing + hdf5Words(H5E_FILE, H5E_CANTOPENFILE));
}

}  // namespace
