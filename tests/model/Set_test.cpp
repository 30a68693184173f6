#include "model/Set.h"

#include <gtest/gtest.h>

#include "model/reports.h"

namespace model {
namespace {

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

}  // namespace
}  // namespace model
