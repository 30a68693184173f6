#include "setup/runfile/RunFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>

#include "dataio/Archive.h"
#include "dataio/Factory.h"
#include "model/Factory.h"
#include "setup/faults.h"
#include "setup/meshes.h"
#include "support/H5Compare.h"
#include "support/Process.h"
#include "support/TempDir.h"

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::StartsWith;
using enum model::AggregateID;

namespace {

std::unique_ptr<api::IModel> modelOf(const std::vector<model::AggregateID>& aggregates) {
  std::unique_ptr<api::IModel> model(model::Factory::getModelFromAggregates(aggregates, true));
  model->create();
  return model;
}

setup::Domain domainOf(const setup::Mesh& mesh) {
  setup::Domain domain;
  domain.mesh = mesh;
  domain.topology = setup::findTopology(domain.mesh);
  domain.geometry = setup::measure(domain.mesh, domain.topology);
  domain.bed.assign(mesh.cells.size(), 0.25);
  domain.flow.assign(mesh.cells.size(), {1.0, 0.5, 0.0});
  return domain;
}

class RunFile : public ::testing::Test {
 protected:
  RunFile() { study.document = R"({"SETUP":1})"; }

  void write(const std::vector<model::AggregateID>& aggregates, const setup::Mesh& mesh) {
    setup::writeRunFile(file, *modelOf(aggregates), domainOf(mesh), study);
  }

  std::unique_ptr<api::IH5Reader> reader() const {
    return std::unique_ptr<api::IH5Reader>(dataio::Factory::createH5Reader(file));
  }

  std::vector<std::string> filesInFolder() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(dir.path())) {
      names.push_back(entry.path().filename().string());
    }
    return names;
  }

  const support::TempDir dir;
  const std::string file = dir.file("run.h5");
  setup::Study study;
};

const setup::Mesh TRIANGLE = meshes::of({{0, 0, 0}, {1, 0, 0}, {0, 1, 0}}, {{0, 1, 2}});

}  // namespace

TEST_F(RunFile, HoldsExactlyWhatAHydraulicModelNeeds) {
  write({hydraulics_aggr}, meshes::square());
  EXPECT_THAT(
      support::datasetPaths(file),
      ElementsAre(".config/model", "CellsAll/BottomEl", "CellsAll/EdgeSign", "CellsAll/EdgesAll",
                  "CellsAll/GeomArea", "CellsAll/HydState", "CellsAll/Topology", "CellsAll/set",
                  "EdgHydWL/CellsAll", "EdgHydWL/EdgesAll", "EdgHydWL/set", "EdgesAll/CellsAll",
                  "EdgesAll/CharSize", "EdgesAll/GeomLeng", "EdgesAll/NormVect", "EdgesAll/set",
                  "EdgesSWE/CellsAll", "EdgesSWE/EdgesAll", "EdgesSWE/set", "NodeStrg/set",
                  "NodesAll/Coordnts", "NodesAll/set", "Parameters/CFLnumber", "Parameters/DTmax",
                  "Parameters/Gravity", "Parameters/MinWaterDepth", "Parameters/MorphStart",
                  "Parameters/SafeMode", "kernels/ID", "kernels/execution"));
}

TEST_F(RunFile, HoldsTheStudy) {
  write({hydraulics_aggr}, meshes::square());
  EXPECT_EQ(dataio::Archive::getModel(reader().get()), study.document);
}

TEST_F(RunFile, OfTwoCellsIsAsCalculatedByHand) {
  write({hydraulics_aggr}, meshes::square());
  const auto run = reader();
  EXPECT_EQ(run->readIntScalar("CellsAll/set"), 2);
  EXPECT_EQ(run->readIntScalar("EdgesAll/set"), 5);
  EXPECT_EQ(run->readIntScalar("NodesAll/set"), 4);
  EXPECT_EQ(run->readIntScalar("EdgHydWL/set"), 4);
  EXPECT_EQ(run->readIntScalar("EdgesSWE/set"), 1);
  EXPECT_EQ(run->readIntScalar("NodeStrg/set"), 0);
  EXPECT_THAT(run->readIntVecVec("CellsAll/EdgesAll"),
              ElementsAre(ElementsAre(0, 1, 2), ElementsAre(2, 3, 4)));
  EXPECT_THAT(run->readIntVecVec("CellsAll/EdgeSign"),
              ElementsAre(ElementsAre(1, 1, 1), ElementsAre(-1, 1, 1)));
  EXPECT_THAT(run->readIntVecVec("EdgesSWE/CellsAll"), ElementsAre(ElementsAre(0, 1)));
  EXPECT_THAT(run->readIntVecVec("EdgHydWL/CellsAll"),
              ElementsAre(ElementsAre(0), ElementsAre(0), ElementsAre(1), ElementsAre(1)));
  EXPECT_THAT(run->readDoubleVecVec("CellsAll/GeomArea"),
              ElementsAre(ElementsAre(2.0), ElementsAre(2.0)));
  EXPECT_THAT(run->readDoubleVecVec("CellsAll/BottomEl"),
              ElementsAre(ElementsAre(0.25), ElementsAre(0.25)));
  EXPECT_THAT(run->readDoubleVecVec("CellsAll/HydState"),
              ElementsAre(ElementsAre(1.0, 0.5, 0.0), ElementsAre(1.0, 0.5, 0.0)));
  EXPECT_THAT(run->readDoubleVecVec("NodesAll/Coordnts")[2], ElementsAre(2.0, 2.0, 0.6));
  EXPECT_THAT(run->readDoubleVecVec("EdgesAll/NormVect")[1], ElementsAre(1.0, 0.0));
}

TEST_F(RunFile, HoldsParametersAsScalars) {
  study.hydraulics.cfl = 0.75;
  write({hydraulics_aggr}, meshes::square());
  EXPECT_EQ(reader()->readDoubleScalar("Parameters/CFLnumber"), 0.75);
  EXPECT_EQ(reader()->readDoubleScalar("Parameters/MorphStart"), 1e12);
  EXPECT_EQ(reader()->readIntScalar("Parameters/SafeMode"), 1);
}

TEST_F(RunFile, SchedulesPreparationOnceAndAllOtherKernelsAlways) {
  write({hydraulics_aggr, hyd_flood_aggr}, meshes::square());
  EXPECT_THAT(reader()->readIntVecVec("kernels/ID"),
              ElementsAre(ElementsAre(0), ElementsAre(3), ElementsAre(13), ElementsAre(15),
                          ElementsAre(21), ElementsAre(23)));
  const auto windows = reader()->readDoubleVecVec("kernels/execution");
  ASSERT_EQ(windows.size(), 6U);
  EXPECT_THAT(windows[0], ElementsAre(0.0, 0.0, 0.0));
  for (std::size_t k = 1; k < 6; ++k) EXPECT_THAT(windows[k], ElementsAre(0.0, 0.0, 1e12));
}

TEST_F(RunFile, FollowsTheModelToDataOfOtherAggregates) {
  const std::unique_ptr<api::IModel> model(
      model::Factory::getModelFromKernels({model::KernelID::CalcBedGradient}, false));
  model->create();
  setup::writeRunFile(file, *model, domainOf(meshes::square()), study);
  EXPECT_THAT(support::datasetPaths(file),
              ElementsAre(".config/model", "CellsAll/BottomEl", "CellsAll/EdgesAll",
                          "CellsAll/GeomWght", "CellsAll/NbrCells", "CellsAll/set", "EdgesAll/set",
                          "Parameters/MinWaterDepth", "kernels/ID", "kernels/execution"));
}

TEST_F(RunFile, OfOneCellHasEmptyListsAndAScalarBed) {
  write({hydraulics_aggr}, TRIANGLE);
  EXPECT_EQ(reader()->readDoubleScalar("CellsAll/BottomEl"), 0.25);
  EXPECT_EQ(reader()->readIntScalar("EdgesSWE/set"), 0);
  EXPECT_TRUE(reader()->existDataset("EdgesSWE/CellsAll"));
  EXPECT_TRUE(support::readNumbers(file, "EdgesSWE/CellsAll").empty());
  EXPECT_THAT(reader()->readIntVecVec("EdgesAll/CellsAll"),
              ElementsAre(ElementsAre(0, 0), ElementsAre(0, 0), ElementsAre(0, 0)));
}

TEST_F(RunFile, ReplacesAnEarlierFile) {
  support::writeFile(file, "old");
  write({hydraulics_aggr}, TRIANGLE);
  EXPECT_EQ(reader()->readIntScalar("CellsAll/set"), 1);
  EXPECT_THAT(filesInFolder(), ElementsAre("run.h5"));
}

TEST_F(RunFile, RefusesAModelWithParametersThatTheStudyDoesNotGive) {
  const std::unique_ptr<api::IModel> model(
      model::Factory::getModelFromKernels({model::KernelID::MorFixBedCorrection}, false));
  model->create();
  EXPECT_THAT(faults::messageOf(
                  [&] { setup::writeRunFile(file, *model, domainOf(meshes::square()), study); }),
              StartsWith("the setup has no value for the parameter <FixBedAccuracy>, in file: "));
}

TEST_F(RunFile, RefusesDataOfAnotherShape) {
  EXPECT_THAT(faults::messageOf([this] {
                write({hydraulics_aggr, hyd_friction_aggr}, meshes::square());
              }),
              StartsWith("<CellsAll/Friction> has 0 values, but needs 2 rows of 1, in file: "));
}

TEST_F(RunFile, AFailureLeavesNoFile) {
  faults::messageOf([this] { write({hydraulics_aggr, hyd_friction_aggr}, meshes::square()); });
  EXPECT_THAT(filesInFolder(), ElementsAre());
}

TEST_F(RunFile, AFailureLeavesAnEarlierFileAsItWas) {
  support::writeFile(file, "old");
  faults::messageOf([this] { write({hydraulics_aggr, hyd_friction_aggr}, meshes::square()); });
  EXPECT_THAT(filesInFolder(), ElementsAre("run.h5"));
  EXPECT_EQ(support::readFile(file), "old");
}

TEST_F(RunFile, TellsIfItCannotBeWritten) {
  std::filesystem::create_directory(file);
  EXPECT_EQ(faults::messageOf([this] { write({hydraulics_aggr}, TRIANGLE); }),
            "file <" + file + "> cannot be written: it is a folder");
}

TEST_F(RunFile, NeverReplacesTheStudyOrItsMesh) {
  support::writeFile(dir.file("study.json"), "study");
  support::writeFile(dir.file("m.2dm"), "mesh");
  study.file = dir.file("study.json");
  study.mesh = setup::MeshFile{dir.file("m.2dm")};
  for (const std::string name : {"study.json", "m.2dm"}) {
    std::filesystem::create_symlink(dir.file(name), file);
    const std::string before = support::readFile(file);
    EXPECT_THAT(faults::messageOf([this] { write({hydraulics_aggr}, TRIANGLE); }),
                HasSubstr(name == "m.2dm" ? "> is the mesh file itself: give another name"
                                          : "> is the study document itself: give another name"));
    EXPECT_EQ(support::readFile(dir.file(name)), before);
    std::filesystem::remove(file);
  }
}

TEST(RunFileName, MustEndInH5AndHoldNoOtherDot) {
  for (const char* name : {"run.h5", "./run.h5", "../run.h5", "/tmp/run.h5"}) {
    EXPECT_NO_THROW(setup::requireRunFile(name)) << name;
  }
  for (const std::string name : {"run", "run.hdf", ".h5", "run.v2.h5", "run.h5.h5", "a.h5/run"}) {
    EXPECT_EQ(faults::messageOf([&name] { setup::requireRunFile(name); }),
              "run file <" + name + ">: the name must end in \".h5\" and hold no other dot");
  }
}

TEST(RunFileName, MustBeInAFolderThatExists) {
  const support::TempDir dir;
  EXPECT_EQ(
      faults::messageOf([&dir] { setup::requireRunFile(dir.file("none/run.h5")); }),
      "run file <" + dir.file("none/run.h5") + ">: there is no folder <" + dir.file("none") + ">");
}

TEST(RunFileName, DotsInFoldersAreTold) {
  const support::TempDir dir;
  std::filesystem::create_directory(dir.file("a.b"));
  ::testing::internal::CaptureStdout();
  setup::requireRunFile(dir.file("a.b/run.h5"));
  EXPECT_EQ(::testing::internal::GetCapturedStdout(),
            " -> run file <" + dir.file("a.b/run.h5") + ">: start the simulation in its folder, " +
                "as a path with further dots is not accepted there\n");
  ::testing::internal::CaptureStdout();
  setup::requireRunFile("../run.h5");
  EXPECT_EQ(::testing::internal::GetCapturedStdout(), "");
}
