#include "setup/study/boundaries.h"

#include <algorithm>
#include <filesystem>
#include <functional>
#include <set>

#include "setup/mesh/position.h"
#include "setup/study/Study.h"
#include "setup/study/document/StudyGroup.h"
#include "setup/study/document/study_fault.h"

namespace setup {

namespace {

bool isWithin(double value, Bound bound) {
  switch (bound) {
    // clang-format off
    case Bound::Any:         return true;
    case Bound::NotNegative: return value >= 0.0;
    case Bound::Positive:    return value > 0.0;
      // clang-format on
  }
  return false;
}

const char* describe(Bound bound) {
  return bound == Bound::Positive ? "greater than 0" : "at least 0";
}

/// The keys under which a study can give an input.
std::vector<std::string> keysOf(const Input& input) {
  if (input.takes == Takes::Nothing) return {};
  if (input.takes == Takes::Series) return {input.key + "_file"};
  if (input.takes == Takes::SeriesToo) return {input.key, input.key + "_file"};
  return {input.key};
}

/// The schema has checked each key by itself; which of them a type takes is checked here.
class BoundaryReader {
 public:
  BoundaryReader(const StudyGroup& theGroup, const std::vector<BoundaryType>& types,
                 const Study& theStudy)
      : group(theGroup),
        study(theStudy),
        type(typeNamed(theGroup["type"].get<std::string>(), types)) {
    boundary.path = group.path();
    boundary.type = &type;
  }

  Boundary read() {
    boundary.string = stringAt("string");
    boundary.receiving = boundary.string;
    if (type.place == Place::Link) {
      if (!group.has("to")) refuse("needs the key to: the string where the water comes in");
      boundary.receiving = stringAt("to");
    }
    if (type.needsFriction && !study.friction) {
      refuse("needs bed friction: the study must hold HYDRAULICS/FRICTION");
    }
    refuseOtherKeys();
    for (const Input& input : type.inputs) readInput(input);
    readLookup();
    requireOrderOfLevels();
    return std::move(boundary);
  }

 private:
  template <class... Parts>
  [[noreturn]] void refuse(const Parts&... parts) const {
    group.refuse("of type <", type.name, "> ", parts...);
  }

  int stringAt(const char* key) const {
    const auto found =
        std::find_if(study.strings.begin(), study.strings.end(),
                     [&](const StringDefinition& string) { return group[key] == string.name; });
    return static_cast<int>(found - study.strings.begin());
  }

  void refuseOtherKeys() const {
    std::vector<std::string> known{"string", "type"};
    if (type.place == Place::Link) known.emplace_back("to");
    for (const Input& input : type.inputs) {
      for (const std::string& key : keysOf(input)) known.push_back(key);
    }
    if (type.lookups.size() > 1) known.emplace_back("over");
    for (const std::string& key : group.keys()) {
      if (std::find(known.begin(), known.end(), key) == known.end()) {
        refuse("does not take the key ", key, ", but these: ", listOf(known, std::identity()));
      }
    }
  }

  void readInput(const Input& input) {
    const char* key = input.key.c_str();
    const std::string file = input.key + "_file";
    if (input.takes == Takes::Nothing) {
      boundary.values[input.key] = input.fallback.value();
      return;
    }
    if (group.has(key) && group.has(file.c_str())) {
      refuse("must hold only one of ", input.key, " and ", file);
    }
    if (group.has(file.c_str())) {
      const std::filesystem::path folder = std::filesystem::path(study.file).parent_path();
      boundary.files[input.key] = (folder / group[file.c_str()].get<std::string>()).string();
    } else if (group.has(key)) {
      boundary.values[input.key] = valueAt(key, input.takes);
    } else if (input.fallback) {
      boundary.values[input.key] = *input.fallback;
    } else {
      refuse("needs the key ", listOf(keysOf(input), std::identity()));
    }
  }

  double valueAt(const char* key, Takes takes) const {
    if (takes != Takes::Flag) return group[key].get<double>();
    bool flag = false;
    group.take(key, flag);
    return flag ? 1.0 : 0.0;
  }

  void readLookup() {
    if (type.lookups.empty()) return;
    boundary.lookup = type.lookups.front();
    if (!group.has("over")) return;
    const auto name = group["over"].get<std::string>();
    const auto found = std::find_if(type.lookups.begin(), type.lookups.end(),
                                    [&name](Lookup lookup) { return nameOf(lookup) == name; });
    if (found == type.lookups.end()) {
      refuse("cannot look up a series over <", name, ">, but over ", listOf(type.lookups, nameOf));
    }
    if (boundary.files.empty()) refuse("has no series that over could be meant for");
    boundary.lookup = *found;
  }

  /// Otherwise a switch would go back and forth in every step.
  void requireOrderOfLevels() const {
    if (!group.has("lower_level")) return;
    const double lower = boundary.values.at("lower_level");
    const double upper = boundary.values.at("upper_level");
    if (lower >= upper) {
      refuse("needs a lower_level below its upper_level, but they are ", lower, " and ", upper);
    }
  }

  const StudyGroup& group;
  const Study& study;
  const BoundaryType& type;
  Boundary boundary;
};

class BoundaryLayer {
 public:
  BoundaryLayer(const Study& theStudy, const Mesh& theMesh, const Topology& theTopology,
                std::vector<EdgeString>& theStrings, SeriesList& theSeries)
      : study(theStudy),
        mesh(theMesh),
        topology(theTopology),
        strings(theStrings),
        series(theSeries),
        isFaced(theStrings.size(), false) {}

  EdgeBoundaries lay() {
    layList(study.boundaries, result.flow);
    if (study.morphology) layList(study.morphology->boundaries, result.bed);
    return std::move(result);
  }

 private:
  void layList(const std::vector<Boundary>& boundaries, BoundaryEdges& edges) {
    ownerOf.assign(topology.edgeCells.size(), -1);
    for (const Boundary& boundary : boundaries) {
      const BoundaryType& type = *boundary.type;
      layEdges(boundary, boundary.string, type.code, type.isInflow, edges);
      if (type.place == Place::Link) {
        layEdges(boundary, boundary.receiving, type.receivingCode, true, edges);
      }
      layRecord(boundary);
    }
  }

  void layRecord(const Boundary& boundary) {
    const auto record = static_cast<int>(result.records.size());
    result.records.push_back({});
    for (const Input& input : boundary.type->inputs) layInput(boundary, input, record);
    for (const Modification& modification : boundary.type->modifications) {
      result.modifications.push_back({modification, {boundary.string, boundary.receiving}, record});
    }
  }

  template <class... Parts>
  [[noreturn]] void refuse(const Boundary& boundary, const EdgeString& string,
                           const Parts&... parts) const {
    refuseStudy(study.file, "<", boundary.path, "> of type <", boundary.type->name, ">: string <",
                string.name, "> ", parts...);
  }

  std::string edgeText(int edge) const {
    const auto [a, b] = topology.edgeNodes[index(edge)];
    const auto [low, high] = std::minmax(mesh.nodes[index(a)].id, mesh.nodes[index(b)].id);
    return common::console::text("the edge between nodes ", low, " and ", high);
  }

  /// The record of the boundary must be the next one.
  void layEdges(const Boundary& boundary, int number, int code, bool isInflow,
                BoundaryEdges& edges) {
    EdgeString& string = strings[index(number)];
    requirePlace(boundary, string);
    const int sense = isInflow ? -1 : 1;
    const bool isInside = boundary.type->place == Place::Inside;
    if (!isInside && !isFaced[index(number)]) {
      face(boundary, string, sense);
      isFaced[index(number)] = true;
    }
    for (std::size_t k = 0; k < string.edges.size(); ++k) {
      int& owner = ownerOf[index(string.edges[k])];
      if (owner >= 0) {
        refuse(boundary, string, "has ", edgeText(string.edges[k]),
               " in common with the boundary on string <", strings[index(owner)].name, ">");
      }
      owner = number;
      edges.edges.push_back(string.edges[k]);
      edges.types.push_back({code, isInside ? string.signs[k] : sense});
      edges.recordOf.push_back(static_cast<int>(result.records.size()));
    }
  }

  void requirePlace(const Boundary& boundary, const EdgeString& string) const {
    const bool mustBeInside = boundary.type->place == Place::Inside;
    for (const int edge : string.edges) {
      if (topology.isBoundary(index(edge)) != mustBeInside) continue;
      if (mustBeInside) {
        refuse(boundary, string, "must run through the mesh, but ", edgeText(edge),
               " is on its boundary");
      }
      refuse(boundary, string, "must run along the boundary of the mesh, but ", edgeText(edge),
             " is inside");
    }
  }

  /// At the boundary the cell is the left one of its edge, so that a sign of 1 counts what leaves.
  void face(const Boundary& boundary, EdgeString& string, int sign) const {
    if (string.signs.front() != sign) reverse(string, topology);
    for (std::size_t k = 0; k < string.edges.size(); ++k) {
      if (string.signs[k] != sign) {
        refuse(boundary, string, "has the domain on its left and on its right, see ",
               edgeText(string.edges[k]), ": divide it there");
      }
    }
  }

  void layInput(const Boundary& boundary, const Input& input, int record) {
    const auto file = boundary.files.find(input.key);
    if (file == boundary.files.end()) {
      result.records[index(record)][index(input.position)] =
          boundary.values.at(input.key) * factorOf(input.scale);
      return;
    }
    const int number = series.add(file->second, factorOf(input.scale));
    for (const auto& [x, y] : series.at(number).points) {
      if (isWithin(y, input.bound)) continue;
      refuseStudy(study.file, "key <", boundary.path, "/", input.key, "_file>: ", input.key,
                  " must be ", describe(input.bound), ", but is ", y, " at ", x, " in <",
                  file->second, ">");
    }
    const bool isOfReceiving = boundary.lookup == Lookup::ReceivingLevel;
    result.interpolations.push_back({number, isOfReceiving ? boundary.receiving : boundary.string,
                                     record, keyOf(boundary.lookup), input.position});
  }

  double factorOf(Scale scale) const {
    switch (scale) {
      // clang-format off
      case Scale::One:          return 1.0;
      case Scale::MinusOne:     return -1.0;
      case Scale::Uncalibrated: return 1.0 / study.morphology->bedload.factor;
        // clang-format on
    }
    return 1.0;
  }

  const Study& study;
  const Mesh& mesh;
  const Topology& topology;
  std::vector<EdgeString>& strings;
  SeriesList& series;
  std::vector<bool> isFaced;  ///< per string, whether a boundary has given it its direction
  std::vector<int> ownerOf;   ///< per edge the string whose boundary of the list has it, -1: none
  EdgeBoundaries result;
};

}  // namespace

std::vector<Boundary> readBoundaries(const StudyGroup& group,
                                     const std::vector<BoundaryType>& types, const Study& study) {
  std::vector<Boundary> boundaries;
  std::set<int> used;
  for (const StudyGroup& item : group.groups("BOUNDARY")) {
    const Boundary boundary = BoundaryReader(item, types, study).read();
    std::vector<int> strings{boundary.string};
    if (boundary.type->place == Place::Link) strings.push_back(boundary.receiving);
    for (const int string : strings) {
      if (used.insert(string).second) continue;
      item.refuse("uses the string <", study.strings[index(string)].name,
                  "> a second time, a string has one boundary");
    }
    boundaries.push_back(boundary);
  }
  return boundaries;
}

EdgeBoundaries layBoundaries(const Study& study, const Mesh& mesh, const Topology& topology,
                             std::vector<EdgeString>& strings, SeriesList& series) {
  return BoundaryLayer(study, mesh, topology, strings, series).lay();
}

}  // namespace setup
