#include "setup/Study.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <set>

#include "common/console.h"
#include "setup/cards.h"
#include "setup/studyKeys.h"

namespace console = common::console;
using nlohmann::json;

namespace setup {

namespace {

/// More triangles than a list with int positions of their 3 edges and 6 weights can hold.
constexpr double MOST_CELLS = 1e8;

json parse(const std::string& file) {
  const std::optional<std::string> text = readTextFile(file);
  if (!text) console::fail("study file <", file, "> cannot be read");
  std::vector<std::set<std::string>> keys;  // of the objects that are open
  const auto refuseDoubleKeys = [&](int /*depth*/, json::parse_event_t event, json& value) {
    if (event == json::parse_event_t::object_start) keys.emplace_back();
    if (event == json::parse_event_t::object_end) keys.pop_back();
    if (event == json::parse_event_t::key && !keys.back().insert(value).second) {
      console::fail("study file <", file, ">: key <", value.get<std::string>(),
                    "> stands twice in one group");
    }
    return true;
  };
  try {
    return json::parse(*text, refuseDoubleKeys);
  } catch (const json::exception& fault) {
    console::fail("study file <", file, "> is not a JSON document: ", fault.what());
  }
}

/// Reads what the table of keys has found to be sound; checks what a table cannot tell.
class StudyReader {
 public:
  StudyReader(const std::string& file, const json& document) {
    study.file = file;
    study.document = document.dump();
    const json& domain = document.at("SETUP").at("DOMAIN");
    take(domain, "name", study.name);
    const json& plane = domain.at("RHEOPLANE_2D");
    readGeometry(plane.at("GEOMETRY"));
    readHydraulics(plane.at("HYDRAULICS"));
    readFriction(plane.at("HYDRAULICS"), study);
    readStrings(plane.at("GEOMETRY"), study);
    readBoundaries(plane.at("HYDRAULICS"), study);
    readSources(plane.at("HYDRAULICS"), study);
  }

  Study read() { return std::move(study); }

 private:
  static constexpr const char* GEOMETRY = "SETUP/DOMAIN/RHEOPLANE_2D/GEOMETRY";
  static constexpr const char* INITIAL = "SETUP/DOMAIN/RHEOPLANE_2D/HYDRAULICS/INITIAL";

  template <class... Parts>
  [[noreturn]] void refuse(const Parts&... parts) const {
    console::fail("study file <", study.file, ">: ", parts...);
  }

  /// Leaves `value` as it is if the group does not hold the key.
  template <class T>
  static void take(const json& group, const char* key, T& value) {
    if (group.contains(key)) value = group.at(key).get<T>();
  }

  template <class T>
  static void take(const json& group, const char* key, std::optional<T>& value) {
    if (group.contains(key)) value = group.at(key).get<T>();
  }

  void readGeometry(const json& geometry) {
    readMesh(geometry);
    if (geometry.contains("REGIONDEF")) readRegions(geometry.at("REGIONDEF"));
    if (!geometry.contains("BED")) return;
    const json& zones = geometry.at("BED");
    for (std::size_t k = 0; k < zones.size(); ++k) {
      const std::string path = console::text(GEOMETRY, "/BED[", k, "]");
      study.bed.push_back(readBedZone(zones[k], path));
    }
  }

  void readMesh(const json& geometry) {
    const auto count =
        geometry.count("MESH") + geometry.count("RECTANGLE") + geometry.count("CHANNEL");
    if (count != 1) {
      refuse("<", GEOMETRY, "> must hold one of MESH, RECTANGLE and CHANNEL, but holds ", count);
    }
    if (geometry.contains("MESH")) {
      const std::filesystem::path folder = std::filesystem::path(study.file).parent_path();
      study.mesh = MeshFile{(folder / geometry.at("MESH").at("file").get<std::string>()).string()};
    } else if (geometry.contains("RECTANGLE")) {
      study.mesh = readRectangle(geometry.at("RECTANGLE"));
    } else {
      study.mesh = readChannel(geometry.at("CHANNEL"));
    }
  }

  static Pattern readPattern(const json& group) {
    const std::string name = group.value("pattern", "alternating");
    if (name == "diagonal") return Pattern::Diagonal;
    return name == "crossed" ? Pattern::Crossed : Pattern::Alternating;
  }

  /// @param rectangles along and across, each of them cut into up to 4 triangles
  void requireSensibleSize(const char* group, double along, double across) const {
    if (4.0 * along * across <= MOST_CELLS) return;
    refuse("key <", GEOMETRY, "/", group, "/cells> asks for more cells than are possible, ",
           MOST_CELLS);
  }

  RectangleMesh readRectangle(const json& group) const {
    RectangleMesh mesh;
    take(group, "origin", mesh.origin);
    take(group, "length", mesh.length);
    take(group, "width", mesh.width);
    take(group, "cells", mesh.cells);
    take(group, "elevation", mesh.elevation);
    take(group, "slope", mesh.slope);
    mesh.pattern = readPattern(group);
    requireSensibleSize("RECTANGLE", mesh.cells[0], mesh.cells[1]);
    return mesh;
  }

  ChannelMesh readChannel(const json& group) const {
    ChannelMesh mesh;
    take(group, "origin", mesh.origin);
    take(group, "length", mesh.length);
    take(group, "bed_width", mesh.bedWidth);
    take(group, "side_slope", mesh.sideSlope);
    take(group, "bank_height", mesh.bankHeight);
    take(group, "cells", mesh.cells);
    take(group, "elevation", mesh.elevation);
    take(group, "slope", mesh.slope);
    mesh.pattern = readPattern(group);
    requireSensibleSize("CHANNEL", mesh.cells[0], mesh.cells[1] + 2.0 * mesh.cells[2]);
    if ((mesh.sideSlope > 0.0) != (mesh.bankHeight > 0.0)) {
      refuse("<", GEOMETRY,
             "/CHANNEL> needs both side_slope and bank_height greater than 0 to "
             "have banks, and neither to have none");
    }
    return mesh;
  }

  void readRegions(const json& regions) {
    for (const json& group : regions) {
      const Region region{group.at("index").get<int>(), group.at("name").get<std::string>()};
      for (const Region& other : study.regions) {
        if (other.index == region.index || other.name == region.name) {
          refuse("<", GEOMETRY, "/REGIONDEF> defines two regions of index ", other.index,
                 " or name <", other.name, ">");
        }
      }
      study.regions.push_back(region);
    }
  }

  Area readArea(const json& zone, const std::string& path) const {
    return setup::readArea(zone, path, study.regions, study.file);
  }

  BedZone readBedZone(const json& group, const std::string& path) const {
    BedZone zone;
    zone.area = readArea(group, path);
    take(group, "elevation", zone.elevation);
    take(group, "gradient", zone.gradient);
    take(group, "at", zone.at);
    take(group, "raise", zone.raise);
    if (group.contains("elevation") == group.contains("raise")) {
      refuse("<", path, "> must hold either elevation or raise");
    }
    if (group.contains("gradient") != group.contains("at")) {
      refuse("<", path,
             "> must hold gradient and at together: at is where the bed has the "
             "elevation");
    }
    if (group.contains("gradient") && !group.contains("elevation")) {
      refuse("<", path, "> must hold elevation if it holds gradient");
    }
    return zone;
  }

  /// @param path of the group that holds the keys
  Water readWater(const json& group, const std::string& path) const {
    Water water;
    if (group.contains("water_level") && group.contains("water_depth")) {
      refuse("<", path, "> must not hold both water_level and water_depth");
    }
    if (group.contains("water_level") && group.at("water_level").is_number()) {
      water.level = group.at("water_level").get<double>();
    }
    take(group, "water_depth", water.depth);
    take(group, "velocity", water.velocity);
    if (group.contains("velocity") && !water.level && !water.depth) {
      refuse("key <", path, "/velocity> needs a water_level or water_depth beside it");
    }
    return water;
  }

  void readHydraulics(const json& hydraulics) {
    if (hydraulics.contains("PARAMETER")) {
      const json& group = hydraulics.at("PARAMETER");
      take(group, "cfl", study.hydraulics.cfl);
      take(group, "maximum_time_step", study.hydraulics.maximumTimeStep);
      take(group, "minimum_water_depth", study.hydraulics.minimumWaterDepth);
      take(group, "gravity", study.hydraulics.gravity);
      take(group, "safe_mode", study.hydraulics.safeMode);
    }
    if (!hydraulics.contains("INITIAL")) return;
    const json& initial = hydraulics.at("INITIAL");
    study.water = readWater(initial, INITIAL);
    if (!initial.contains("ZONES")) return;
    const json& zones = initial.at("ZONES");
    for (std::size_t k = 0; k < zones.size(); ++k) {
      const std::string path = console::text(INITIAL, "/ZONES[", k, "]");
      if (!zones[k].contains("water_level") && !zones[k].contains("water_depth")) {
        refuse("<", path, "> must hold water_level or water_depth");
      }
      study.waterZones.push_back({readArea(zones[k], path), readWater(zones[k], path)});
    }
  }

  Study study;
};

}  // namespace

Study readStudy(const std::string& file) {
  const json document = parse(file);
  checkKeys(document, studyKeys(), file);
  return StudyReader(file, document).read();
}

}  // namespace setup
