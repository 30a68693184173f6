#include "setup/study/Study.h"

#include <nlohmann/json.hpp>
#include <string_view>

#include "setup/study/document/study_document.h"

using nlohmann::json;

namespace setup {

namespace {

/// EPSG: and a number of nine digits at most. Whether the register holds the code is seen by those
/// who look it up.
bool isEpsgCode(std::string_view crs) {
  constexpr std::string_view REGISTER = "EPSG:";
  if (!crs.starts_with(REGISTER)) return false;
  const std::string_view code = crs.substr(REGISTER.size());
  return !code.empty() && code.size() <= 9 && code.front() != '0' &&
         code.find_first_not_of("0123456789") == std::string_view::npos;
}

void checkCrs(const StudyGroup& domain) {
  std::string crs;
  domain.take("crs", crs);
  if (domain.has("crs") && !isEpsgCode(crs)) {
    domain.refuseValue("crs", "a code such as \"EPSG:2056\"");
  }
}

HydraulicParameters readParameters(const StudyGroup& hydraulics) {
  HydraulicParameters parameters;
  if (!hydraulics.has("PARAMETER")) return parameters;
  const StudyGroup group = hydraulics.group("PARAMETER");
  group.take("cfl", parameters.cfl);
  group.take("maximum_time_step", parameters.maximumTimeStep);
  group.take("minimum_water_depth", parameters.minimumWaterDepth);
  group.take("gravity", parameters.gravity);
  group.take("safe_mode", parameters.safeMode);
  return parameters;
}

}  // namespace

/// The schema has found the document to be sound; what a schema cannot tell is checked here.
Study readStudy(const std::string& file) {
  const json document = readStudyDocument(file);
  Study study;
  study.file = file;
  study.document = document.dump();
  const StudyGroup domain = StudyGroup(file, document).group("SETUP").group("DOMAIN");
  domain.take("name", study.name);
  checkCrs(domain);
  const StudyGroup plane = domain.group("RHEOPLANE_2D");
  const StudyGroup geometry = plane.group("GEOMETRY");
  const StudyGroup hydraulics = plane.group("HYDRAULICS");
  study.mesh = readMeshSource(geometry);
  study.regions = readRegions(geometry);
  study.bed = readBedZones(geometry, study.regions);
  study.hydraulics = readParameters(hydraulics);
  if (hydraulics.has("INITIAL")) {
    study.water = readWater(hydraulics.group("INITIAL"));
    study.waterZones = readWaterZones(hydraulics.group("INITIAL"), study.regions);
  }
  study.friction = readFriction(hydraulics, study.regions);
  study.strings = readStrings(geometry);
  const bool hasFriction = study.friction.has_value();
  study.boundaries = readBoundaries(hydraulics, boundaryTypes(), study.strings, hasFriction);
  study.sources = readSources(hydraulics, sourceTypes(), study.regions);
  study.morphology =
      readMorphology(plane, {study.regions, study.strings, study.hydraulics.gravity, hasFriction});
  return study;
}

}  // namespace setup
