#include "setup/report.h"

#include <algorithm>
#include <numeric>

#include "common/console.h"
#include "setup/bed_report.h"

namespace console = common::console;

namespace setup {

namespace {

void reportMesh(const Domain& domain) {
  const Tidying& tidying = domain.tidying;
  if (tidying.turnedCells > 0) {
    console::info("turned ", tidying.turnedCells, " clockwise elements");
  }
  if (tidying.unusedNodes > 0) {
    console::info("left out ", tidying.unusedNodes, " nodes that no element uses");
  }
  console::info("cells: ", domain.mesh.cells.size(), ", edges: ", domain.topology.edgeCells.size(),
                " (on the boundary: ", domain.topology.boundaryEdges().size(),
                "), nodes: ", domain.mesh.nodes.size());
  console::info("numbering: neighbours are ", domain.bandwidthAsNumbered,
                " cells apart at most (as given: ", domain.bandwidthAsGiven, ")");
}

void reportSizes(const Geometry& geometry) {
  const double total = std::accumulate(geometry.areas.begin(), geometry.areas.end(), 0.0);
  const double shortest = *std::min_element(geometry.lengths.begin(), geometry.lengths.end());
  double smallest = geometry.charSizes.front()[0];
  for (const auto& [left, right] : geometry.charSizes) {
    smallest = std::min({smallest, left, right});
  }
  console::info("area: ", total, " m2, shortest edge: ", shortest,
                " m, smallest cell size: ", smallest, " m");
}

void reportStrings(const Domain& domain, const Study& study) {
  for (const EdgeString& string : domain.strings) {
    console::info("string <", string.name, ">: ", string.edges.size(), " edges, ", string.length,
                  " m");
  }
  if (!study.boundaries.empty()) {
    console::info("boundaries: ", study.boundaries.size(), ", on ",
                  domain.boundaries.flow.edges.size(),
                  " edges; all other edges on the boundary are walls");
  }
}

bool hasWetCell(const Domain& domain, double minimumDepth) {
  for (std::size_t cell = 0; cell < domain.bed.size(); ++cell) {
    if (domain.flow[cell][0] - domain.bed[cell] > minimumDepth) return true;
  }
  return false;
}

/// Only wet cells bound the step: rain on dry cells would be added in steps of any length, and the
/// first water be metres deep. Within the proposed step it is as deep as the thinnest wet layer.
void proposeTimeStep(const Domain& domain, const HydraulicParameters& parameters) {
  const double rate = domain.sources.strongestRate;
  if (!(rate > 0.0) || hasWetCell(domain, parameters.minimumWaterDepth)) return;
  const double proposed = parameters.minimumWaterDepth / rate;
  if (parameters.maximumTimeStep <= proposed) return;
  console::info("no cell is wet at the start: until one is, a step is cfl * maximum_time_step = ",
                parameters.cfl * parameters.maximumTimeStep, " s, in which the strongest source ",
                "adds ", parameters.cfl * parameters.maximumTimeStep * rate, " m of water; a ",
                "maximum_time_step of about ", proposed,
                " s (minimum_water_depth over its rate) would be right");
}

}  // namespace

double waterVolume(const Domain& domain) {
  double volume = 0.0;
  for (std::size_t cell = 0; cell < domain.bed.size(); ++cell) {
    volume += domain.geometry.areas[cell] * (domain.flow[cell][0] - domain.bed[cell]);
  }
  return volume;
}

void printReport(const api::IModel& model, const Domain& domain, const Study& study) {
  reportMesh(domain);
  reportSizes(domain.geometry);
  reportStrings(domain, study);
  console::info("initial water volume: ", waterVolume(domain), " m3");
  proposeTimeStep(domain, study.hydraulics);
  printBedReport(domain, study);
  std::string aggregates;
  for (const model::AggregateID id : model.getAggregates()) {
    aggregates += (aggregates.empty() ? "" : ", ") + model.getAggregate(id)->getName();
  }
  console::info("aggregates: ", aggregates);
}

}  // namespace setup
