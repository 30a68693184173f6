#include "simulation/kernels/diagnostics.h"

#include <cstdio>

#include "simulation/kernels/parameters.h"

namespace kernels {

void reportMassBalance(double depth) {
  std::printf("MASS BALANCE PROBLEM: h = %g < 0.0\n", depth);
}

void reportMassBalance(double depth, const int* cell) {
  reportMassBalance(depth);
  if (G_Debug != 0) std::printf("... in cell %i\n", *cell);
}

void reportOverdraft(double depth, const int* cell) {
  if (G_Debug != 0) std::printf("overdraft in cell %i by dz = %f [m]\n", *cell, depth);
}

void reportFixedBedDeficit(double bed, double fixedBed) {
  std::printf("MASS BALANCE PROBLEM: z = %g < zFix = %g\n", bed, fixedBed);
}

}  // namespace kernels
