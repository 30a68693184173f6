// The parameters of a model as the run file holds them.
#pragma once

#include <array>
#include <variant>

#include "catalogue/IDs.h"
#include "setup/study/Study.h"

namespace setup {

using ParameterValue = std::variant<int, double, std::array<int, 2>>;

/// @throws BaseException for a parameter that this study does not give
ParameterValue parameterValue(model::ParameterID id, const Study& study);

}  // namespace setup
