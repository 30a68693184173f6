#include "simulation/RHEOdomain.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <iterator>
#include <string>

#include "simulation/kernels/Parameters.h"
#include "support/Process.h"
#include "support/TempDir.h"

namespace {

double slot(model::ParameterID id) {
  return G_REAL[static_cast<int>(id)];
}

// One test, since a process has one domain object.
TEST(RHEOdomain, IsOneObjectThatDerivesParametersInEveryRun) {
  std::fill(std::begin(G_REAL), std::end(G_REAL), 0.0);
  const support::TempDir dir;
  support::copySample("dam_dry", dir.path());
  ::testing::internal::CaptureStdout();
  simulation::RHEOdomain* const domain =
      simulation::RHEOdomain::getInstance(dir.file("command.json"), dir.file("run.h5"));
  EXPECT_EQ(simulation::RHEOdomain::getInstance("ignored", "ignored"), domain);
  domain->init(0, false, false, dir.file("out.h5"));
  delete domain;
  std::fflush(stdout);
  ::testing::internal::GetCapturedStdout();

  EXPECT_EQ(slot(model::ParameterID::InvGravity), 1.0 / 9.81);
  EXPECT_EQ(slot(model::ParameterID::InvBedPorosity), 1.0);
  // A hydraulic model has no densities.
  EXPECT_TRUE(std::isnan(slot(model::ParameterID::SedRelDensity)));
}

}  // namespace
