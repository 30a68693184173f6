#include "simulation/InputChecks.h"

#include <array>
#include <climits>
#include <cstddef>
#include <initializer_list>
#include <string>

#include "catalogue/Codes.h"
#include "catalogue/Limits.h"
#include "common/console.h"
#include "simulation/MapChecks.h"
#include "simulation/kernels/Parameters.h"
#include "simulation/names.h"

namespace simulation {

namespace console = common::console;
using model::DataID;
using model::KernelID;

namespace {

constexpr int ALL_COLUMNS = -1;
constexpr int NO_LOWEST = INT_MIN;

/// A set of record types; the type of a record stands in its column 0.
template <class Code>
constexpr unsigned types(std::initializer_list<Code> codes) {
  unsigned set = 0;
  for (const Code code : codes) set |= 1U << static_cast<unsigned>(code);
  return set;
}
constexpr unsigned ANY_TYPE = 0;

/// The values that an integer datum may hold in one column or in all, for records of some types,
/// where a kernel reads it.
struct Range {
  KernelID kernel;
  DataID datum;
  int column;
  unsigned recordTypes;
  int lowest;
  int highest;
  const char* meaning;
};

using Edge = model::EdgeModificationCode;
using Cell = model::CellModificationCode;
constexpr unsigned SWITCH = types({Edge::Switch});
constexpr unsigned WEIR_OR_SWITCH = types({Edge::WeirVelocity, Edge::Switch});
constexpr unsigned READING =
    WEIR_OR_SWITCH |
    types({Edge::OverLength, Edge::OverSecondLength, Edge::OverWettedArea, Edge::OpenFromTime,
           Edge::BedloadOverLength, Edge::BedloadOverWettedArea, Edge::BedloadOverConveyance});
constexpr unsigned WRITING =
    READING |
    types({Edge::WettedAreaOverSecondLength, Edge::CapacityOverLength, Edge::CapacityOverWettedArea,
           Edge::CapacityOverConveyance, Edge::DischargeOverSecondLength});
constexpr unsigned CELL_TYPES = types({Cell::OverRegionArea, Cell::MillimetresPerHour});

// clang-format off
constexpr std::array RANGES = {
  // A cell reads the components 2 - sign and 3 - sign of the five of a flux.
  Range{KernelID::Update,                DataID::CellsAll_EdgeSign, ALL_COLUMNS, ANY_TYPE, -1,  2, "edge sign (1 or -1 by convention)"},
  Range{KernelID::NodeStringStateCalc,   DataID::NodeStrg_ListSize, 0, ANY_TYPE,    NO_LOWEST, model::STRING_EDGES, "number of edges of a nodestring"},
  Range{KernelID::EdgeDataInterpolation, DataID::EdInterp_KeyPostn, 1, ANY_TYPE,            0,  6, "position in a boundary record"},
  Range{KernelID::CellDataInterpolation, DataID::ClInterp_KeyPostn, 1, ANY_TYPE,            0,  1, "position in a source record"},
  Range{KernelID::EdgeDataModification,  DataID::EdModDat_ModfInfo, 1, WRITING,             0,  6, "position in a boundary record"},
  Range{KernelID::EdgeDataModification,  DataID::EdModDat_ModfInfo, 2, READING,             0,  6, "position in a boundary record"},
  Range{KernelID::EdgeDataModification,  DataID::EdModDat_ModfInfo, 3, WEIR_OR_SWITCH,      0,  6, "position in a boundary record"},
  Range{KernelID::EdgeDataModification,  DataID::EdModDat_ModfInfo, 4, WEIR_OR_SWITCH,      0,  6, "position in a boundary record"},
  Range{KernelID::EdgeDataModification,  DataID::EdModDat_ModfInfo, 5, SWITCH,              0,  6, "position in a boundary record"},
  Range{KernelID::EdgeDataModification,  DataID::EdModDat_ModfInfo, 6, SWITCH,              0,  6, "position in a boundary record"},
  Range{KernelID::CellDataModification,  DataID::ClModDat_ModfInfo, 1, CELL_TYPES,          0,  1, "position in a source record"},
  Range{KernelID::CellDataModification,  DataID::ClModDat_ModfInfo, 2, CELL_TYPES,          0,  1, "position in a source record"},
};
// clang-format on

bool concerns(const Range& range, int type) {
  return range.recordTypes == ANY_TYPE ||
         (type >= 0 && type < 32 && ((range.recordTypes >> static_cast<unsigned>(type)) & 1U) != 0);
}

[[noreturn]] void refuse(const Range& range, int row, int column, int value) {
  const std::string place = pathOf(range.datum) + "> in row " + std::to_string(row) + ", column " +
                            std::to_string(column) + " is " + std::to_string(value);
  if (range.lowest == NO_LOWEST) {
    console::fail("data <", place, ": ", range.meaning, " must be at most ", range.highest);
  }
  console::fail("data <", place, ": ", range.meaning, " must be from ", range.lowest, " to ",
                range.highest);
}

void checkRange(const Dats& dats, const Range& range) {
  const op_dat dat = find(dats, range.datum);
  if (dat == nullptr) return;
  const int* record = reinterpret_cast<const int*>(dat->data);
  for (int row = 0; row < dat->set->size; ++row, record += dat->dim) {
    if (!concerns(range, record[0])) continue;
    for (int column = 0; column < dat->dim; ++column) {
      if (range.column != ALL_COLUMNS && range.column != column) continue;
      const int value = record[column];
      if (value < range.lowest || value > range.highest) refuse(range, row, column, value);
    }
  }
}

// The correction of fixed beds can be switched off by its parameters: then it looks at nothing.
bool isIdle(KernelID kernel) {
  const kernels::Parameters par = kernels::Parameters::ofRun();
  return kernel == KernelID::MorFixBedCorrection &&
         !(par.real(model::ParameterID::FixBedAccuracy) < 1e12 &&
           par.integer(model::ParameterID::FixBedMaxIter) > 0);
}

}  // namespace

op_dat find(const Dats& dats, DataID id) {
  const auto found = dats.find(id);
  return found == dats.end() ? nullptr : found->second;
}

op_map find(const Maps& maps, model::MapID id) {
  const auto found = maps.find(id);
  return found == maps.end() ? nullptr : found->second;
}

void checkRecordData(const std::vector<DataID>& records, const Dats& dats) {
  for (const DataID id : records) {
    if (find(dats, id) != nullptr) continue;
    console::fail("data <", pathOf(id), "> not found in runfile: a run cannot start without it");
  }
}

void checkKernelInput(KernelID kernel, const Dats& dats, const Maps& maps) {
  if (isIdle(kernel)) return;
  for (const Range& range : RANGES) {
    if (range.kernel == kernel) checkRange(dats, range);
  }
  checkMaps(kernel, dats, maps);
}

void checkParameterSize(const std::string& path, std::size_t slot, std::size_t count) {
  const std::size_t most = static_cast<std::size_t>(PARAMETER_SLOTS) - slot;
  if (count <= most) return;
  console::fail("parameter <", path, "> has ", count, " values, but there is room for ", most);
}

}  // namespace simulation
