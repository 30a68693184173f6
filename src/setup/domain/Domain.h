// The domain of a study: the mesh in its final numbering, its geometry and its initial state,
// with what the study makes act on it.
#pragma once

#include <array>
#include <vector>

#include "setup/domain/Series.h"
#include "setup/domain/cell_sources.h"
#include "setup/domain/cell_values.h"
#include "setup/domain/edge_boundaries.h"
#include "setup/domain/edge_strings.h"
#include "setup/mesh/Geometry.h"
#include "setup/mesh/Mesh.h"
#include "setup/mesh/Topology.h"
#include "setup/mesh/tidying.h"
#include "setup/study/Study.h"

namespace setup {

struct Domain {
  Mesh mesh;
  Topology topology;
  Geometry geometry;
  std::vector<double> bed;                  ///< per cell [m]
  std::vector<std::array<double, 3>> flow;  ///< per cell: water surface [m], qx, qy [m2/s]
  std::vector<double> friction;             ///< per cell; empty without bed friction
  std::vector<EdgeString> strings;
  EdgeBoundaries boundaries;
  CellSources sources;
  std::vector<double> grainSizes;      ///< per cell [m]; empty if the bed stays as it is
  std::vector<double> criticalValues;  ///< per cell: Shields parameter [-], or velocity [m/s]
  FixedCells fixedCells;
  SeriesList series;  ///< of boundaries and sources

  Tidying tidying;              ///< what had to be changed in the mesh
  int bandwidthAsGiven = 0;     ///< distance of neighbours in the list of cells, before ...
  int bandwidthAsNumbered = 0;  ///< ... and after the cells were numbered
};

/// Reads or makes the mesh of the study and brings it into its final form.
/// @throws BaseException for a faulty mesh and for areas without a cell, strings that are
///         not on the mesh and faulty series; see the parts.
Domain buildDomain(const Study& study);

}  // namespace setup
