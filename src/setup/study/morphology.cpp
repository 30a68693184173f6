#include "setup/study/morphology.h"

#include <numbers>

namespace setup {

namespace {

IncipientMotion readIncipientMotion(const StudyGroup& group) {
  IncipientMotion motion;
  for (const SlopeCorrection& correction : slopeCorrections()) {
    if (group["type"] == correction.name) motion.correction = correction.code;
  }
  motion.angleOfRepose = group["angle_of_repose"].get<double>() * std::numbers::pi / 180.0;
  return motion;
}

}  // namespace

const std::vector<SlopeCorrection>& slopeCorrections() {
  static const std::vector<SlopeCorrection> corrections = {
      {"van_rijn_1989", model::SlopeCorrectionCode::VanRijn},
      {"chen_2010", model::SlopeCorrectionCode::Chen},
  };
  return corrections;
}

std::optional<Morphology> readMorphology(const StudyGroup& plane,
                                         const BedSurroundings& surroundings) {
  if (!plane.has("MORPHOLOGY")) return std::nullopt;
  const auto& [regions, strings, gravity, hasFriction] = surroundings;
  const StudyGroup group = plane.group("MORPHOLOGY");
  const StudyGroup material = group.group("BEDMATERIAL");
  const StudyGroup bedload = group.group("BEDLOAD");
  Morphology morphology;
  if (group.has("PARAMETER")) group.group("PARAMETER").take("start", morphology.start);
  morphology.material = readBedMaterial(material, regions);
  if (material.has("FIXED_BED")) {
    morphology.fixedBed = readFixedBed(material.group("FIXED_BED"), regions);
  }
  morphology.bedload = readBedload(bedload, morphology.material, gravity, hasFriction);
  if (group.has("INCIPIENT_MOTION")) {
    morphology.incipientMotion = readIncipientMotion(group.group("INCIPIENT_MOTION"));
  }
  morphology.boundaries = readBoundaries(bedload, bedBoundaryTypes(), strings, hasFriction);
  morphology.sources = readSources(group, bedSourceTypes(), regions);
  return morphology;
}

}  // namespace setup
