// A file of derived values, in which dry cells show no flow: the outputs themselves, ready to be
// drawn, and an XDMF document beside it.
//
//   exporter::writeMasked(results, "dry.h5");      // and dry.xdmf
//
// The file holds the mesh as the results file does, the documents under .config with the origin of
// the file, and the outputs on cells in /OUTPUTS/<output>/<record>: (cells, 1), or (cells, 3) for a
// vector, whose third component is 0. An output of several quantities has a group for each of them.
// The attribute "t" is the time [s]; what does not vary stands in the first record only.
#pragma once

#include <string>

#include "export/results/Results.h"

namespace exporter {

/// @param file a name that ends in .h5
/// @throws BaseException if one of the files cannot be written.
void writeMasked(const Results& results, const std::string& file);

}  // namespace exporter
