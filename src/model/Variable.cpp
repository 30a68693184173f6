#include "model/Variable.h"

#include "model/printing.h"

namespace model {

Variable::Variable(const VariableID& newId, const std::string& newName,
                   const std::string& newDescription, const bool& isSimulationOnly,
                   const DataType& newType, const int& newSize)
    : Base(newId, newName, newSize, newDescription, isSimulationOnly, false),
      BaseData(newType, false) {}

void Variable::print() const {
  printTyped("Variable", *this);
  printSize(*this);
}

}  // namespace model
