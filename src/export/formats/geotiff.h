// One quantity at one time as a raster for geographic information systems.
//
//   exporter::writeGeotiff(results, {"depth.tif", 2.0, "flood_maximum_depth", {}});
//
// A pixel takes the value of the cell that contains its centre. North is up; pixels outside the
// mesh, and in dry cells that do not have the quantity, are marked as without data.
#pragma once

#include <optional>
#include <string>

#include "export/results/Results.h"

namespace exporter {

struct RasterRequest {
  std::string file;            ///< empty: nothing is asked for
  double resolution = 0.0;     ///< side of a pixel [m]
  std::string quantity;        ///< name of a quantity on cells
  std::optional<double> time;  ///< of a record [s]; none: the last one
};

/// @throws BaseException if the file cannot be written as asked for, or if export was built without
///         GDAL.
void writeGeotiff(const Results& results, const RasterRequest& request);

}  // namespace exporter
