#include "model/components.h"

#include <iostream>

#include "common/console.h"

namespace model {

namespace {

void printSize(const api::IBase& component) {
  common::console::info("with size ", component.getSize());
}

}  // namespace

void printTyped(const char* family, const api::IBaseData& component) {
  std::cout << family << ": " << component.getH5Path() << " (dtype=" << component.getType() << ")"
            << std::endl;
}

void printDimension(const api::IBaseSet& component) {
  const std::vector<int> dimension = component.getDimension();
  common::console::info("with dimension (", dimension.at(0), "/", dimension.at(1), ")");
}

// -- Aggregate ------------------------------------------------------------------------------------

Aggregate::Aggregate(const AggregateID& newId, const std::string& newName,
                     const std::string& newDescription)
    : Base(newId, newName, 0, newDescription, false, false) {}

void Aggregate::print() const {
  std::cout << "Aggregate: " << getH5Path() << std::endl;
}

// -- Kernel ---------------------------------------------------------------------------------------

Kernel::Kernel(const KernelID& newId, const std::string& newName, const std::string& newDescription,
               api::ISet* newSet)
    : Base(newId, newName, kernelTimingLength, newDescription, false, false), BaseSet(newSet) {}

void Kernel::setOptionalData(const std::vector<DataID>& ids) {
  optionalData = ids;
}

std::vector<DataID> Kernel::getOptionalData() const {
  return optionalData;
}

void Kernel::print() const {
  std::cout << "Kernel: " << getName() << std::endl;
  common::console::info("on set ", getSet()->getH5PathRoot());
}

// -- Set ------------------------------------------------------------------------------------------

Set::Set(const SetID& newId, const std::string& newName, const std::string& newDescription)
    : Base(newId, newName, 0, newDescription, false, false) {}

void Set::setSize(const int& elements) {
  size = elements;
}

std::string Set::getH5PathRoot() const {
  return getName();
}

std::string Set::getH5Path() const {
  return getName() + "/set";
}

void Set::print() const {
  std::cout << "Set: " << getH5Path() << " (N=" << getSize() << ")" << std::endl;
}

// -- Map ------------------------------------------------------------------------------------------

Map::Map(const MapID& newId, const std::string& newName, const std::string& newDescription,
         api::ISet* newSet, api::ISet* newSetMapped, const int& newSize)
    : Base(newId, newName, newSize, newDescription, false, false),
      BaseSet(newSet),
      setMapped(newSetMapped) {}

api::ISet* Map::getSetMapped() const {
  return setMapped;
}

void Map::print() const {
  std::cout << "Map: " << getH5Path() << std::endl;
  printDimension(*this);
}

// -- Data -----------------------------------------------------------------------------------------

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

// -- Parameter ------------------------------------------------------------------------------------

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

// -- Variable -------------------------------------------------------------------------------------

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
