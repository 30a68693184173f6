// Values on every element of a set.
#pragma once

#include <string>

#include "model/BaseData.h"
#include "model/BaseSet.h"

namespace model {

class Data final : public BaseData<DataID>, public BaseSet<DataID> {
 public:
  /// `newSet` is not owned; `newSize` is the number of values per element of it.
  Data(const DataID& newId, const std::string& newName, const std::string& newDescription,
       const bool& isSimulationOnly, const bool& isSetupOnly, const DataType& newType,
       api::ISet* newSet, const int& newSize, const bool& isSolution);

  void print() const override;
};

}  // namespace model
