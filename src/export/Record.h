// A moment of a run whose state stands in the results file.
#pragma once

namespace exporter {

struct Record {
  double time;   ///< [s]
  int position;  ///< its number in the groups of the file
};

}  // namespace exporter
