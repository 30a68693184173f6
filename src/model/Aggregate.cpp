#include "model/Aggregate.h"

#include <iostream>

namespace model {

Aggregate::Aggregate(const AggregateID& newId, const std::string& newName,
                     const std::string& newDescription)
    : Base(newId, newName, 0, newDescription, false, false) {}

void Aggregate::print() const {
  std::cout << "Aggregate: " << getH5Path() << std::endl;
}

}  // namespace model
