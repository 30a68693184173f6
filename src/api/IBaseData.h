// What all components that hold values have in common.
#pragma once

#include <string>

#include "api/IBase.h"

namespace api {

class IBaseData : public virtual IBase {
 public:
  /// "int", "double" or "string".
  virtual std::string getType() const = 0;
  /// True for the state that a flux kernel of the model advances.
  virtual bool isSolution() const = 0;
  virtual bool isVariableInTime() const = 0;
};

}  // namespace api
