// The setup of a run, from the study document to the run file.
//
//   setup::makeRunFile("study.json", "run.h5");
#pragma once

#include <string>

namespace setup {

/// Tells on standard output what has been made.
/// @param study name of the study document (JSON)
/// @param runFile name of the HDF5 file to be written
/// @throws BaseException after a message on standard error; there is no new run file then.
void makeRunFile(const std::string& study, const std::string& runFile);

}  // namespace setup
