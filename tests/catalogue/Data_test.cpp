#include "catalogue/Data.h"

#include <gmock/gmock.h>

#include "catalogue/keys.h"

namespace model {
namespace {

using testing::ElementsAre;

TEST(DataCatalogue, HasAPropertyAndADescriptionEach) {
  EXPECT_EQ(DataProps.size(), 46U);
  EXPECT_EQ(catalogue::keysOf(DataDescription), catalogue::keysOf(DataProps));
}

TEST(DataCatalogue, UsesNamesOfEightCharacters) {
  for (const auto& [id, property] : DataProps) {
    EXPECT_EQ(property.name.size(), 8U) << property.name;
  }
}

TEST(DataCatalogue, CarriesTheLimitsOfTheSystem) {
  EXPECT_EQ(DataProps.at(DataID::NodeStrg_EdgeSign).size, 40);
  EXPECT_EQ(DataProps.at(DataID::StateVar).size, 10);
  EXPECT_EQ(DataProps.at(DataID::EdgeData_NumValue).size, 7);
  EXPECT_EQ(DataProps.at(DataID::CellData_NumValue).size, 2);
  EXPECT_EQ(DataProps.at(DataID::InSeries_NumValue).size, 12000);
}

TEST(DataCatalogue, HoldsOneDatumOfTypeString) {
  EXPECT_EQ(DataProps.at(DataID::StrNames).type, DataType::String);
  EXPECT_EQ(DataProps.at(DataID::IsWetted).type, DataType::Int);
  EXPECT_EQ(DataProps.at(DataID::HydState).type, DataType::Double);
}

TEST(DataCatalogue, ListsWhatTheSimulationCreates) {
  EXPECT_THAT(DataSimulation,
              ElementsAre(DataID::IsWetted, DataID::FlowCurv, DataID::BedTrCap, DataID::BedTrDer,
                          DataID::BedGrdnt, DataID::FluxesHy, DataID::FluxesMo, DataID::StateVar,
                          DataID::ChezyCoe, DataID::LocalDat, DataID::NewBedEl, DataID::FloodVar));
}

TEST(DataCatalogue, ListsWhatOnlyReadersOfResultsNeed) {
  EXPECT_THAT(DataSetup, ElementsAre(DataID::Topology, DataID::Coordnts, DataID::StrNames));
}

TEST(DataCatalogue, KeepsABlankAtTheEndOfAText) {
  EXPECT_EQ(DataDescription.at(DataID::NewBedEl),
            "New temporary bed elevation due to the pseudo-update used for the fixed bed "
            "correction approach [m]. ");
}

}  // namespace
}  // namespace model
