// Where the mesh of a study comes from: a file, or the measures of one that is made.
#pragma once

#include <array>
#include <string>
#include <variant>

#include "setup/study/document/StudyGroup.h"

namespace setup {

struct MeshFile {
  std::string file;  ///< as it can be opened from where the program runs
};

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

using MeshSource = std::variant<MeshFile, RectangleMesh, ChannelMesh>;

/// Reads MESH, RECTANGLE or CHANNEL of the group GEOMETRY.
/// @throws BaseException for more cells than a run file can number, and for half a bank
MeshSource readMeshSource(const StudyGroup& geometry);

}  // namespace setup
