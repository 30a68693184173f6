// The data: what is stored on the elements of the sets. The sizes are limits of the system: an edge
// boundary record has 7 values, a cell source record 2; those of strings and series stand in
// Limits.h.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "catalogue/IDs.h"
#include "catalogue/Property.h"

namespace model {

extern const std::map<DataID, Property> DataProps;
extern const std::map<DataID, std::string> DataDescription;

/// Data that the simulation creates, so that no run file holds them.
extern const std::vector<DataID> DataSimulation;

/// Data that a run file holds for the readers of results; no kernel uses them.
extern const std::vector<DataID> DataSetup;

}  // namespace model
