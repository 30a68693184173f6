// The output times of a results file. Each data has a group under /RESULTS/ with one dataset per
// record, numbered from 0000000; the attribute "t" of a dataset is its time in seconds.
//
//   dataio::ResultReader results("run_results.h5");
//   const int position = results.findTime({"CellsAll/HydState"}, 3600.0, 2);
#pragma once

#include <map>
#include <string>
#include <vector>

#include "api/IResultReader.h"
#include "dataio/H5Reader.h"

namespace dataio {

/// `paths` are the H5 paths of data, as "CellsAll/HydState". Faults of the file are reported on
/// standard error before BaseException is thrown; h5::Error travels if HDF5 fails, as for a data
/// without results.
class ResultReader : public H5Reader, public api::IResultReader {
 public:
  static constexpr const char* RESULTPATH = "/RESULTS/";
  /// Time of a record that was invalidated [s].
  static constexpr double NONVALIDRESULTTIME = -1.0;

  /// Opens the file for writing too, as records are invalidated in place.
  explicit ResultReader(const std::string& file);

  /// Position of the first record whose time equals `t` [s] after rounding, or -1.
  /// @param digits decimal places. The factor 10^digits is held as a 32-bit integer: from 10 on it
  ///        overflows to -2147483648, and times are compared as multiples of 2^-31 s.
  int findTime(const std::vector<std::string>& paths, const double& t,
               const int& digits) const override;

  /// Sets the time of all records from `fromPosition` on to NONVALIDRESULTTIME. Nothing is erased.
  void deleteResults(const std::string& path, const int& fromPosition) override;

  /// One line on standard output for each time that is not negative.
  void printValidTimes(const std::vector<std::string>& paths) const override;

  /// Times [s] and positions. A time must stand at the same position in all groups.
  /// @param complete all paths must have a record for each time
  std::map<double, int> getTimesWithPosition(const std::vector<std::string>& paths,
                                             const bool& complete) const override;

  /// Times [s] and, in the order of `paths`, the positions where they stand.
  std::map<double, std::vector<int>> getAllTimesWithPosition(
      const std::vector<std::string>& paths) const override;

  /// "/RESULTS/CellsAll/HydState" for "CellsAll/HydState".
  static std::string getOutputGroup(const std::string& path);
  /// "/RESULTS/CellsAll/HydState/0000007" for "CellsAll/HydState" and 7.
  static std::string getOutputPath(const std::string& path, const int& position);
};

}  // namespace dataio
