// Meshes that are made and not read: a grid of rectangles, each cut into triangles.
//
//   RectangleMesh basin;
//   basin.length = 100.0;
//   basin.width = 20.0;
//   basin.cells = {50, 10};
//   Mesh mesh = makeMesh(basin);
#pragma once

#include <array>
#include <functional>
#include <vector>

#include "setup/mesh/Mesh.h"

namespace setup {

/// How a rectangle is cut: by one diagonal that is the same for all, by one that changes its
/// direction from rectangle to rectangle, or by both diagonals.
enum class Pattern { Diagonal, Alternating, Crossed };

/// A rectangle with a plane bed.
struct RectangleMesh {
  std::array<double, 2> origin{0.0, 0.0};  ///< lower left corner [m]
  double length = 0.0;                     ///< along x [m]
  double width = 0.0;                      ///< along y [m]
  std::array<int, 2> cells{1, 1};          ///< rectangles along and across
  double elevation = 0.0;                  ///< of the bed at the side x = origin [m]
  double slope = 0.0;                      ///< fall of the bed per metre along x [-]
  Pattern pattern = Pattern::Alternating;
};

/// A straight channel along x with a bed that is level across and, with a side slope, two banks.
struct ChannelMesh {
  std::array<double, 2> origin{0.0, 0.0};  ///< upstream end of the centre line [m]
  double length = 0.0;                     ///< [m]
  double bedWidth = 0.0;                   ///< [m]
  double sideSlope = 0.0;                  ///< metres across per metre of height [-]; 0: no banks
  double bankHeight = 0.0;                 ///< of the bank's top over the bed [m]
  std::array<int, 3> cells{1, 1, 1};       ///< rectangles along, across the bed, across a bank
  double elevation = 0.0;                  ///< of the bed at the upstream end [m]
  double slope = 0.0;                      ///< fall of the bed per metre along x [-]
  Pattern pattern = Pattern::Alternating;
};

/// The triangles of the grid lines x and y (ascending), counter-clockwise and of material 1.
/// @param bed the elevation at a place
Mesh gridMesh(const std::vector<double>& x, const std::vector<double>& y,
              const std::function<double(double, double)>& bed, Pattern pattern);

Mesh makeMesh(const RectangleMesh& rectangle);
Mesh makeMesh(const ChannelMesh& channel);

}  // namespace setup
