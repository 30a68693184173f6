#include "setup/study/boundary_types.h"

#include <algorithm>
#include <stdexcept>

#include "setup/domain/missing_value.h"

namespace setup {

namespace {

using enum Place;
using enum Takes;
using enum Bound;

constexpr bool IN = true;
constexpr bool OUT = false;
constexpr bool FRICTION = true;
constexpr bool NO_FRICTION = false;

constexpr double NEVER = MISSING_VALUE;
const std::optional<double> REQUIRED = std::nullopt;

const std::vector<Lookup> TIME = {Lookup::Time};
const std::vector<Lookup> CURVE = {Lookup::Level, Lookup::Depth};
const std::vector<Lookup> CONTROL = {Lookup::Time, Lookup::Discharge};
const std::vector<Lookup> LINKED = {Lookup::ReceivingLevel, Lookup::Time, Lookup::Discharge};

// clang-format off
/// A crest level and the two coefficients of mu = coefficient + rise * head / crest height.
std::vector<Input> weir(int crest, int coefficient, int rise) {
  return {{"crest",       crest,       Value, Any,         REQUIRED},
          {"coefficient", coefficient, Value, NotNegative, 0.611},
          {"rise",        rise,        Value, NotNegative, 0.08}};
}

std::vector<Input> discharge(int position) {
  return {{"discharge",   position,    SeriesToo, NotNegative, REQUIRED}};
}

std::vector<Input> ratingCurve(int position) {
  return {{"discharge",   position,    Series,    NotNegative, REQUIRED}};
}

/// Two values, between which the level at the string switches.
std::vector<Input> switched(const std::string& value, Bound bound, std::optional<double> below,
                            std::optional<double> above, std::array<int, 5> at) {
  return {{value + "_below", at[0], Value, bound,       below},
          {value + "_above", at[1], Value, bound,       above},
          {"upper_level",    at[2], Value, Any,         REQUIRED},
          {"delay",          at[3], Value, NotNegative, 0.0},
          {"lower_level",    at[4], Value, Any,         NEVER}};
}

std::vector<Input> operator+(std::vector<Input> inputs, const Input& further) {
  inputs.push_back(further);
  return inputs;
}

const Input SLOPE  = {"slope",  1, Value, Positive,    REQUIRED};
const Input FROUDE = {"froude", 1, Value, NotNegative, 1.0};

// What the modifications write, with the positions that they read:
//   1 over the length of the string, 2 over the length of the second string, 3 weir velocity,
//   4 over the wetted area, 5 open from a time on, 8 switch over the wetted area,
//   9 wetted area over the length of the second string, 16 discharge over that length
const std::vector<BoundaryType> TYPES = {
  // name                  place   code  second direction friction   series  inputs                                                               modifications
  {"inflow",               Edge,   100,    0,  IN,  FRICTION,    TIME,    discharge(0) + SLOPE,                                                    {{1, 2, 0}}},
  {"inflow_froude",        Edge,   102,    0,  IN,  NO_FRICTION, TIME,    discharge(0) + FROUDE,                                                   {{1, 2, 0}}},
  {"normal_depth",         Edge,   104,    0,  OUT, FRICTION,    {},      {{"slope", 0, Value, Positive, REQUIRED}},                               {}},
  {"weir",                 Edge,   106,    0,  OUT, NO_FRICTION, {},      weir(0, 1, 2),                                                           {{3, 3, 0, 1, 2}}},
  {"rating_curve",         Edge,   108,    0,  OUT, NO_FRICTION, CURVE,   ratingCurve(0),                                                          {{4, 3, 0}}},
  {"switched_outflow",     Edge,   108,    0,  OUT, NO_FRICTION, {},      switched("discharge", NotNegative, 0.0, REQUIRED, {0, 1, 2, 4, 5}),      {{8, 3, 0, 1, 2, 4, 5}}},
  {"outflow",              Edge,   110,    0,  OUT, NO_FRICTION, TIME,    discharge(0),                                                            {{4, 1, 0}}},
  {"free_outflow",         Edge,   112,    0,  OUT, NO_FRICTION, {},      {},                                                                      {}},
  {"level",                Edge,   114,    0,  OUT, NO_FRICTION, CONTROL, {{"level", 0, SeriesToo, Any, REQUIRED}, {"inflow", 1, Flag, Any, 1.0}}, {}},
  {"inner_weir",           Inside, 216,    0,  OUT, NO_FRICTION, {},      weir(0, 2, 3),                                                           {{3, 1, 0, 2, 3}}},
  {"inner_rating_curve",   Inside, 216,    0,  OUT, NO_FRICTION, CURVE,   ratingCurve(0),                                                          {{4, 1, 0}}},
  {"inner_discharge",      Inside, 216,    0,  OUT, NO_FRICTION, TIME,    discharge(0),                                                            {{4, 1, 0}}},
  {"gate_by_time",         Inside, 218,    0,  OUT, NO_FRICTION, {},      {{"opens_at", 0, Value, Any, REQUIRED}},                                 {{5, 1, 0}}},
  {"gate_by_series",       Inside, 218,    0,  OUT, NO_FRICTION, TIME,    {{"opening", 1, Series, Any, REQUIRED}},                                 {}},
  {"gate_by_level",        Inside, 218,    0,  OUT, NO_FRICTION, {},      switched("opening", Any, -1.0, 1.0, {0, 2, 3, 4, 5}),                    {{8, 1, 0, 2, 3, 4, 5}}},
  {"inner_wall",           Inside, 220,    0,  OUT, NO_FRICTION, {},      {},                                                                      {}},
  {"linked_weir",          Link,   323,  322,  OUT, NO_FRICTION, {},      weir(0, 1, 2),                                                           {{3, 3, 0, 1, 2}, {9, 4}}},
  {"linked_rating_curve",  Link,   325,  324,  OUT, NO_FRICTION, CURVE,   ratingCurve(0),                                                          {{4, 3, 0}, {9, 4}}},
  {"linked_discharge",     Link,   327,  326,  OUT, NO_FRICTION, TIME,    discharge(0),                                                            {{4, 1, 0}, {2, 2, 0}}},
  {"linked_switch",        Link,   329,  328,  OUT, NO_FRICTION, {},      switched("discharge", NotNegative, 0.0, REQUIRED, {0, 1, 2, 3, 4}),      {{8, 5, 0, 1, 2, 3, 4}, {9, 6}}},
  {"linked_level",         Link,   331,  330,  OUT, NO_FRICTION, LINKED,  {{"level", 0, SeriesToo, Any, REQUIRED}},                                {{16, 1}}},
};
// clang-format on

}  // namespace

const std::vector<BoundaryType>& boundaryTypes() {
  return TYPES;
}

const BoundaryType& typeNamed(const std::string& name, const std::vector<BoundaryType>& types) {
  const auto found = std::find_if(types.begin(), types.end(),
                                  [&name](const BoundaryType& type) { return type.name == name; });
  if (found == types.end()) throw std::out_of_range("boundary type " + name);
  return *found;
}

std::string nameOf(Lookup lookup) {
  switch (lookup) {
    // clang-format off
    case Lookup::Time:           return "time";
    case Lookup::Depth:          return "depth";
    case Lookup::Level:          return "level";
    case Lookup::Discharge:      return "discharge";
    case Lookup::ReceivingLevel: return "receiving_level";
      // clang-format on
  }
  return "";
}

int keyOf(Lookup lookup) {
  switch (lookup) {
    // clang-format off
    case Lookup::Time:           return 0;
    case Lookup::Depth:          return 1;
    case Lookup::Level:          return 2;
    case Lookup::Discharge:      return 3;
    case Lookup::ReceivingLevel: return 2;
      // clang-format on
  }
  return 0;
}

}  // namespace setup
