// The outputs: what a user can ask for. The results file stores the data columns an output is made
// of (Relations.h); the operations turn these into the values of the output.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "catalogue/IDs.h"
#include "catalogue/OutputOperation.h"
#include "catalogue/Property.h"

namespace model {

extern const std::map<OutputID, Property> OutputProps;
extern const std::map<OutputID, std::string> OutputDescription;

/// One operation per value of the output. An output without a row is a plain copy of its columns.
extern const std::map<OutputID, std::vector<OutputOperation>> Output2Operations;

/// Outputs that are written once, at the end of a run. Nobody asks for them: they belong to every
/// model that holds their data.
extern const std::vector<OutputID> OutputTracking;

}  // namespace model
