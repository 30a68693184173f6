// What all components of a model share. Base<ID> implements the interface that belongs to the ID's
// family, so that a concrete class only names the templates it is made of:
//
//   class Data final : public BaseData<DataID>, public BaseSet<DataID> { ... };
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "api/IOutput.h"
#include "api/components.h"
#include "catalogue/IDs.h"
#include "catalogue/Property.h"

namespace model {

/// The interface of the components that an enumeration identifies.
template <class ID>
struct Family;

// clang-format off
template <> struct Family<AggregateID> { using Interface = api::IAggregate; };
template <> struct Family<KernelID>    { using Interface = api::IKernel; };
template <> struct Family<SetID>       { using Interface = api::ISet; };
template <> struct Family<MapID>       { using Interface = api::IMap; };
template <> struct Family<DataID>      { using Interface = api::IData; };
template <> struct Family<ParameterID> { using Interface = api::IParameter; };
template <> struct Family<VariableID>  { using Interface = api::IVariable; };
template <> struct Family<OutputID>    { using Interface = api::IOutput; };
// clang-format on

template <class ID>
class Base : public Family<ID>::Interface {
 public:
  Base(const ID& newId, std::string newName, const int& newSize, std::string newDescription,
       const bool& newSimulationOnly, const bool& newSetupOnly)
      : size(newSize),
        id(newId),
        name(std::move(newName)),
        description(std::move(newDescription)),
        simulationOnly(newSimulationOnly),
        setupOnly(newSetupOnly) {}
  // Others point to a component, so it stays where it is.
  Base(const Base&) = delete;
  Base& operator=(const Base&) = delete;
  Base(Base&&) = delete;
  Base& operator=(Base&&) = delete;
  ~Base() override = default;

  ID getID() const override { return id; }
  std::string getName() const override { return name; }
  const char* getNameC() const override { return name.c_str(); }
  std::string getH5Path() const override { return name; }
  int getSize() const override { return size; }
  bool isSimulationOnly() const override { return simulationOnly; }
  bool isSetupOnly() const override { return setupOnly; }
  std::string getDescription() const override { return description; }

 protected:
  int size;

 private:
  ID id;
  std::string name;
  std::string description;
  bool simulationOnly;
  bool setupOnly;
};

/// What the components that hold values add to Base: data, parameters, variables and outputs.
/// Virtual, since data and outputs are both on a set and made of values: the concrete class
/// constructs the one Base.
template <class ID>
class BaseData : public virtual Base<ID> {
 public:
  BaseData(const DataType& newType, const bool& newSolution)
      : type(newType), solution(newSolution) {}

  /// "int", "double" or "string"; empty for components without values.
  std::string getType() const override {
    switch (type) {
      case DataType::Int:
        return "int";
      case DataType::Double:
        return "double";
      case DataType::String:
        return "string";
      case DataType::None:
        break;
    }
    return "";
  }

  bool isSolution() const override { return solution; }

  /// What the simulation creates, it also changes.
  bool isVariableInTime() const override { return this->isSimulationOnly() || solution; }

 private:
  DataType type;
  bool solution;
};

/// What the components that live on a set add to Base: kernels, maps, data and outputs.
/// Virtual, since data and outputs are both on a set and made of values: the concrete class
/// constructs the one Base.
template <class ID>
class BaseSet : public virtual Base<ID> {
 public:
  /// `newSet` is not owned and must outlive the component.
  explicit BaseSet(api::ISet* newSet) : set(newSet) {}

  api::ISet* getSet() const override { return set; }
  std::vector<int> getDimension() const override { return {set->getSize(), this->getSize()}; }
  std::string getH5Path() const override { return set->getH5PathRoot() + "/" + this->getName(); }

 private:
  api::ISet* set;
};

}  // namespace model
