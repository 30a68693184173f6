#include "model/Data.h"

#include "model/printing.h"

namespace model {

Data::Data(const DataID& newId, const std::string& newName, const std::string& newDescription,
           const bool& isSimulationOnly, const bool& isSetupOnly, const DataType& newType,
           api::ISet* newSet, const int& newSize, const bool& isSolution)
    : Base(newId, newName, newSize, newDescription, isSimulationOnly, isSetupOnly),
      BaseData(newType, isSolution),
      BaseSet(newSet) {}

void Data::print() const {
  printTyped("Data", *this);
  printDimension(*this);
}

}  // namespace model
