// The variables: global numbers that change during a run. The family has no members so far; its
// tables are there so that a variable can be added without touching the code around them.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "catalogue/IDs.h"
#include "catalogue/Property.h"

namespace model {

extern const std::map<VariableID, Property> VariableProps;
extern const std::map<VariableID, std::string> VariableDescription;

/// Variables that the simulation creates, so that no run file holds them.
extern const std::vector<VariableID> VariableSimulation;

}  // namespace model
