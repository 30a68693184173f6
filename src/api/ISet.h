// A numbered collection of mesh objects or records.
#pragma once

#include "api/IBase.h"
#include "catalogue/IDs.h"

namespace api {

class ISet : public virtual IBase {
 public:
  virtual void setSize(const int& size) = 0;
  /// The group that holds all data of the set.
  virtual std::string getH5PathRoot() const = 0;
  virtual model::SetID getID() const = 0;
};

}  // namespace api
