// The boundaries of a study, those of the flow and those of the bed load, and what becomes of them
// in the run file.
#pragma once

#include <array>
#include <map>
#include <string>
#include <vector>

#include "setup/domain/Series.h"
#include "setup/domain/edge_strings.h"
#include "setup/mesh/Topology.h"
#include "setup/study/boundary_types.h"

namespace setup {

struct Study;
class StudyGroup;

/// A boundary as the study describes it.
struct Boundary {
  std::string path;  ///< JSON pointer into the study document, for messages
  const BoundaryType* type = nullptr;
  int string = 0;                            ///< position in Study::strings
  int receiving = 0;                         ///< of the second string of a link, otherwise `string`
  Lookup lookup = Lookup::Time;              ///< by which the series are looked up
  std::map<std::string, double> values;      ///< by key
  std::map<std::string, std::string> files;  ///< series files by the key of the input
};

/// Reads the list BOUNDARY of a group, if it has one.
/// @param types those that the list may name; @param study with its strings and friction
/// @throws BaseException for keys that a type does not take or that it lacks, strings with two
///         boundaries of the list, and a type that needs bed friction without it.
std::vector<Boundary> readBoundaries(const StudyGroup& group,
                                     const std::vector<BoundaryType>& types, const Study& study);

/// A lookup of a series in every step.
struct EdgeInterpolation {
  int series;
  int string;
  int record;
  int key;
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

/// The boundaries as the run file has them.
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
