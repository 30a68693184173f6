#include "setup/domain/edge_boundaries.h"

#include <algorithm>

namespace setup {

namespace {

class BoundaryLayer {
 public:
  BoundaryLayer(const Study& newStudy, const Mesh& newMesh, const Topology& newTopology,
                std::vector<EdgeString>& newStrings, SeriesList& newSeries)
      : study(newStudy),
        mesh(newMesh),
        topology(newTopology),
        strings(newStrings),
        series(newSeries),
        isFaced(newStrings.size(), false) {}

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
      layEdges(boundary, boundary.string, numberOf(type.code), type.isInflow, edges);
      if (type.receivingCode) {
        layEdges(boundary, boundary.receiving, numberOf(*type.receivingCode), true, edges);
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

EdgeBoundaries layBoundaries(const Study& study, const Mesh& mesh, const Topology& topology,
                             std::vector<EdgeString>& strings, SeriesList& series) {
  return BoundaryLayer(study, mesh, topology, strings, series).lay();
}

}  // namespace setup
