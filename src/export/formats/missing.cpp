// What the formats say whose libraries were missing when this program was built.

#include "common/console.h"
#include "export/formats/geotiff.h"
#include "export/formats/ugrid.h"

namespace exporter {

#ifndef HAVE_NETCDF
void writeUgrid(const Results& /*results*/, const std::string& file) {
  common::console::fail("file <", file, "> cannot be written: this program was built without ",
                        "NetCDF; install libnetcdf-dev and build it again");
}
#endif

#ifndef HAVE_GDAL
void writeGeotiff(const Results& /*results*/, const RasterRequest& request) {
  common::console::fail("file <", request.file, "> cannot be written: this program was built ",
                        "without GDAL; install libgdal-dev and build it again");
}
#endif

}  // namespace exporter
