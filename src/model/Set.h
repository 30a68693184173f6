// A numbered collection of mesh objects or records. Its size is the number of elements: 0 until the
// mesh has been read.
#pragma once

#include <string>

#include "model/Base.h"

namespace model {

class Set final : public Base<SetID> {
 public:
  Set(const SetID& newId, const std::string& newName, const std::string& newDescription);

  void setSize(const int& elements) override;
  /// The group of the set, as "CellsAll".
  std::string getH5PathRoot() const override;
  /// The dataset with the number of elements, as "CellsAll/set".
  std::string getH5Path() const override;
  void print() const override;
};

}  // namespace model
