// A run that keeps account of its water: what came in, what went out, what is there.
//
//   AccountedRun run("command.json", "run.h5");
//   run.go("results.h5");
//   EXPECT_LE(run.largestError(), 1e-12 * run.account().turnover());
//
// The run is that of the executable, in this process. Two of its kernels are wrapped in code that
// reads and adds up, and changes nothing:
//
// Boundaries. The update of the state takes the flux of an edge times its length and the step out
// of the cell on its left and puts it into the cell on its right. At an edge inside the domain, be
// it with a gate or a weir, the two are one sum that vanishes. At an edge along the boundary there
// is one cell, on the left: what its flux takes out is lost to the domain. So the terms are the
// fluxes of all edges whose two cells are the same, walls included, as they stand when the update
// begins, times length and step.
//
// Sources. They raise or lower the surface of their cells after the update. The terms are these
// heights times the area: the rate times the step, for a sink as much of it as its type allows with
// the water that is there at that moment.
//
// Storage. The depth is the surface less the bed, below zero too, so that nothing would pass
// unseen that the solver cut off or filled up. Friction slows the water and leaves the depth alone:
// it has no term.
#pragma once

#include <string>

#include "simulation/RHEOdomain.h"
#include "system/verification/CompensatedSum.h"

namespace verification {

/// Water of a run up to some time [m3].
struct Account {
  double atStart = 0.0;
  double in = 0.0;     ///< over boundaries
  double out = 0.0;    ///< over boundaries
  double added = 0.0;  ///< by sources
  double taken = 0.0;  ///< by sinks
  double stored = 0.0;

  /// What is there without a cause, or missing.
  double error() const;
  /// All water that there ever was, for comparison.
  double turnover() const { return atStart + in + added; }
};

class AccountedRun : public simulation::RHEOdomain {
 public:
  AccountedRun(const std::string& commandFile, const std::string& runFile);

  /// Runs from start to end.
  /// @param output the name that `--output` would give
  void go(const std::string& output);

  Account account() const;
  /// The largest error of the account at the end of any step [m3].
  double largestError() const { return largest; }
  int steps() const { return passes; }

 private:
  template <class T>
  const T* values(model::DataID id) const;
  const int* table(model::MapID id) const;

  double storage() const;
  void close();
  void countBoundaries();
  void countSources();
  static double sourceHeight(int type, double height, double depth);

  double atStart = 0.0;
  CompensatedSum in, out, added, taken;
  double largest = 0.0;
  int passes = 0;
};

}  // namespace verification
