// The parameters of a model as the run file holds them.
#pragma once

#include <variant>

#include "model/catalogue/IDs.h"
#include "setup/Study.h"

namespace setup {

using ParameterValue = std::variant<int, double>;

/// @throws BaseException for a parameter that no study can give so far.
ParameterValue parameterValue(model::ParameterID id, const Study& study);

}  // namespace setup
