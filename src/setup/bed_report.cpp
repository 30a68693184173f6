#include "setup/bed_report.h"

#include <algorithm>
#include <string>

#include "common/console.h"
#include "setup/mesh/position.h"

namespace console = common::console;

namespace setup {

namespace {

std::string textOf(const Bedload& bedload) {
  const auto excess = console::text(" (", bedload.form == BedloadForm::Grass ? "u" : "t", " - ",
                                    bedload.critical, ")^", bedload.exponent);
  switch (bedload.form) {
    // clang-format off
    case BedloadForm::Mpm:      return console::text(bedload.coefficient, " sqrt(s g d^3)", excess);
    case BedloadForm::Grass:    return console::text(bedload.coefficient, excess);
    case BedloadForm::PowerLaw: return "0.05 sqrt(s) q^2 / (g^2 d C^3 h^5)";
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

}  // namespace setup
