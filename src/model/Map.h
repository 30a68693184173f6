// For each element of a set (getSet) a fixed number of elements of another one (getSetMapped).
#pragma once

#include <string>

#include "model/BaseSet.h"

namespace model {

class Map final : public BaseSet<MapID> {
 public:
  /// The sets are not owned; `newSize` is the number of targets per element of `newSet`.
  Map(const MapID& newId, const std::string& newName, const std::string& newDescription,
      api::ISet* newSet, api::ISet* newSetMapped, const int& newSize);

  api::ISet* getSetMapped() const override;
  void print() const override;

 private:
  api::ISet* setMapped;
};

}  // namespace model
