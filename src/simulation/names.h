// Paths of data and maps for messages about components that a model may not hold.
#pragma once

#include <string>

#include "catalogue/IDs.h"

namespace simulation {

/// As "CellsAll/HydState".
std::string pathOf(model::DataID id);
std::string pathOf(model::MapID id);

}  // namespace simulation
