// Describes a results file to viewers of XDMF, such as ParaView and QGIS, without copying a number.
//
//   exporter::writeXdmf(results, "run.xdmf");
//
// The document names the results file relative to itself, so that both can be moved together. Each
// output on cells is shown at each valid record that holds it, what does not vary at all of them.
#pragma once

#include <string>

#include "export/results/Results.h"

namespace exporter {

/// @throws BaseException if the document cannot be written.
void writeXdmf(const Results& results, const std::string& document);

/// An expression of the catalogue as the reader of XDMF 2 computes it. That reader takes 1.0/$0 for
/// $0; its equivalent is $0/($0*$0), except that it is no number where $0 is 0.
std::string viewerExpression(const std::string& expression);

}  // namespace exporter
