#include "system/verification/AccountedRun.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "op/core/op_lib_core.h"

namespace verification {

using model::DataID;
using model::KernelID;
using model::MapID;
using model::SetID;

double Account::error() const {
  CompensatedSum sum;
  for (const double term : {stored, -atStart, -in, out, -added, taken}) sum.add(term);
  return sum.value();
}

AccountedRun::AccountedRun(const std::string& commandFileName, const std::string& runFileName)
    : RHEOdomain(commandFileName, runFileName) {
  kernels[KernelID::Update] = [this, update = kernels.at(KernelID::Update)] {
    close();
    ++passes;
    countBoundaries();
    update();
  };
  kernels[KernelID::HydSource] = [this, addSources = kernels.at(KernelID::HydSource)] {
    countSources();
    addSources();
  };
}

void AccountedRun::go(const std::string& output) {
  init(0, false, false, output);
  atStart = storage();
  run();
  close();
}

Account AccountedRun::account() const {
  return {.atStart = atStart,
          .in = in.value(),
          .out = out.value(),
          .added = added.value(),
          .taken = taken.value(),
          .stored = storage()};
}

void AccountedRun::close() {
  const double error = std::abs(account().error());
  if (!(error <= largest)) largest = error;  // so that a NaN shows
}

template <class T>
const T* AccountedRun::values(DataID id) const {
  return reinterpret_cast<const T*>(dats.at(id)->data);
}

const int* AccountedRun::table(MapID id) const {
  return maps.at(id)->map;
}

double AccountedRun::storage() const {
  const auto* const state = values<double>(DataID::HydState);
  const auto* const bed = values<double>(DataID::BottomEl);
  const auto* const area = values<double>(DataID::CellsAll_GeomArea);
  CompensatedSum sum;
  for (int cell = 0; cell < sets.at(SetID::CellsAll)->size; ++cell) {
    sum.add(area[cell] * (state[3 * cell] - bed[cell]));
  }
  return sum.value();
}

void AccountedRun::countBoundaries() {
  const auto* const flux = values<double>(DataID::FluxesHy);
  const auto* const length = values<double>(DataID::GeomLeng);
  const int* const cells = table(MapID::EdgesAll_CellsAll);
  for (int edge = 0; edge < sets.at(SetID::EdgesAll)->size; ++edge) {
    if (cells[2 * edge] != cells[2 * edge + 1]) continue;
    const double outward = timeStep * length[edge] * flux[5 * edge];
    if (outward > 0.0) out.add(outward);
    if (outward < 0.0) in.add(-outward);
  }
}

void AccountedRun::countSources() {
  const auto* const state = values<double>(DataID::HydState);
  const auto* const bed = values<double>(DataID::BottomEl);
  const auto* const area = values<double>(DataID::CellsAll_GeomArea);
  const auto* const records = values<double>(DataID::CellData_NumValue);
  const int* const types = values<int>(DataID::ClHydSrc_SinkType);
  const int* const cellOf = table(MapID::ClHydSrc_CellsAll);
  const int* const recordOf = table(MapID::ClHydSrc_CellData);
  for (int source = 0; source < sets.at(SetID::ClHydSrc)->size; ++source) {
    const int cell = cellOf[source];
    const double rate = records[2 * recordOf[source] + 1];
    const double depth = state[3 * cell] - bed[cell];
    const double volume = area[cell] * sourceHeight(types[source], rate * timeStep, depth);
    if (volume > 0.0) added.add(volume);
    if (volume < 0.0) taken.add(-volume);
  }
}

// Sinks whose type ends in 0 take their rate, those in 1 no more than there is, those in 2 all.
double AccountedRun::sourceHeight(int type, double height, double depth) {
  const bool known = (type >= 10 && type <= 12) || (type >= 20 && type <= 22);
  if (!known) return 0.0;
  if (height >= 0.0 || type % 10 == 0) return height;
  return type % 10 == 1 ? std::max(height, -depth) : -depth;
}

}  // namespace verification
