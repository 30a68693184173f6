// Writes the run file: everything that the solver needs for one run, in HDF5. What is written
// follows from the model alone; no list of sets, maps, data or parameters stands here.
#pragma once

#include <string>

#include "api/IModel.h"
#include "setup/domain/Domain.h"
#include "setup/study/Study.h"

namespace setup {

/// Refuses a file in a folder that does not exist, and a name under which the solver would not find
/// its model: it must end in ".h5" and hold no other dot. Tells the user of dots in the folders,
/// which the solver stumbles over.
/// @throws BaseException
void requireRunFile(const std::string& file);

/// The file appears under its name only when it is complete; an earlier one is then replaced.
/// @throws BaseException if the file cannot be written, or if the model needs something that the
///         study does not give.
void writeRunFile(const std::string& file, const api::IModel& model, const Domain& domain,
                  const Study& study);

}  // namespace setup
