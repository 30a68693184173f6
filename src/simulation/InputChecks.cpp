#include "simulation/InputChecks.h"

#include <algorithm>
#include <array>
#include <initializer_list>

#include "common/console.h"
#include "op/op_seq.h"
#include "simulation/kernels/missing_value.h"
#include "simulation/kernels/parameters.h"
#include "simulation/names.h"

namespace simulation {

namespace console = common::console;
using model::DataID;
using model::MapID;

namespace {

constexpr int ALL_COLUMNS = -1;

/// A set of record types; the type of a record stands in its column 0.
constexpr unsigned types(std::initializer_list<int> numbers) {
  unsigned set = 0;
  for (const int number : numbers) set |= 1U << static_cast<unsigned>(number);
  return set;
}
constexpr unsigned ANY_TYPE = 0;

/// The values that an integer datum may hold in one column or in all, for records of some types.
struct Range {
  DataID datum;
  int column;
  unsigned recordTypes;
  int lowest;
  int highest;
  const char* meaning;
};

constexpr unsigned WRITING = types({1, 2, 3, 4, 5, 8, 9, 10, 11, 12, 13, 14, 15, 16});
constexpr unsigned READING = types({1, 2, 3, 4, 5, 8, 10, 11, 12});
constexpr unsigned CELL_TYPES = types({6, 7});

// clang-format off
constexpr std::array RANGES = {
  Range{DataID::NodeStrg_ListSize, ALL_COLUMNS, ANY_TYPE,      0,    40, "number of edges of a nodestring"},
  Range{DataID::InSeries_ListSize, ALL_COLUMNS, ANY_TYPE,      2, 12000, "length of a series"},
  Range{DataID::EdInterp_KeyPostn, 1,           ANY_TYPE,      0,     6, "position in a boundary record"},
  Range{DataID::ClInterp_KeyPostn, 1,           ANY_TYPE,      0,     1, "position in a source record"},
  Range{DataID::EdModDat_ModfInfo, 1,           WRITING,       0,     6, "position in a boundary record"},
  Range{DataID::EdModDat_ModfInfo, 2,           READING,       0,     6, "position in a boundary record"},
  Range{DataID::EdModDat_ModfInfo, 3,           types({3, 8}), 0,     6, "position in a boundary record"},
  Range{DataID::EdModDat_ModfInfo, 4,           types({3, 8}), 0,     6, "position in a boundary record"},
  Range{DataID::EdModDat_ModfInfo, 5,           types({8}),    0,     6, "position in a boundary record"},
  Range{DataID::EdModDat_ModfInfo, 6,           types({8}),    0,     6, "position in a boundary record"},
  Range{DataID::ClModDat_ModfInfo, 1,           CELL_TYPES,    0,     1, "position in a source record"},
  Range{DataID::ClModDat_ModfInfo, 2,           CELL_TYPES,    0,     1, "position in a source record"},
};
// clang-format on

bool concerns(const Range& range, int type) {
  return range.recordTypes == ANY_TYPE ||
         (type >= 0 && type < 32 && ((range.recordTypes >> static_cast<unsigned>(type)) & 1U) != 0);
}

op_dat find(const Dats& dats, DataID id) {
  const auto found = dats.find(id);
  return found == dats.end() ? nullptr : found->second;
}

const int* valuesOf(op_dat dat) {
  return reinterpret_cast<const int*>(dat->data);
}

void checkRange(const Dats& dats, const Range& range) {
  const op_dat dat = find(dats, range.datum);
  if (dat == nullptr) return;
  const int* values = valuesOf(dat);
  for (int row = 0; row < dat->set->size; ++row) {
    const int* record = values + static_cast<std::ptrdiff_t>(row) * dat->dim;
    if (!concerns(range, record[0])) continue;
    for (int column = 0; column < dat->dim; ++column) {
      if (range.column != ALL_COLUMNS && range.column != column) continue;
      const int value = record[column];
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

// The look-up takes a series for ended at its first free pair. A series that has none must never be
// asked for a value behind its last point.
void checkSeries(const Dats& dats, const Maps& maps, DataID keyId, MapID mapId, double endTime) {
  const op_dat series = find(dats, DataID::InSeries_NumValue);
  const op_dat sizes = find(dats, DataID::InSeries_ListSize);
  const op_dat keys = find(dats, keyId);
  const auto map = maps.find(mapId);
  if (series == nullptr || sizes == nullptr || keys == nullptr || map == maps.end()) return;
  for (int row = 0; row < keys->set->size; ++row) {
    const int number = map->second->map[row];
    const double* pairs = reinterpret_cast<const double*>(series->data) +
                          static_cast<std::ptrdiff_t>(number) * series->dim;
    if (pairs[0] == kernels::MISSING_VALUE) {
      console::fail("series ", number, " in <", pathOf(DataID::InSeries_NumValue),
                    "> has no point: it must have at least one");
    }
    const double last = pairs[series->dim - 2];
    const bool full = valuesOf(sizes)[number] >= series->dim && last != kernels::MISSING_VALUE;
    const int key = valuesOf(keys)[static_cast<std::ptrdiff_t>(row) * keys->dim];
    if (full && (key != 0 || endTime > last)) {
      console::fail("series ", number, " in <", pathOf(DataID::InSeries_NumValue), "> has ",
                    series->dim / 2, " points and no end mark: at most ", series->dim / 2 - 1,
                    " points can be looked up beyond the last one");
    }
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

void checkInputData(const Dats& dats, const Maps& maps, double endTime) {
  for (const Range& range : RANGES) checkRange(dats, range);
  checkSigns(dats, DataID::CellsAll_EdgeSign);
  for (const FrictionalTypes& types : FRICTIONAL_TYPES) checkBoundaryTypes(dats, types);
  checkStringMap(dats, maps, MapID::NodeStrg_EdgesAll);
  checkStringMap(dats, maps, MapID::NodeStrg_CellsAll);
  checkSeries(dats, maps, DataID::EdInterp_KeyPostn, MapID::EdInterp_InSeries, endTime);
  checkSeries(dats, maps, DataID::ClInterp_KeyPostn, MapID::ClInterp_InSeries, endTime);
}

void checkParameterSize(const std::string& path, std::size_t found, int expected) {
  if (found == static_cast<std::size_t>(expected)) return;
  console::fail("parameter <", path, "> has ", found, " values, but must have ", expected);
}

}  // namespace simulation
