#include <gtest/gtest.h>

#include "dataio/failures.h"
#include "export/SampleResults.h"
#include "export/geotiff.h"

namespace {

class GeotiffMissing : public samples::SampleResults {};

TEST_F(GeotiffMissing, NamesThePackage) {
  use("one_cell");
  const exporter::Results results(file);
  const exporter::RasterRequest request{"a.tif", 1.0, "water_depth", {}};
  EXPECT_EQ(failures::reportOf([&] { exporter::writeGeotiff(results, request); }),
            " -> file <a.tif> cannot be written: this program was built without GDAL; install "
            "libgdal-dev and build it again\n");
}

}  // namespace
