#include "export/formats/UgridMesh.h"

#include <utility>

namespace exporter {

namespace {

// As other programs that write such files name them; some viewers go by these names.
const std::string MESH = "mesh2d";
const std::string CRS = "crs";
constexpr std::size_t CORNERS = 3;

}  // namespace

void UgridMesh::define(NcFile& file) {
  nodeDimension = file.addDimension(MESH + "_nNodes", mesh.nodes.size());
  faceDimension = file.addDimension(MESH + "_nFaces", mesh.cells.size());
  if (epsg != 0) defineCrs(file);
  defineTopology(file);
  for (const std::string axis : {"x", "y"}) {
    nodeCoordinates.push_back(defineCoordinate(file, "node", nodeDimension, axis));
    faceCoordinates.push_back(defineCoordinate(file, "face", faceDimension, axis));
  }
  const int elevation = file.addVariable(MESH + "_node_z", NC_DOUBLE, {nodeDimension});
  file.attach(elevation, "long_name", "elevation of the node");
  file.attach(elevation, "units", "m");
  nodeCoordinates.push_back(elevation);
}

void UgridMesh::defineCrs(NcFile& file) const {
  const int crs = file.addVariable(CRS, NC_INT, {});
  file.attach(crs, "long_name", "coordinate reference system");
  file.attach(crs, "EPSG_code", "EPSG:" + std::to_string(epsg));
  file.attach(crs, "epsg", epsg);
}

void UgridMesh::defineTopology(NcFile& file) {
  const int topology = file.addVariable(MESH, NC_INT, {});
  file.attach(topology, "cf_role", "mesh_topology");
  file.attach(topology, "long_name", "mesh of triangles");
  file.attach(topology, "topology_dimension", 2);
  file.attach(topology, "node_coordinates", MESH + "_node_x " + MESH + "_node_y");
  file.attach(topology, "face_coordinates", MESH + "_face_x " + MESH + "_face_y");
  file.attach(topology, "face_node_connectivity", MESH + "_face_nodes");
  file.attach(topology, "face_dimension", MESH + "_nFaces");

  const int corners = file.addDimension(MESH + "_nMax_face_nodes", CORNERS);
  faceNodes = file.addVariable(MESH + "_face_nodes", NC_INT, {faceDimension, corners});
  file.attach(faceNodes, "cf_role", "face_node_connectivity");
  file.attach(faceNodes, "long_name", "nodes of each face, counterclockwise");
  file.attach(faceNodes, "start_index", 0);
}

int UgridMesh::defineCoordinate(NcFile& file, const std::string& location, int dimension,
                                const std::string& axis) const {
  const int variable = file.addVariable(MESH + "_" + location + "_" + axis, NC_DOUBLE, {dimension});
  file.attach(variable, "long_name", axis + "-coordinate of the " + location);
  file.attach(variable, "units", "m");
  if (epsg != 0) {
    file.attach(variable, "standard_name", "projection_" + axis + "_coordinate");
    file.attach(variable, "grid_mapping", CRS);
  }
  return variable;
}

void UgridMesh::putOnFaces(NcFile& file, int variable) const {
  file.attach(variable, "mesh", MESH);
  file.attach(variable, "location", "face");
  file.attach(variable, "coordinates", MESH + "_face_x " + MESH + "_face_y");
  if (epsg != 0) file.attach(variable, "grid_mapping", CRS);
}

void UgridMesh::write(NcFile& file) const {
  writeFaces(file);
  for (std::size_t axis = 0; axis < nodeCoordinates.size(); ++axis) {
    std::vector<double> values;
    for (const std::array<double, 3>& node : mesh.nodes) values.push_back(node[axis]);
    file.write(nodeCoordinates[axis], values.data());
  }
}

void UgridMesh::writeFaces(NcFile& file) const {
  std::vector<int> corners;
  std::array<std::vector<double>, 2> centroids;
  for (std::array<int, CORNERS> cell : mesh.cells) {
    const auto node = [&](std::size_t i) { return mesh.nodes[static_cast<std::size_t>(cell[i])]; };
    for (std::size_t axis = 0; axis < centroids.size(); ++axis) {
      centroids[axis].push_back((node(0)[axis] + node(1)[axis] + node(2)[axis]) / 3.0);
    }
    if (signedArea(node(0), node(1), node(2)) < 0.0) std::swap(cell[1], cell[2]);
    corners.insert(corners.end(), cell.begin(), cell.end());
  }
  file.write(faceNodes, corners.data());
  for (std::size_t axis = 0; axis < centroids.size(); ++axis) {
    file.write(faceCoordinates[axis], centroids[axis].data());
  }
}

}  // namespace exporter
