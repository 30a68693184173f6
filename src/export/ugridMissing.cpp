#include "common/console.h"
#include "export/ugrid.h"

namespace exporter {

void writeUgrid(const Results& /*results*/, const std::string& file) {
  common::console::fail("file <", file, "> cannot be written: this program was built without ",
                        "NetCDF; install libnetcdf-dev and build it again");
}

}  // namespace exporter
