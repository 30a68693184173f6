// Bed friction: the roughness closure of a study and its value in each cell.
#pragma once

#include <string>
#include <vector>

#include "setup/mesh/Geometry.h"
#include "setup/mesh/Mesh.h"
#include "setup/study/Area.h"

namespace setup {

struct Study;
class StudyGroup;

struct FrictionZone {
  Area area;
  double value = 0.0;
};

struct Friction {
  int type = 0;        ///< the closure's number in the run file
  double value = 0.0;  ///< where no zone says otherwise, in the unit of the closure
  std::vector<FrictionZone> zones;
};

/// A roughness closure under the name that a study gives it.
struct FrictionClosure {
  std::string name;
  int type;
};

const std::vector<FrictionClosure>& frictionClosures();

/// Reads the group FRICTION, if the study has one; its regions must be known.
void readFriction(const StudyGroup& hydraulics, Study& study);

/// The friction value of each cell; a later zone replaces an earlier one. Empty without friction.
/// @throws BaseException for an area without cells
std::vector<double> cellFriction(const Study& study, const Mesh& mesh, const Geometry& geometry);

}  // namespace setup
