// The mesh of the results as a .2dm file, for viewers that take values from XDMF but no mesh.
//
// The cells stand in the order of the results, which is not that of the mesh file of a study: setup
// numbers them anew. Numbers of nodes and cells start from 1.
#pragma once

#include <string>

#include "export/results/Results.h"

namespace exporter {

/// @throws BaseException if the file cannot be written.
void writeMesh(const Results& results, const std::string& file);

}  // namespace exporter
