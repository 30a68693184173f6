// Which output times a results file holds, and at which positions.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "api/IH5Reader.h"

namespace api {

/// `paths` are the H5 paths of data, as "CellsAll/HydState".
class IResultReader : public virtual IH5Reader {
 public:
  /// Position of the record at time `t` [s], or -1. Times are compared after rounding to `digits`.
  virtual int findTime(const std::vector<std::string>& paths, const double& t,
                       const int& digits) const = 0;
  /// Marks the records from `fromPosition` on as not valid; nothing is erased.
  virtual void deleteResults(const std::string& path, const int& fromPosition) = 0;
  virtual void printValidTimes(const std::vector<std::string>& paths) const = 0;
  virtual std::map<double, int> getTimesWithPosition(const std::vector<std::string>& paths,
                                                     const bool& complete) const = 0;
  virtual std::map<double, std::vector<int>> getAllTimesWithPosition(
      const std::vector<std::string>& paths) const = 0;
};

}  // namespace api
