#include "simulation/names.h"

#include <gtest/gtest.h>

#include <memory>

#include "catalogue/Data.h"
#include "catalogue/Maps.h"
#include "catalogue/Relations.h"
#include "model/Factory.h"

namespace {

TEST(Names, OfDataAreTheirPathsInRunFiles) {
  EXPECT_EQ(simulation::pathOf(model::DataID::NodeStrg_ListSize), "NodeStrg/ListSize");
  for (const auto& [id, property] : model::DataProps) {
    const std::unique_ptr<api::ISet> set(model::Factory::createSet(model::Data2Set.at(id)));
    const std::unique_ptr<api::IData> data(model::Factory::createData(id, set.get(), false));
    EXPECT_EQ(simulation::pathOf(id), data->getH5Path());
  }
}

TEST(Names, OfMapsAreTheirPathsInRunFiles) {
  EXPECT_EQ(simulation::pathOf(model::MapID::EdgesSWE_CellsAll), "EdgesSWE/CellsAll");
  for (const auto& [id, property] : model::MapProps) {
    const auto& [from, to] = model::Map2Sets.at(id);
    const std::unique_ptr<api::ISet> set(model::Factory::createSet(from));
    const std::unique_ptr<api::ISet> mapped(model::Factory::createSet(to));
    const std::unique_ptr<api::IMap> map(model::Factory::createMap(id, set.get(), mapped.get()));
    EXPECT_EQ(simulation::pathOf(id), map->getH5Path());
  }
}

}  // namespace
