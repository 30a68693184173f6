// The parameters of a run, as its kernel bodies read them.
//
//   const double g = par.real(ParameterID::Gravity);
//
// The driver fills the global arrays: a parameter of type double stands in G_REAL, one of type int
// in G_INT, each at the slot that is the value of its ParameterID. A parameter with several values
// fills consecutive slots. Bodies get a copy of all, made when their loop starts: the compiler
// knows that none of their stores changes it, and threads and devices can have one of their own.
#pragma once

#include <algorithm>
#include <array>
#include <iterator>

#include "catalogue/IDs.h"

inline constexpr int PARAMETER_SLOTS = 28;

// NOLINTBEGIN(cppcoreguidelines-avoid-c-arrays): plain storage that any backend can mirror
extern double G_REAL[PARAMETER_SLOTS];
extern int G_INT[PARAMETER_SLOTS];
extern int G_Debug;  ///< 1 if the numerics name the elements that they complain about
// NOLINTEND(cppcoreguidelines-avoid-c-arrays)

namespace kernels {

using model::ParameterID;

class Parameters {
 public:
  /// A copy of what the globals hold now.
  static Parameters ofRun() {
    Parameters par;
    std::copy(std::begin(G_REAL), std::end(G_REAL), par.reals.begin());
    std::copy(std::begin(G_INT), std::end(G_INT), par.integers.begin());
    par.namesElements = G_Debug != 0;
    return par;
  }

  double real(ParameterID id) const { return reals[static_cast<std::size_t>(id)]; }
  int integer(ParameterID id) const { return integers[static_cast<std::size_t>(id)]; }
  /// Value `offset` of a parameter with several values.
  int integer(ParameterID id, std::size_t offset) const {
    return integers[static_cast<std::size_t>(id) + offset];
  }
  bool debug() const { return namesElements; }

 private:
  std::array<double, PARAMETER_SLOTS> reals;
  std::array<int, PARAMETER_SLOTS> integers;
  bool namesElements;
};

}  // namespace kernels
