#include "setup/study/mesh_source.h"

namespace setup {

namespace {

/// More triangles than a list with int positions of their 3 edges and 6 weights can hold.
constexpr double MOST_CELLS = 1e8;

Pattern readPattern(const StudyGroup& group) {
  std::string name = "alternating";
  group.take("pattern", name);
  if (name == "diagonal") return Pattern::Diagonal;
  return name == "crossed" ? Pattern::Crossed : Pattern::Alternating;
}

/// @param rectangles along and across, each of them cut into up to 4 triangles
void requireSensibleSize(const StudyGroup& group, double along, double across) {
  if (4.0 * along * across <= MOST_CELLS) return;
  group.refuseKey("cells", "asks for more cells than are possible, ", MOST_CELLS);
}

RectangleMesh readRectangle(const StudyGroup& group) {
  RectangleMesh mesh;
  group.take("origin", mesh.origin);
  group.take("length", mesh.length);
  group.take("width", mesh.width);
  group.take("cells", mesh.cells);
  group.take("elevation", mesh.elevation);
  group.take("slope", mesh.slope);
  mesh.pattern = readPattern(group);
  requireSensibleSize(group, mesh.cells[0], mesh.cells[1]);
  return mesh;
}

ChannelMesh readChannel(const StudyGroup& group) {
  ChannelMesh mesh;
  group.take("origin", mesh.origin);
  group.take("length", mesh.length);
  group.take("bed_width", mesh.bedWidth);
  group.take("side_slope", mesh.sideSlope);
  group.take("bank_height", mesh.bankHeight);
  group.take("cells", mesh.cells);
  group.take("elevation", mesh.elevation);
  group.take("slope", mesh.slope);
  mesh.pattern = readPattern(group);
  requireSensibleSize(group, mesh.cells[0], mesh.cells[1] + 2.0 * mesh.cells[2]);
  if ((mesh.sideSlope > 0.0) != (mesh.bankHeight > 0.0)) {
    group.refuse(
        "needs both side_slope and bank_height greater than 0 to have banks, and neither to have "
        "none");
  }
  return mesh;
}

}  // namespace

MeshSource readMeshSource(const StudyGroup& geometry) {
  if (geometry.has("RECTANGLE")) return readRectangle(geometry.group("RECTANGLE"));
  if (geometry.has("CHANNEL")) return readChannel(geometry.group("CHANNEL"));
  return MeshFile{geometry.group("MESH").fileName("file")};
}

}  // namespace setup
