// A point at which results are sampled.
#pragma once

#include <string>

#include "export/Mesh.h"

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

}  // namespace exporter
