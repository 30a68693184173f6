// Bed friction: the roughness closure of a study and the values that it gives.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "catalogue/Codes.h"
#include "setup/study/Area.h"

namespace setup {

struct FrictionZone {
  Area area;
  double value = 0.0;
};

struct Friction {
  model::FrictionCode closure = model::FrictionCode::Manning;
  double value = 0.0;  ///< where no zone says otherwise, in the unit of the closure
  std::vector<FrictionZone> zones;
};

/// A roughness closure under the name that a study gives it.
struct FrictionClosure {
  std::string name;
  model::FrictionCode code;
};

const std::vector<FrictionClosure>& frictionClosures();

/// Reads the group FRICTION of the group HYDRAULICS; none if there is no such group.
std::optional<Friction> readFriction(const StudyGroup& hydraulics,
                                     const std::vector<Region>& regions);

}  // namespace setup
