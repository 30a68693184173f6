#include <gtest/gtest.h>

#include "dataio/failures.h"
#include "export/SampleResults.h"
#include "export/ugrid.h"

namespace {

class UgridMissing : public samples::SampleResults {};

TEST_F(UgridMissing, NamesThePackage) {
  use("one_cell");
  const exporter::Results results(file);
  EXPECT_EQ(failures::reportOf([&] { exporter::writeUgrid(results, "a.nc"); }),
            " -> file <a.nc> cannot be written: this program was built without NetCDF; install "
            "libnetcdf-dev and build it again\n");
}

}  // namespace
