#include "model/Map.h"

#include <iostream>

#include "model/printing.h"

namespace model {

Map::Map(const MapID& newId, const std::string& newName, const std::string& newDescription,
         api::ISet* newSet, api::ISet* newSetMapped, const int& newSize)
    : Base(newId, newName, newSize, newDescription, false, false),
      BaseSet(newSet),
      setMapped(newSetMapped) {}

api::ISet* Map::getSetMapped() const {
  return setMapped;
}

void Map::print() const {
  std::cout << "Map: " << getH5Path() << std::endl;
  printDimension(*this);
}

}  // namespace model
