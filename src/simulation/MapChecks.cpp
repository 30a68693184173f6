#include "simulation/MapChecks.h"

#include <algorithm>
#include <array>
#include <initializer_list>

#include "catalogue/Codes.h"
#include "catalogue/Relations.h"
#include "op/core/op_seq.h"

namespace simulation {

using model::DataID;
using model::KernelID;
using model::MapID;

namespace {

using Boundary = model::HydBoundaryCode;
using BedBoundary = model::MorBoundaryCode;
using EdgeChange = model::EdgeModificationCode;
using SourceChange = model::CellModificationCode;
using Key = model::InterpolationKey;

template <class Code>
bool oneOf(int code, std::initializer_list<Code> codes) {
  return std::find(codes.begin(), codes.end(), static_cast<Code>(code)) != codes.end();
}

// What rules over the entries of a row: its key, its type or its number of edges.
// clang-format off
bool isEdgeOfString(int size, int column) {
  return column < size;
}
bool asksString(int key, int /*column*/) {
  return oneOf(key, {Key::Depth, Key::WaterLevel, Key::Discharge});
}
bool takesFromString(int type, int column) {
  using enum model::EdgeModificationCode;
  if (column == 1) {
    return oneOf(type, {OverSecondLength, WettedAreaOverSecondLength, DischargeOverSecondLength});
  }
  return oneOf(type, {OverLength, WeirVelocity, OverWettedArea, Switch, WettedAreaOverSecondLength,
                      BedloadOverLength, BedloadOverWettedArea, BedloadOverConveyance,
                      CapacityOverLength, CapacityOverWettedArea, CapacityOverConveyance,
                      DischargeOverSecondLength});
}
bool changesBoundary(int type, int column) {
  return takesFromString(type, column) ||
         oneOf(type, {EdgeChange::OverSecondLength, EdgeChange::OpenFromTime});
}
bool spreadsOverRegion(int type, int /*column*/) {
  return oneOf(type, {SourceChange::OverRegionArea});
}
bool changesSource(int type, int /*column*/) {
  return oneOf(type, {SourceChange::OverRegionArea, SourceChange::MillimetresPerHour});
}
bool isCellOfBoundary(int type, int column) {
  return column == 0 ||
         oneOf(type, {Boundary::InnerTransfer, Boundary::InnerGate, Boundary::InnerWall});
}
bool isInnerCell(int /*type*/, int column) {
  return column == 0;
}
bool takesValue(int type, int /*column*/) {
  using enum model::HydBoundaryCode;
  return oneOf(type, {InflowNormalDepth, InflowFroude, OutflowNormalDepth, OutflowWeir,
                      OutflowRatingCurve, OutflowDischarge, WaterLevel, InnerTransfer, InnerGate,
                      LinkWeirInflow, LinkWeirOutflow, LinkRatingCurveInflow,
                      LinkRatingCurveOutflow, LinkDischargeInflow, LinkDischargeOutflow,
                      LinkSwitchInflow, LinkSwitchOutflow, LinkLevelInflow, LinkLevelOutflow});
}
bool takesBedValue(int type, int /*column*/) {
  using enum model::MorBoundaryCode;
  return oneOf(type, {LowestBed, HighestBed, Inflow, InflowByDepth, InflowByConveyance, Capacity,
                      CapacityByDepth, CapacityByConveyance});
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
