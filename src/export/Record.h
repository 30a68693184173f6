// A moment of a run whose state stands in the results file.
#pragma once

namespace exporter {

/// Of a record that stands for no moment of its own.
inline constexpr int NO_POSITION = -1;

struct Record {
  double time;   ///< [s]
  int position;  ///< its number in the groups of the file
};

}  // namespace exporter
