#include "setup/domain/edge_strings.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <set>
#include <unordered_map>

#include "catalogue/Limits.h"

namespace setup {

namespace {

/// Distance from a line, in parts of its length, up to which a node counts as being on it.
constexpr double ON_LINE = 1e-6;

class StringFinder {
 public:
  StringFinder(const Study& newStudy, const Mesh& newMesh, const Topology& newTopology,
               const Geometry& newGeometry)
      : study(newStudy), mesh(newMesh), topology(newTopology), geometry(newGeometry) {}

  std::vector<EdgeString> find() {
    std::vector<std::vector<int>> nodes;
    for (const StringDefinition& string : study.strings) {
      nodes.push_back(nodesOf(string));
      if (string.reverse) std::reverse(nodes.back().begin(), nodes.back().end());
    }
    noteEdgesBetween(nodes);
    std::vector<EdgeString> strings;
    for (std::size_t k = 0; k < nodes.size(); ++k) {
      strings.push_back(along(nodes[k], study.strings[k]));
    }
    return strings;
  }

 private:
  template <class... Parts>
  [[noreturn]] void refuse(const StringDefinition& string, const Parts&... parts) const {
    refuseStudy(study.file, "string <", string.name, "> of <", string.path, "> ", parts...);
  }

  std::vector<int> nodesOf(const StringDefinition& string) const {
    if (!string.meshString.empty()) return nodesInMesh(string);
    return string.line ? nodesOnLine(string) : nodesById(string);
  }

  std::vector<int> nodesInMesh(const StringDefinition& string) const {
    for (const NodeString& known : mesh.strings) {
      if (known.name == string.meshString) return known.nodes;
    }
    const auto nameOf = [](const NodeString& known) { return known.name; };
    refuse(string, "is not in the mesh: there is no nodestring <", string.meshString,
           ">, but these: ", mesh.strings.empty() ? "none" : listOf(mesh.strings, nameOf));
  }

  std::vector<int> nodesById(const StringDefinition& string) const {
    std::unordered_map<long, int> positions;
    for (std::size_t n = 0; n < mesh.nodes.size(); ++n) {
      positions.emplace(mesh.nodes[n].id, static_cast<int>(n));
    }
    std::vector<int> nodes;
    for (const long id : string.nodes) {
      const auto found = positions.find(id);
      if (found == positions.end()) {
        refuse(string, "names node ", id, ", which the mesh does not have or no element uses");
      }
      nodes.push_back(found->second);
    }
    return nodes;
  }

  /// The nodes on the line, from its first to its second end.
  std::vector<int> nodesOnLine(const StringDefinition& string) const {
    const auto& [from, to] = *string.line;
    const Vector2 along{to[0] - from[0], to[1] - from[1]};
    const double square = along[0] * along[0] + along[1] * along[1];
    std::multimap<double, int> places;
    for (std::size_t n = 0; n < mesh.nodes.size(); ++n) {
      const Vector2 d{mesh.nodes[n].x - from[0], mesh.nodes[n].y - from[1]};
      const double place = (d[0] * along[0] + d[1] * along[1]) / square;
      const double aside = (d[0] * along[1] - d[1] * along[0]) / square;
      if (std::abs(aside) <= ON_LINE && place >= -ON_LINE && place <= 1.0 + ON_LINE) {
        places.emplace(place, static_cast<int>(n));
      }
    }
    std::vector<int> nodes;
    for (const auto& [place, node] : places) nodes.push_back(node);
    if (nodes.size() < 2) {
      refuse(string, "has no edge: of the nodes of the mesh ", nodes.size(),
             " lie on the line, two are needed at least");
    }
    return nodes;
  }

  static std::array<int, 2> ordered(int a, int b) { return {std::min(a, b), std::max(a, b)}; }

  /// Only edges between nodes of strings are of interest.
  void noteEdgesBetween(const std::vector<std::vector<int>>& strings) {
    std::vector<bool> isOnString(mesh.nodes.size(), false);
    for (const std::vector<int>& nodes : strings) {
      for (const int node : nodes) isOnString[index(node)] = true;
    }
    for (std::size_t edge = 0; edge < topology.edgeNodes.size(); ++edge) {
      const auto [a, b] = topology.edgeNodes[edge];
      if (isOnString[index(a)] && isOnString[index(b)]) {
        edgeBetween.emplace(ordered(a, b), static_cast<int>(edge));
      }
    }
  }

  EdgeString along(const std::vector<int>& nodes, const StringDefinition& string) const {
    EdgeString result;
    result.name = string.name;
    std::set<int> passed;
    for (std::size_t k = 1; k < nodes.size(); ++k) {
      const auto found = edgeBetween.find(ordered(nodes[k - 1], nodes[k]));
      if (found == edgeBetween.end()) {
        refuse(string, "runs from node ", mesh.nodes[index(nodes[k - 1])].id, " to node ",
               mesh.nodes[index(nodes[k])].id, ", but no edge of the mesh joins them");
      }
      const std::size_t edge = index(found->second);
      if (!passed.insert(found->second).second) {
        refuse(string, "runs twice over the edge between nodes ",
               mesh.nodes[index(nodes[k - 1])].id, " and ", mesh.nodes[index(nodes[k])].id);
      }
      const bool isAlike = topology.edgeNodes[edge][0] == nodes[k - 1];
      result.edges.push_back(found->second);
      result.signs.push_back(isAlike ? 1 : -1);
      result.cells.push_back(topology.edgeCells[edge][isAlike ? 0 : 1]);
      result.length += geometry.lengths[edge];
    }
    requirePossibleSize(result, string);
    return result;
  }

  void requirePossibleSize(const EdgeString& result, const StringDefinition& string) const {
    if (result.edges.empty()) refuse(string, "has no edge: it needs two nodes at least");
    if (result.edges.size() > std::size_t{model::STRING_EDGES}) {
      refuse(string, "has ", result.edges.size(), " edges on a length of ", result.length,
             " m, but at most ", model::STRING_EDGES, " are possible: divide it into several");
    }
  }

  const Study& study;
  const Mesh& mesh;
  const Topology& topology;
  const Geometry& geometry;
  std::map<std::array<int, 2>, int> edgeBetween;
};

}  // namespace

std::vector<EdgeString> findStrings(const Study& study, const Mesh& mesh, const Topology& topology,
                                    const Geometry& geometry) {
  return StringFinder(study, mesh, topology, geometry).find();
}

void reverse(EdgeString& string, const Topology& topology) {
  std::reverse(string.edges.begin(), string.edges.end());
  std::reverse(string.signs.begin(), string.signs.end());
  for (int& sign : string.signs) sign = -sign;
  string.cells.clear();
  for (std::size_t k = 0; k < string.edges.size(); ++k) {
    string.cells.push_back(
        topology.edgeCells[index(string.edges[k])][string.signs[k] == 1 ? 0 : 1]);
  }
}

}  // namespace setup
