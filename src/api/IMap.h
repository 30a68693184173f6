// For each element of a set a fixed number of elements of another one.
#pragma once

#include "api/IBaseSet.h"
#include "catalogue/IDs.h"

namespace api {

class IMap : public IBaseSet {
 public:
  virtual model::MapID getID() const = 0;
  /// The set that the map points into; getSet() is the one it starts from.
  virtual ISet* getSetMapped() const = 0;
};

}  // namespace api
