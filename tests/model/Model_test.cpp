#include "model/Model.h"

#include <gmock/gmock.h>

#include <stdexcept>

#include "catalogue/Kernels.h"
#include "catalogue/Relations.h"
#include "model/Factory.h"
#include "model/reports.h"

namespace model {
namespace {

using reports::failedCheck;
using reports::failureOf;
using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

/// A model with all its components.
Model created(const std::vector<AggregateID>& aggregates, bool withSetup = true) {
  Model model(aggregates, withSetup);
  model.create();
  return model;
}

Model hydraulics() {
  return created({AggregateID::hydraulics_aggr});
}

const char* const MODEL_SOURCE = "src/model/Model";

// -- closing the lists ----------------------------------------------------------------------------

TEST(ModelClosure, OfHydraulicsHoldsWhatItsKernelsNeed) {
  const Model model({AggregateID::hydraulics_aggr}, false);
  EXPECT_THAT(model.getAggregates(), ElementsAre(AggregateID::hydraulics_aggr));
  EXPECT_THAT(model.getKernels(),
              ElementsAre(KernelID::InitCellHydFeatures, KernelID::TimeStepCalculation,
                          KernelID::HydWallBFluxes, KernelID::HydInternalFluxes, KernelID::Update));
  EXPECT_THAT(model.getSets(),
              ElementsAre(SetID::CellsAll, SetID::EdgesAll, SetID::EdgHydWL, SetID::EdgesSWE));
  EXPECT_THAT(model.getMaps(), ElementsAre(MapID::CellsAll_EdgesAll, MapID::EdgesAll_CellsAll,
                                           MapID::EdgHydWL_EdgesAll, MapID::EdgHydWL_CellsAll,
                                           MapID::EdgesSWE_EdgesAll, MapID::EdgesSWE_CellsAll));
  EXPECT_THAT(model.getDats(),
              ElementsAre(DataID::NormVect, DataID::GeomLeng, DataID::CharSize, DataID::FluxesHy,
                          DataID::HydState, DataID::BottomEl, DataID::IsWetted,
                          DataID::CellsAll_GeomArea, DataID::CellsAll_EdgeSign));
  EXPECT_THAT(model.getPars(),
              ElementsAre(ParameterID::CFLnumber, ParameterID::DTmax, ParameterID::MinWaterDepth,
                          ParameterID::Gravity, ParameterID::MorphStart, ParameterID::SafeMode));
  EXPECT_THAT(model.getVars(), IsEmpty());
  EXPECT_THAT(model.getOuts(), IsEmpty());
}

TEST(ModelClosure, HoldsAKernelOfTwoAggregatesOnce) {
  const Model model({AggregateID::morphology_aggr, AggregateID::mor_fixedbed_aggr}, false);
  EXPECT_THAT(model.getAggregates(),
              ElementsAre(AggregateID::morphology_aggr, AggregateID::mor_fixedbed_aggr));
  EXPECT_THAT(model.getKernels(),
              ElementsAre(KernelID::InitCellMorFeatures, KernelID::MorWallBFluxes,
                          KernelID::MorBedloadTransport, KernelID::MorInternalFluxes,
                          KernelID::MorFixBedCorrection, KernelID::MorFixBedCorrectionMax,
                          KernelID::Update));
}

TEST(ModelClosure, DoesNotTakeInOptionalDataOrKernels) {
  const Model model({AggregateID::hydraulics_aggr, AggregateID::hyd_boundary_aggr}, false);
  EXPECT_THAT(model.getDats(),
              AllOf(Not(Contains(DataID::ChezyCoe)), Not(Contains(DataID::FluxesMo))));
  EXPECT_THAT(model.getKernels(), Not(Contains(KernelID::HydFriction)));
}

TEST(ModelClosure, WithSetupAddsWhatReadersOfResultsNeed) {
  const Model model({AggregateID::hydraulics_aggr}, true);
  EXPECT_THAT(model.getSets(), ElementsAre(SetID::NodesAll, SetID::CellsAll, SetID::EdgesAll,
                                           SetID::EdgHydWL, SetID::EdgesSWE, SetID::NodeStrg));
  EXPECT_THAT(model.getDats(), AllOf(Contains(DataID::Topology), Contains(DataID::Coordnts),
                                     Contains(DataID::StrNames)));
}

TEST(ModelClosure, OfKernelsSortsThemAndHoldsEachOnce) {
  const Model model({KernelID::Update, KernelID::CalcBedGradient, KernelID::Update}, false);
  EXPECT_THAT(model.getKernels(), ElementsAre(KernelID::CalcBedGradient, KernelID::Update));
  EXPECT_THAT(model.getAggregates(), IsEmpty());
}

TEST(ModelClosure, IsSoundForEveryKernel) {
  for (const auto& [id, property] : KernelProps) {
    const Model model(std::vector<KernelID>{id}, false);
    EXPECT_THAT(model.getKernels(), ElementsAre(id)) << property.name;
    EXPECT_THAT(model.getSets(), Contains(Kernel2Set.at(id))) << property.name;
    for (const DataID& did : Kernel2Data.at(id)) {
      EXPECT_THAT(model.getDats(), Contains(did)) << property.name;
      EXPECT_THAT(model.getSets(), Contains(Data2Set.at(did))) << property.name;
    }
  }
}

TEST(ModelClosure, OfTheFullModelHoldsAllAggregatesAndKernels) {
  const std::vector<AggregateID> all = Model::getFullModel();
  ASSERT_EQ(all.size(), 12U);
  for (int i = 0; i < 12; ++i) EXPECT_EQ(static_cast<int>(all.at(static_cast<std::size_t>(i))), i);
  EXPECT_EQ(Model(all, true).getKernels().size(), 26U);
}

TEST(ModelClosure, RefusesWhatTheCatalogueDoesNotHold) {
  EXPECT_EQ(failureOf([] { Model({static_cast<AggregateID>(99)}, false); }),
            failedCheck("aggregate <99> not defined", MODEL_SOURCE));
  EXPECT_EQ(failureOf([] { Model({static_cast<KernelID>(26)}, false); }),
            failedCheck("kernel <26> not defined", MODEL_SOURCE));
}

TEST(ModelClosure, TracksFloodsOnlyWhereTheirDataAre) {
  const std::vector<AggregateID> flood = {AggregateID::hydraulics_aggr,
                                          AggregateID::hyd_flood_aggr};
  EXPECT_THAT(Model(flood, true).getOuts(), ElementsAre(OutputID::flood_tracking));

  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  EXPECT_THAT(Model({AggregateID::hydraulics_aggr}, true).getOuts(), IsEmpty());
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

// -- creating the objects -------------------------------------------------------------------------

TEST(ModelCreate, MakesAnObjectForEveryEntry) {
  const Model model = created(Model::getFullModel());
  for (const auto& id : model.getAggregates()) EXPECT_EQ(model.getAggregate(id)->getID(), id);
  for (const auto& id : model.getKernels()) EXPECT_EQ(model.getKernel(id)->getID(), id);
  for (const auto& id : model.getSets()) EXPECT_EQ(model.getSet(id)->getID(), id);
  for (const auto& id : model.getDats()) EXPECT_EQ(model.getData(id)->getID(), id);
  for (const auto& id : model.getMaps()) EXPECT_EQ(model.getMap(id)->getID(), id);
  for (const auto& id : model.getPars()) EXPECT_EQ(model.getParameter(id)->getID(), id);
  for (const auto& id : model.getOuts()) EXPECT_EQ(model.getOutput(id)->getID(), id);
}

TEST(ModelCreate, LetsComponentsShareTheSetsOfTheModel) {
  const Model model = hydraulics();
  api::ISet* const cells = model.getSet(SetID::CellsAll);
  api::ISet* const edges = model.getSet(SetID::EdgesAll);
  EXPECT_EQ(model.getKernel(KernelID::Update)->getSet(), cells);
  EXPECT_EQ(model.getData(DataID::HydState)->getSet(), cells);
  EXPECT_EQ(model.getMap(MapID::EdgesAll_CellsAll)->getSet(), edges);
  EXPECT_EQ(model.getMap(MapID::EdgesAll_CellsAll)->getSetMapped(), cells);
  cells->setSize(4);
  EXPECT_THAT(model.getData(DataID::HydState)->getDimension(), ElementsAre(4, 3));
}

TEST(ModelCreate, MarksTheStateThatAFluxKernelOfTheModelAdvances) {
  const Model hydraulic = hydraulics();
  EXPECT_TRUE(hydraulic.getData(DataID::HydState)->isSolution());
  EXPECT_FALSE(hydraulic.getData(DataID::BottomEl)->isSolution());

  const Model morphological = created({AggregateID::morphology_aggr});
  EXPECT_FALSE(morphological.getData(DataID::HydState)->isSolution());
  EXPECT_TRUE(morphological.getData(DataID::BottomEl)->isSolution());
}

TEST(ModelCreate, GivesKernelsTheirOptionalData) {
  const Model model = hydraulics();
  EXPECT_THAT(model.getKernel(KernelID::Update)->getOptionalData(), ElementsAre(DataID::FluxesMo));
  EXPECT_THAT(model.getKernel(KernelID::HydWallBFluxes)->getOptionalData(), IsEmpty());
}

TEST(ModelCreate, DefinesTheTrackingOutputs) {
  const Model model = created({AggregateID::hydraulics_aggr, AggregateID::hyd_flood_aggr});
  api::IOutput* const flood = model.getOutput(OutputID::flood_tracking);
  EXPECT_TRUE(flood->isTracking());
  EXPECT_THAT(flood->getData(), ElementsAre(DataID::FloodVar));
  EXPECT_EQ(flood->getDataColumns().size(), 4U);
}

// -- outputs --------------------------------------------------------------------------------------

TEST(ModelAddOutputs, KeepsTheOrderOfTheRequest) {
  Model model = created({AggregateID::hydraulics_aggr, AggregateID::hyd_flood_aggr});
  model.addOutputs({"water_surface", "flow_velocity", "water_depth"});
  EXPECT_THAT(model.getOuts(), ElementsAre(OutputID::flood_tracking, OutputID::water_surface,
                                           OutputID::flow_velocity, OutputID::water_depth));
  api::IOutput* const velocity = model.getOutput(OutputID::flow_velocity);
  EXPECT_EQ(velocity->getSet(), model.getSet(SetID::CellsAll));
  EXPECT_EQ(velocity->getNrDataFunctions(), 2);
  EXPECT_EQ(velocity->getDataColumns().size(), 4U);
}

TEST(ModelAddOutputs, ListsAnOutputTwiceThatIsAskedForTwice) {
  Model model = hydraulics();
  model.addOutputs({"water_depth", "water_depth"});
  EXPECT_THAT(model.getOuts(), ElementsAre(OutputID::water_depth, OutputID::water_depth));
  EXPECT_EQ(model.getOutput(OutputID::water_depth)->getNrDataFunctions(), 1);
}

TEST(ModelAddOutputs, TellsWhatIsValidForANameItDoesNotKnow) {
  Model model = hydraulics();
  EXPECT_EQ(failureOf([&] {
              model.addOutputs({"water_depth", "colour"});
            }),
            " -> output <colour> cannot be defined within the this model setup, valid are:\n"
            " -> water_surface\n"
            " -> water_depth\n"
            " -> bottom_elevation\n"
            " -> spec_discharge\n"
            " -> delta_z\n"
            " -> flow_velocity\n"
            " -> flow_velocity_abs\n"
            " -> \n");
}

TEST(ModelAddOutputs, RefusesAnOutputWithoutItsData) {
  Model model = hydraulics();
  EXPECT_THAT(failureOf([&] { model.addOutputs({"friction_chezy"}); }),
              testing::StartsWith(" -> output <friction_chezy> cannot be defined within the this "
                                  "model setup, valid are:\n"));
}

TEST(ModelAddOutputs, RefusesATrackingOutputEvenWhereItIsHeld) {
  Model model = created({AggregateID::hydraulics_aggr, AggregateID::hyd_flood_aggr});
  EXPECT_THAT(failureOf([&] { model.addOutputs({"flood_tracking"}); }),
              testing::StartsWith(" -> output <flood_tracking> cannot be defined"));
}

TEST(ModelAddOutputs, OffersSedimentDischargeWhereverNodestringStatesAre) {
  Model model = created({AggregateID::hydraulics_aggr, AggregateID::hyd_boundary_aggr});
  model.addOutputs({"ns_mor_discharge"});
  EXPECT_THAT(model.getOutput(OutputID::ns_mor_discharge)->getDataColumns(),
              ElementsAre(testing::Pair(DataID::StateVar, 8)));
}

// -- looking up -----------------------------------------------------------------------------------

TEST(ModelLookup, GivesTheSameObjectAsAComponent) {
  Model model = hydraulics();
  model.addOutputs({"delta_z"});
  // clang-format off
  EXPECT_EQ(model.getComponent(AggregateID::hydraulics_aggr), model.getAggregate(AggregateID::hydraulics_aggr));
  EXPECT_EQ(model.getComponent(KernelID::Update),             model.getKernel(KernelID::Update));
  EXPECT_EQ(model.getComponent(SetID::CellsAll),              model.getSet(SetID::CellsAll));
  EXPECT_EQ(model.getComponent(DataID::HydState),             model.getData(DataID::HydState));
  EXPECT_EQ(model.getComponent(MapID::EdgesAll_CellsAll),     model.getMap(MapID::EdgesAll_CellsAll));
  EXPECT_EQ(model.getComponent(ParameterID::Gravity),         model.getParameter(ParameterID::Gravity));
  EXPECT_EQ(model.getComponent(OutputID::delta_z),            model.getOutput(OutputID::delta_z));
  // clang-format on
}

TEST(ModelLookup, RefusesWhatTheModelDoesNotHold) {
  const Model model = hydraulics();
  // clang-format off
  EXPECT_EQ(failureOf([&] { model.getAggregate(AggregateID::hyd_flood_aggr); }),    failedCheck("aggregate <11> not found", MODEL_SOURCE));
  EXPECT_EQ(failureOf([&] { model.getKernel(KernelID::HydFlood); }),                failedCheck("kernel <23> not found", MODEL_SOURCE));
  EXPECT_EQ(failureOf([&] { model.getSet(SetID::CellsFix); }),                      failedCheck("set <2> not found", MODEL_SOURCE));
  EXPECT_EQ(failureOf([&] { model.getData(DataID::FloodVar); }),                    failedCheck("data <24> not found", MODEL_SOURCE));
  EXPECT_EQ(failureOf([&] { model.getMap(MapID::CellsFix_CellsAll); }),             failedCheck("map <2> not found", MODEL_SOURCE));
  EXPECT_EQ(failureOf([&] { model.getParameter(ParameterID::FrictionType); }),      failedCheck("parameter <7> not found", MODEL_SOURCE));
  EXPECT_EQ(failureOf([&] { model.getVariable(static_cast<VariableID>(1)); }),      failedCheck("variable <1> not found", MODEL_SOURCE));
  EXPECT_EQ(failureOf([&] { model.getOutput(OutputID::delta_z); }),                 failedCheck("output <5> not found", MODEL_SOURCE));
  EXPECT_EQ(failureOf([&] { model.getComponent(static_cast<VariableID>(1)); }),     failedCheck("variable <1> not found", MODEL_SOURCE));
  // clang-format on
}

TEST(ModelLookup, FindsNothingBeforeTheObjectsAreMade) {
  const Model model({AggregateID::hydraulics_aggr}, false);
  EXPECT_EQ(failureOf([&] { model.getKernel(KernelID::Update); }),
            failedCheck("kernel <21> not found", MODEL_SOURCE));
}

// -- components outside the closure ---------------------------------------------------------------

TEST(ModelTempComponent, BringsItsSetsWithIt) {
  Model model({AggregateID::hydraulics_aggr}, false);
  const api::IBase* const map = model.createTempComponent(MapID::CellsFix_EdgesAll);
  EXPECT_EQ(map, model.getMap(MapID::CellsFix_EdgesAll));
  EXPECT_EQ(map->getH5Path(), "CellsFix/EdgesAll");
  EXPECT_EQ(model.getMap(MapID::CellsFix_EdgesAll)->getSetMapped(), model.getSet(SetID::EdgesAll));

  EXPECT_EQ(model.createTempComponent(KernelID::HydSource)->getH5Path(), "ClHydSrc/HydSource");
  EXPECT_EQ(model.createTempComponent(DataID::StateVar)->getH5Path(), "NodeStrg/StateVar");
  EXPECT_EQ(model.createTempComponent(SetID::InSeries)->getH5Path(), "InSeries/set");
  EXPECT_EQ(model.createTempComponent(ParameterID::Gravity)->getH5Path(), "Parameters/Gravity");
}

TEST(ModelTempComponent, IsNotPartOfTheSolution) {
  Model model({AggregateID::hydraulics_aggr}, false);
  model.createTempComponent(DataID::HydState);
  EXPECT_FALSE(model.getData(DataID::HydState)->isSolution());
}

TEST(ModelTempComponent, LeavesAloneWhatTheModelHolds) {
  Model model = hydraulics();
  api::ISet* const cells = model.getSet(SetID::CellsAll);
  api::IData* const state = model.getData(DataID::HydState);
  EXPECT_EQ(model.createTempComponent(SetID::CellsAll), cells);
  EXPECT_EQ(model.createTempComponent(DataID::HydState), state);
  EXPECT_TRUE(state->isSolution());
}

TEST(ModelTempComponent, RefusesWhatTheCatalogueDoesNotHold) {
  Model model({AggregateID::hydraulics_aggr}, false);
  EXPECT_THROW(model.createTempComponent(static_cast<KernelID>(99)), std::out_of_range);
  EXPECT_THROW(model.createTempComponent(static_cast<DataID>(99)), std::out_of_range);
  EXPECT_THROW(model.createTempComponent(static_cast<MapID>(99)), std::out_of_range);
  EXPECT_EQ(failureOf([&] { model.createTempComponent(static_cast<SetID>(99)); }),
            failedCheck("set property definition not found", "src/model/Factory"));
}

}  // namespace
}  // namespace model
