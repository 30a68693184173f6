#include "simulation/MapChecks.h"

#include <algorithm>
#include <array>
#include <initializer_list>

#include "catalogue/Relations.h"
#include "op/op_seq.h"

namespace simulation {

using model::DataID;
using model::KernelID;
using model::MapID;

namespace {

constexpr bool oneOf(int code, std::initializer_list<int> codes) {
  return std::find(codes.begin(), codes.end(), code) != codes.end();
}

// What rules over the entries of a record: its key, its type or its number of edges.
// clang-format off
bool isEdgeOfString(int size, int column)      { return column < size; }
bool asksString(int key, int /*column*/)       { return key >= 1 && key <= 3; }
bool takesFromString(int type, int column) {
  return column == 0 ? oneOf(type, {1, 3, 4, 8, 9, 10, 11, 12, 13, 14, 15, 16})
                     : oneOf(type, {2, 9, 16});
}
bool changesBoundary(int type, int /*column*/) {
  return oneOf(type, {1, 2, 3, 4, 5, 8, 9, 10, 11, 12, 13, 14, 15, 16});
}
bool spreadsOverRegion(int type, int /*column*/) { return type == 6; }
bool changesSource(int type, int /*column*/)     { return type == 6 || type == 7; }
bool isCellOfBoundary(int type, int column)      { return column == 0 || oneOf(type, {216, 218, 220}); }
bool isInnerCell(int /*type*/, int column)       { return column == 0; }
bool takesValue(int type, int /*column*/) {
  return oneOf(type, {100, 102, 104, 106, 108, 110, 114, 216, 218,
                      322, 323, 324, 325, 326, 327, 328, 329, 330, 331});
}
bool takesBedValue(int type, int /*column*/) {
  return oneOf(type, {400, 402, 404, 406, 408, 410, 412, 414});
}

/// A map of which a kernel follows some entries only.
struct PartlyFollowed {
  MapID map;
  DataID codes;                         ///< its first column rules over the entries of a row
  bool (*followed)(int code, int column);
};

constexpr std::array PARTLY_FOLLOWED = {
  PartlyFollowed{MapID::NodeStrg_EdgesAll, DataID::NodeStrg_ListSize, isEdgeOfString},
  PartlyFollowed{MapID::NodeStrg_CellsAll, DataID::NodeStrg_ListSize, isEdgeOfString},
  PartlyFollowed{MapID::EdInterp_NodeStrg, DataID::EdInterp_KeyPostn, asksString},
  PartlyFollowed{MapID::EdModDat_NodeStrg, DataID::EdModDat_ModfInfo, takesFromString},
  PartlyFollowed{MapID::EdModDat_EdgeData, DataID::EdModDat_ModfInfo, changesBoundary},
  PartlyFollowed{MapID::ClModDat_MatIDRgn, DataID::ClModDat_ModfInfo, spreadsOverRegion},
  PartlyFollowed{MapID::ClModDat_CellData, DataID::ClModDat_ModfInfo, changesSource},
  PartlyFollowed{MapID::EdgHydBC_CellsAll, DataID::HydBType,          isCellOfBoundary},
  PartlyFollowed{MapID::EdgHydBC_EdgeData, DataID::HydBType,          takesValue},
  PartlyFollowed{MapID::EdgMorBC_CellsAll, DataID::MorBType,          isInnerCell},
  PartlyFollowed{MapID::EdgMorBC_EdgeData, DataID::MorBType,          takesBedValue},
};
// clang-format on

void checkWhole(op_map map) {
  for (int row = 0; row < map->from->size; ++row) {
    for (int column = 0; column < map->dim; ++column) op_check_map_entry(map, row, column);
  }
}

// Addresses are formed for all columns of a row, so that even an entry that is not followed must
// be harmless.
void checkPart(op_map map, op_dat codes, bool (*followed)(int code, int column)) {
  const int* code = reinterpret_cast<const int*>(codes->data);
  int* entries = map->map;
  for (int row = 0; row < map->from->size; ++row, code += codes->dim, entries += map->dim) {
    for (int column = 0; column < map->dim; ++column) {
      if (followed(*code, column)) {
        op_check_map_entry(map, row, column);
      } else {
        entries[column] = 0;
      }
    }
  }
}

void checkMap(op_map map, MapID id, const Dats& dats) {
  const auto* const part = std::find_if(PARTLY_FOLLOWED.begin(), PARTLY_FOLLOWED.end(),
                                        [=](const PartlyFollowed& rule) { return rule.map == id; });
  if (part == PARTLY_FOLLOWED.end()) return checkWhole(map);
  const op_dat codes = find(dats, part->codes);
  if (codes != nullptr) checkPart(map, codes, part->followed);
}

}  // namespace

void checkMaps(KernelID kernel, const Dats& dats, const Maps& maps) {
  const auto found = model::Kernel2Maps.find(kernel);
  if (found == model::Kernel2Maps.end()) return;
  for (const MapID id : found->second) {
    // The gradient is told by the neighbours alone.
    if (kernel == KernelID::CalcBedGradient && id == MapID::CellsAll_EdgesAll) continue;
    const op_map map = find(maps, id);
    if (map != nullptr) checkMap(map, id, dats);
  }
}

}  // namespace simulation
