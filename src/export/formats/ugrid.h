// Results as NetCDF by the UGRID and CF conventions, with the mesh in the same file.
//
//   exporter::writeUgrid(results, "run.nc");
//
// The file holds the topology `mesh2d`, a variable for each value of each output, named as in
// tables, and the study document. Outputs on cells lie on faces, those of nodestrings on a
// dimension of their own. All have the dimension `time`, in seconds of the model, counted from
// 1970-01-01 because the conventions ask for a date; what does not vary stands at each time, since
// a viewer in use shows arbitrary numbers for variables without it.
#pragma once

#include <string>

#include "export/results/Results.h"

namespace exporter {

/// @throws BaseException if the file cannot be written, or if export was built without NetCDF.
void writeUgrid(const Results& results, const std::string& file);

}  // namespace exporter
