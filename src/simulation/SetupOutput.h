// Copies into the results file what its readers need of the setup.
#pragma once

#include "api/IH5Reader.h"
#include "api/IH5Writer.h"
#include "api/components.h"

namespace simulation {

/// Copies a datum from the run file to the same path of the results file. A datum on an empty set
/// is passed over.
/// @throws std::exception if the run file does not hold a datum whose set has elements.
void writeSetupOutput(api::IData* const& data, api::IH5Reader* const& from,
                      api::IH5Writer* const& to, int logLevel);

/// The same for a parameter.
void writeSetupOutput(api::IParameter* const& parameter, api::IH5Reader* const& from,
                      api::IH5Writer* const& to, int logLevel);

}  // namespace simulation
