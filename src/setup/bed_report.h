// What the user is told of the moving bed of a run file.
#pragma once

#include "setup/domain/Domain.h"
#include "setup/study/Study.h"

namespace setup {

/// Prints a few lines to standard output if the study has a moving bed: its formula, what becomes
/// of the factors of the direction, its fixed bed, and the strings where water passes and bed load
/// does not.
void printBedReport(const Domain& domain, const Study& study);

}  // namespace setup
