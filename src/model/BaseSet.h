// What the components that live on a set add to Base: kernels, maps, data and outputs.
#pragma once

#include <string>
#include <vector>

#include "model/Base.h"

namespace model {

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
