// What the components that hold values add to Base: data, parameters, variables and outputs.
#pragma once

#include <string>

#include "catalogue/Property.h"
#include "model/Base.h"

namespace model {

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

}  // namespace model
