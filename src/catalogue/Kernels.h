// The kernels: the loops of the numerics. Their sets, data, maps and parameters stand in
// Relations.h.
#pragma once

#include <map>
#include <string>

#include "catalogue/IDs.h"
#include "catalogue/Property.h"

namespace model {

/// The size counts the timing values of a kernel in the run file.
extern const std::map<KernelID, Property> KernelProps;
extern const std::map<KernelID, std::string> KernelDescription;

}  // namespace model
