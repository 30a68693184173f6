// What "wet" means, in one place for all that asks: kernels, setup, exported files.
//
//   if (model::isWet(surface - bottom, minimum)) velocity = discharge / depth;
#pragma once

namespace model {

/// Whether a cell is wet: its depth is above the minimum water depth, strictly. One that is just as
/// deep as the minimum is dry.
/// @param depth water surface less bottom elevation [m]
/// @param minimum the parameter MinWaterDepth [m]
constexpr bool isWet(double depth, double minimum) noexcept {
  return depth > minimum;
}

}  // namespace model
