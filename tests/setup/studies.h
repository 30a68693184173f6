// Study documents for tests, which together hold every key that there is.
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace studies {

inline const std::string PLANE = "/SETUP/DOMAIN/RHEOPLANE_2D";
inline const std::string GEOMETRY = PLANE + "/GEOMETRY";
inline const std::string HYDRAULICS = PLANE + "/HYDRAULICS";
inline const std::string INITIAL = HYDRAULICS + "/INITIAL";

/// A study of the two groups.
inline std::string document(const std::string& geometry, const std::string& hydraulics) {
  return R"({"SETUP": {"DOMAIN": {"name": "s", "RHEOPLANE_2D": {"GEOMETRY": )" + geometry +
         R"(, "HYDRAULICS": )" + hydraulics + "}}}}";
}

/// A study with all groups and lists; `mesh` is the first key of its geometry.
inline nlohmann::json withMesh(const std::string& mesh) {
  return nlohmann::json::parse(document("{" + mesh + R"(,
      "REGIONDEF": [{"index": 1, "name": "plain"}, {"index": -2, "name": "sill"}],
      "BED": [{"region": "sill", "elevation": 2, "gradient": [0.1, 0.2], "at": [5, 6]},
              {"region": "plain", "box": [0, 0, 1, 2], "raise": -1}]})",
                                        R"({
      "PARAMETER": {"cfl": 1, "maximum_time_step": 5, "minimum_water_depth": 0.01,
                    "gravity": 9.8, "safe_mode": false},
      "INITIAL": {"water_level": "dry",
                  "ZONES": [{"region": "plain", "water_level": 3, "velocity": [0, 2]},
                            {"box": [0, 0, 2, 2], "water_depth": 0}]},
      "FLOOD": {"track": "all"}})"));
}

inline nlohmann::json withFile() {
  return withMesh(R"("MESH": {"file": "m.2dm"})");
}

inline nlohmann::json withRectangle() {
  return withMesh(R"("RECTANGLE": {"origin": [1, 2], "length": 30, "width": 4.5, "cells": [6, 7],
      "elevation": 8, "slope": 0.01, "pattern": "crossed"})");
}

/// Its water has a depth and not a level.
inline nlohmann::json withChannel() {
  nlohmann::json study = withMesh(R"("CHANNEL": {"origin": [1, 2], "length": 30, "bed_width": 4,
      "side_slope": 1.5, "bank_height": 2, "cells": [6, 7, 3], "elevation": 8, "slope": 0.01,
      "pattern": "diagonal"})");
  nlohmann::json& initial = study.at(nlohmann::json::json_pointer(INITIAL));
  initial.erase("water_level");
  initial["water_depth"] = 0.5;
  initial["velocity"] = {1, 0};
  return study;
}

inline std::vector<nlohmann::json> all() {
  return {withFile(), withRectangle(), withChannel()};
}

}  // namespace studies
