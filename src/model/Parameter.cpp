#include "model/Parameter.h"

#include "model/printing.h"

namespace model {

Parameter::Parameter(const ParameterID& newId, const std::string& newName,
                     const std::string& newDescription, const bool& isSimulationOnly,
                     const bool& isSetupOnly, const DataType& newType, const int& newSize)
    : Base(newId, newName, newSize, newDescription, isSimulationOnly, isSetupOnly),
      BaseData(newType, false) {}

std::string Parameter::getH5Path() const {
  return "Parameters/" + getName();
}

void Parameter::print() const {
  printTyped("Parameter", *this);
  printSize(*this);
}

}  // namespace model
