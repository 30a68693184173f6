// Turns the totals that a user gives for a nodestring into what the boundary fluxes need.
//
// Every unknown code changes nothing. Of the two nodestrings of a modification, the second one, the
// other, lends its length only. A modification looks at nothing but what it needs: the rest need
// not exist. The letters S, D and so on are those of EdgeModification.
#pragma once

#include <cmath>

#include "catalogue/Codes.h"
#include "catalogue/Limits.h"
#include "simulation/kernels/Parameters.h"
#include "simulation/kernels/numeric.h"

namespace kernels::data {

/// What a modification knows.
struct EdgeModification {
  const int* r;          ///< five read positions
  const double* S;       ///< state of the nodestring
  const double* T;       ///< length of the nodestring [m]
  const double* Tother;  ///< length of the other nodestring [m]
  double time;           ///< [s]
  const double* D;       ///< boundary record

  /// Value at read position `index`.
  double value(int index) const { return D[r[index]]; }
  double length() const { return T[0]; }
  double lengthOther() const { return Tother[0]; }
  double wettedArea() const { return S[2]; }
  double conveyance() const { return S[7]; }
  double capacity() const { return S[9]; }
};

/// a / b, or 0 unless b is at least TINY.
inline double share(double a, double b) {
  return a * inverse(b);
}

/// Specific discharge over a weir, by Poleni, Q = 2/3 (a + b hw / P) sqrt(2 g) L hw^1.5,
/// with P the height of the crest above the bed (Rehbock, 1929, for the shape of the coefficient).
/// Values read: crest [m], coefficients a and b.
inline double weirDischarge(const Parameters& par, const EdgeModification& m) {
  const double crest = m.value(0);
  const double head = m.S[0] - crest;
  if (head < par.real(ParameterID::MinWaterDepth)) return 0.0;
  const double inverseHeight = inverseOfAbsolute(crest - m.S[4]);
  const double Cd = 0.6666666666666666 * (m.value(2) * head * inverseHeight + m.value(1));
  const double g = par.real(ParameterID::Gravity);
  const double Qw = Cd * std::sqrt(2.0 * g * head * head * head) * m.length();
  return share(Qw, m.wettedArea());
}

/// A total that is switched by the water surface, per wetted area. Values read: the total
/// while on, while off, the level that switches off [m], the delay of that [s], the level that
/// switches on [m] (missing: never).
/// @param memory {state, negative if off; deadline of switching off [s]}
inline double hysteresisSwitch(const EdgeModification& m, double* memory) {
  const double level = m.S[0];
  bool on = memory[0] >= 0.0;
  if (on) {
    if (m.value(2) > level) {
      memory[1] = 1e12;
    } else if (m.value(3) > 0.0 && memory[1] >= m.time) {
      // The first step above the level sets the deadline; later ones cannot put it off.
      memory[1] = fmin(memory[1], m.value(3) + m.time);
    } else {
      memory[0] = -1.0;
      memory[1] = 1e12;
      on = false;
    }
  } else if (m.value(4) != model::MISSING_VALUE && m.value(4) >= level) {
    memory[0] = 1.0;
    on = true;
  }
  return share(m.value(on ? 0 : 1), m.wettedArea());
}

/// @param info {type, write position, five read positions}
/// @param string state of the nodestring, ten values; @param length,lengthOther [m]
/// @param time [s]; @param memory what a switch remembers from step to step, 0 at the start
/// @param boundary boundary record, seven values; only the one at the write position changes
inline void edge_modification(const Parameters& par, const int* info, const double* string,
                              const double* /*stringOther*/, const double* length,
                              const double* lengthOther, const double* time, double* memory,
                              double* boundary) {
  const EdgeModification m{info + 2, string, length, lengthOther, time[0], boundary};
  double* const D = boundary;
  const int w = info[1];
  // clang-format off
  using enum model::EdgeModificationCode;
  switch (model::EdgeModificationCode{info[0]}) {
    case OverLength:
    case BedloadOverLength:          D[w] = share(m.value(0), m.length());          break;
    case OverSecondLength:           D[w] = share(m.value(0), m.lengthOther());     break;
    case WeirVelocity:               D[w] = weirDischarge(par, m);                  break;
    case OverWettedArea:
    case BedloadOverWettedArea:      D[w] = share(m.value(0), m.wettedArea());      break;
    case OpenFromTime:               D[w] = m.time > m.value(0) ? 1.0 : -1.0;       break;
    case Switch:                     D[w] = hysteresisSwitch(m, memory);            break;
    case WettedAreaOverSecondLength: D[w] = share(m.wettedArea(), m.lengthOther()); break;
    case BedloadOverConveyance:      D[w] = share(m.value(0), m.conveyance());      break;
    case CapacityOverLength:         D[w] = share(m.capacity(), m.length());        break;
    case CapacityOverWettedArea:     D[w] = share(m.capacity(), m.wettedArea());    break;
    case CapacityOverConveyance:     D[w] = share(m.capacity(), m.conveyance());    break;
    case DischargeOverSecondLength:  D[w] = share(m.S[1], m.lengthOther());         break;
    default:                                                                        break;
  }
  // clang-format on
}

}  // namespace kernels::data
