// Meshes that are made and not read: a grid of rectangles, each cut into triangles.
//
//   RectangleMesh basin;
//   basin.length = 100.0;
//   basin.width = 20.0;
//   basin.cells = {50, 10};
//   Mesh mesh = makeMesh(basin);
#pragma once

#include <functional>
#include <vector>

#include "setup/mesh/Mesh.h"
#include "setup/study/mesh_source.h"

namespace setup {

/// The triangles of the grid lines x and y (ascending), counter-clockwise and of material 1.
/// @param bed the elevation at a place
Mesh gridMesh(const std::vector<double>& x, const std::vector<double>& y,
              const std::function<double(double, double)>& bed, Pattern pattern);

Mesh makeMesh(const RectangleMesh& rectangle);
Mesh makeMesh(const ChannelMesh& channel);

}  // namespace setup
