// The moving bed of a study.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "setup/domain/fixed_bed.h"
#include "setup/study/bed_material.h"
#include "setup/study/bedload.h"
#include "setup/study/boundaries.h"
#include "setup/study/sources.h"

namespace setup {

struct Study;
class StudyGroup;

/// How the slope of the bed changes the critical value of the bed load.
struct SlopeCorrection {
  std::string name;
  int type;  ///< its number in the run file
};

const std::vector<SlopeCorrection>& slopeCorrections();

struct IncipientMotion {
  int type = 0;                ///< number of the slope correction
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

/// Reads the group MORPHOLOGY, if the plane has one, into a study that is complete otherwise.
/// @throws BaseException for what its parts refuse
void readMorphology(const StudyGroup& plane, Study& study);

}  // namespace setup
