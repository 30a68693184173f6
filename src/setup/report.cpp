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

std::string textOf(const Bedload& bedload) {
  const auto excess = console::text(" (", bedload.form == model::BedloadCode::Grass ? "u" : "t",
                                    " - ", bedload.critical, ")^", bedload.exponent);
  using enum model::BedloadCode;
  switch (bedload.form) {
    // clang-format off
    case MeyerPeterMueller:      return console::text(bedload.coefficient, " sqrt(s g d^3)", excess);
    case Grass:    return console::text(bedload.coefficient, excess);
    case PowerLaw: return "0.05 sqrt(s) q^2 / (g^2 d C^3 h^5)";
      // clang-format on
  }
  return "";
}

void reportDirection(const Bedload& bedload, double gravity) {
  if (bedload.lateralSlope) {
    console::info("lateral slope: the factor ", *bedload.lateralSlope,
                  " stands in the run file as ", bedload.lateralSlopeInRunFile(gravity),
                  ", times gravity, as the stress there is g^2 times the Shields parameter");
  }
  if (bedload.curvatureFactor) {
    console::info("curvature: the factor ", *bedload.curvatureFactor, " counts about ",
                  "0.55 times the mesh width; it must grow where the mesh is refined");
  }
}

void reportFixedBed(const Domain& domain) {
  const std::vector<double>& elevations = domain.fixedCells.elevations;
  const auto count = std::count_if(elevations.begin(), elevations.end(),
                                   [](double elevation) { return elevation > BOTTOMLESS; });
  if (count == 0) return;
  const int lowered = domain.fixedCells.loweredToBed;
  console::info("fixed bed: ", count, " cells",
                lowered == 0 ? ""
                             : console::text(", in ", lowered, " of them at the bed, which lies ",
                                             "below the elevation of the study"));
}

bool hasBoundary(const std::vector<Boundary>& boundaries, int string) {
  return std::any_of(boundaries.begin(), boundaries.end(),
                     [string](const Boundary& item) { return item.string == string; });
}

/// There the bed would rise where water leaves, and sink where it comes in.
void reportClosedStrings(const Study& study) {
  for (const Boundary& boundary : study.boundaries) {
    if (boundary.type->place == Place::Inside) continue;
    std::vector<int> strings{boundary.string};
    if (boundary.receiving != boundary.string) strings.push_back(boundary.receiving);
    for (const int string : strings) {
      if (hasBoundary(study.morphology->boundaries, string)) continue;
      console::info("string <", study.strings[index(string)].name, ">: water passes, but no bed ",
                    "load, as BEDLOAD/BOUNDARY has no entry for it");
    }
  }
}

}  // namespace

double waterVolume(const Domain& domain) {
  double volume = 0.0;
  for (std::size_t cell = 0; cell < domain.bed.size(); ++cell) {
    volume += domain.geometry.areas[cell] * (domain.flow[cell][0] - domain.bed[cell]);
  }
  return volume;
}

void printBedReport(const Domain& domain, const Study& study) {
  if (!study.morphology) return;
  const Bedload& bedload = study.morphology->bedload;
  console::info("bed load: ", textOf(bedload), ", times ", bedload.factor);
  reportDirection(bedload, study.hydraulics.gravity);
  reportFixedBed(domain);
  reportClosedStrings(study);
  if (!study.morphology->boundaries.empty()) {
    console::info("boundaries of the bed load: ", study.morphology->boundaries.size(), ", on ",
                  domain.boundaries.bed.edges.size(), " edges; nothing passes all others");
  }
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
