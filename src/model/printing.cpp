#include "model/printing.h"

#include <iostream>

#include "common/console.h"

namespace model {

void printTyped(const char* family, const api::IBaseData& component) {
  std::cout << family << ": " << component.getH5Path() << " (dtype=" << component.getType() << ")"
            << std::endl;
}

void printDimension(const api::IBaseSet& component) {
  const std::vector<int> dimension = component.getDimension();
  common::console::info("with dimension (", dimension.at(0), "/", dimension.at(1), ")");
}

void printSize(const api::IBase& component) {
  common::console::info("with size ", component.getSize());
}

}  // namespace model
