#include "setup/study/Study.h"

#include <filesystem>
#include <nlohmann/json.hpp>
#include <string_view>

#include "setup/study/document/StudyGroup.h"
#include "setup/study/document/study_document.h"

using nlohmann::json;

namespace setup {

namespace {

/// More triangles than a list with int positions of their 3 edges and 6 weights can hold.
constexpr double MOST_CELLS = 1e8;

/// Reads what the schema has found to be sound; checks what a schema cannot tell.
class StudyReader {
 public:
  StudyReader(const std::string& file, const json& document) {
    study.file = file;
    study.document = document.dump();
    const StudyGroup domain = StudyGroup(file, document).group("SETUP").group("DOMAIN");
    domain.take("name", study.name);
    checkCrs(domain);
    const StudyGroup plane = domain.group("RHEOPLANE_2D");
    readGeometry(plane.group("GEOMETRY"));
    const StudyGroup hydraulics = plane.group("HYDRAULICS");
    readHydraulics(hydraulics);
    readFriction(hydraulics, study);
    readStrings(plane.group("GEOMETRY"), study);
    study.boundaries = readBoundaries(hydraulics, boundaryTypes(), study);
    study.sources = readSources(hydraulics, sourceTypes(), study);
    readMorphology(plane, study);
  }

  Study read() { return std::move(study); }

 private:
  /// Whether the register holds the code is seen by those who look it up.
  /// EPSG: and a number of nine digits at most.
  static bool isEpsgCode(std::string_view crs) {
    constexpr std::string_view REGISTER = "EPSG:";
    if (!crs.starts_with(REGISTER)) return false;
    const std::string_view code = crs.substr(REGISTER.size());
    return !code.empty() && code.size() <= 9 && code.front() != '0' &&
           code.find_first_not_of("0123456789") == std::string_view::npos;
  }

  static void checkCrs(const StudyGroup& domain) {
    std::string crs;
    domain.take("crs", crs);
    if (domain.has("crs") && !isEpsgCode(crs)) {
      domain.refuseValue("crs", "a code such as \"EPSG:2056\"");
    }
  }

  void readGeometry(const StudyGroup& geometry) {
    readMesh(geometry);
    for (const StudyGroup& region : geometry.groups("REGIONDEF")) readRegion(region);
    for (const StudyGroup& zone : geometry.groups("BED")) study.bed.push_back(readBedZone(zone));
  }

  void readMesh(const StudyGroup& geometry) {
    if (geometry.has("RECTANGLE")) {
      study.mesh = readRectangle(geometry.group("RECTANGLE"));
    } else if (geometry.has("CHANNEL")) {
      study.mesh = readChannel(geometry.group("CHANNEL"));
    } else {
      std::string file;
      geometry.group("MESH").take("file", file);
      study.mesh = MeshFile{(std::filesystem::path(study.file).parent_path() / file).string()};
    }
  }

  static Pattern readPattern(const StudyGroup& group) {
    std::string name = "alternating";
    group.take("pattern", name);
    if (name == "diagonal") return Pattern::Diagonal;
    return name == "crossed" ? Pattern::Crossed : Pattern::Alternating;
  }

  /// @param rectangles along and across, each of them cut into up to 4 triangles
  static void requireSensibleSize(const StudyGroup& group, double along, double across) {
    if (4.0 * along * across <= MOST_CELLS) return;
    group.refuseKey("cells", "asks for more cells than are possible, ", MOST_CELLS);
  }

  static RectangleMesh readRectangle(const StudyGroup& group) {
    RectangleMesh mesh;
    group.take("origin", mesh.origin);
    group.take("length", mesh.length);
    group.take("width", mesh.width);
    group.take("cells", mesh.cells);
    group.take("elevation", mesh.elevation);
    group.take("slope", mesh.slope);
    mesh.pattern = readPattern(group);
    requireSensibleSize(group, mesh.cells[0], mesh.cells[1]);
    return mesh;
  }

  static ChannelMesh readChannel(const StudyGroup& group) {
    ChannelMesh mesh;
    group.take("origin", mesh.origin);
    group.take("length", mesh.length);
    group.take("bed_width", mesh.bedWidth);
    group.take("side_slope", mesh.sideSlope);
    group.take("bank_height", mesh.bankHeight);
    group.take("cells", mesh.cells);
    group.take("elevation", mesh.elevation);
    group.take("slope", mesh.slope);
    mesh.pattern = readPattern(group);
    requireSensibleSize(group, mesh.cells[0], mesh.cells[1] + 2.0 * mesh.cells[2]);
    if ((mesh.sideSlope > 0.0) != (mesh.bankHeight > 0.0)) {
      group.refuse(
          "needs both side_slope and bank_height greater than 0 to have banks, and neither to have "
          "none");
    }
    return mesh;
  }

  void readRegion(const StudyGroup& group) {
    Region region;
    group.take("index", region.index);
    group.take("name", region.name);
    for (const Region& other : study.regions) {
      if (other.index == region.index || other.name == region.name) {
        group.refuse("has the index or the name of another region, index ", other.index,
                     " and name <", other.name, ">");
      }
    }
    study.regions.push_back(region);
  }

  BedZone readBedZone(const StudyGroup& group) const {
    BedZone zone;
    zone.area = readArea(group, study.regions);
    group.take("elevation", zone.elevation);
    group.take("gradient", zone.gradient);
    group.take("at", zone.at);
    group.take("raise", zone.raise);
    if (group.has("gradient") != group.has("at")) {
      group.refuse("must hold gradient and at together: at is where the bed has the elevation");
    }
    if (group.has("gradient") && !zone.elevation) {
      group.refuse("must hold elevation if it holds gradient");
    }
    return zone;
  }

  /// @param group holds the keys of the water among others
  static Water readWater(const StudyGroup& group) {
    Water water;
    if (group.has("water_level") && group.has("water_depth")) {
      group.refuse("must not hold both water_level and water_depth");
    }
    if (group.has("water_level") && group["water_level"] != "dry") {
      if (!group["water_level"].is_number()) {
        group.refuseValue("water_level", "a number or \"dry\"");
      }
      group.take("water_level", water.level);
    }
    group.take("water_depth", water.depth);
    group.take("velocity", water.velocity);
    if (group.has("velocity") && !water.level && !water.depth) {
      group.refuseKey("velocity", "needs a water_level or water_depth beside it");
    }
    return water;
  }

  void readHydraulics(const StudyGroup& hydraulics) {
    if (hydraulics.has("PARAMETER")) {
      const StudyGroup group = hydraulics.group("PARAMETER");
      group.take("cfl", study.hydraulics.cfl);
      group.take("maximum_time_step", study.hydraulics.maximumTimeStep);
      group.take("minimum_water_depth", study.hydraulics.minimumWaterDepth);
      group.take("gravity", study.hydraulics.gravity);
      group.take("safe_mode", study.hydraulics.safeMode);
    }
    if (!hydraulics.has("INITIAL")) return;
    const StudyGroup initial = hydraulics.group("INITIAL");
    study.water = readWater(initial);
    for (const StudyGroup& zone : initial.groups("ZONES")) {
      study.waterZones.push_back({readArea(zone, study.regions), readWater(zone)});
    }
  }

  Study study;
};

}  // namespace

Study readStudy(const std::string& file) {
  const json document = readStudyDocument(file);
  return StudyReader(file, document).read();
}

}  // namespace setup
