#include "catalogue/Relations.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <set>

#include "catalogue/Aggregates.h"
#include "catalogue/Data.h"
#include "catalogue/Kernels.h"
#include "catalogue/Maps.h"
#include "catalogue/Outputs.h"
#include "catalogue/Parameters.h"
#include "catalogue/Sets.h"
#include "catalogue/keys.h"

namespace model {
namespace {

using catalogue::keysOf;
using testing::ElementsAre;
using testing::Pair;

/// Checks that all keys and all members of the rows are in the catalogue, each member once a row.
template <class From, class FromValue, class To, class ToValue>
void expectKnown(const std::map<From, std::vector<To>>& relation,
                 const std::map<From, FromValue>& from, const std::map<To, ToValue>& to) {
  for (const auto& [id, members] : relation) {
    EXPECT_EQ(from.count(id), 1U) << static_cast<int>(id);
    EXPECT_EQ(std::set<To>(members.begin(), members.end()).size(), members.size())
        << static_cast<int>(id);
    for (const To& member : members) {
      EXPECT_EQ(to.count(member), 1U) << static_cast<int>(id) << ": " << static_cast<int>(member);
    }
  }
}

TEST(Relations, NameOnlyWhatTheCatalogueHolds) {
  expectKnown(Aggregate2Kernels, AggregateProps, KernelProps);
  expectKnown(Aggregate2OptionalKernels, AggregateProps, KernelProps);
  expectKnown(Kernel2Data, KernelProps, DataProps);
  expectKnown(Kernel2OptionalData, KernelProps, DataProps);
  expectKnown(Kernel2Maps, KernelProps, MapProps);
  expectKnown(Kernel2Parameters, KernelProps, ParameterProps);
  EXPECT_TRUE(Kernel2Variables.empty());
}

TEST(Relations, GiveEveryComponentItsSet) {
  EXPECT_EQ(keysOf(Kernel2Set), keysOf(KernelProps));
  EXPECT_EQ(keysOf(Map2Sets), keysOf(MapProps));
  EXPECT_EQ(keysOf(Data2Set), keysOf(DataProps));
  EXPECT_EQ(keysOf(Output2Set), keysOf(OutputProps));
}

TEST(Relations, GiveEveryKernelItsData) {
  EXPECT_EQ(keysOf(Kernel2Data), keysOf(KernelProps));
}

TEST(Relations, GiveEveryOutputItsColumns) {
  EXPECT_EQ(keysOf(Output2DataColumns), keysOf(OutputProps));
}

TEST(Relations, BringEveryKernelIntoTheFullModel) {
  std::set<KernelID> kernels;
  for (const auto& [id, members] : Aggregate2Kernels) {
    kernels.insert(members.begin(), members.end());
  }
  EXPECT_EQ(std::vector<KernelID>(kernels.begin(), kernels.end()), keysOf(KernelProps));
}

TEST(Relations, JoinEveryKernelToTheSetsOfItsData) {
  for (const auto& [kid, members] : Kernel2Data) {
    const SetID from = Kernel2Set.at(kid);
    for (const DataID& did : members) {
      const SetID to = Data2Set.at(did);
      const bool joined = std::any_of(Map2Sets.begin(), Map2Sets.end(), [&](const auto& row) {
        return row.second == std::make_pair(from, to);
      });
      EXPECT_TRUE(from == to || joined)
          << KernelProps.at(kid).name << " has no way to " << DataProps.at(did).name;
    }
  }
}

TEST(Relations, StartTheMapsOfAKernelAtItsSet) {
  for (const auto& [kid, members] : Kernel2Maps) {
    for (const MapID& mid : members) {
      EXPECT_EQ(Map2Sets.at(mid).first, Kernel2Set.at(kid)) << KernelProps.at(kid).name;
    }
  }
}

TEST(Relations, NameAMapAfterItsToSetButForNeighboursAndRegions) {
  for (const auto& [mid, sets] : Map2Sets) {
    const std::string& name = MapProps.at(mid).name;
    const std::string& to = SetProps.at(sets.second).name;
    EXPECT_TRUE(name == to || (name == "NbrCells" && to == "CellsAll") ||
                (name == "ClRegion" && to == "MatIDRgn"))
        << name;
  }
}

TEST(Relations, TakeColumnsThatTheDataHave) {
  for (const auto& [oid, columns] : Output2DataColumns) {
    for (const auto& [did, component] : columns) {
      EXPECT_GE(component, 0);
      EXPECT_LT(component, DataProps.at(did).size) << OutputProps.at(oid).name;
    }
  }
}

TEST(Relations, CompareTheBottomWithItselfForTheBedChange) {
  EXPECT_THAT(Output2DataColumns.at(OutputID::delta_z),
              ElementsAre(Pair(DataID::BottomEl, 0), Pair(DataID::BottomEl, 0)));
}

TEST(Relations, ReadDischargesFromTheNodestringStates) {
  EXPECT_THAT(Output2DataColumns.at(OutputID::ns_hyd_discharge),
              ElementsAre(Pair(DataID::StateVar, 1)));
  EXPECT_THAT(Output2DataColumns.at(OutputID::ns_mor_discharge),
              ElementsAre(Pair(DataID::StateVar, 8)));
}

TEST(Relations, LetTwoKernelsAdvanceTheState) {
  EXPECT_THAT(Kernel2SolutionData,
              ElementsAre(Pair(KernelID::HydInternalFluxes, DataID::HydState),
                          Pair(KernelID::MorInternalFluxes, DataID::BottomEl)));
}

TEST(Relations, OfferFrictionToThreeAggregates) {
  EXPECT_THAT(
      Aggregate2OptionalKernels,
      ElementsAre(Pair(AggregateID::morphology_aggr, ElementsAre(KernelID::HydFriction)),
                  Pair(AggregateID::hyd_boundary_aggr, ElementsAre(KernelID::HydFriction)),
                  Pair(AggregateID::mor_boundary_aggr, ElementsAre(KernelID::HydFriction))));
}

}  // namespace
}  // namespace model
