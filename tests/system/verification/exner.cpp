#include "system/verification/exner.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace verification {

namespace {

constexpr int ITERATIONS = 60;   ///< halve the distance to a root to the last bit of a double
constexpr int INTERVALS = 1000;  ///< of the hump, for sums over it

/// The root of a function that grows between two places.
double rootOf(const std::function<double(double)>& growing, double low, double high) {
  for (int k = 0; k < ITERATIONS; ++k) {
    const double middle = 0.5 * (low + high);
    (growing(middle) < 0.0 ? low : high) = middle;
  }
  return 0.5 * (low + high);
}

double cubed(double x) {
  return x * x * x;
}

}  // namespace

FallingBed::FallingBed(const GrassFlow& ofFlow, double ofBedload, double atStart)
    : flow(ofFlow), growth(ofBedload), start(atStart) {}

double FallingBed::bedload(double x) const {
  return growth * x + start;
}

double FallingBed::velocity(double x) const {
  return std::cbrt(bedload(x) / flow.coefficient);
}

double FallingBed::depth(double x) const {
  return flow.discharge / velocity(x);
}

double FallingBed::bed(double x, double t) const {
  const double u = velocity(x);
  return -u * u / (2.0 * flow.gravity) - depth(x) - growth * t / (1.0 - flow.porosity);
}

TravellingHump::TravellingHump(const GrassFlow& ofFlow, double depth, double ofHump, double along)
    : flow(ofFlow),
      energy(0.5 * std::pow(ofFlow.discharge / depth, 2.0) + ofFlow.gravity * depth),
      height(ofHump),
      length(along) {}

double TravellingHump::shape(double x) const {
  if (std::abs(x) >= 0.5 * length) return 0.0;
  const double cosine = std::cos(std::numbers::pi * x / length);
  return height * cosine * cosine;
}

// Up to the critical velocity the energy falls as the velocity grows.
double TravellingHump::velocity(double bed) const {
  const double critical = std::cbrt(flow.gravity * flow.discharge);
  return rootOf(
      [this, bed](double u) {
        return energy - 0.5 * u * u - flow.gravity * (flow.discharge / u + bed);
      },
      1e-3 * critical, critical);
}

double TravellingHump::bedload(double bed) const {
  return flow.coefficient * cubed(velocity(bed));
}

double TravellingHump::speed(double bed) const {
  const double u = velocity(bed);
  const double depth = flow.discharge / u;
  const double froudeSquared = u * u / (flow.gravity * depth);
  return 3.0 * bedload(bed) / ((1.0 - flow.porosity) * depth * (1.0 - froudeSquared));
}

// The characteristics of two neighbouring places meet first where the speed falls most along x.
double TravellingHump::breakingTime() const {
  const double step = length / INTERVALS;
  double steepest = 0.0;
  for (int k = 0; k < INTERVALS; ++k) {
    const double x = -0.5 * length + k * step;
    steepest = std::max(steepest, (speed(shape(x)) - speed(shape(x + step))) / step);
  }
  return 1.0 / steepest;
}

double TravellingHump::bed(double x, double t) const {
  const double fastest = speed(height);
  return shape(rootOf([this, x, t](double from) { return from + speed(shape(from)) * t - x; },
                      x - fastest * t, x));
}

double TravellingHump::integral(const std::function<double(double)>& ofBed) const {
  const double step = length / INTERVALS;
  double sum = 0.0;
  for (int k = 0; k < INTERVALS; ++k) sum += ofBed(shape(-0.5 * length + (k + 0.5) * step));
  return sum * step;
}

double TravellingHump::centreSpeed() const {
  const double base = bedload(0.0);
  const double excess = integral([this, base](double bed) { return bedload(bed) - base; });
  return excess / (1.0 - flow.porosity) / integral([](double bed) { return bed; });
}

}  // namespace verification
