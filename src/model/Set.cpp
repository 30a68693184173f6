#include "model/Set.h"

#include <iostream>

namespace model {

Set::Set(const SetID& newId, const std::string& newName, const std::string& newDescription)
    : Base(newId, newName, 0, newDescription, false, false) {}

void Set::setSize(const int& elements) {
  size = elements;
}

std::string Set::getH5PathRoot() const {
  return getName();
}

std::string Set::getH5Path() const {
  return getName() + "/set";
}

void Set::print() const {
  std::cout << "Set: " << getH5Path() << " (N=" << getSize() << ")" << std::endl;
}

}  // namespace model
