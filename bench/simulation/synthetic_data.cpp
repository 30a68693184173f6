#include "bench/simulation/synthetic_data.h"

#include <cmath>
#include <cstddef>
#include <map>

#include "catalogue/Data.h"
#include "catalogue/Limits.h"
#include "simulation/kernels/Parameters.h"

namespace bench {

using model::DataID;
using model::ParameterID;

namespace {

/// Columns of a datum; the last one given holds for all that follow.
const std::map<DataID, std::vector<double>>& columns() {
  using enum DataID;
  // clang-format off
  static const std::map<DataID, std::vector<double>> table = {
    {IsWetted,          {1}},
    {Friction,          {30.0}},                    // Strickler [m^(1/3)/s]
    {ChezyCoe,          {100.0}},
    {FlowCurv,          {0.001}},
    {ThetaCrt,          {0.047}},
    {MSedSize,          {0.002}},
    {BedGrdnt,          {-0.001, 0.0005}},
    {BedTrCap,          {1e-5, 1e-6}},
    {BedTrDer,          {1e-4, 1e-5}},
    {FixBedEl,          {-10.0}},                   // out of reach
    {HydBType,          {114, 1}},                  // imposed level
    {MorBType,          {404, -1}},                 // given inflow
    {EdgeData_NumValue, {2.0, 1.0}},
    {CellData_NumValue, {0.0, 1e-9}},               // [1]: source rate [m/s]
    {ClHydSrc_SinkType, {10}},
    {ClMorSrc_SinkType, {30}},
    {MatIDRgn_GeomArea, {1000.0}},
    {NodeStrg_ListSize, {40}},
    {NodeStrg_EdgeSign, {1}},
    {StateVar,          {2.0, 40.0, 80.0, 0.0, 0.0, 40.0}},
    {TotalLen,          {40.0}},
    {InSeries_ListSize, {model::SERIES_VALUES}},
    {EdInterp_KeyPostn, {0, 2}},                    // against time
    {ClInterp_KeyPostn, {0, 0}},
    {EdModDat_ModfInfo, {4, 3, 0}},                 // discharge per wetted area
    {ClModDat_ModfInfo, {6, 0, 1}},                 // volume per area of the region
  };
  // clang-format on
  return table;
}

/// A value each minute.
double seriesColumn(std::size_t column) {
  const auto point = static_cast<double>(column / 2);
  return column % 2 == 0 ? 60.0 * point : 2.0 + std::sin(0.01 * point);
}

}  // namespace

std::vector<double> syntheticElement(DataID id) {
  std::vector<double> element(static_cast<std::size_t>(model::DataProps.at(id).size), 0.0);
  const auto found = columns().find(id);
  for (std::size_t column = 0; column < element.size(); ++column) {
    if (id == DataID::InSeries_NumValue) {
      element[column] = seriesColumn(column);
    } else if (found != columns().end()) {
      const std::vector<double>& given = found->second;
      element[column] = column < given.size() ? given[column] : given.back();
    }
  }
  return element;
}

void setParameters() {
  using enum ParameterID;
  // clang-format off
  static const std::map<ParameterID, double> reals = {
    {CFLnumber,        0.5},
    {DTmax,            100.0},
    {MinWaterDepth,    0.001},
    {Gravity,          9.81},
    {InvGravity,       1.0 / 9.81},
    {BedPorosity,      0.4},
    {InvBedPorosity,   1.0 / (1.0 - 0.4)},
    {FluidDensity,     1000.0},
    {SedimentDensity,  2650.0},
    {SedRelDensity,    1.65},
    {BedloadFactor,    1.0},
    {BedloadCoeff,     8.0},
    {BedloadExpon,     1.5},
    {BedloadIkeda,     0.5},
    {BedloadCurvature, 7.0},
    {FixBedAccuracy,   1e-4},
    {ThetaCritical,    0.047},
    {ReposeAngle,      0.6},
  };
  static const std::map<ParameterID, int> integers = {
    {FrictionOn,       1},
    {FrictionType,     2},                          // Strickler
    {BeadloadType,     1},
    {FixBedMaxIter,    10},
    {IncipientMotType, 1},
    {SafeMode,         1},
  };
  // clang-format on
  for (const auto& [id, value] : reals) G_REAL[static_cast<int>(id)] = value;
  for (const auto& [id, value] : integers) G_INT[static_cast<int>(id)] = value;
  // Both effects on the direction of bed load.
  G_INT[static_cast<int>(BedloadInts)] = 1;
  G_INT[static_cast<int>(BedloadInts) + 1] = 1;
}

}  // namespace bench
