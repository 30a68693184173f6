#include "simulation/loops/notices.h"

#include <cstdio>

namespace simulation {

namespace {

using kernels::Finding;
using kernels::Notice;

void printNegativeDepth(const Notice& notice) {
  std::printf("MASS BALANCE PROBLEM: h = %g < 0.0\n", notice.first);
}

void print(const Notice& notice) {
  switch (notice.finding) {
    case Finding::negativeDepth:
      return printNegativeDepth(notice);
    case Finding::negativeDepthInCell:
      printNegativeDepth(notice);
      std::printf("... in cell %i\n", notice.cell);
      return;
    case Finding::overdraft:
      std::printf("overdraft in cell %i by dz = %f [m]\n", notice.cell, notice.first);
      return;
    case Finding::belowFixedBed:
      std::printf("MASS BALANCE PROBLEM: z = %g < zFix = %g\n", notice.first, notice.second);
      return;
  }
}

}  // namespace

void printNotices(const Notice* notices, int count) {
  for (int i = 0; i < count; ++i) print(notices[i]);
}

}  // namespace simulation
