// A study: what the user writes down to have a run file made.
//
//   const Study study = readStudy("study.json");
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "setup/study/Area.h"
#include "setup/study/boundaries.h"
#include "setup/study/friction.h"
#include "setup/study/initial_state.h"
#include "setup/study/mesh_source.h"
#include "setup/study/morphology.h"
#include "setup/study/sources.h"
#include "setup/study/string_definitions.h"

namespace setup {

struct HydraulicParameters {
  double cfl = 0.5;
  double maximumTimeStep = 100.0;    ///< [s]
  double minimumWaterDepth = 0.001;  ///< cells with less count as dry [m]
  double gravity = 9.81;             ///< [m/s2]
  bool safeMode = true;
};

struct Study {
  std::string file;
  std::string document;  ///< the study as compact JSON
  std::string name;      ///< empty if the study has none
  MeshSource mesh;
  std::vector<Region> regions;
  std::vector<BedZone> bed;  ///< in the order in which they apply
  Water water;               ///< where no zone says otherwise
  std::vector<WaterZone> waterZones;
  HydraulicParameters hydraulics;
  std::optional<Friction> friction;
  std::vector<StringDefinition> strings;
  std::vector<Boundary> boundaries;
  std::vector<Source> sources;
  std::optional<Morphology> morphology;  ///< none: the bed stays as it is
};

/// Reads and checks a study document. Relative file names in it start from its own folder.
/// What the schema of a study finds goes to standard output.
/// @throws BaseException for a file that cannot be read or is not JSON, for unknown and missing
///         keys, wrong values and keys that exclude each other; the report or message names the
///         place of the key.
Study readStudy(const std::string& file);

}  // namespace setup
