#include "system/verification/exact.h"

#include <cmath>

namespace verification {

namespace {

/// Velocity behind a rarefaction that lowers the depth from `upstream` to `depth`.
double velocityBehindRarefaction(double upstream, double depth, double gravity) {
  return 2.0 * (std::sqrt(gravity * upstream) - std::sqrt(gravity * depth));
}

/// Velocity behind a bore that raises the depth from `downstream` to `depth`.
double velocityBehindBore(double downstream, double depth, double gravity) {
  return (depth - downstream) *
         std::sqrt(0.5 * gravity * (depth + downstream) / (depth * downstream));
}

/// The uniform stretch: the depth at which both waves leave the water with the same velocity. The
/// difference of the two falls as the depth grows, so that bisection finds its one root.
Flow flowBetweenWaves(double upstream, double downstream, double gravity) {
  double low = downstream;
  double high = upstream;
  double depth = 0.5 * (low + high);
  while (low < depth && depth < high) {
    const bool tooLow = velocityBehindRarefaction(upstream, depth, gravity) >
                        velocityBehindBore(downstream, depth, gravity);
    (tooLow ? low : high) = depth;
    depth = 0.5 * (low + high);
  }
  return {depth, velocityBehindBore(downstream, depth, gravity)};
}

}  // namespace

Ritter::Ritter(double depth, double gravitation)
    : upstream(depth), gravity(gravitation), celerity(std::sqrt(gravitation * depth)) {}

Flow Ritter::at(double x, double t) const {
  const double speed = x / t;
  if (speed <= -celerity) return {upstream, 0.0};
  if (speed >= frontSpeed()) return {0.0, 0.0};
  const double c = (2.0 * celerity - speed) / 3.0;
  return {c * c / gravity, 2.0 * (celerity + speed) / 3.0};
}

Stoker::Stoker(double upstream, double downstreamDepth, double gravitation)
    : rarefaction(upstream, gravitation),
      downstream(downstreamDepth),
      gravity(gravitation),
      middle(flowBetweenWaves(upstream, downstreamDepth, gravitation)) {}

double Stoker::boreSpeed() const {
  return middle.depth * middle.velocity / (middle.depth - downstream);
}

Flow Stoker::at(double x, double t) const {
  const double speed = x / t;
  if (speed >= boreSpeed()) return {downstream, 0.0};
  if (speed >= middle.velocity - std::sqrt(gravity * middle.depth)) return middle;
  return rarefaction.at(x, t);
}

}  // namespace verification
