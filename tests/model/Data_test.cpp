#include "model/Data.h"

#include <gmock/gmock.h>

#include "model/Set.h"
#include "model/reports.h"

namespace model {
namespace {

using testing::ElementsAre;

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

}  // namespace
}  // namespace model
