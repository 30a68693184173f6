#include "model/Output.h"

#include <gmock/gmock.h>

#include <memory>
#include <stdexcept>

#include "catalogue/Outputs.h"
#include "catalogue/Relations.h"
#include "model/Factory.h"
#include "model/components.h"
#include "model/reports.h"

namespace model {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

class OutputTest : public testing::Test {
 protected:
  /// An output of the catalogue, defined by the tables.
  std::unique_ptr<api::IOutput> defined(OutputID id) {
    std::unique_ptr<api::IOutput> output(Factory::createOutput(id, &cells));
    output->define(Output2DataColumns.at(id), Output2Operations.count(id) == 1
                                                  ? Output2Operations.at(id)
                                                  : std::vector<OutputOperation>{});
    return output;
  }

  Set cells{SetID::CellsAll, "CellsAll", "all cells"};
  Output pair{OutputID::spec_discharge, "pair", "two", DataType::Double, &cells, 2, false};
  Output tracked{OutputID::flood_tracking, "tracked", "max", DataType::Double, &cells, 1, true};
  OutputOperation zero{"0", [](double, const std::vector<double>&) { return 0.0; }};
};

TEST_F(OutputTest, TellsWhatItWasGiven) {
  EXPECT_EQ(pair.getID(), OutputID::spec_discharge);
  EXPECT_EQ(pair.getName(), "pair");
  EXPECT_EQ(pair.getDescription(), "two");
  EXPECT_EQ(pair.getType(), "double");
  EXPECT_EQ(pair.getSet(), &cells);
  EXPECT_EQ(pair.getH5Path(), "CellsAll/pair");
  EXPECT_THAT(pair.getDimension(), ElementsAre(0, 2));
  EXPECT_FALSE(pair.isSimulationOnly());
  EXPECT_FALSE(pair.isSetupOnly());
  EXPECT_FALSE(pair.isTracking());
  EXPECT_TRUE(tracked.isTracking());
}

TEST_F(OutputTest, IsNeverStoredAndSoNeverVaries) {
  EXPECT_FALSE(pair.isSolution());
  EXPECT_FALSE(pair.isVariableInTime());
}

TEST_F(OutputTest, WithoutOperationsCopiesOneColumnPerValue) {
  pair.define({{DataID::HydState, 1}, {DataID::HydState, 2}}, {});
  EXPECT_THAT(pair.getDataColumns(),
              ElementsAre(Pair(DataID::HydState, 1), Pair(DataID::HydState, 2)));
  EXPECT_EQ(pair.getNrDataFunctions(), 0);
}

TEST_F(OutputTest, RefusesAWrongNumberOfColumns) {
  EXPECT_EQ(reports::failureOf([&] {
              pair.define({{DataID::HydState, 1}}, {});
            }),
            reports::failedCheck("number of data columns do not match the output size",
                                 "src/model/Output"));
  EXPECT_THAT(pair.getDataColumns(), IsEmpty());
}

TEST_F(OutputTest, RefusesAWrongNumberOfOperations) {
  EXPECT_EQ(
      reports::failureOf([&] {
        pair.define({{DataID::HydState, 1}, {DataID::HydState, 2}}, {zero});
      }),
      reports::failedCheck("number of functions must match the output size", "src/model/Output"));
  EXPECT_EQ(pair.getNrDataFunctions(), 0);
}

TEST_F(OutputTest, WithOperationsMayHaveMoreColumnsThanValues) {
  const auto velocity = defined(OutputID::flow_velocity);
  EXPECT_EQ(velocity->getDataColumns().size(), 4U);
  EXPECT_EQ(velocity->getSize(), 2);
  EXPECT_EQ(velocity->getNrDataFunctions(), 2);
  EXPECT_EQ(velocity->getDataFunction(1).expression, "$1/($2-$3)");
  EXPECT_EQ(velocity->getDataFunction(1).function(0.1, {1.0, 6.0, 3.0, 1.0}), 3.0);
}

TEST_F(OutputTest, RefusesAnOperationThatItDoesNotHave) {
  const auto depth = defined(OutputID::water_depth);
  EXPECT_EQ(depth->getDataFunction(0).expression, "$0-$1");
  EXPECT_THROW(depth->getDataFunction(1), std::out_of_range);
  EXPECT_THROW(depth->getDataFunction(-1), std::out_of_range);
}

TEST_F(OutputTest, ListsItsDataOnceInAscendingOrder) {
  EXPECT_THAT(defined(OutputID::flow_velocity)->getData(),
              ElementsAre(DataID::HydState, DataID::BottomEl));
  pair.define({{DataID::FlowCurv, 0}, {DataID::HydState, 0}}, {});
  EXPECT_THAT(pair.getData(), ElementsAre(DataID::HydState, DataID::FlowCurv));
}

TEST_F(OutputTest, ReadsTheFirstOfTwoEqualColumnsFromTheStart) {
  EXPECT_THAT(defined(OutputID::delta_z)->getInitData(), ElementsAre(0));
  EXPECT_THAT(defined(OutputID::water_depth)->getInitData(), IsEmpty());
  EXPECT_THAT(defined(OutputID::flow_velocity)->getInitData(), IsEmpty());
}

TEST_F(OutputTest, ReportsEachPairOfEqualColumns) {
  const std::pair<DataID, int> bottom(DataID::BottomEl, 0);
  const std::pair<DataID, int> state(DataID::HydState, 0);
  pair.define({bottom, state, bottom, state, bottom}, {zero, zero});
  EXPECT_THAT(pair.getInitData(), ElementsAre(0, 0, 1, 2));
}

TEST_F(OutputTest, OfEveryKindFitsItsTables) {
  for (const auto& [id, property] : OutputProps) {
    EXPECT_EQ(defined(id)->getDataColumns().size(), Output2DataColumns.at(id).size())
        << property.name;
  }
}

TEST_F(OutputTest, PrintsPathTypeAndDimension) {
  cells.setSize(3);
  EXPECT_EQ(reports::outputOf([&] { pair.print(); }),
            "Output: CellsAll/pair (dtype=double)\n -> with dimension (3/2)\n");
}

}  // namespace
}  // namespace model
