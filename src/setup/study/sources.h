// The sources of a study, rain and others, and those of sediment, and what becomes of them in the
// run file.
#pragma once

#include <array>
#include <map>
#include <string>
#include <vector>

#include "setup/domain/Series.h"
#include "setup/domain/fixed_bed.h"
#include "setup/mesh/Geometry.h"
#include "setup/mesh/Mesh.h"
#include "setup/study/Area.h"

namespace setup {

struct Study;
class StudyGroup;

/// A kind of source under the name that a study gives it.
struct SourceType {
  std::string name;
  std::string key;   ///< of its rate
  int modification;  ///< what makes metres per second, of water or of bed, of the rate
  int sinkFamily;    ///< code of its exact sink
};

/// Those of water.
const std::vector<SourceType>& sourceTypes();

/// Those of sediment; their rates count the bed with its pores.
const std::vector<SourceType>& bedSourceTypes();

/// What a negative rate takes away, in the order of the last digits of their codes.
const std::vector<std::string>& sinkNames();

struct Source {
  std::string path;  ///< JSON pointer into the study document, for messages
  Region region;
  const SourceType* type = nullptr;
  int sink = 0;        ///< position in sinkNames()
  double value = 0.0;  ///< of the rate, if there is no file
  std::string file;    ///< of its series over time
};

/// Reads the list SOURCE of a group, if it has one.
/// @param types those that the list may name; @param study with its regions
/// @throws BaseException for a rate of another type
std::vector<Source> readSources(const StudyGroup& group, const std::vector<SourceType>& types,
                                const Study& study);

/// A lookup of a series, or a modification, of a record.
struct CellInterpolation {
  int series;
  int record;
};

struct CellModification {
  int type;
  int region;
  int record;
};

/// The cells with a source of water, or of sediment.
struct SourceCells {
  std::vector<int> cells;      ///< in the order of the sources
  std::vector<int> recordOf;   ///< per source cell
  std::vector<int> sinkTypes;  ///< per source cell
};

/// The sources as the run file has them. Every record is {rate as given, rate in m/s}.
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
