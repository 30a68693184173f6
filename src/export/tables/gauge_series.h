// The outputs on cells at gauges as a table: a row for each record, a column for each value.
//
//   time [s],bridge water_depth [m],bridge flow_velocity_x [m/s],...
//
// Tracked outputs, which belong to the whole run, stand in each row.
#pragma once

#include <string>
#include <vector>

#include "export/Results.h"
#include "export/tables/Gauge.h"

namespace exporter {

/// @throws BaseException if a gauge lies outside the mesh, or on a write failure.
void writeGaugeSeries(const Results& results, const std::vector<Gauge>& gauges,
                      const std::string& file);

}  // namespace exporter
