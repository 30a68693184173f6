#include "model/components.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "model/reports.h"

namespace model {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// -- Aggregate ------------------------------------------------------------------------------------

const Aggregate FLOOD(AggregateID::hyd_flood_aggr, "hyd_flood_aggr", "tracks floods");

TEST(Aggregate, TellsWhatItWasGiven) {
  EXPECT_EQ(FLOOD.getID(), AggregateID::hyd_flood_aggr);
  EXPECT_EQ(FLOOD.getName(), "hyd_flood_aggr");
  EXPECT_STREQ(FLOOD.getNameC(), "hyd_flood_aggr");
  EXPECT_EQ(FLOOD.getDescription(), "tracks floods");
}

TEST(Aggregate, HasNoSizeAndIsOnNoSide) {
  EXPECT_EQ(FLOOD.getSize(), 0);
  EXPECT_FALSE(FLOOD.isSimulationOnly());
  EXPECT_FALSE(FLOOD.isSetupOnly());
}

TEST(Aggregate, HasItsNameForAPath) {
  EXPECT_EQ(FLOOD.getH5Path(), "hyd_flood_aggr");
}

TEST(Aggregate, PrintsItsPath) {
  EXPECT_EQ(reports::outputOf([] { FLOOD.print(); }), "Aggregate: hyd_flood_aggr\n");
}

// -- Kernel ---------------------------------------------------------------------------------------

class KernelTest : public testing::Test {
 protected:
  Set cells{SetID::CellsAll, "CellsAll", "all cells"};
  Kernel update{KernelID::Update, "Update", "advances", &cells};
};

TEST_F(KernelTest, KnowsWhereItsScheduleStands) {
  EXPECT_STREQ(Kernel::kernelPath, "kernels/ID");
  EXPECT_STREQ(Kernel::kernelTimingPath, "kernels/execution");
  EXPECT_EQ(Kernel::kernelTimingLength, 3);
}

TEST_F(KernelTest, HasThreeTimingValuesOnASet) {
  cells.setSize(5);
  EXPECT_EQ(update.getID(), KernelID::Update);
  EXPECT_EQ(update.getSize(), 3);
  EXPECT_EQ(update.getSet(), &cells);
  EXPECT_THAT(update.getDimension(), ElementsAre(5, 3));
  EXPECT_EQ(update.getH5Path(), "CellsAll/Update");
  EXPECT_FALSE(update.isSimulationOnly());
  EXPECT_FALSE(update.isSetupOnly());
}

TEST_F(KernelTest, HasNoOptionalDataUntilTheyAreSet) {
  EXPECT_THAT(update.getOptionalData(), IsEmpty());
  update.setOptionalData({DataID::FluxesMo, DataID::ChezyCoe});
  EXPECT_THAT(update.getOptionalData(), ElementsAre(DataID::FluxesMo, DataID::ChezyCoe));
}

TEST_F(KernelTest, PrintsNameAndSet) {
  EXPECT_EQ(reports::outputOf([&] { update.print(); }), "Kernel: Update\n -> on set CellsAll\n");
}

// -- Set ------------------------------------------------------------------------------------------

TEST(Set, HasNoElementsUntilItsSizeIsSet) {
  Set cells(SetID::CellsAll, "CellsAll", "all cells");
  EXPECT_EQ(cells.getSize(), 0);
  cells.setSize(12);
  EXPECT_EQ(cells.getSize(), 12);
}

TEST(Set, TellsWhatItWasGiven) {
  const Set cells(SetID::CellsAll, "CellsAll", "all cells");
  EXPECT_EQ(cells.getID(), SetID::CellsAll);
  EXPECT_EQ(cells.getName(), "CellsAll");
  EXPECT_EQ(cells.getDescription(), "all cells");
  EXPECT_FALSE(cells.isSimulationOnly());
  EXPECT_FALSE(cells.isSetupOnly());
}

TEST(Set, HasAGroupWithADatasetForItsSize) {
  const Set cells(SetID::CellsAll, "CellsAll", "all cells");
  EXPECT_EQ(cells.getH5PathRoot(), "CellsAll");
  EXPECT_EQ(cells.getH5Path(), "CellsAll/set");
}

TEST(Set, PrintsPathAndSize) {
  Set cells(SetID::CellsAll, "CellsAll", "all cells");
  cells.setSize(12);
  EXPECT_EQ(reports::outputOf([&] { cells.print(); }), "Set: CellsAll/set (N=12)\n");
}

// -- Map ------------------------------------------------------------------------------------------

class MapTest : public testing::Test {
 protected:
  Set cells{SetID::CellsAll, "CellsAll", "all cells"};
  Set edges{SetID::EdgesAll, "EdgesAll", "all edges"};
  Map map{MapID::CellsAll_EdgesAll, "EdgesAll", "edges of a cell", &cells, &edges, 3};
};

TEST_F(MapTest, LeadsFromOneSetToAnother) {
  EXPECT_EQ(map.getID(), MapID::CellsAll_EdgesAll);
  EXPECT_EQ(map.getSet(), &cells);
  EXPECT_EQ(map.getSetMapped(), &edges);
  EXPECT_EQ(map.getH5Path(), "CellsAll/EdgesAll");
  EXPECT_FALSE(map.isSimulationOnly());
  EXPECT_FALSE(map.isSetupOnly());
}

TEST_F(MapTest, PrintsPathAndDimension) {
  cells.setSize(7);
  EXPECT_EQ(reports::outputOf([&] { map.print(); }),
            "Map: CellsAll/EdgesAll\n -> with dimension (7/3)\n");
}

// -- Data -----------------------------------------------------------------------------------------

class DataTest : public testing::Test {
 protected:
  /// A datum of four values on the cells.
  Data make(bool isSimulationOnly, bool isSolution, DataType type = DataType::Double) {
    return {DataID::HydState, "HydState", "state",   isSimulationOnly, false, type,
            &cells,           4,          isSolution};
  }

  Set cells{SetID::CellsAll, "CellsAll", "all cells"};
};

TEST_F(DataTest, TellsWhatItWasGiven) {
  const Data names(DataID::StrNames, "StrNames", "names", false, true, DataType::String, &cells, 1,
                   false);
  EXPECT_EQ(names.getID(), DataID::StrNames);
  EXPECT_EQ(names.getName(), "StrNames");
  EXPECT_EQ(names.getDescription(), "names");
  EXPECT_EQ(names.getSize(), 1);
  EXPECT_EQ(names.getSet(), &cells);
  EXPECT_FALSE(names.isSimulationOnly());
  EXPECT_TRUE(names.isSetupOnly());
}

TEST_F(DataTest, FollowsTheSizeOfItsSet) {
  const Data state = make(false, false);
  EXPECT_THAT(state.getDimension(), ElementsAre(0, 4));
  cells.setSize(9);
  EXPECT_THAT(state.getDimension(), ElementsAre(9, 4));
}

TEST_F(DataTest, HasAPathThatTellsTheSet) {
  Set regions(SetID::MatIDRgn, "MatIDRgn", "regions");
  const Data ofCell(DataID::CellsAll_GeomArea, "GeomArea", "area", false, false, DataType::Double,
                    &cells, 1, false);
  const Data ofRegion(DataID::MatIDRgn_GeomArea, "GeomArea", "area", false, false, DataType::Double,
                      &regions, 1, false);
  EXPECT_EQ(ofCell.getH5Path(), "CellsAll/GeomArea");
  EXPECT_EQ(ofRegion.getH5Path(), "MatIDRgn/GeomArea");
}

TEST_F(DataTest, NamesItsType) {
  EXPECT_EQ(make(false, false, DataType::Int).getType(), "int");
  EXPECT_EQ(make(false, false, DataType::Double).getType(), "double");
  EXPECT_EQ(make(false, false, DataType::String).getType(), "string");
  EXPECT_EQ(make(false, false, DataType::None).getType(), "");
}

TEST_F(DataTest, VariesInTimeIfTheSimulationCreatesOrSolvesIt) {
  EXPECT_FALSE(make(false, false).isVariableInTime());
  EXPECT_TRUE(make(true, false).isVariableInTime());
  EXPECT_TRUE(make(false, true).isVariableInTime());
  EXPECT_TRUE(make(false, true).isSolution());
  EXPECT_FALSE(make(true, false).isSolution());
}

TEST_F(DataTest, PrintsPathTypeAndDimension) {
  cells.setSize(9);
  const Data state = make(false, false);
  EXPECT_EQ(reports::outputOf([&] { state.print(); }),
            "Data: CellsAll/HydState (dtype=double)\n -> with dimension (9/4)\n");
}

// -- Parameter ------------------------------------------------------------------------------------

const Parameter DERIVED(ParameterID::InvGravity, "InvGravity", "1/g", true, false, DataType::Double,
                        1);
const Parameter INTS(ParameterID::BedloadInts, "BedloadInts", "switches", false, true,
                     DataType::Int, 2);

TEST(Parameter, TellsWhatItWasGiven) {
  EXPECT_EQ(INTS.getID(), ParameterID::BedloadInts);
  EXPECT_EQ(INTS.getName(), "BedloadInts");
  EXPECT_EQ(INTS.getDescription(), "switches");
  EXPECT_EQ(INTS.getType(), "int");
  EXPECT_EQ(INTS.getSize(), 2);
  EXPECT_FALSE(INTS.isSimulationOnly());
  EXPECT_TRUE(INTS.isSetupOnly());
}

TEST(Parameter, IsNeverPartOfTheSolution) {
  EXPECT_TRUE(DERIVED.isSimulationOnly());
  EXPECT_FALSE(DERIVED.isSolution());
  EXPECT_FALSE(INTS.isVariableInTime());
}

TEST(Parameter, StandsInAGroupOfItsOwn) {
  EXPECT_EQ(DERIVED.getH5Path(), "Parameters/InvGravity");
}

TEST(Parameter, PrintsPathTypeAndSize) {
  EXPECT_EQ(reports::outputOf([] { INTS.print(); }),
            "Parameter: Parameters/BedloadInts (dtype=int)\n -> with size 2\n");
}

// -- Variable -------------------------------------------------------------------------------------

const Variable STEP(static_cast<VariableID>(4), "Step", "time step", true, DataType::Double, 1);

TEST(Variable, TellsWhatItWasGiven) {
  EXPECT_EQ(STEP.getID(), static_cast<VariableID>(4));
  EXPECT_EQ(STEP.getName(), "Step");
  EXPECT_EQ(STEP.getDescription(), "time step");
  EXPECT_EQ(STEP.getType(), "double");
  EXPECT_EQ(STEP.getSize(), 1);
  EXPECT_TRUE(STEP.isSimulationOnly());
  EXPECT_FALSE(STEP.isSetupOnly());
  EXPECT_FALSE(STEP.isSolution());
}

TEST(Variable, HasItsNameForAPath) {
  EXPECT_EQ(STEP.getH5Path(), "Step");
}

TEST(Variable, PrintsPathTypeAndSize) {
  EXPECT_EQ(reports::outputOf([] { STEP.print(); }),
            "Variable: Step (dtype=double)\n -> with size 1\n");
}

}  // namespace
}  // namespace model
