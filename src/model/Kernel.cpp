#include "model/Kernel.h"

#include <iostream>

#include "common/console.h"

namespace model {

Kernel::Kernel(const KernelID& newId, const std::string& newName, const std::string& newDescription,
               api::ISet* newSet)
    : Base(newId, newName, kernelTimingLength, newDescription, false, false), BaseSet(newSet) {}

void Kernel::setOptionalData(const std::vector<DataID>& ids) {
  optionalData = ids;
}

std::vector<DataID> Kernel::getOptionalData() const {
  return optionalData;
}

void Kernel::print() const {
  std::cout << "Kernel: " << getName() << std::endl;
  common::console::info("on set ", getSet()->getH5PathRoot());
}

}  // namespace model
