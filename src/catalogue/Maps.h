// The maps: for each element of one set a fixed number of elements of another one. Which sets a map
// joins stands in Relations.h.
#pragma once

#include <map>
#include <string>

#include "catalogue/IDs.h"
#include "catalogue/Property.h"

namespace model {

/// The size counts the targets per element of the from set.
extern const std::map<MapID, Property> MapProps;
extern const std::map<MapID, std::string> MapDescription;

}  // namespace model
