// Solutions of the shallow-water equations with a moving bed after Exner,
//
//   (1 - p) z_t + qs_x = 0,   qs = A u^3,
//
// where the flow along x is subcritical, without friction, and carries q in each metre of width.
#pragma once

#include <functional>

namespace verification {

/// Water and a bed of which the flow carries A u^3 grains.
struct GrassFlow {
  double discharge = 0.0;    ///< q [m2/s]
  double coefficient = 0.0;  ///< A [s2/m]
  double porosity = 0.0;     ///< p [-]
  double gravity = 0.0;      ///< [m/s2]
};

/// An exact solution of both equations: a steady flow over a bed that falls everywhere alike.
///
/// If the bed load grows evenly, A u^3 = a x + b, Exner's equation gives z_t = -a / (1 - p). A
/// velocity and a depth h = q / u that are steady fulfil the equation of continuity; so does the
/// surface, which falls with the bed. The equation of motion, divided by the depth, is
///
///   (u^2 / 2 + g (h + z))_x = 0,
///
/// so that z = -u^2 / (2 g) - q / u - a t / (1 - p) but for a constant.
///
///   C. Berthon, S. Cordier, O. Delestre, M.-H. Le: An analytical solution of the shallow water
///   system coupled to the Exner equation. Comptes Rendus Mathematique 350 (3-4), 2012, 183-186.
class FallingBed {
 public:
  /// @param growth a [m/s], of the bed load along x; @param start b [m2/s], the bed load at x = 0
  FallingBed(const GrassFlow& flow, double growth, double start);

  double bedload(double x) const;  ///< grains [m2/s]
  double velocity(double x) const;
  double depth(double x) const;
  double bed(double x, double t) const;

 private:
  GrassFlow flow;
  double growth;
  double start;
};

/// A hump that is slow against the waves of the water: at each moment the flow is the steady one
/// over the bed that is there, with the same energy all along,
///
///   u^2 / 2 + g (q / u + z) = E.
///
/// The bed load then is a function of the bed, f(z) = A u^3 / (1 - p), and a height z travels with
///
///   c(z) = f'(z) = 3 A u^3 / ((1 - p) h (1 - F^2))
///
/// until the front breaks. As z_t + f(z)_x = 0, the volume stays, and the centre of mass moves at
/// the mean of f(z) - f(0) over the volume, which does not change in time either.
///
///   J. Hudson, P. K. Sweby: Formulations for numerically approximating hyperbolic systems
///   governing sediment transport. Journal of Scientific Computing 19, 2003, 225-252.
class TravellingHump {
 public:
  /// A hump of the shape height cos^2(pi x / length) on half the length to either side of x = 0.
  /// @param depth far from the hump [m]
  TravellingHump(const GrassFlow& flow, double depth, double height, double length);

  double shape(double x) const;       ///< the bed at t = 0
  double velocity(double bed) const;  ///< of the flow over a height of the bed
  double bedload(double bed) const;   ///< grains [m2/s]
  double speed(double bed) const;     ///< c
  double breakingTime() const;
  /// @param t before the breaking time
  double bed(double x, double t) const;
  double centreSpeed() const;  ///< of the centre of mass

 private:
  double integral(const std::function<double(double)>& ofBed) const;

  GrassFlow flow;
  double energy;
  double height;
  double length;
};

}  // namespace verification
