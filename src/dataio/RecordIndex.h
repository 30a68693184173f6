// Which records of a results file are valid, and which data stand in each of them. All that shows
// results goes by this rule; docs/results.md tells it to users.
//
// A record is valid if the whole state of the model stands in it at one time that is not negative:
// records that a continued run has marked (ResultReader), or that a killed run has left half
// written, are not. Other data may be missing in a record, where runs with other outputs followed
// each other.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "api/IH5Reader.h"

namespace dataio {

/// Of a record that stands for no moment of its own.
inline constexpr int NO_POSITION = -1;

/// A moment of a run whose state stands in the results file.
struct Record {
  double time;   ///< [s]
  int position;  ///< its number in the groups of the file
};

class RecordIndex {
 public:
  /// @param state,others H5 paths of data, as "CellsAll/HydState"
  RecordIndex(const api::IH5Reader& reader, const std::vector<std::string>& state,
              const std::vector<std::string>& others);

  /// In the order of time; of two records of one time the later one of the file.
  const std::vector<Record>& records() const { return valid; }
  /// Times from which a run can be continued [s]: its start must be above 0, and ResultReader takes
  /// a file only if no more than one of its records is not valid.
  std::vector<double> restartTimes() const;
  /// Records that are not valid.
  int invalid() const { return dropped; }
  /// Whether the data stands in the record, with its time.
  bool holds(const std::string& path, const Record& record) const;

 private:
  std::vector<Record> valid;
  int dropped = 0;
  std::map<std::string, std::map<int, double>> times;  ///< of each path: position, time [s]
};

}  // namespace dataio
