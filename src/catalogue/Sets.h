// The sets: the numbered collections of mesh objects and records that all data live on.
#pragma once

#include <map>
#include <string>

#include "catalogue/IDs.h"
#include "catalogue/Property.h"

namespace model {

extern const std::map<SetID, Property> SetProps;
extern const std::map<SetID, std::string> SetDescription;

}  // namespace model
