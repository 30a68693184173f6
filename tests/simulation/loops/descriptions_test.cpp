// The descriptions of the loops against what the timing table, the catalogue and users rely on.
#include "simulation/loops/all_loops.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <type_traits>
#include <vector>

#include "catalogue/Data.h"
#include "catalogue/Maps.h"
#include "catalogue/Relations.h"

namespace {

using model::DataID;
using model::KernelID;
using model::MapID;
using model::SetID;

struct Row {
  int slot;
  std::string name;
  int entries;
  bool direct;
  std::string reduction;

  bool operator==(const Row&) const = default;
};

void PrintTo(const Row& row, std::ostream* stream) {
  *stream << row.slot << ' ' << row.name;
}

template <class RowType>
std::string reductionOf() {
  if constexpr (RowType::global) {
    if constexpr (RowType::reduction) {
      return std::is_same_v<typename RowType::Value, double> ? "double" : "int";
    }
  }
  return "";
}

template <class L>
Row rowOf() {
  return []<std::size_t... I>(std::index_sequence<I...>) {
    return Row{L::slot, loops::FrameOf<L>::name, L::entries, L::isDirect,
               (reductionOf<typename L::template Row<I>>() + ...)};
  }
  (std::make_index_sequence<L::rows>{});
}

// In the order of the timing table.
std::vector<Row> rowsOfAll() {
  std::vector<Row> rows;
  loops::forEach([&rows]<class L>() { rows.push_back(rowOf<L>()); });
  std::sort(rows.begin(), rows.end(), [](const Row& a, const Row& b) { return a.slot < b.slot; });
  return rows;
}

TEST(Loops, HaveTheirSlotsNamesEntriesKindsAndReductions) {
  // clang-format off
  const std::vector<Row> expected = {
    { 0, "kernel_HYDRAULICS_InitializeCellFeatures",      3, true,  ""},
    { 1, "kernel_HYDRAULICS_InitializeFriction",          4, true,  ""},
    { 2, "kernel_MORPHOLOGY_InitializeCellFeatures",      3, true,  ""},
    { 3, "kernel_TOPOLOGY_NodeStringStates",            365, false, ""},
    { 4, "kernel_DATA_EdgeInterpolation",                 6, false, ""},
    { 5, "kernel_DATA_CellInterpolation",                 5, false, ""},
    { 6, "kernel_DATA_EdgeModification",                  8, false, ""},
    { 7, "kernel_DATA_CellModification",                  4, false, ""},
    { 8, "kernel_HYDRAULICS_TimeStep",                    9, false, "double"},
    { 9, "kernel_HYDRAULICS_Boundary",                   10, false, ""},
    {10, "kernel_MORPHOLOGY_Boundary",                   13, false, ""},
    {11, "kernel_HYDRAULICS_WallFluxes",                  4, false, ""},
    {12, "kernel_MORPHOLOGY_WallFluxes",                  1, false, ""},
    {13, "kernel_HYDRAULICS_InternalFluxes",              8, false, ""},
    {14, "kernel_MORPHOLOGY_CalcBedloadTransport",       10, true,  ""},
    {15, "kernel_MORPHOLOGY_LocalBedSlope",               4, true,  ""},
    {16, "kernel_MORPHOLOGY_InternalFluxes",             12, false, ""},
    {17, "kernel_HYDRAULICS_CalcCurvature",              16, false, ""},
    {18, "kernel_MORPHOLOGY_CalcBedGradient",             6, false, ""},
    {19, "kernel_GLOBAL_Update",                         18, false, "int"},
    {20, "kernel_MORPHOLOGY_FixedBedCorrection",         13, false, ""},
    {21, "kernel_MORPHOLOGY_FixedBedCorrectionFindMax",   3, true,  "double"},
    {22, "kernel_MORPHOLOGY_Source",                      7, false, "int"},
    {23, "kernel_HYDRAULICS_Friction",                    5, true,  ""},
    {24, "kernel_HYDRAULICS_Source",                      7, false, "int"},
    {25, "kernel_HYDRAULICS_FloodTracking",               5, true,  ""},
  };
  // clang-format on
  EXPECT_EQ(rowsOfAll(), expected);
}

// What a row names, as the catalogue knows it.
struct Use {
  std::set<DataID> data;
  std::set<DataID> optionalData;
  std::set<MapID> maps;
};

template <class RowType>
void note(Use& use) {
  if constexpr (!RowType::global) {
    if constexpr (std::is_same_v<decltype(RowType::datum), const DataID>) {
      (RowType::optional ? use.optionalData : use.data).insert(RowType::datum);
    }
    if constexpr (RowType::mapped) use.maps.insert(RowType::Route::map);
  }
}

template <class L>
Use useOf() {
  Use use;
  [&]<std::size_t... I>(std::index_sequence<I...>) {
    (note<typename L::template Row<I>>(use), ...);
  }
  (std::make_index_sequence<L::rows>{});
  return use;
}

template <class T>
std::set<T> asSet(const std::vector<T>& values) {
  return {values.begin(), values.end()};
}

template <class L>
void expectSameAsCatalogue() {
  SCOPED_TRACE(loops::FrameOf<L>::name);
  EXPECT_EQ(model::Kernel2Set.at(L::kernel), L::set);
  EXPECT_EQ(useOf<L>().data, asSet(model::Kernel2Data.at(L::kernel)));
  std::set<DataID> optionalData;
  if (model::Kernel2OptionalData.count(L::kernel) == 1) {
    optionalData = asSet(model::Kernel2OptionalData.at(L::kernel));
  }
  EXPECT_EQ(useOf<L>().optionalData, optionalData);
  std::set<MapID> maps;
  if (model::Kernel2Maps.count(L::kernel) == 1) maps = asSet(model::Kernel2Maps.at(L::kernel));
  for (const MapID map : useOf<L>().maps) EXPECT_EQ(maps.count(map), 1U) << static_cast<int>(map);
}

TEST(Loops, NameTheSetsDataAndMapsOfTheCatalogue) {
  loops::forEach([]<class L>() { expectSameAsCatalogue<L>(); });
}

template <class L, class RowType>
void expectShape() {
  if constexpr (!RowType::global) {
    SetID reached = L::set;
    if constexpr (RowType::mapped) {
      const auto& sets = model::Map2Sets.at(RowType::Route::map);
      EXPECT_EQ(sets.first, L::set);
      reached = sets.second;
      EXPECT_LE(RowType::Route::columns, model::MapProps.at(RowType::Route::map).size);
      EXPECT_LT(RowType::Route::idx, model::MapProps.at(RowType::Route::map).size);
    }
    if constexpr (std::is_same_v<decltype(RowType::datum), const DataID>) {
      const auto& properties = model::DataProps.at(RowType::datum);
      EXPECT_EQ(model::Data2Set.at(RowType::datum), reached);
      // The boundary kernel reads one of the two sizes of an edge; all else is read whole.
      const bool flat =
          L::kernel == KernelID::HydBoundaryFluxes && RowType::datum == DataID::CharSize;
      EXPECT_EQ(RowType::dim, flat ? 1 : properties.size);
      EXPECT_EQ((std::is_same_v<typename RowType::Value, double>),
                properties.type == DataType::Double);
    }
  }
}

template <class L>
void expectShapes() {
  SCOPED_TRACE(loops::FrameOf<L>::name);
  []<std::size_t... I>(std::index_sequence<I...>) {
    (expectShape<L, typename L::template Row<I>>(), ...);
  }
  (std::make_index_sequence<L::rows>{});
}

TEST(Loops, ReachDataThroughMapsOfFittingSetsWithTheirSizesAndTypes) {
  loops::forEach([]<class L>() { expectShapes<L>(); });
}

std::set<KernelID> ordered() {
  std::set<KernelID> found;
  loops::forEach([&found]<class L>() {
    if (L::order == op::Order::ascending) found.insert(L::kernel);
  });
  return found;
}

TEST(Loops, WhoseResultDependsOnTheOrderOfElementsSaySo) {
  EXPECT_EQ(ordered(),
            (std::set<KernelID>{KernelID::Update, KernelID::HydSource, KernelID::MorSource,
                                KernelID::EdgeDataModification, KernelID::CellDataModification,
                                KernelID::MorFixBedCorrection}));
}

}  // namespace
