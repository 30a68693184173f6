// A global number, or a few, that change during a run.
#pragma once

#include <string>

#include "model/BaseData.h"

namespace model {

class Variable final : public BaseData<VariableID> {
 public:
  Variable(const VariableID& newId, const std::string& newName, const std::string& newDescription,
           const bool& isSimulationOnly, const DataType& newType, const int& newSize);

  void print() const override;
};

}  // namespace model
