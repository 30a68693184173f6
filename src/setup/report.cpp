#include "setup/report.h"

#include <algorithm>
#include <numeric>

#include "common/console.h"

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

}  // namespace

double waterVolume(const Domain& domain) {
  double volume = 0.0;
  for (std::size_t cell = 0; cell < domain.bed.size(); ++cell) {
    volume += domain.geometry.areas[cell] * (domain.flow[cell][0] - domain.bed[cell]);
  }
  return volume;
}

void printReport(const api::IModel& model, const Domain& domain) {
  reportMesh(domain);
  reportSizes(domain.geometry);
  console::info("initial water volume: ", waterVolume(domain), " m3");
  std::string aggregates;
  for (const model::AggregateID id : model.getAggregates()) {
    aggregates += (aggregates.empty() ? "" : ", ") + model.getAggregate(id)->getName();
  }
  console::info("aggregates: ", aggregates);
}

}  // namespace setup
