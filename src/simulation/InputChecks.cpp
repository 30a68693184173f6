#include "simulation/InputChecks.h"

#include <algorithm>
#include <array>

#include "common/console.h"
#include "op/op_seq.h"
#include "simulation/kernels/parameters.h"
#include "simulation/names.h"

namespace simulation {

namespace console = common::console;
using model::DataID;
using model::MapID;

namespace {

constexpr int ALL_COLUMNS = -1;

/// The values that an integer datum may hold, in one column or in all.
struct Range {
  DataID datum;
  int column;
  int lowest;
  int highest;
  const char* meaning;
};

// clang-format off
constexpr std::array RANGES = {
  Range{DataID::NodeStrg_ListSize, ALL_COLUMNS, 0,    40, "number of edges of a nodestring"},
  Range{DataID::InSeries_ListSize, ALL_COLUMNS, 2, 12000, "length of a series"},
};
// clang-format on

op_dat find(const Dats& dats, DataID id) {
  const auto found = dats.find(id);
  return found == dats.end() ? nullptr : found->second;
}

const int* valuesOf(op_dat dat) { return reinterpret_cast<const int*>(dat->data); }

void checkRange(const Dats& dats, const Range& range) {
  const op_dat dat = find(dats, range.datum);
  if (dat == nullptr) return;
  const int* values = valuesOf(dat);
  for (int row = 0; row < dat->set->size; ++row) {
    for (int column = 0; column < dat->dim; ++column) {
      if (range.column != ALL_COLUMNS && range.column != column) continue;
      const int value = values[static_cast<std::ptrdiff_t>(row) * dat->dim + column];
      if (value >= range.lowest && value <= range.highest) continue;
      console::fail("data <", pathOf(range.datum), "> in row ", row, ", column ", column, " is ",
                    value, ": ", range.meaning, " must be from ", range.lowest, " to ",
                    range.highest);
    }
  }
}

// The sign picks the momentum that a cell reads, so that it must be one of two values.
void checkSigns(const Dats& dats, DataID id) {
  const op_dat dat = find(dats, id);
  if (dat == nullptr) return;
  const int* values = valuesOf(dat);
  const std::ptrdiff_t count = static_cast<std::ptrdiff_t>(dat->set->size) * dat->dim;
  for (std::ptrdiff_t i = 0; i < count; ++i) {
    if (values[i] == 1 || values[i] == -1) continue;
    console::fail("data <", pathOf(id), "> in row ", i / dat->dim, ", column ", i % dat->dim,
                  " is ", values[i], ": an edge sign must be 1 or -1");
  }
}

// Types of boundaries that reach for the bed friction of their cell.
struct FrictionalTypes {
  DataID datum;
  std::array<int, 2> codes;
};

constexpr std::array FRICTIONAL_TYPES = {
    FrictionalTypes{DataID::HydBType, {100, 104}},
    FrictionalTypes{DataID::MorBType, {408, 414}},
};

void checkBoundaryTypes(const Dats& dats, const FrictionalTypes& frictional) {
  const op_dat dat = find(dats, frictional.datum);
  if (dat == nullptr || kernels::integer(model::ParameterID::FrictionOn) == 1) return;
  const int* values = valuesOf(dat);
  for (int row = 0; row < dat->set->size; ++row) {
    const int code = values[static_cast<std::ptrdiff_t>(row) * dat->dim];
    if (code != frictional.codes[0] && code != frictional.codes[1]) continue;
    console::fail("data <", pathOf(frictional.datum), "> in row ", row, " has the type ", code,
                  ", which needs bed friction: parameter <FrictionOn> must be 1");
  }
}

void checkStringMap(const Dats& dats, const Maps& maps, MapID id) {
  const op_dat sizes = find(dats, DataID::NodeStrg_ListSize);
  const auto found = maps.find(id);
  if (sizes == nullptr || found == maps.end() || found->second == nullptr) return;
  const op_map map = found->second;
  const int* used = valuesOf(sizes);
  op_check_map_columns(map, used);
  for (int row = 0; row < map->from->size; ++row) {
    int* entries = map->map + static_cast<std::ptrdiff_t>(row) * map->dim;
    std::fill(entries + used[row], entries + map->dim, 0);
  }
}

}  // namespace

void checkStateData(const api::IModel& model, const Dats& dats) {
  for (const model::DataID id : model.getDats()) {
    if (!model.getData(id)->isSolution() || find(dats, id) != nullptr) continue;
    console::fail("data <", pathOf(id), "> not found in runfile: a run cannot start without it");
  }
}

void checkInputData(const Dats& dats, const Maps& maps) {
  for (const Range& range : RANGES) checkRange(dats, range);
  checkSigns(dats, DataID::CellsAll_EdgeSign);
  for (const FrictionalTypes& types : FRICTIONAL_TYPES) checkBoundaryTypes(dats, types);
  checkStringMap(dats, maps, MapID::NodeStrg_EdgesAll);
  checkStringMap(dats, maps, MapID::NodeStrg_CellsAll);
}

void checkParameterSize(const std::string& path, std::size_t found, int expected) {
  if (found == static_cast<std::size_t>(expected)) return;
  console::fail("parameter <", path, "> has ", found, " values, but must have ", expected);
}

}  // namespace simulation
