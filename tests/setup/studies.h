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
inline const std::string MORPHOLOGY = PLANE + "/MORPHOLOGY";

/// A study of the two groups.
inline std::string document(const std::string& geometry, const std::string& hydraulics) {
  return R"({"SETUP": {"DOMAIN": {"name": "s", "RHEOPLANE_2D": {"GEOMETRY": )" + geometry +
         R"(, "HYDRAULICS": )" + hydraulics + "}}}}";
}

/// A moving bed with all groups and lists.
inline nlohmann::json movingBed() {
  return nlohmann::json::parse(R"({
      "PARAMETER": {"start": 60},
      "BEDMATERIAL": {"porosity": 0.3, "density": 2600, "water_density": 998, "grain_size": 0.01,
                      "ZONES": [{"region": "sill", "box": [0, 0, 1, 2], "grain_size": 0.02}],
                      "FIXED_BED": {"accuracy": 1e-5, "maximum_passes": 20, "ZONES": [
                          {"region": "sill", "elevation": 1},
                          {"box": [0, 0, 1, 2], "below_bed": 0.5}]}},
      "BEDLOAD": {"FORMULA": {"type": "mpm", "coefficient": 8, "exponent": 1.5,
                              "critical_shields": 0.05, "factor": 0.8},
                  "DIRECTION": {"IKEDA": {"factor": 0.5}, "CURVATURE": {"factor": 10}},
                  "BOUNDARY": [{"string": "inlet", "type": "inflow", "discharge_file": "qs.txt",
                                "over": "discharge"},
                               {"string": "outlet", "type": "highest_bed", "elevation": 1}]},
      "INCIPIENT_MOTION": {"type": "chen_2010", "angle_of_repose": 35},
      "SOURCE": [{"region": "plain", "type": "rise", "rate": 5, "sink": "exact"},
                 {"region": "sill", "type": "discharge", "discharge_file": "q.txt"}]})");
}

/// A study with all groups and lists; `mesh` is the first key of its geometry.
inline nlohmann::json withMesh(const std::string& mesh) {
  nlohmann::json study = nlohmann::json::parse(document("{" + mesh + R"(,
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
  study[nlohmann::json::json_pointer(MORPHOLOGY)] = movingBed();
  return study;
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

/// Its water has a depth and not a level, and its boundaries, sources and formula are of other
/// types.
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
  nlohmann::json& bed = study.at(nlohmann::json::json_pointer(MORPHOLOGY));
  bed["BEDLOAD"]["FORMULA"] = {
      {"type", "grass_1981"}, {"coefficient", 0.001}, {"critical_velocity", 0.4}, {"chezy", 12}};
  bed["BEDLOAD"]["BOUNDARY"] = nlohmann::json::parse(R"([
      {"string": "inlet", "type": "inflow", "discharge": 0.01},
      {"string": "lake", "type": "capacity_inflow", "share": 0.5},
      {"string": "outlet", "type": "capacity_outflow", "share_file": "s.txt"},
      {"string": "weir", "type": "lowest_bed", "elevation_file": "z.txt"}])");
  bed["SOURCE"] = nlohmann::json::parse(R"([
      {"region": "plain", "type": "rise", "rate_file": "r.txt"},
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
