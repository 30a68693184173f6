// The sources of a study on the cells of the mesh, those of water and those of sediment, as the run
// file has them.
#pragma once

#include <array>
#include <vector>

#include "setup/domain/Series.h"
#include "setup/domain/cell_values.h"
#include "setup/mesh/Geometry.h"
#include "setup/mesh/Mesh.h"
#include "setup/study/Study.h"

namespace setup {

/// A lookup of a series, or a modification, of a record.
struct CellInterpolation {
  int series;
  int record;
};

struct CellModification {
  model::CellModificationCode type;
  int region;
  int record;
};

/// The cells with a source of water, or of sediment.
struct SourceCells {
  std::vector<int> cells;      ///< in the order of the sources
  std::vector<int> recordOf;   ///< per source cell
  std::vector<int> sinkTypes;  ///< per source cell
};

/// Every record is {rate as given, rate in m/s}.
struct CellSources {
  std::vector<double> regionAreas;  ///< of Study::regions [m2]
  SourceCells flow;
  SourceCells bed;
  std::vector<std::array<double, 2>> records;  ///< those of water first
  std::vector<CellInterpolation> interpolations;
  std::vector<CellModification> modifications;
  double strongestRate = 0.0;  ///< of all sources of water at all times [m/s]; 0 if none adds any
};

/// @throws BaseException for a region without cells, a cell with two sources of a kind and faulty
///         series
CellSources laySources(const Study& study, const Mesh& mesh, const Geometry& geometry,
                       SeriesList& series);

/// A sink that takes all sediment there is needs a bottom.
/// @throws BaseException for a source of such a sink in a cell without a fixed bed
void requireBottom(const Study& study, const CellSources& sources, const FixedCells& fixed);

}  // namespace setup
