// Values of an output, without those that have no meaning.
#pragma once

#include <vector>

#include "export/results/Results.h"

namespace exporter {

/// The values as Results gives them, but no number (NaN) where the quantity needs water and the
/// cell is dry, or for tracked outputs was never reached by water; nor where it is infinite, as the
/// radius of a straight flow. Where the file does not hold the depth, no cell counts as dry.
/// @throws std::exception if the data cannot be read.
std::vector<double> definedValues(const Results& results, const api::IOutput& output,
                                  const Record& record);

/// The values as Results gives them, which puts the velocities of dry cells to 0, and the depths of
/// these, too: a thin layer of water that they keep.
/// @throws std::exception if the data cannot be read.
std::vector<double> maskedValues(const Results& results, const api::IOutput& output,
                                 const Record& record);

}  // namespace exporter
