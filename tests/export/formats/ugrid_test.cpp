#include "export/formats/ugrid.h"

#include <gmock/gmock.h>

#include <cmath>

#include "dataio/failures.h"
#include "export/SampleResults.h"
#include "export/formats/NcReader.h"
#include "export/results/quantities.h"

namespace {

using exporter::Results;
using exporter::writeUgrid;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::MatchesRegex;

const std::string STRING_STATE = "RESULTS/NodeStrg/StateVar/0000003";

class Ugrid : public samples::SampleResults {
 protected:
  void write() const { writeUgrid(Results(file), target); }

  static std::vector<double> fiveTimes(const std::vector<double>& values) {
    std::vector<double> all;
    for (int i = 0; i < 5; ++i) all.insert(all.end(), values.begin(), values.end());
    return all;
  }

  const std::string target = dir.file("run.nc");
};

TEST_F(Ugrid, TellsItsConventionsAndWhereItComesFrom) {
  use("full_model");
  write();
  const samples::NcReader nc(target);
  const Results results(file);
  EXPECT_EQ(nc.text("", "Conventions"), "CF-1.8 UGRID-1.0");
  EXPECT_EQ(nc.text("", "title"), "full_model");
  EXPECT_THAT(nc.text("", "source"), MatchesRegex("RHEOMARK v[0-9.]+"));
  EXPECT_THAT(nc.text("", "history"),
              MatchesRegex("[0-9T:-]+Z: export v[0-9.]+ of run_results.h5 --ugrid"));
  EXPECT_EQ(nc.text("", "study_document"), results.study());
  EXPECT_EQ(nc.text("", "command_file"), results.command());
}

TEST_F(Ugrid, HoldsTheTopologyOfTheMesh) {
  use("full_model");
  write();
  const samples::NcReader nc(target);
  EXPECT_EQ(nc.text("mesh2d", "cf_role"), "mesh_topology");
  EXPECT_EQ(nc.number("mesh2d", "topology_dimension"), 2.0);
  EXPECT_EQ(nc.text("mesh2d", "node_coordinates"), "mesh2d_node_x mesh2d_node_y");
  EXPECT_EQ(nc.text("mesh2d", "face_coordinates"), "mesh2d_face_x mesh2d_face_y");
  EXPECT_EQ(nc.text("mesh2d", "face_node_connectivity"), "mesh2d_face_nodes");
  EXPECT_EQ(nc.text("mesh2d", "face_dimension"), "mesh2d_nFaces");
  EXPECT_EQ(nc.text("mesh2d_face_nodes", "cf_role"), "face_node_connectivity");
  EXPECT_EQ(nc.number("mesh2d_face_nodes", "start_index"), 0.0);
  EXPECT_EQ(nc.dimensions("mesh2d_face_nodes"), "mesh2d_nFaces mesh2d_nMax_face_nodes");
  EXPECT_EQ(nc.values("mesh2d_face_nodes"), support::readNumbers(file, "CellsAll/Topology"));
  EXPECT_EQ(nc.values("mesh2d_node_x"), stored("NodesAll/Coordnts", 3, 0));
  EXPECT_EQ(nc.values("mesh2d_node_y"), stored("NodesAll/Coordnts", 3, 1));
  EXPECT_EQ(nc.values("mesh2d_node_z"), stored("NodesAll/Coordnts", 3, 2));
}

TEST_F(Ugrid, FacesHaveCentroidsAndRunCounterclockwise) {
  use("one_cell");
  support::overwrite(file, "NodesAll/Coordnts", 0, 0.0);
  const std::vector<double> xy = {0, 0, 6, 0, 0, 3};
  for (std::size_t node = 0; node < 3; ++node) {
    for (std::size_t axis = 0; axis < 2; ++axis) {
      support::overwrite(file, "NodesAll/Coordnts", 3 * node + axis, xy[2 * node + axis]);
    }
  }
  {
    dataio::H5Writer writer(file, "rw");
    writer.writeIntVecVec("CellsAll/Topology", {{0, 2, 1}});
  }
  write();
  const samples::NcReader nc(target);
  EXPECT_THAT(nc.values("mesh2d_face_nodes"), ElementsAre(0, 1, 2));
  EXPECT_THAT(nc.values("mesh2d_face_x"), ElementsAre(2.0));
  EXPECT_THAT(nc.values("mesh2d_face_y"), ElementsAre(1.0));
}

TEST_F(Ugrid, HoldsEachOutputAtEachRecord) {
  use("full_model");
  write();
  const samples::NcReader nc(target);
  const Results results(file);
  for (const api::IOutput* output : results.outputsOn(model::SetID::CellsAll)) {
    const auto& components = exporter::quantitiesOf(output->getID());
    for (std::size_t i = 0; i < components.size(); ++i) {
      const std::string& name = components[i].name;
      ASSERT_EQ(nc.dimensions(name), "time mesh2d_nFaces");
      const std::vector<double> written = nc.values(name);
      ASSERT_EQ(written.size(), 5U * 364U);
      for (std::size_t record = 0; record < 5; ++record) {
        const std::vector<double> values = results.values(*output, results.records()[record]);
        for (std::size_t cell = 0; cell < 364; ++cell) {
          const double value = written[record * 364 + cell];
          if (value == NC_FILL_DOUBLE) continue;
          ASSERT_EQ(value, values[cell * components.size() + i]) << name << " " << record;
        }
      }
    }
  }
}

TEST_F(Ugrid, VariablesSayWhatTheyAre) {
  use("full_model");
  write();
  const samples::NcReader nc(target);
  EXPECT_EQ(nc.text("water_surface", "standard_name"),
            "water_surface_height_above_reference_datum");
  EXPECT_EQ(nc.text("flow_velocity_y", "long_name"), "flow velocity, y-component");
  EXPECT_EQ(nc.text("flow_velocity_y", "units"), "m/s");
  EXPECT_EQ(nc.text("flow_velocity_y", "mesh"), "mesh2d");
  EXPECT_EQ(nc.text("flow_velocity_y", "location"), "face");
  EXPECT_EQ(nc.text("flow_velocity_y", "coordinates"), "mesh2d_face_x mesh2d_face_y");
  EXPECT_EQ(nc.number("flow_velocity_y", "_FillValue"), NC_FILL_DOUBLE);
  EXPECT_FALSE(nc.has("flow_velocity_y", "standard_name"));
}

TEST_F(Ugrid, TimeIsThatOfTheModel) {
  use("full_model");
  write();
  const samples::NcReader nc(target);
  EXPECT_THAT(nc.values("time"), ElementsAre(0, 1, 2, 3, 4));
  EXPECT_EQ(nc.text("time", "units"), "seconds since 1970-01-01 00:00:00");
  EXPECT_EQ(nc.text("time", "standard_name"), "time");
}

TEST_F(Ugrid, DryCellsHaveNoVelocity) {
  use("dam_dry");
  write();
  const samples::NcReader nc(target);
  const std::vector<double> depth = nc.values("water_depth");
  const std::vector<double> velocity = nc.values("flow_velocity_x");
  const double least = Results(file).minimalDepth();
  int dry = 0;
  for (std::size_t i = 0; i < depth.size(); ++i) {
    ASSERT_EQ(velocity[i] == NC_FILL_DOUBLE, depth[i] <= least) << i;
    dry += depth[i] <= least ? 1 : 0;
  }
  EXPECT_GT(dry, 0);
}

TEST_F(Ugrid, WhatDoesNotVaryStandsAtEachTime) {
  use("dam_dry");
  setOutputs(R"("bottom_elevation")");
  support::overwrite(file, "CellsAll/BottomEl", 359, 7.0);
  write();
  const samples::NcReader nc(target);
  EXPECT_EQ(nc.dimensions("bottom_elevation"), "time mesh2d_nFaces");
  EXPECT_EQ(nc.values("bottom_elevation"), fiveTimes(stored("CellsAll/BottomEl", 1, 0)));
  EXPECT_EQ(nc.values("flood_maximum_depth"),
            fiveTimes(stored("RESULTS/CellsAll/FloodVar/0000000", 4, 1)));
}

TEST_F(Ugrid, NodestringsHaveNames) {
  use("full_model");
  write();
  const samples::NcReader nc(target);
  const std::string end(2, '\0');
  EXPECT_EQ(nc.letters("nodestring_name"), "west" + end + "east" + end + "middle");
  EXPECT_EQ(nc.dimensions("ns_hyd_discharge"), "time nodestring");
  EXPECT_EQ(nc.text("ns_hyd_discharge", "coordinates"), "nodestring_name");
  EXPECT_FALSE(nc.has("ns_hyd_discharge", "mesh"));
  const std::vector<double> discharge = nc.values("ns_hyd_discharge");
  const std::size_t states = support::readNumbers(file, STRING_STATE).size() / 3;
  const std::vector<double> third = stored(STRING_STATE, states, 1);
  EXPECT_EQ(std::vector<double>(discharge.begin() + 9, discharge.begin() + 12), third);
}

TEST_F(Ugrid, WhereARecordLacksAnOutputThereIsNoValue) {
  use("full_model");
  remove("RESULTS/CellsAll/FlowCurv/0000001");
  write();
  const samples::NcReader nc(target);
  const std::vector<double> curvature = nc.values("flow_curvature");
  for (std::size_t i = 364; i < 728; ++i) ASSERT_EQ(curvature[i], NC_FILL_DOUBLE);
  EXPECT_NE(curvature[2 * 364], NC_FILL_DOUBLE);
}

TEST_F(Ugrid, NamesTheReferenceSystemIfTheStudyHasOne) {
  use("dam_dry");
  write();
  {
    const samples::NcReader nc(target);
    EXPECT_FALSE(nc.has("crs"));
    EXPECT_FALSE(nc.has("water_depth", "grid_mapping"));
    EXPECT_FALSE(nc.has("mesh2d_node_x", "standard_name"));
  }
  setDomain("crs", "EPSG:2056");
  write();
  const samples::NcReader nc(target);
  EXPECT_EQ(nc.text("crs", "EPSG_code"), "EPSG:2056");
  EXPECT_EQ(nc.number("crs", "epsg"), 2056.0);
  EXPECT_EQ(nc.text("water_depth", "grid_mapping"), "crs");
  EXPECT_EQ(nc.text("mesh2d_node_x", "grid_mapping"), "crs");
  EXPECT_EQ(nc.text("mesh2d_node_x", "standard_name"), "projection_x_coordinate");
  EXPECT_EQ(nc.text("mesh2d_face_y", "standard_name"), "projection_y_coordinate");
}

TEST_F(Ugrid, TakesTrackedDataAlone) {
  use("dam_dry");
  remove("RESULTS/CellsAll/HydState");
  write();
  const samples::NcReader nc(target);
  EXPECT_THAT(nc.values("time"), ElementsAre(0.0));
  EXPECT_EQ(nc.values("flood_maximum_depth"), stored("RESULTS/CellsAll/FloodVar/0000000", 4, 1));
}

TEST_F(Ugrid, TakesLongStudyDocuments) {
  use("one_cell");
  setDomain("remark", std::string(300000, 'x'));
  write();
  EXPECT_EQ(samples::NcReader(target).text("", "study_document"), Results(file).study());
}

TEST_F(Ugrid, NeverReplacesTheResults) {
  use("one_cell");
  const Results results(file);
  EXPECT_THAT(failures::reportOf([&] { writeUgrid(results, file); }),
              HasSubstr("is the results file itself: give another name"));
}

// In a process of its own: a library that cannot close a file fails at the very end.
TEST_F(Ugrid, EndsWithStatusOneIfADiskIsFull) {
  use("full_model");
  support::writeFile(target, "before");
  for (const std::string blocks : {"0", "1", "64", "128", "150", "200", "300", "400", "500"}) {
    const support::Outcome outcome =
        support::runIn(dir.path(), "/bin/sh",
                       {"-c", "trap '' XFSZ; ulimit -f " + blocks + "; exec " + EXPORT_EXE +
                                  " -r run_results.h5 --ugrid run.nc 2>err"});
    const std::string message = support::readFile(dir.file("err"));
    EXPECT_EQ(outcome.status, 1) << blocks << message;
    EXPECT_EQ(support::readFile(target), "before") << blocks;
    EXPECT_FALSE(std::filesystem::exists(target + ".part")) << blocks;
  }
}

}  // namespace
