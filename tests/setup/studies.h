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
      "STRINGDEF": [{"name": "inlet", "mesh_string": "1", "reverse": true},
                    {"name": "outlet", "from": [0, 0], "to": [0, 9]},
                    {"name": "dike", "nodes": [4, 5, 6]}, {"name": "weir"}, {"name": "lake"},
                    {"name": "sluice"}, {"name": "intake"}],
      "BED": [{"region": "sill", "elevation": 2, "gradient": [0.1, 0.2], "at": [5, 6]},
              {"region": "plain", "box": [0, 0, 1, 2], "raise": -1}]})",
                                        R"({
      "PARAMETER": {"cfl": 1, "maximum_time_step": 5, "minimum_water_depth": 0.01,
                    "gravity": 9.8, "safe_mode": false},
      "INITIAL": {"water_level": "dry",
                  "ZONES": [{"region": "plain", "water_level": 3, "velocity": [0, 2]},
                            {"box": [0, 0, 2, 2], "water_depth": 0}]},
      "FRICTION": {"type": "strickler", "value": 30,
                   "ZONES": [{"region": "sill", "box": [0, 0, 1, 2], "value": 20}]},
      "BOUNDARY": [{"string": "inlet", "type": "inflow_froude", "discharge_file": "q.txt",
                    "froude": 0.5},
                   {"string": "outlet", "type": "level", "level_file": "h.txt", "inflow": false,
                    "over": "discharge"},
                   {"string": "dike", "type": "gate_by_level", "opening_below": -1,
                    "opening_above": 1, "upper_level": 4, "lower_level": 3, "delay": 60},
                   {"string": "weir", "to": "lake", "type": "linked_weir", "crest": 2,
                    "coefficient": 0.6, "rise": 0.1}],
      "SOURCE": [{"region": "plain", "type": "rain", "intensity": 5, "sink": "exact"},
                 {"region": "sill", "type": "discharge", "discharge_file": "q.txt"}],
      "FLOOD": {"track": "all"}})"));
}

inline nlohmann::json withFile() {
  nlohmann::json study = withMesh(R"("MESH": {"file": "m.2dm"})");
  study.at("SETUP").at("DOMAIN")["crs"] = "EPSG:2056";
  return study;
}

inline nlohmann::json withRectangle() {
  return withMesh(R"("RECTANGLE": {"origin": [1, 2], "length": 30, "width": 4.5, "cells": [6, 7],
      "elevation": 8, "slope": 0.01, "pattern": "crossed"})");
}

/// Its water has a depth and not a level, and its boundaries and sources are of other types.
inline nlohmann::json withChannel() {
  nlohmann::json study = withMesh(R"("CHANNEL": {"origin": [1, 2], "length": 30, "bed_width": 4,
      "side_slope": 1.5, "bank_height": 2, "cells": [6, 7, 3], "elevation": 8, "slope": 0.01,
      "pattern": "diagonal"})");
  study.at(nlohmann::json::json_pointer(HYDRAULICS))["BOUNDARY"] = nlohmann::json::parse(R"([
      {"string": "inlet", "type": "inflow", "discharge": 8, "slope": 0.001},
      {"string": "outlet", "type": "level", "level": 2},
      {"string": "dike", "type": "gate_by_time", "opens_at": 60},
      {"string": "weir", "type": "gate_by_series", "opening_file": "o.txt"},
      {"string": "sluice", "to": "intake", "type": "linked_switch", "discharge_below": 1,
       "discharge_above": 2, "upper_level": 4}])");
  study.at(nlohmann::json::json_pointer(HYDRAULICS))["SOURCE"] = nlohmann::json::parse(R"([
      {"region": "plain", "type": "rain", "intensity_file": "r.txt"},
      {"region": "sill", "type": "discharge", "discharge": -1, "sink": "infinity"}])");
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
