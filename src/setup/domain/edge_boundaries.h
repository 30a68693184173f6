// The boundaries of a study on the edges of the mesh, those of the flow and those of the bed load,
// as the run file has them.
#pragma once

#include <array>
#include <vector>

#include "setup/domain/Series.h"
#include "setup/domain/edge_strings.h"
#include "setup/mesh/Mesh.h"
#include "setup/mesh/Topology.h"
#include "setup/study/Study.h"

namespace setup {

/// A lookup of a series in every step.
struct EdgeInterpolation {
  int series;
  int string;
  int record;
  model::InterpolationKey key;
  int position;
};

struct EdgeModification {
  Modification info;
  std::array<int, 2> strings;
  int record;
};

/// The edges with a boundary of the flow, or of the bed load.
struct BoundaryEdges {
  std::vector<int> edges;  ///< in the order of the boundaries and along their strings
  std::vector<std::array<int, 2>> types;  ///< per edge: code, sign of the edge
  std::vector<int> recordOf;              ///< per edge
};

struct EdgeBoundaries {
  BoundaryEdges flow;
  BoundaryEdges bed;
  std::vector<std::array<double, 7>> records;  ///< those of the flow first
  std::vector<EdgeInterpolation> interpolations;
  std::vector<EdgeModification> modifications;
};

/// Turns the strings along the boundary so that a discharge in the sense of their boundary counts
/// as positive: in at inflows, out at all others. Where a string has one of the flow and one of the
/// bed load, that of the flow decides.
/// @throws BaseException for a string that is not where its boundary may be, for an edge with two
///         boundaries of a kind, faulty series files, and series with values that the input does
///         not take.
EdgeBoundaries layBoundaries(const Study& study, const Mesh& mesh, const Topology& topology,
                             std::vector<EdgeString>& strings, SeriesList& series);

}  // namespace setup
