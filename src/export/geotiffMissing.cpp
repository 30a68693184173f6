#include "common/console.h"
#include "export/geotiff.h"

namespace exporter {

void writeGeotiff(const Results& /*results*/, const RasterRequest& request) {
  common::console::fail("file <", request.file, "> cannot be written: this program was built ",
                        "without GDAL; install libgdal-dev and build it again");
}

}  // namespace exporter
