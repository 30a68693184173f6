#include "model/Factory.h"

#include <gmock/gmock.h>

#include <fstream>
#include <memory>

#include "api/IH5Writer.h"
#include "catalogue/Kernels.h"
#include "dataio/Archive.h"
#include "dataio/Factory.h"
#include "model/components.h"
#include "model/reports.h"
#include "support/TempDir.h"

namespace model {
namespace {

using reports::failedCheck;
using reports::failureOf;
using reports::outputOf;
using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

const char* const FACTORY_SOURCE = "src/model/Factory";
const char* const NO_DEFINITION = " -> no model definition found\n";

/// A command document with hydraulics and friction.
const char* const DOCUMENT =
    R"({"SETUP":{"DOMAIN":{"RHEOPLANE_2D":{"HYDRAULICS":{"FRICTION":{"type":"chezy"}}}}}})";

std::unique_ptr<api::IModel> compose(const std::string& definition) {
  return std::unique_ptr<api::IModel>(Factory::createModel(definition));
}

std::unique_ptr<api::IModel> fromDocument(const std::string& document) {
  return std::unique_ptr<api::IModel>(Factory::getModelFromCommandFile(document));
}

// -- models ---------------------------------------------------------------------------------------

TEST(FactoryCreateModel, ComposesTheFullModelFromNothing) {
  std::unique_ptr<api::IModel> model;
  EXPECT_EQ(outputOf([&] { model = compose(""); }), " -> composing the full model\n");
  EXPECT_EQ(model->getAggregates().size(), 12U);
  EXPECT_EQ(model->getKernels().size(), 26U);
  EXPECT_THAT(model->getDats(), Contains(DataID::StrNames));
  EXPECT_THAT(model->getOuts(), ElementsAre(OutputID::flood_tracking));
}

TEST(FactoryCreateModel, TakesDotsAloneForNothing) {
  EXPECT_EQ(outputOf([] { compose(".."); }), " -> composing the full model\n");
}

TEST(FactoryCreateModel, ReadsACommandFile) {
  const support::TempDir dir;
  std::ofstream(dir.file("run.json")) << DOCUMENT;
  std::unique_ptr<api::IModel> model;
  EXPECT_EQ(outputOf([&] { model = compose(dir.file("run.json")); }),
            " -> composing the model from the input file\n"
            " -> found aggregate <hydraulics_aggr>\n"
            " -> found aggregate <hyd_friction_aggr>\n");
  EXPECT_THAT(model->getAggregates(),
              ElementsAre(AggregateID::hydraulics_aggr, AggregateID::hyd_friction_aggr));
  EXPECT_EQ(model->getKernel(KernelID::HydFriction)->getName(), "HydFriction");
}

TEST(FactoryCreateModel, ReadsTheArchiveOfARunFile) {
  const support::TempDir dir;
  {
    const std::unique_ptr<api::IH5Writer> writer(
        dataio::Factory::createH5Writer(dir.file("run.h5")));
    dataio::Archive::addModel(writer.get(), DOCUMENT);
  }
  std::unique_ptr<api::IModel> model;
  EXPECT_EQ(outputOf([&] { model = compose(dir.file("run.h5")); }),
            " -> composing the model from archive\n"
            " -> found aggregate <hydraulics_aggr>\n"
            " -> found aggregate <hyd_friction_aggr>\n");
  EXPECT_THAT(model->getDats(), Contains(DataID::Topology));
  EXPECT_EQ(model->getSet(SetID::CellsAll)->getName(), "CellsAll");
}

TEST(FactoryCreateModel, ComposesOneAggregateWithoutSetupData) {
  std::unique_ptr<api::IModel> model;
  EXPECT_EQ(outputOf([&] { model = compose("a.3"); }),
            " -> composing the model for aggregate <3>\n");
  EXPECT_THAT(model->getAggregates(), ElementsAre(AggregateID::mor_boundary_aggr));
  EXPECT_THAT(model->getDats(),
              AllOf(Not(Contains(DataID::Topology)), Not(Contains(DataID::Coordnts)),
                    Not(Contains(DataID::StrNames))));
  EXPECT_EQ(model->getKernel(KernelID::MorBoundaryFluxes)->getName(), "MorBoundaryFluxes");
}

TEST(FactoryCreateModel, ComposesEveryAggregateAlone) {
  for (int i = 0; i < 12; ++i) {
    const auto model = compose("a." + std::to_string(i));
    EXPECT_THAT(model->getAggregates(), ElementsAre(static_cast<AggregateID>(i)));
  }
}

TEST(FactoryCreateModel, ComposesEveryKernelAlone) {
  for (const auto& [id, property] : KernelProps) {
    const auto model = compose("k." + std::to_string(static_cast<int>(id)));
    EXPECT_THAT(model->getKernels(), ElementsAre(id));
    EXPECT_THAT(model->getAggregates(), IsEmpty());
    EXPECT_EQ(model->getKernel(id)->getName(), property.name);
  }
}

TEST(FactoryCreateModel, NamesTheKernelItComposesFor) {
  EXPECT_EQ(outputOf([] { compose("k.17"); }), " -> composing the model for kernel <17>\n");
}

TEST(FactoryCreateModel, PassesOverDotsInARowAndAtTheStart) {
  EXPECT_THAT(compose("..a..08")->getAggregates(), ElementsAre(AggregateID::hyd_friction_aggr));
}

TEST(FactoryCreateModel, RefusesAFileNameWithASecondDot) {
  EXPECT_EQ(failureOf([] { compose("run.h5.tmp"); }), NO_DEFINITION);
  EXPECT_EQ(failureOf([] { compose("my.run.json"); }), NO_DEFINITION);
}

TEST(FactoryCreateModel, RefusesWhatIsNoNumber) {
  EXPECT_EQ(failureOf([] { compose("a.x"); }), NO_DEFINITION);
  EXPECT_EQ(failureOf([] { compose("k.1x"); }), NO_DEFINITION);
  EXPECT_EQ(failureOf([] { compose("k.-1"); }), NO_DEFINITION);
  EXPECT_EQ(failureOf([] { compose("a.99999999999"); }), NO_DEFINITION);
}

TEST(FactoryCreateModel, RefusesASingleWord) {
  EXPECT_EQ(failureOf([] { compose("a."); }), NO_DEFINITION);
  EXPECT_EQ(failureOf([] { compose("run"); }), NO_DEFINITION);
}

TEST(FactoryCreateModel, RefusesOtherEndingsAndFamilies) {
  EXPECT_EQ(failureOf([] { compose("run.txt"); }), NO_DEFINITION);
  EXPECT_EQ(failureOf([] { compose("s.1"); }), NO_DEFINITION);
}

TEST(FactoryCreateModel, RefusesNumbersBeyondTheCatalogue) {
  EXPECT_EQ(failureOf([] { compose("a.99"); }),
            failedCheck("aggregate <99> not defined", "src/model/Model"));
  EXPECT_EQ(failureOf([] { compose("k.26"); }),
            failedCheck("kernel <26> not defined", "src/model/Model"));
}

TEST(FactoryCommandFile, NeedsAllPathsOfAnAggregate) {
  const auto boundaryAlone = fromDocument(
      R"({"SETUP":{"DOMAIN":{"RHEOPLANE_2D":{"HYDRAULICS":{"BOUNDARY":{"STANDARD":[1]}}}}}})");
  EXPECT_THAT(boundaryAlone->getAggregates(), ElementsAre(AggregateID::hydraulics_aggr));

  const auto withStrings = fromDocument(
      R"({"SETUP":{"DOMAIN":{"RHEOPLANE_2D":{"HYDRAULICS":{"BOUNDARY":{"STANDARD":[1]}},
                                             "GEOMETRY":{"STRINGDEF":[1]}}}}})");
  EXPECT_THAT(withStrings->getAggregates(),
              ElementsAre(AggregateID::hydraulics_aggr, AggregateID::hyd_boundary_aggr));
}

TEST(FactoryCommandFile, RefusesADocumentWithoutAnyAggregate) {
  EXPECT_EQ(failureOf([] { fromDocument(R"({"SIMULATION":{"TIME":{"end":1.0}}})"); }),
            failedCheck("no aggregates found...something went wrong with the model definition",
                        FACTORY_SOURCE));
}

TEST(FactoryModels, RefuseEmptyLists) {
  EXPECT_EQ(failureOf([] { Factory::getModelFromAggregates({}, true); }),
            failedCheck("no aggregates found...something went wrong with the model definition",
                        FACTORY_SOURCE));
  EXPECT_EQ(failureOf([] { Factory::getModelFromKernels({}, true); }),
            failedCheck("no kernels found...something went wrong with the model definition",
                        FACTORY_SOURCE));
}

// -- components -----------------------------------------------------------------------------------

class FactoryComponents : public testing::Test {
 protected:
  Set cells{SetID::CellsAll, "CellsAll", "all cells"};
  Set edges{SetID::EdgesAll, "EdgesAll", "all edges"};
};

TEST_F(FactoryComponents, FollowTheTables) {
  const std::unique_ptr<api::IMap> map(
      Factory::createMap(MapID::CellsAll_NbrCells, &cells, &edges));
  EXPECT_EQ(map->getName(), "NbrCells");
  EXPECT_EQ(map->getSize(), 3);
  EXPECT_EQ(map->getDescription(), "Map from cells (ALL) to neighbour cells (1 -> 3).");
  EXPECT_EQ(map->getSet(), &cells);
  EXPECT_EQ(map->getSetMapped(), &edges);

  const std::unique_ptr<api::ISet> set(Factory::createSet(SetID::NodesAll));
  EXPECT_EQ(set->getName(), "NodesAll");
  EXPECT_EQ(set->getSize(), 0);

  const std::unique_ptr<api::IKernel> kernel(Factory::createKernel(KernelID::HydFlood, &cells));
  EXPECT_EQ(kernel->getName(), "HydFlood");
  EXPECT_EQ(kernel->getSize(), 3);

  const std::unique_ptr<api::IAggregate> aggregate(
      Factory::createAggregate(AggregateID::hyd_flood_aggr));
  EXPECT_EQ(aggregate->getName(), "hyd_flood_aggr");
  EXPECT_EQ(aggregate->getDescription(), "This Aggregate is used to track flood variables.");
}

TEST_F(FactoryComponents, OfDataTellWhoNeedsThem) {
  const std::unique_ptr<api::IData> wetted(Factory::createData(DataID::IsWetted, &cells, false));
  EXPECT_TRUE(wetted->isSimulationOnly());
  EXPECT_FALSE(wetted->isSetupOnly());
  EXPECT_EQ(wetted->getType(), "int");

  const std::unique_ptr<api::IData> topology(Factory::createData(DataID::Topology, &cells, false));
  EXPECT_FALSE(topology->isSimulationOnly());
  EXPECT_TRUE(topology->isSetupOnly());

  const std::unique_ptr<api::IData> state(Factory::createData(DataID::HydState, &cells, true));
  EXPECT_FALSE(state->isSimulationOnly());
  EXPECT_TRUE(state->isSolution());
  EXPECT_EQ(state->getSize(), 3);
}

TEST_F(FactoryComponents, OfParametersTellWhichAreDerived) {
  const std::unique_ptr<api::IParameter> derived(
      Factory::createParameter(ParameterID::SedRelDensity));
  EXPECT_TRUE(derived->isSimulationOnly());
  const std::unique_ptr<api::IParameter> given(Factory::createParameter(ParameterID::Gravity));
  EXPECT_FALSE(given->isSimulationOnly());
  EXPECT_FALSE(given->isSetupOnly());
  EXPECT_EQ(given->getType(), "double");
}

TEST_F(FactoryComponents, OfOutputsTellWhichTrack) {
  const std::unique_ptr<api::IOutput> flood(
      Factory::createOutput(OutputID::flood_tracking, &cells));
  EXPECT_TRUE(flood->isTracking());
  EXPECT_EQ(flood->getSize(), 4);
  const std::unique_ptr<api::IOutput> depth(Factory::createOutput(OutputID::water_depth, &cells));
  EXPECT_FALSE(depth->isTracking());
  EXPECT_EQ(depth->getType(), "double");
}

TEST_F(FactoryComponents, OutsideTheCatalogueAreRefused) {
  // clang-format off
  EXPECT_EQ(failureOf([] { Factory::createAggregate(static_cast<AggregateID>(12)); }),                 failedCheck("aggregate property definition not found (id = 12)", FACTORY_SOURCE));
  EXPECT_EQ(failureOf([&] { Factory::createKernel(static_cast<KernelID>(26), &cells); }),              failedCheck("kernel property definition not found", FACTORY_SOURCE));
  EXPECT_EQ(failureOf([] { Factory::createSet(static_cast<SetID>(21)); }),                             failedCheck("set property definition not found", FACTORY_SOURCE));
  EXPECT_EQ(failureOf([&] { Factory::createMap(static_cast<MapID>(36), &cells, &edges); }),            failedCheck("map property definition not found", FACTORY_SOURCE));
  EXPECT_EQ(failureOf([&] { Factory::createData(static_cast<DataID>(46), &cells, false); }),           failedCheck("data property definition not found", FACTORY_SOURCE));
  EXPECT_EQ(failureOf([] { Factory::createParameter(static_cast<ParameterID>(20)); }),                 failedCheck("parameter property definition not found", FACTORY_SOURCE));
  EXPECT_EQ(failureOf([] { Factory::createVariable(static_cast<VariableID>(0)); }),                    failedCheck("variable property definition not found", FACTORY_SOURCE));
  EXPECT_EQ(failureOf([&] { Factory::createOutput(static_cast<OutputID>(13), &cells); }),              failedCheck("output property definition not found", FACTORY_SOURCE));
  // clang-format on
}

}  // namespace
}  // namespace model
