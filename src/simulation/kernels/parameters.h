// Access of the kernel bodies to the global parameters of a run.
//
//   const double g = real(ParameterID::Gravity);
//
// A parameter of type double stands in G_REAL, one of type int in G_INT, each at the slot that is
// the value of its ParameterID. A parameter with several values fills consecutive slots.
#pragma once

#include "catalogue/IDs.h"

inline constexpr int PARAMETER_SLOTS = 28;

// NOLINTBEGIN(cppcoreguidelines-avoid-c-arrays): plain storage that any backend can mirror
extern double G_REAL[PARAMETER_SLOTS];
extern int G_INT[PARAMETER_SLOTS];
extern int G_Debug;  ///< 1 if the numerics name the elements that they complain about
// NOLINTEND(cppcoreguidelines-avoid-c-arrays)

namespace kernels {

using model::ParameterID;

inline double real(ParameterID id) {
  return G_REAL[static_cast<int>(id)];
}
inline int integer(ParameterID id) {
  return G_INT[static_cast<int>(id)];
}
/// Value `offset` of a parameter with several values.
inline int integer(ParameterID id, int offset) {
  return G_INT[static_cast<int>(id) + offset];
}

}  // namespace kernels
