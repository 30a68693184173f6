#include "catalogue/Variables.h"

namespace model {

const std::map<VariableID, Property> VariableProps = {};

const std::map<VariableID, std::string> VariableDescription = {};

const std::vector<VariableID> VariableSimulation = {};

}  // namespace model
