#include "bench/simulation/KernelMesh.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

#include "bench/simulation/synthetic_data.h"
#include "catalogue/Data.h"
#include "catalogue/Maps.h"
#include "catalogue/Relations.h"
#include "catalogue/Sets.h"
#include "op/core/op_seq.h"
#include "setup/runfile/contents.h"

namespace bench {

using model::DataID;
using model::MapID;
using model::SetID;

namespace {

/// Elements of each set that does not grow with the mesh.
constexpr int RECORDS = 32;

/// Sets and maps that this mesh lacks, and what it has in their place.
const std::map<SetID, SetID>& setStandIns() {
  using enum SetID;
  // clang-format off
  static const std::map<SetID, SetID> standIns = {
    {CellsFix, CellsAll},
    {ClHydSrc, CellsAll},
    {ClMorSrc, CellsAll},
    {EdgMorWL, EdgHydWL},
    {EdgHydBC, EdgHydWL},
    {EdgMorBC, EdgHydWL},
    {EdgesEXN, EdgesSWE},
  };
  // clang-format on
  return standIns;
}

const std::map<MapID, MapID>& mapStandIns() {
  using enum MapID;
  // clang-format off
  static const std::map<MapID, MapID> standIns = {
    {CellsFix_EdgesAll, CellsAll_EdgesAll},
    {EdgMorWL_EdgesAll, EdgHydWL_EdgesAll},
    {EdgHydBC_EdgesAll, EdgHydWL_EdgesAll},
    {EdgHydBC_CellsAll, EdgHydWL_CellsAll},
    {EdgMorBC_EdgesAll, EdgHydWL_EdgesAll},
    {EdgMorBC_CellsAll, EdgHydWL_CellsAll},
    {EdgesEXN_EdgesAll, EdgesSWE_EdgesAll},
    {EdgesEXN_CellsAll, EdgesSWE_CellsAll},
  };
  // clang-format on
  return standIns;
}

template <class ID>
ID inPlaceOf(ID id, const std::map<ID, ID>& standIns) {
  const auto found = standIns.find(id);
  return found == standIns.end() ? id : found->second;
}

/// What the run file holds of a set, or null.
const setup::SetContent* contentOf(SetID id) {
  const auto found = setup::setContents().find(id);
  return found == setup::setContents().end() ? nullptr : &found->second;
}

std::size_t columnsOf(MapID id) {
  return static_cast<std::size_t>(model::MapProps.at(id).size);
}

/// A basin of about 2 m of water that flows along it, under waves of 20 cm.
setup::Domain makeDomain(const std::array<int, 2>& rectangles) {
  setup::RectangleMesh basin;
  basin.length = rectangles[0];
  basin.width = rectangles[1];
  basin.cells = rectangles;
  basin.slope = 0.001;
  setup::Study study;
  study.mesh = basin;
  study.water.depth = 2.0;
  study.water.velocity = {1.0, 0.2};
  setup::Domain domain = setup::buildDomain(study);
  for (std::size_t cell = 0; cell < domain.flow.size(); ++cell) {
    domain.flow[cell][0] += 0.1 * std::sin(0.1 * domain.geometry.centroid(cell)[0]);
  }
  return domain;
}

}  // namespace

KernelMesh::KernelMesh(const std::array<int, 2>& rectangles) : domain(makeDomain(rectangles)) {}

int KernelMesh::sizeOf(SetID id) const {
  const setup::SetContent* content = contentOf(inPlaceOf(id, setStandIns()));
  const int size = content == nullptr ? 0 : content->size(domain);
  return size > 0 ? size : RECORDS;
}

op_set KernelMesh::set(SetID id) {
  op_set& declared = sets[id];
  if (declared == nullptr) {
    declared = op_decl_set(sizeOf(id), model::SetProps.at(id).name.c_str());
  }
  return declared;
}

op_map KernelMesh::map(MapID id) {
  op_map& declared = maps[id];
  if (declared == nullptr) {
    const auto [from, to] = model::Map2Sets.at(id);
    const auto& [name, columns, type] = model::MapProps.at(id);
    int* const entries = tables.emplace(id, table(id)).first->second.data();
    declared = op_decl_map(set(from), set(to), columns, entries, name.c_str());
    check_map(name.c_str(), set(from), set(to), columns, entries);
  }
  return declared;
}

// A stand-in with fewer columns has its last one repeated: beyond a wall lies the cell itself.
// Where the mesh says nothing, elements are dealt out in turn.
std::vector<int> KernelMesh::table(MapID id) const {
  const std::size_t columns = columnsOf(id);
  const auto rows = static_cast<std::size_t>(sizeOf(model::Map2Sets.at(id).first));
  std::vector<int> entries(rows * columns);

  const MapID source = inPlaceOf(id, mapStandIns());
  const setup::SetContent* content = contentOf(model::Map2Sets.at(source).first);
  if (content == nullptr || content->size(domain) == 0 || content->maps.count(source) == 0) {
    const auto targets = static_cast<std::size_t>(sizeOf(model::Map2Sets.at(id).second));
    for (std::size_t i = 0; i < entries.size(); ++i) entries[i] = static_cast<int>(i % targets);
    return entries;
  }
  const std::vector<int> given = content->maps.at(source)(domain);
  const std::size_t width = columnsOf(source);
  for (std::size_t i = 0; i < entries.size(); ++i) {
    entries[i] = given[i / columns * width + std::min(i % columns, width - 1)];
  }
  return entries;
}

const Values& KernelMesh::values(DataID id) {
  const auto found = cache.find(id);
  return found != cache.end() ? found->second : cache.emplace(id, makeValues(id)).first->second;
}

Values KernelMesh::makeValues(DataID id) const {
  const SetID on = model::Data2Set.at(id);
  const setup::SetContent* content = contentOf(on);
  if (content != nullptr && content->size(domain) > 0 && content->data.count(id) == 1) {
    const setup::DataValues& make = content->data.at(id);
    if (const auto* ints = std::get_if<setup::Values<int>>(&make)) return (*ints)(domain);
    return std::get<setup::Values<double>>(make)(domain);
  }
  const std::vector<double> element = syntheticElement(id);
  std::vector<double> values;
  values.reserve(element.size() * static_cast<std::size_t>(sizeOf(on)));
  for (int i = 0; i < sizeOf(on); ++i) values.insert(values.end(), element.begin(), element.end());
  if (model::DataProps.at(id).type == DataType::Int) {
    return std::vector<int>(values.begin(), values.end());
  }
  return values;
}

}  // namespace bench
