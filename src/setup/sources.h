// The sources of water of a study, rain and others, and what becomes of them in the run file.
#pragma once

#include <array>
#include <map>
#include <string>
#include <vector>

#include "setup/Area.h"
#include "setup/Geometry.h"
#include "setup/Mesh.h"
#include "setup/series.h"

namespace setup {

struct Study;
class StudyGroup;

/// A kind of source under the name that a study gives it.
struct SourceType {
  std::string name;
  std::string key;   ///< of its rate
  int modification;  ///< what makes metres of water per second of the rate
  int sinkFamily;    ///< code of its exact sink
};

const std::vector<SourceType>& sourceTypes();

/// What a negative rate takes away, in the order of the last digits of their codes.
const std::vector<std::string>& sinkNames();

struct Source {
  std::string path;  ///< JSON pointer into the study document, for messages
  Region region;
  int type = 0;        ///< position in sourceTypes()
  int sink = 0;        ///< position in sinkNames()
  double value = 0.0;  ///< of the rate, if there is no file
  std::string file;    ///< of its series over time
};

/// Reads the group SOURCE, if the study has one; its regions must be known.
void readSources(const StudyGroup& hydraulics, Study& study);

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

/// The sources as the run file has them. Every record is {rate as given, rate in m/s}.
struct CellSources {
  std::vector<double> regionAreas;  ///< of Study::regions [m2]
  std::vector<int> cells;           ///< in the order of the sources
  std::vector<int> recordOf;        ///< per source cell
  std::vector<int> sinkTypes;       ///< per source cell
  std::vector<std::array<double, 2>> records;
  std::vector<CellInterpolation> interpolations;
  std::vector<CellModification> modifications;
  double strongestRate = 0.0;  ///< of all sources at all times [m/s]; 0 if none adds water
};

/// @throws BaseException for a region without cells, a cell with two sources and faulty series
CellSources laySources(const Study& study, const Mesh& mesh, const Geometry& geometry,
                       SeriesList& series);

}  // namespace setup
