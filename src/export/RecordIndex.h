// Which records a results file holds, and which data stand in each of them.
//
// A record counts if the whole state of the model stands in it at one time that is not negative:
// records that a continued run has marked as not valid, or that a killed run has left half written,
// do not. Other data may be missing in a record, where runs with other outputs followed each other.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "api/IH5Reader.h"
#include "export/Record.h"

namespace exporter {

class RecordIndex {
 public:
  /// @param state,others H5 paths of data, as "CellsAll/HydState"
  RecordIndex(const api::IH5Reader& reader, const std::vector<std::string>& state,
              const std::vector<std::string>& others);

  /// In the order of time; of two records of one time the later one of the file.
  const std::vector<Record>& records() const { return valid; }
  /// Records that do not count.
  int invalid() const { return dropped; }
  /// Whether the data stands in the record, with its time.
  bool holds(const std::string& path, const Record& record) const;

 private:
  std::vector<Record> valid;
  int dropped = 0;
  std::map<std::string, std::map<int, double>> times;  ///< of each path: position, time [s]
};

}  // namespace exporter
