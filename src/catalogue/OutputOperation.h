// One step of turning stored data columns into a value of an output.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace model {

/// The same formula twice: `expression` for viewers that evaluate text ($n is column n), `function`
/// for programs. The function takes the minimal water depth [m] and one value per data column.
/// @throws std::out_of_range if there are fewer values than the formula needs.
struct OutputOperation {
  std::string expression;
  std::function<double(double minimalDepth, const std::vector<double>& columns)> function;
};

}  // namespace model
