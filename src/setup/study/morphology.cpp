#include "setup/study/morphology.h"

#include <numbers>
#include <utility>

#include "setup/study/Study.h"
#include "setup/study/bed_boundary_types.h"
#include "setup/study/document/StudyGroup.h"

namespace setup {

namespace {

IncipientMotion readIncipientMotion(const StudyGroup& group) {
  IncipientMotion motion;
  for (const SlopeCorrection& correction : slopeCorrections()) {
    if (group["type"] == correction.name) motion.type = correction.type;
  }
  motion.angleOfRepose = group["angle_of_repose"].get<double>() * std::numbers::pi / 180.0;
  return motion;
}

}  // namespace

const std::vector<SlopeCorrection>& slopeCorrections() {
  static const std::vector<SlopeCorrection> corrections = {
      {"van_rijn_1989", 1},
      {"chen_2010", 2},
  };
  return corrections;
}

void readMorphology(const StudyGroup& plane, Study& study) {
  if (!plane.has("MORPHOLOGY")) return;
  const StudyGroup group = plane.group("MORPHOLOGY");
  const StudyGroup material = group.group("BEDMATERIAL");
  const StudyGroup bedload = group.group("BEDLOAD");
  Morphology morphology;
  if (group.has("PARAMETER")) group.group("PARAMETER").take("start", morphology.start);
  morphology.material = readBedMaterial(material, study.regions);
  if (material.has("FIXED_BED")) {
    morphology.fixedBed = readFixedBed(material.group("FIXED_BED"), study.regions);
  }
  morphology.bedload = readBedload(bedload, morphology.material, study);
  if (group.has("INCIPIENT_MOTION")) {
    morphology.incipientMotion = readIncipientMotion(group.group("INCIPIENT_MOTION"));
  }
  morphology.boundaries = readBoundaries(bedload, bedBoundaryTypes(), study);
  morphology.sources = readSources(group, bedSourceTypes(), study);
  study.morphology = std::move(morphology);
}

}  // namespace setup
