// The parameters: the global numbers of a model. A parameter's ID is its slot in G_REAL (double) or
// G_INT (int); one of size n fills n slots, which is why no parameter has the value 20.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "catalogue/IDs.h"
#include "catalogue/Property.h"

namespace model {

extern const std::map<ParameterID, Property> ParameterProps;
extern const std::map<ParameterID, std::string> ParameterDescription;

/// Parameters that the simulation derives from others, so that no run file holds them.
extern const std::vector<ParameterID> ParameterSimulation;

/// Parameters that no kernel uses: none so far.
extern const std::vector<ParameterID> ParameterSetup;

}  // namespace model
