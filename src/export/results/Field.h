// One value for each cell at one time: what a raster shows.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "export/results/Results.h"
#include "export/results/quantities.h"

namespace exporter {

struct Field {
  Quantity quantity;
  std::optional<double> time;  ///< [s]; none if the values hold at all times
  std::vector<double> values;  ///< of the cells; no number (NaN) where the quantity is not defined
};

/// @param name of a quantity on cells, as "flow_velocity_x", or one that it had formerly
/// @param time of a record [s]; none: the last one that holds the quantity
/// @throws BaseException if the file does not hold the quantity, or not at that time.
Field fieldOf(const Results& results, const std::string& name, const std::optional<double>& time);

}  // namespace exporter
