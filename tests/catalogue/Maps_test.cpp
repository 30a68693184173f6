#include "catalogue/Maps.h"

#include <gtest/gtest.h>

#include "catalogue/keys.h"

namespace model {
namespace {

TEST(Maps, HaveAPropertyAndADescriptionEach) {
  EXPECT_EQ(MapProps.size(), 36U);
  EXPECT_EQ(catalogue::keysOf(MapDescription), catalogue::keysOf(MapProps));
}

TEST(Maps, AreIntsUnderANameOfEightCharacters) {
  for (const auto& [id, property] : MapProps) {
    EXPECT_EQ(property.type, DataType::Int) << property.name;
    EXPECT_EQ(property.name.size(), 8U) << property.name;
  }
}

TEST(Maps, OfNodestringsHoldFortyEntries) {
  EXPECT_EQ(MapProps.at(MapID::NodeStrg_EdgesAll).size, 40);
  EXPECT_EQ(MapProps.at(MapID::NodeStrg_CellsAll).size, 40);
}

TEST(Maps, OfWallEdgesHoldOneCellAndOfInnerEdgesTwo) {
  EXPECT_EQ(MapProps.at(MapID::EdgHydWL_CellsAll).size, 1);
  EXPECT_EQ(MapProps.at(MapID::EdgesSWE_CellsAll).size, 2);
}

TEST(Maps, TellWhatTheyAreFor) {
  EXPECT_EQ(MapDescription.at(MapID::EdgesEXN_CellsAll),
            "Map from internal (EXNer) edges  to left/right cell (1 -> 2).");
}

}  // namespace
}  // namespace model
