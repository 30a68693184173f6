// What the user is told of a finished run file.
#pragma once

#include <string>

#include "api/IModel.h"
#include "setup/Domain.h"

namespace setup {

/// Prints a few lines on mesh, water and model to standard output.
void printReport(const api::IModel& model, const Domain& domain);

/// Volume of the water over the bed [m3].
double waterVolume(const Domain& domain);

}  // namespace setup
