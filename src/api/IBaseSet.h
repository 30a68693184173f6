// What all components that live on a set have in common.
#pragma once

#include <vector>

#include "api/IBase.h"
#include "api/ISet.h"

namespace api {

class IBaseSet : public virtual IBase {
 public:
  virtual ISet* getSet() const = 0;
  /// {number of set elements, values per element}
  virtual std::vector<int> getDimension() const = 0;
};

}  // namespace api
