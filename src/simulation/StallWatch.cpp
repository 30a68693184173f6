#include "simulation/StallWatch.h"

#include "common/console.h"

namespace simulation {

namespace {

constexpr int PASSES = 100;
// At a microsecond per pass, a run with less than this would take more than thirty years.
constexpr double LEAST_SHARE = 1e-13;

}  // namespace

StallWatch::StallWatch(double start, double endOfRun) : end(endOfRun), mark(start) {}

void StallWatch::pass(double time) {
  if (++passes < PASSES) return;
  const double gained = time - mark;
  const double left = end - mark;
  if (!warned && gained < LEAST_SHARE * left) {
    warned = true;
    common::console::error("the run does not get on: its last ", PASSES, " steps took it ", gained,
                           " s further, to ", time, " s of ", end,
                           " s. Check the output interval and the time step");
  }
  passes = 0;
  mark = time;
}

}  // namespace simulation
