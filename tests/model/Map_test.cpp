#include "model/Map.h"

#include <gmock/gmock.h>

#include "model/Set.h"
#include "model/reports.h"

namespace model {
namespace {

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

}  // namespace
}  // namespace model
