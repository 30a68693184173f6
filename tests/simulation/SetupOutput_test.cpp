#include "simulation/SetupOutput.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "common/BaseException.h"
#include "dataio/Factory.h"
#include "model/components.h"
#include "support/TempDir.h"

namespace {

using Ints = std::vector<std::vector<int>>;
using Doubles = std::vector<std::vector<double>>;

class SetupOutput : public ::testing::Test {
 protected:
  /// A datum "CellsAll/Copied" on as many elements as `rows` says.
  std::unique_ptr<api::IData> datum(DataType type, int rows, int columns) {
    set.setSize(rows);
    return std::make_unique<model::Data>(model::DataID::Topology, "Copied", "", false, true, type,
                                         &set, columns, false);
  }

  /// What the copy of an item prints on standard output.
  template <class Item>
  std::string copy(Item* item, int logLevel) {
    const std::unique_ptr<api::IH5Reader> from(dataio::Factory::createH5Reader(runFile));
    const std::unique_ptr<api::IH5Writer> to(dataio::Factory::createH5Writer(resultFile));
    ::testing::internal::CaptureStdout();
    try {
      simulation::writeSetupOutput(item, from.get(), to.get(), logLevel);
    } catch (...) {
      ::testing::internal::GetCapturedStdout();
      throw;
    }
    return ::testing::internal::GetCapturedStdout();
  }

  std::unique_ptr<api::IH5Writer> run() {
    return std::unique_ptr<api::IH5Writer>(dataio::Factory::createH5Writer(runFile));
  }
  std::unique_ptr<api::IH5Reader> result() {
    return std::unique_ptr<api::IH5Reader>(dataio::Factory::createH5Reader(resultFile));
  }

  support::TempDir dir;
  std::string runFile = dir.file("run.h5");
  std::string resultFile = dir.file("results.h5");
  model::Set set{model::SetID::CellsAll, "CellsAll", ""};
  std::string path = "CellsAll/Copied";
};

TEST_F(SetupOutput, TablesAreCopiedToTheSamePath) {
  run()->writeDoubleVecVec(path, {{1.5, 2.5}, {3.5, 4.5}});
  copy(datum(DataType::Double, 2, 2).get(), 0);
  EXPECT_EQ(result()->readDoubleVecVec(path), (Doubles{{1.5, 2.5}, {3.5, 4.5}}));

  run()->writeIntVecVec(path, {{1, 2, 3}});
  copy(datum(DataType::Int, 1, 3).get(), 0);
  EXPECT_EQ(result()->readIntVecVec(path), (Ints{{1, 2, 3}}));
}

TEST_F(SetupOutput, ASingleValueIsAScalar) {
  run()->writeDoubleScalar(path, 1.5);
  copy(datum(DataType::Double, 1, 1).get(), 0);
  EXPECT_EQ(result()->readDoubleScalar(path), 1.5);

  run()->writeIntScalar(path, 7);
  copy(datum(DataType::Int, 1, 1).get(), 0);
  EXPECT_EQ(result()->readIntScalar(path), 7);
}

TEST_F(SetupOutput, NamesAreCopied) {
  run()->writeStringVec(path, 2, {"west", "a longer name"});
  copy(datum(DataType::String, 2, 1).get(), 0);
  EXPECT_EQ(result()->readStrVec(path), (std::vector<std::string>{"west", "a longer name"}));
}

TEST_F(SetupOutput, TextsOfAnotherShapeThanAVectorAreRefused) {
  run()->writeStringVec(path, 2, {"west", "east"});
  ::testing::internal::CaptureStderr();
  EXPECT_THROW(copy(datum(DataType::String, 1, 2).get(), 0), BaseException);
  EXPECT_EQ(::testing::internal::GetCapturedStderr(),
            " -> writing data of type string is only possible for vector of strings\n");
}

TEST_F(SetupOutput, MoreRowsThanElementsAreRefused) {
  run()->writeIntVecVec(path, {{1, 2}, {3, 4}, {5, 6}});
  ::testing::internal::CaptureStderr();
  EXPECT_THROW(copy(datum(DataType::Int, 2, 2).get(), 0), BaseException);
  EXPECT_EQ(::testing::internal::GetCapturedStderr(),
            " -> data <CellsAll/Copied> has 3 rows, but its set has 2 elements\n");
}

TEST_F(SetupOutput, ADatumOnAnEmptySetIsPassedOver) {
  run();
  EXPECT_EQ(copy(datum(DataType::Double, 0, 2).get(), 2), "");
  EXPECT_EQ(copy(datum(DataType::Double, 0, 2).get(), 3),
            " -> data <CellsAll/Copied> not found in runfile...\n");
  EXPECT_FALSE(result()->existDataset(path));
}

TEST_F(SetupOutput, ADatumThatIsMissingFailsAsItsReaderDoes) {
  run();
  ::testing::internal::CaptureStderr();
  EXPECT_THROW(copy(datum(DataType::Double, 2, 2).get(), 0), std::exception);
  ::testing::internal::GetCapturedStderr();
}

TEST_F(SetupOutput, CopyingIsAnnouncedAboveLevelOne) {
  run()->writeDoubleScalar(path, 1.5);
  EXPECT_EQ(copy(datum(DataType::Double, 1, 1).get(), 1), "");
  EXPECT_EQ(copy(datum(DataType::Double, 1, 1).get(), 2),
            " -> reading data <CellsAll/Copied> from runfile and writing to result file.\n");
}

class SetupOutputOfParameters : public SetupOutput {
 protected:
  static std::unique_ptr<api::IParameter> parameter(DataType type, int size) {
    return std::make_unique<model::Parameter>(model::ParameterID::Gravity, "Copied", "", false,
                                              true, type, size);
  }

  std::string parameterPath = "Parameters/Copied";
};

TEST_F(SetupOutputOfParameters, OneValueIsAScalarAndMoreAreATable) {
  run()->writeDoubleScalar(parameterPath, 9.81);
  copy(parameter(DataType::Double, 1).get(), 0);
  EXPECT_EQ(result()->readDoubleScalar(parameterPath), 9.81);

  run()->writeIntVecVec(parameterPath, {{0, 1}});
  copy(parameter(DataType::Int, 2).get(), 0);
  EXPECT_EQ(result()->readIntVecVec(parameterPath), (Ints{{0, 1}}));
}

TEST_F(SetupOutputOfParameters, WithoutValuesIsPassedOver) {
  run();
  EXPECT_EQ(copy(parameter(DataType::Double, 0).get(), 2), "");
  EXPECT_EQ(copy(parameter(DataType::Double, 0).get(), 3),
            " -> parameter <Parameters/Copied> not found in runfile...\n");
}

}  // namespace
