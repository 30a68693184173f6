// What the user is told of a finished run file.
#pragma once

#include <string>

#include "api/IModel.h"
#include "setup/domain/Domain.h"
#include "setup/study/Study.h"

namespace setup {

/// Prints a few lines on mesh, strings, water, a moving bed and the model to standard output, and
/// proposes a time step where rain on a dry domain would go wrong with that of the study.
void printReport(const api::IModel& model, const Domain& domain, const Study& study);

/// The part of it on the moving bed: its formula, what becomes of the factors of the direction, its
/// fixed bed, and the strings where water passes and bed load does not. Nothing if the bed stays.
void printBedReport(const Domain& domain, const Study& study);

/// Volume of the water over the bed [m3].
double waterVolume(const Domain& domain);

}  // namespace setup
