// Input that a run must refuse: with a message that says what is wrong and where, with the exit
// status of the layer that notices, and without touching the run file.
//
// The layers above the runtime speak on standard error and end with status 1; the runtime speaks on
// standard output and ends with status 2, or 255 for a declaration.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "h5/DataSet.h"
#include "h5/File.h"
#include "system/Simulation.h"

namespace {

using support::overwrite;
using support::ownLines;
using support::removeLink;
using support::replace;
using support::replaceInts;
using support::replaceText;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Not;

using Damage = std::function<void(const std::string& runFile)>;

struct Case {
  const char* name;
  const char* sample;
  Damage damage;
  int status;
  const char* message;  ///< last lines of what the run says
};

void PrintTo(const Case& broken, std::ostream* stream) {
  *stream << broken.name;
}

const char* const KILLED = " -> ... unfortunately RHEOMARK is killed!\n";
const char* const UNHANDLED = " -> unhandled exception (actually, this should never happen)\n";

class BadInput : public support::Simulation, public ::testing::WithParamInterface<Case> {};

TEST_P(BadInput, IsRefusedWithAMessage) {
  useSample(GetParam().sample);
  GetParam().damage(runFile);
  const std::string before = support::readFile(runFile);
  const support::Outcome run = simulate();
  EXPECT_EQ(run.status, GetParam().status);
  const bool byRuntime = GetParam().status != 1;
  EXPECT_EQ(byRuntime, run.err.empty()) << run.err;
  const std::string report = byRuntime ? run.out : ownLines(run.err);
  EXPECT_THAT(report, HasSubstr(GetParam().message));
  if (!byRuntime) {
    EXPECT_THAT(report, EndsWith(KILLED));
  }
  EXPECT_THAT(run.out, Not(HasSubstr("successfully processed")));
  EXPECT_EQ(support::readFile(runFile), before);
}

std::string nameOf(const ::testing::TestParamInfo<Case>& info) {
  return info.param.name;
}

Damage without(const std::string& path) {
  return [path](const std::string& file) { removeLink(file, path); };
}
Damage with(const std::string& path, std::size_t position, double value) {
  return [=](const std::string& file) { overwrite(file, path, position, value); };
}
Damage shaped(const std::string& path, const std::vector<int>& shape, double value = 0.0) {
  return [=](const std::string& file) { replace(file, path, shape, value); };
}
Damage shapedInts(const std::string& path, const std::vector<int>& shape, int value = 0) {
  return [=](const std::string& file) { replaceInts(file, path, shape, value); };
}
Damage worded(const std::string& path, const std::string& text) {
  return [=](const std::string& file) { replaceText(file, path, text); };
}

/// Of so many rows and columns, none of which stand in the file.
Damage declared(const std::string& path, const h5::Shape& shape) {
  return [=](const std::string& name) {
    removeLink(name, path);
    const h5::File file(name, h5::File::READ_WRITE);
    h5::DataSet::create<int>(file.handle(), path, shape);
  };
}

/// A table that is to be found in itself.
Damage virtualTable(const std::string& path, const h5::Shape& shape) {
  return [=](const std::string& name) {
    removeLink(name, path);
    const h5::File file(name, h5::File::READ_WRITE);
    const h5::Handle space(H5Screate_simple(2, shape.data(), nullptr));
    const h5::Handle plan(H5Pcreate(H5P_DATASET_CREATE));
    H5Pset_virtual(plan.id(), space.id(), ".", path.c_str(), space.id());
    h5::checked(H5Dcreate2(file.handle().id(), path.c_str(), H5T_NATIVE_INT, space.id(),
                           H5P_DEFAULT, plan.id(), H5P_DEFAULT),
                path);
  };
}

void truncate(const std::string& file, double share) {
  const auto size = static_cast<double>(std::filesystem::file_size(file));
  std::filesystem::resize_file(file, static_cast<std::uintmax_t>(size * share));
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Files, BadInput, ::testing::Values(
    Case{"noHdf5",    "one_cell", [](auto& file) { support::writeFile(file, "hello"); }, 1,
         " -> Unable to open file run.h5 "},
    Case{"empty",     "one_cell", [](auto& file) { support::writeFile(file, ""); }, 1,
         " -> Unable to open file run.h5 "},
    Case{"half",      "one_cell", [](auto& file) { truncate(file, 0.5); }, 1,
         " -> Unable to open file run.h5 "},
    Case{"almostAll", "one_cell", [](auto& file) { truncate(file, 0.999); }, 1,
         " -> Unable to open file run.h5 "}), nameOf);

INSTANTIATE_TEST_SUITE_P(Missing, BadInput, ::testing::Values(
    Case{"model",      "one_cell", without(".config/model"), 1,
         " -> Unable to open the dataset \".config/model\":"},
    Case{"set",        "one_cell", without("CellsAll/set"), 2,
         "Dataset 'CellsAll/set' not found in file 'run.h5'\n"},
    Case{"groupOfSet", "dam_dry",  without("EdgesSWE"), 2,
         "Dataset 'EdgesSWE/set' not found in file 'run.h5'\n"},
    Case{"map",        "dam_dry",  without("EdgesSWE/CellsAll"), 1,
         " -> kernel <HydInternalFluxes> needs the map <EdgesSWE/CellsAll>, which this run does not have: the run file must hold it\n"},
    Case{"mapOfNeighbours", "mor_curvature_ikeda", without("CellsAll/NbrCells"), 1,
         " -> kernel <CalCCurvature> needs the map <CellsAll/NbrCells>, which this run does not have: the run file must hold it\n"},
    Case{"data",       "one_cell", without("CellsAll/GeomArea"), 1,
         " -> kernel <Update> needs the data <CellsAll/GeomArea>, which this run does not have: the run file must hold it\n"},
    Case{"dataOfEdges", "one_cell", without("EdgesAll/CharSize"), 1,
         " -> kernel <TimeStepCalculation> needs the data <EdgesAll/CharSize>, which this run does not have: the run file must hold it\n"},
    Case{"friction",   "friction_manning", without("CellsAll/Friction"), 1,
         " -> kernel <InitFrictionFeatures> needs the data <CellsAll/Friction>, which this run does not have: the run file must hold it\n"},
    Case{"state",      "one_cell", without("CellsAll/HydState"), 1,
         " -> data <CellsAll/HydState> not found in runfile: a run cannot start without it\n"},
    Case{"movingBed",  "mor_grass", without("CellsAll/BottomEl"), 1,
         " -> data <CellsAll/BottomEl> not found in runfile: a run cannot start without it\n"},
    Case{"topology",   "one_cell", without("CellsAll/Topology"), 1,
         " -> Unable to open the dataset \"CellsAll/Topology\":"},
    Case{"parameter",  "one_cell", without("Parameters/Gravity"), 1,
         " -> Unable to open the dataset \"Parameters/Gravity\":"},
    Case{"parameters", "one_cell", without("Parameters"), 1,
         " -> Unable to open the dataset \"Parameters/CFLnumber\":"},
    Case{"minimumDepth", "one_cell", without("Parameters/MinWaterDepth"), 1,
         " -> Unable to open the dataset \"Parameters/MinWaterDepth\":"},
    Case{"kernels",    "one_cell", without("kernels/ID"), 1,
         " -> Unable to open the dataset \"kernels/ID\":"},
    Case{"kernelOfAnotherModel", "one_cell", with("kernels/ID", 3, 23), 1,
         " -> kernel <23> not found, in file: src/model/Model on line "},
    Case{"execution",  "one_cell", without("kernels/execution"), 1,
         " -> Unable to open the dataset \"kernels/execution\":"}), nameOf);

INSTANTIATE_TEST_SUITE_P(Shapes, BadInput, ::testing::Values(
    Case{"columnsOfData", "one_cell", shaped("CellsAll/HydState", {1, 2}), 2,
         "dat.dim 2 in file run.h5 and dim 3 do not match\n"},
    Case{"rowsOfData",    "one_cell", shaped("CellsAll/HydState", {2, 3}), 2,
         "dat CellsAll/HydState has 2 rows in file run.h5, but its set CellsAll/set has 1 elements\n"},
    Case{"columnsOfMap",  "one_cell", shapedInts("CellsAll/EdgesAll", {1, 2}), 2,
         "map.dim 2 in file run.h5 and dim 3 do not match\n"},
    Case{"rowsOfMap",     "one_cell", shapedInts("CellsAll/EdgesAll", {2, 3}), 2,
         "map from set size 2 in file run.h5 and size 1 do not match \n"},
    Case{"rankOfMap",     "one_cell", shapedInts("CellsAll/EdgesAll", {1, 3, 1}), 2,
         "Error: dataset '/CellsAll/EdgesAll' has 3 extents, at most 2 are possible\n"},
    Case{"mapOfDoubles",  "one_cell", shaped("CellsAll/EdgesAll", {1, 3}), 2,
         "Unknown type in file run.h5 for map CellsAll/EdgesAll\n"},
    Case{"set",           "one_cell", shapedInts("CellsAll/set", {2}, 1), 2,
         "Dataset 'CellsAll/set' in file 'run.h5' holds 2 values, the size of a set must be one\n"},
    Case{"parameter",     "one_cell", shaped("Parameters/Gravity", {1, 1}, 9.81), 1,
         " -> non-scalar dataset <Parameters/Gravity>!\n"},
    Case{"parameterOfTwo", "fixbed_many", shapedInts("Parameters/BedloadInts", {2}), 1,
         " -> dataset <Parameters/BedloadInts> not 2-dimensional!\n"},
    Case{"parameterOfRows", "fixbed_many", shapedInts("Parameters/BedloadInts", {2, 2}), 1,
         " -> parameters cannot have length > 1, in file: src/simulation/RHEOcommon_op on line 425, version v3.0.1\n"},
    Case{"kernels",       "one_cell", shapedInts("kernels/ID", {5}), 1,
         " -> dataset <kernels/ID> not 2-dimensional!\n"},
    Case{"model",         "one_cell", shaped(".config/model", {0}), 1,
         " -> dataset <.config/model> not a 1-d array!\n"}), nameOf);

INSTANTIATE_TEST_SUITE_P(Storage, BadInput, ::testing::Values(
    Case{"emptyTopology",    "one_cell", declared("CellsAll/Topology", {100000000, 3}), 1,
         " -> The dataset \"CellsAll/Topology\" declares more values than a file of this size can hold\n"},
    Case{"longTopology",     "one_cell", declared("CellsAll/Topology", {2, 3}), 1,
         " -> data <CellsAll/Topology> has 2 rows, but its set has 1 elements\n"},
    Case{"scheduleInItself", "one_cell", virtualTable("kernels/ID", {4, 1}), 1,
         " -> The dataset \"kernels/ID\" is a virtual one, which is not read: copy its values into the file\n"},
    Case{"mapInItself",      "dam_dry",  virtualTable("EdgesSWE/CellsAll", {4, 1}), 2,
         "Dataset 'EdgesSWE/CellsAll' is a virtual one, which is not read: copy its values into the file\n"}), nameOf);

INSTANTIATE_TEST_SUITE_P(Values, BadInput, ::testing::Values(
    Case{"model",        "one_cell", worded(".config/model", "nonsense"), 1,
         " -> input file <nonsense> not found.\n"},
    Case{"modelWithoutAggregates", "one_cell", worded(".config/model", "{}"), 1,
         " -> no aggregates found...something went wrong with the model definition, in file: src/model/Factory on line "},
    Case{"negativeSet",  "one_cell", with("CellsAll/set", 0, -1), 255,
         " op_decl_set error -- negative/zero size for set: CellsAll/set\n"},
    Case{"largerSet",    "one_cell", with("CellsAll/set", 0, 2), 2,
         "map from set size 1 in file run.h5 and size 2 do not match \n"},
    Case{"negativeIndex", "one_cell", with("CellsAll/EdgesAll", 1, -1), 2,
         "map CellsAll/EdgesAll: row 0, column 1 holds -1, which is not in the range 0 to 2 of set EdgesAll/set\n"},
    Case{"largeIndex",   "one_cell", with("EdgHydWL/CellsAll", 2, 1), 2,
         "map EdgHydWL/CellsAll: row 2, column 0 holds 1, which is not in the range 0 to 0 of set CellsAll/set\n"},
    Case{"indexInUseOfAString", "bc_100_104", with("NodeStrg/EdgesAll", 4, 485), 2,
         "map NodeStrg/EdgesAll: row 0, column 4 holds 485, which is not in the range 0 to 484 of set EdgesAll/set\n"},
    Case{"cellInUseOfAString", "bc_100_104", with("NodeStrg/CellsAll", 41, -5), 2,
         "map NodeStrg/CellsAll: row 1, column 1 holds -5, which is not in the range 0 to 299 of set CellsAll/set\n"},
    Case{"neighbourOfAGradient", "mor_curvature_ikeda", with("CellsAll/NbrCells", 2, -1), 2,
         "map CellsAll/NbrCells: row 0, column 2 holds -1, which is not in the range 0 to 239 of set CellsAll/set\n"},
    Case{"edgeSign",     "dam_dry", with("CellsAll/EdgeSign", 1079, 3), 1,
         " -> data <CellsAll/EdgeSign> in row 359, column 2 is 3: edge sign (1 or -1 by convention) must be from -1 to 2\n"},
    Case{"longString",   "bc_100_104", with("NodeStrg/ListSize", 1, 41), 1,
         " -> data <NodeStrg/ListSize> in row 1, column 0 is 41: number of edges of a nodestring must be at most 40\n"},
    Case{"shortSeries",  "bc_100_104", with("InSeries/ListSize", 0, 1), 1,
         ", behind its first point, but its <InSeries/ListSize> is 1: it must be from 2 to 12000\n"},
    Case{"longSeries",   "bc_100_104", with("InSeries/ListSize", 0, 12002), 1,
         ", behind its first point, but its <InSeries/ListSize> is 12002: it must be from 2 to 12000\n"},
    Case{"positionOfSeries", "bc_100_104", with("EdInterp/KeyPostn", 1, 100000000), 1,
         " -> data <EdInterp/KeyPostn> in row 0, column 1 is 100000000: position in a boundary record must be from 0 to 6\n"},
    Case{"positionWritten", "bc_100_104", with("EdModDat/ModfInfo", 1, -100000000), 1,
         " -> data <EdModDat/ModfInfo> in row 0, column 1 is -100000000: position in a boundary record must be from 0 to 6\n"},
    Case{"positionRead", "bc_100_104", with("EdModDat/ModfInfo", 2, 7), 1,
         " -> data <EdModDat/ModfInfo> in row 0, column 2 is 7: position in a boundary record must be from 0 to 6\n"},
    Case{"positionOfSource", "full_model", with("ClInterp/KeyPostn", 3, 2), 1,
         " -> data <ClInterp/KeyPostn> in row 1, column 1 is 2: position in a source record must be from 0 to 1\n"},
    Case{"morphologyWithoutSediment", "one_cell", with("Parameters/MorphStart", 0, 0), 1,
         " -> kernel <Update> needs the data <EdgesAll/FluxesMo>, which this run does not have: the run file must hold it\n"},
    Case{"morphologyOfStrings", "bc_114_levels", with("Parameters/MorphStart", 0, 0), 1,
         " -> kernel <NodeStringStateCalc> needs the data <EdgesAll/FluxesMo>, which this run does not have: the run file must hold it\n"}),
    nameOf);
// clang-format on

// What a container or the library says is passed on behind a line that owns up to it.
class BadSets : public support::Simulation {};

TEST_F(BadSets, BeyondAnyFileAreNotNumbered) {
  useSample("one_cell");
  overwrite(runFile, "NodesAll/set", 0, 2147483647.0);
  const support::Outcome run = simulate({"--debug"});
  EXPECT_EQ(run.status, 1);
  EXPECT_THAT(ownLines(run.err), HasSubstr(" -> set <NodesAll/set> has 2147483647 elements: run it "
                                           "without --debug"));
}

class BadSchedules : public support::Simulation {};

TEST_F(BadSchedules, ThatAreTooSmallAreAnsweredInThreeLines) {
  useSample("one_cell");
  for (const std::vector<int>& shape : {std::vector<int>{4, 3}, std::vector<int>{5, 2}}) {
    replace(runFile, "kernels/execution", shape, 0.0);
    const support::Outcome run = simulate();
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.err, ::testing::StartsWith(UNHANDLED));
    EXPECT_THAT(run.err, EndsWith(KILLED));
    EXPECT_EQ(support::linesWith(" -> ", run.err).size(), 3U);
    EXPECT_THAT(run.err, HasSubstr("_M_range_check"));
  }
}

class BadNames : public support::Simulation {
 protected:
  BadNames() { useSample("one_cell"); }
};

TEST_F(BadNames, ARunFileThatDoesNotExist) {
  const support::Outcome run = program({"-f", "command.json", "-r", "nothing.h5"});
  EXPECT_EQ(run.status, 1);
  EXPECT_THAT(ownLines(run.err), ::testing::StartsWith(std::string(UNHANDLED) +
                                                       " -> Unable to open file nothing.h5 "));
  EXPECT_THAT(run.err, EndsWith(KILLED));
  EXPECT_FALSE(std::filesystem::exists(dir.file("nothing.h5")));
}

TEST_F(BadNames, ResultsInAFolderThatDoesNotExist) {
  const support::Outcome run =
      program({"-f", "command.json", "-r", "run.h5", "-o", "nowhere/results.h5"});
  EXPECT_EQ(run.status, 1);
  EXPECT_THAT(ownLines(run.err),
              ::testing::StartsWith(std::string(UNHANDLED) +
                                    " -> Unable to create file nowhere/results_results.h5 "));
}

TEST_F(BadNames, ResultsThatAreAFolder) {
  std::filesystem::create_directory(resultFile);
  const support::Outcome run = simulate();
  EXPECT_EQ(run.status, 1);
  EXPECT_THAT(run.err, HasSubstr(" -> Unable to create file results_results.h5 "));
}

TEST_F(BadNames, ResultsThatWouldReplaceTheRunFile) {
  std::filesystem::rename(runFile, dir.file("run_results.h5"));
  const std::string before = support::readFile(dir.file("run_results.h5"));
  const support::Outcome run =
      program({"-f", "command.json", "-r", "run_results.h5", "-o", "run.h5"});
  EXPECT_EQ(run.status, 1);
  EXPECT_THAT(run.err,
              HasSubstr(" -> file <run_results.h5> is the run file itself: give another name\n"));
  EXPECT_EQ(support::readFile(dir.file("run_results.h5")), before);
}

// A run file that cannot even be loaded does not cost the results of an earlier run.
TEST_F(BadNames, ResultsOfAnEarlierRunOutliveABrokenMesh) {
  ASSERT_EQ(simulate().status, 0);
  const std::string results = support::readFile(resultFile);
  overwrite(runFile, "CellsAll/EdgesAll", 0, 99);
  EXPECT_EQ(simulate().status, 2);
  EXPECT_EQ(support::readFile(resultFile), results);
  overwrite(runFile, "CellsAll/EdgesAll", 0, 0);
  removeLink(runFile, "CellsAll/HydState");
  EXPECT_EQ(simulate().status, 1);
  EXPECT_EQ(support::readFile(resultFile), results);
}

class UnusedColumns : public support::Simulation {};

TEST_F(UnusedColumns, OfNodestringMapsMayHoldAnything) {
  useSample("bc_100_104");
  for (const char* const map : {"NodeStrg/EdgesAll", "NodeStrg/CellsAll"}) {
    for (std::size_t column = 5; column < 40; ++column) {
      overwrite(runFile, map, column, column % 2 == 0 ? -1.0 : 99999.0);
      overwrite(runFile, map, 40 + column, 2147483647.0);
    }
  }
  const support::Outcome run = simulate();
  ASSERT_EQ(run.status, 0) << run.out << run.err;
  EXPECT_THAT(support::differences(dir.file("expected_results.h5"), resultFile),
              ::testing::IsEmpty());
}

TEST_F(UnusedColumns, AnUnknownBoundaryTypeIsAWall) {
  useSample("bc_114_levels");
  setCommand(R"("start": 0, "end": 0.1, "out": 0.1)");
  const std::size_t edges = support::readNumbers(runFile, "EdgHydBC/HydBType").size() / 2;
  std::vector<double> states;
  for (const double code : {999.0, 220.0}) {
    for (std::size_t i = 0; i < edges; ++i) overwrite(runFile, "EdgHydBC/HydBType", 2 * i, code);
    ASSERT_EQ(simulate().status, 0);
    const std::vector<double> state =
        support::readNumbers(resultFile, "RESULTS/CellsAll/HydState/0000001");
    // The inner wall pushes its left cell as the outer one does.
    if (!states.empty()) {
      EXPECT_EQ(state, states);
    }
    states = state;
  }
}

}  // namespace
