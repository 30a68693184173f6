#include "simulation/SeriesGuard.h"

#include <cstddef>
#include <string>

#include "catalogue/Limits.h"
#include "common/console.h"
#include "simulation/kernels/data/edge_interpolation.h"
#include "simulation/names.h"

namespace simulation {

namespace console = common::console;
using model::DataID;
using model::KernelID;
using model::MapID;

namespace {

constexpr int MOST_POINTS = model::SERIES_VALUES / 2;
constexpr int UNKNOWN_KEY = -1;

double lastOf(const double* row) {
  return row[model::SERIES_VALUES - 2];
}

// Whether every look-up stays within the row.
bool isSound(const double* row, int size) {
  const int points = size / 2;
  const bool ends = points < MOST_POINTS || lastOf(row) == model::MISSING_VALUE;
  return points >= 1 && points <= MOST_POINTS && row[0] != model::MISSING_VALUE && ends;
}

template <class Value>
const Value* rowOf(op_dat dat, int row) {
  return reinterpret_cast<const Value*>(dat->data) + static_cast<std::ptrdiff_t>(row) * dat->dim;
}

}  // namespace

SeriesGuard::SeriesGuard(KernelID kernel, const Dats& dats, const Maps& maps) {
  const bool ofEdges = kernel == KernelID::EdgeDataInterpolation;
  if (!ofEdges && kernel != KernelID::CellDataInterpolation) return;
  const op_dat series = find(dats, DataID::InSeries_NumValue);
  const op_dat sizes = find(dats, DataID::InSeries_ListSize);
  const op_dat keys = find(dats, ofEdges ? DataID::EdInterp_KeyPostn : DataID::ClInterp_KeyPostn);
  const op_map map = find(maps, ofEdges ? MapID::EdInterp_InSeries : MapID::ClInterp_InSeries);
  const op_dat states = ofEdges ? find(dats, DataID::StateVar) : nullptr;
  const op_map strings = ofEdges ? find(maps, MapID::EdInterp_NodeStrg) : nullptr;
  if (series == nullptr || sizes == nullptr || keys == nullptr || map == nullptr) return;
  for (int i = 0; i < keys->set->size; ++i) {
    const int number = map->map[i];
    const double* const row = rowOf<double>(series, number);
    const int size = *rowOf<int>(sizes, number);
    if (isSound(row, size)) continue;
    const int key = *rowOf<int>(keys, i);
    const bool asksString = states != nullptr && strings != nullptr && key != 0;
    watched.push_back({number, row, size, ofEdges || key == 0 ? key : UNKNOWN_KEY,
                       asksString ? rowOf<double>(states, strings->map[i]) : nullptr});
  }
}

void SeriesGuard::check(double time) const {
  for (const LookUp& lookUp : watched) {
    const double x = kernels::data::lookupVariable(lookUp.key, lookUp.string, time);
    if (lookUp.row[0] >= x) continue;
    const std::string name = "series " + std::to_string(lookUp.series) + " in <" +
                             pathOf(DataID::InSeries_NumValue) + ">";
    const int points = lookUp.size / 2;
    if (points < 1 || points > MOST_POINTS) {
      console::fail(name, " is asked at ", x, ", behind its first point, but its <",
                    pathOf(DataID::InSeries_ListSize), "> is ", lookUp.size,
                    ": it must be from 2 to ", model::SERIES_VALUES);
    }
    if (lookUp.row[0] == model::MISSING_VALUE) {
      console::fail(name, " has no point: it must have at least one");
    }
    if (kernels::data::firstPointAbove(lookUp.row, points, x) == MOST_POINTS) {
      console::fail(name, " is asked at ", x, ", but its ", MOST_POINTS, " points end at ",
                    lastOf(lookUp.row), " without an end mark: at most ", MOST_POINTS - 1,
                    " points can be followed by one");
    }
  }
}

}  // namespace simulation
