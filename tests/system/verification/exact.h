// Exact solutions of the shallow-water equations for a dam that vanishes at t = 0.
//
// The bed is level and without friction, the channel endless, the dam stands at x = 0 and the water
// behind it, at x < 0, is at rest.
//
//   A. Ritter: Die Fortpflanzung der Wasserwellen. Zeitschrift des Vereines Deutscher Ingenieure 36
//   (33), 1892, 947-954.
//   J. J. Stoker: Water Waves. Interscience, New York, 1957, section 10.8.
#pragma once

namespace verification {

struct Flow {
  double depth = 0.0;     ///< [m]
  double velocity = 0.0;  ///< along x [m/s]; 0 where there is no water
};

/// A dam break onto a dry bed: the water behind the dam runs out in a rarefaction wave, whose
/// surface is a parabola from the undisturbed water to the front.
class Ritter {
 public:
  /// @param depth of the water behind the dam [m], above 0
  Ritter(double depth, double gravity);

  /// @param x distance from the dam [m]
  /// @param t time since the break [s], above 0
  Flow at(double x, double t) const;

  double frontSpeed() const { return 2.0 * celerity; }  ///< [m/s]

 private:
  double upstream;
  double gravity;
  double celerity;  ///< of the undisturbed water
};

/// A dam break into still water: a rarefaction wave, a stretch of uniform flow and a bore.
class Stoker {
 public:
  /// @param upstream, downstream depths behind and before the dam [m], upstream > downstream > 0
  Stoker(double upstream, double downstream, double gravity);

  /// @param x distance from the dam [m]
  /// @param t time since the break [s], above 0
  Flow at(double x, double t) const;

  double middleDepth() const { return middle.depth; }        ///< of the uniform stretch [m]
  double middleVelocity() const { return middle.velocity; }  ///< of the uniform stretch [m/s]
  double boreSpeed() const;                                  ///< [m/s]

 private:
  Ritter rarefaction;
  double downstream;
  double gravity;
  Flow middle;
};

}  // namespace verification
