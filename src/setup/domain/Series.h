// Series of a study: text files of two columns, over time or, as rating curves, over a state of
// the water.
//
//   # time [s], discharge [m3/s]
//   0, 12.5
//   600  40.0
//
// Columns are separated by blanks, a comma or both. What follows a # is a comment. The first column
// must not descend; the same value twice is a jump.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "catalogue/Limits.h"

namespace setup {

struct Series {
  std::string file;
  std::vector<std::array<double, 2>> points;  ///< as they stand in the file
  double factor = 1.0;                        ///< of the second column in the run file
};

/// The greatest number of points that a series can hold: one pair is left for the mark of its end.
constexpr std::size_t MOST_SERIES_POINTS = model::SERIES_VALUES / 2 - 1;

/// @throws BaseException for a file that cannot be read or holds no point, a line that does not
/// hold
///         two numbers, a first column that descends, and more points than are possible.
Series readSeries(const std::string& file);

/// The series of a run; those of the same file and factor are one.
class SeriesList {
 public:
  /// @param factor of the second column in the run file
  /// @returns the position in the list
  int add(const std::string& file, double factor = 1.0);

  const std::vector<Series>& all() const { return list; }
  const Series& at(int position) const { return list.at(static_cast<std::size_t>(position)); }

 private:
  std::vector<Series> list;
};

}  // namespace setup
