// The moving bed of a study.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "setup/study/bed_material.h"
#include "setup/study/bedload.h"
#include "setup/study/boundaries.h"
#include "setup/study/sources.h"

namespace setup {

/// How the slope of the bed changes the critical value of the bed load.
struct SlopeCorrection {
  std::string name;
  model::SlopeCorrectionCode code;
};

const std::vector<SlopeCorrection>& slopeCorrections();

struct IncipientMotion {
  model::SlopeCorrectionCode correction = model::SlopeCorrectionCode::VanRijn;
  double angleOfRepose = 0.0;  ///< [rad]
};

struct Morphology {
  double start = 0.0;  ///< time from which the bed moves [s]
  BedMaterial material;
  Bedload bedload;
  std::optional<IncipientMotion> incipientMotion;
  std::optional<FixedBed> fixedBed;
  std::vector<Boundary> boundaries;
  std::vector<Source> sources;
};

/// What the moving bed needs to know of the rest of the study.
struct BedSurroundings {
  const std::vector<Region>& regions;
  const std::vector<StringDefinition>& strings;
  double gravity;  ///< [m/s2]
  bool hasFriction;
};

/// Reads the group MORPHOLOGY of the plane; none if there is no such group.
/// @throws BaseException for what its parts refuse
std::optional<Morphology> readMorphology(const StudyGroup& plane,
                                         const BedSurroundings& surroundings);

}  // namespace setup
