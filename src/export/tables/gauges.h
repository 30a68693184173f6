// Points at which results are sampled, and the outputs on cells there as a table: a row for each
// record, a column for each value.
//
//   time [s],bridge water_depth [m],bridge flow_velocity_x [m/s],...
//
// Tracked outputs, which belong to the whole run, stand in each row.
#pragma once

#include <string>
#include <vector>

#include "export/results/Mesh.h"
#include "export/results/Results.h"

namespace exporter {

struct Gauge {
  std::string name;
  double x;  ///< [m]
  double y;  ///< [m]
};

/// @param text "x,y" or "x,y,name"
/// @param number of the gauge, from 1: names one without a name, as "gauge 1"
/// @throws BaseException for any other text.
Gauge parseGauge(const std::string& text, int number);

/// The cell that contains the point; on an edge the first one of those beside it.
/// @throws BaseException if the point lies outside the mesh.
std::size_t cellAt(const Mesh& mesh, const Gauge& gauge);

/// @throws BaseException if a gauge lies outside the mesh, or on a write failure.
void writeGaugeSeries(const Results& results, const std::vector<Gauge>& gauges,
                      const std::string& file);

}  // namespace exporter
