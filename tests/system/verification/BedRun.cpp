#include "system/verification/BedRun.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdio>
#include <limits>
#include <sstream>
#include <stdexcept>

#include "op/core/op_lib_core.h"
#include "simulation/kernels/Parameters.h"
#include "support/Process.h"
#include "system/verification/Solution.h"

namespace verification {

using model::DataID;
using model::KernelID;
using model::MapID;
using model::ParameterID;
using model::SetID;

void setUp(const std::string& folder, const BedCase& study) {
  support::writeFile(folder + "/study.json",
                     R"({"SETUP": {"DOMAIN": {"RHEOPLANE_2D": {"GEOMETRY": {)" + study.geometry +
                         R"(}, "HYDRAULICS": {)" + study.hydraulics + R"(}, "MORPHOLOGY": {)" +
                         study.morphology + "}}}}}");
  std::ostringstream command;
  command << R"({"SIMULATION": {"TIME": {"start": 0.0, "end": )" << study.end << R"(, "out": )"
          << study.end << R"(}, "OUTPUT": ["water_surface", "bottom_elevation"]}})";
  support::writeFile(folder + "/command.json", command.str());
  const support::Outcome setup =
      support::runIn(folder, SETUP_EXE, {"-f", "study.json", "-o", "run.h5"});
  if (setup.status != 0) throw std::runtime_error("setup failed:\n" + setup.out + setup.err);
}

Silence::Silence() {
  ::testing::internal::CaptureStdout();
}

Silence::~Silence() {
  std::fflush(stdout);
  ::testing::internal::GetCapturedStdout();
}

BedRun::BedRun(const std::string& folder)
    : RHEOdomain(folder + "/command.json", folder + "/run.h5") {
  for (const auto& [a, b, c] : readCells(folder + "/run.h5")) {
    centroids.push_back({(a.x + b.x + c.x) / 3.0, (a.y + b.y + c.y) / 3.0});
  }
  kernels[KernelID::Update] = [this, update = kernels.at(KernelID::Update)] {
    watchUpdate(update);
  };
  init(0, false, false, folder + "/results.h5");
  const auto* const area = values<double>(DataID::CellsAll_GeomArea);
  areas.assign(area, area + centroids.size());
}

void BedRun::setCells(const std::function<Cell(const Point&)>& stateAt) {
  for (std::size_t cell = 0; cell < cells(); ++cell) {
    const Cell state = stateAt(centroids[cell]);
    double* const hydraulic = values<double>(DataID::HydState) + 3 * cell;
    hydraulic[0] = state.bed + state.depth;
    hydraulic[1] = state.depth * state.u;
    hydraulic[2] = state.depth * state.v;
    values<double>(DataID::BottomEl)[cell] = state.bed;
  }
}

void BedRun::go() {
  sandAtStart = sand();
  run();
}

double BedRun::bed(std::size_t cell) const {
  return values<double>(DataID::BottomEl)[cell];
}

double BedRun::surface(std::size_t cell) const {
  return values<double>(DataID::HydState)[3 * cell];
}

double BedRun::curvature(std::size_t cell) const {
  return values<double>(DataID::FlowCurv)[cell];
}

double BedRun::ofString(std::size_t nodestring, std::size_t value) const {
  return values<double>(DataID::StateVar)[10 * nodestring + value];
}

double BedRun::sand() const {
  CompensatedSum sum;
  for (std::size_t cell = 0; cell < cells(); ++cell) sum.add(areas[cell] * bed(cell));
  return sum.value();
}

void BedRun::watchUpdate(const std::function<void()>& update) {
  ++passes;
  if (waterIsHeld) {
    auto* const flux = values<double>(DataID::FluxesHy);
    std::fill_n(flux, 5 * static_cast<std::size_t>(sets.at(SetID::EdgesAll)->size), 0.0);
  }
  std::vector<double> surfaces(cells());
  std::vector<double> beds(cells());
  for (std::size_t cell = 0; cell < cells(); ++cell) {
    surfaces[cell] = surface(cell);
    beds[cell] = bed(cell);
  }
  countBoundaries();
  update();
  compareWays(surfaces, beds);
  closeAccount();
  lookForUndercut();
}

void BedRun::countBoundaries() {
  if (currentTime < kernels::Parameters::ofRun().real(ParameterID::MorphStart)) return;
  const auto* const flux = values<double>(DataID::FluxesMo);
  const auto* const length = values<double>(DataID::GeomLeng);
  const int* const sides = maps.at(MapID::EdgesAll_CellsAll)->map;
  const auto edges = static_cast<std::size_t>(sets.at(SetID::EdgesAll)->size);
  for (std::size_t edge = 0; edge < edges; ++edge) {
    if (sides[2 * edge] != sides[2 * edge + 1]) continue;
    const double outward = timeStep * length[edge] * flux[edge];
    if (outward > 0.0) out.add(outward);
    if (outward < 0.0) in.add(-outward);
  }
}

void BedRun::closeAccount() {
  CompensatedSum sum;
  for (const double term : {sand(), -sandAtStart, -sandIn(), sandOut()}) sum.add(term);
  const double error = std::abs(sum.value());
  if (!(error <= sandError)) sandError = error;  // so that a NaN shows
}

// The two ways are taken apart: a difference of the depths would have roundings of its own.
void BedRun::compareWays(const std::vector<double>& surfaces, const std::vector<double>& beds) {
  for (std::size_t cell = 0; cell < cells(); ++cell) {
    const double larger = std::max(std::abs(surfaces[cell]), std::abs(surface(cell)));
    const double unit = std::nextafter(larger, std::numeric_limits<double>::max()) - larger;
    const double difference = (surface(cell) - surfaces[cell]) - (bed(cell) - beds[cell]);
    const double change = std::abs(difference) / unit;
    if (!(change <= depthChange)) depthChange = change;
  }
}

void BedRun::lookForUndercut() {
  if (sets.count(SetID::CellsFix) == 0) return;
  const auto* const fixedBed = values<double>(DataID::FixBedEl);
  const int* const cellOf = maps.at(MapID::CellsFix_CellsAll)->map;
  for (int k = 0; k < sets.at(SetID::CellsFix)->size; ++k) {
    const double depthBelow = fixedBed[k] - bed(static_cast<std::size_t>(cellOf[k]));
    if (!(depthBelow <= undercut)) undercut = depthBelow;
  }
}

}  // namespace verification
