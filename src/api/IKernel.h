// A loop of the numerics over one set.
#pragma once

#include <vector>

#include "api/IBaseSet.h"
#include "catalogue/IDs.h"

namespace api {

class IKernel : public IBaseSet {
 public:
  virtual model::KernelID getID() const = 0;
  /// Data that the kernel uses only where the model holds them.
  virtual void setOptionalData(const std::vector<model::DataID>& ids) = 0;
  virtual std::vector<model::DataID> getOptionalData() const = 0;
};

}  // namespace api
