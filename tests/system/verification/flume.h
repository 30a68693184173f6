// Flumes for runs with a moving bed: a row of squares along x, each of two triangles, with the
// strings `inlet`, `middle` and `outlet`, and the texts that a study of them needs.
#pragma once

#include <functional>
#include <string>

#include "system/verification/BedRun.h"
#include "system/verification/exner.h"

namespace verification {

struct Flume {
  double from = 0.0;    ///< [m]
  double length = 0.0;  ///< [m]
  int columns = 2;      ///< squares along it, an even number
  double slope = 0.0;   ///< fall of the bed along x [-]

  double width() const { return length / columns; }
  double to() const { return from + length; }
};

/// Positions of the strings of a flume.
enum String { INLET, MIDDLE, OUTLET };

/// A number with all its digits.
std::string number(double value);

/// GEOMETRY of a flume.
std::string geometryOf(const Flume& flume);

/// HYDRAULICS without friction: a flow with its discharge at the inlet, and at the outlet the
/// levels of the file levels.txt.
std::string frictionlessFlow(const GrassFlow& flow, const Flume& flume);

/// What stands in levels.txt for a level that changes evenly.
std::string levels(double end, double atStart, double atEnd);

/// MORPHOLOGY of a Grass formula.
/// @param boundaries content of the list BOUNDARY
std::string grassBed(const GrassFlow& flow, const std::string& boundaries);

/// Boundaries of the bed load with known rates.
/// @param in,out grains [m2/s]
std::string knownRates(const Flume& flume, double in, double out);

/// Mean absolute error of the bed [m].
/// @param exact bed at a place along x
double bedError(const BedRun& run, const std::function<double(double)>& exact);

/// Where the bed above 0 has its centre of mass along x [m].
double centreOfBed(const BedRun& run);

}  // namespace verification
