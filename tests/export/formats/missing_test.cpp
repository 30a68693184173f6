#include <gtest/gtest.h>

#include "dataio/failures.h"
#include "export/SampleResults.h"
#include "export/formats/geotiff.h"
#include "export/formats/ugrid.h"

namespace {

class MissingFormats : public samples::SampleResults {};

TEST_F(MissingFormats, NameTheirPackages) {
  use("one_cell");
  const exporter::Results results(file);
  EXPECT_EQ(failures::reportOf([&] { exporter::writeUgrid(results, "a.nc"); }),
            " -> file <a.nc> cannot be written: this program was built without NetCDF; install "
            "libnetcdf-dev and build it again\n");
  const exporter::RasterRequest request{"a.tif", 1.0, "water_depth", {}};
  EXPECT_EQ(failures::reportOf([&] { exporter::writeGeotiff(results, request); }),
            " -> file <a.tif> cannot be written: this program was built without GDAL; install "
            "libgdal-dev and build it again\n");
}

}  // namespace
