// A global number, or a few, that stay as the run file gives them.
#pragma once

#include <string>

#include "model/BaseData.h"

namespace model {

class Parameter final : public BaseData<ParameterID> {
 public:
  Parameter(const ParameterID& newId, const std::string& newName, const std::string& newDescription,
            const bool& isSimulationOnly, const bool& isSetupOnly, const DataType& newType,
            const int& newSize);

  /// As "Parameters/Gravity".
  std::string getH5Path() const override;
  void print() const override;
};

}  // namespace model
