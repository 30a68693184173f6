#include "setup/study/boundary_types.h"

#include <algorithm>
#include <stdexcept>

#include "catalogue/Limits.h"

namespace setup {

namespace {

using enum Place;
using enum Takes;
using enum Bound;
using enum Scale;
using enum model::HydBoundaryCode;
using enum model::EdgeModificationCode;
using model::MorBoundaryCode;

constexpr bool IN = true;
constexpr bool OUT = false;
constexpr bool FRICTION = true;
constexpr bool NO_FRICTION = false;

constexpr double NEVER = model::MISSING_VALUE;
const std::optional<double> REQUIRED = std::nullopt;
const std::optional<BoundaryCode> NONE = std::nullopt;

const std::vector<Lookup> TIME = {Lookup::Time};
const std::vector<Lookup> CURVE = {Lookup::Level, Lookup::Depth};
const std::vector<Lookup> CONTROL = {Lookup::Time, Lookup::Discharge};
const std::vector<Lookup> RATING = {Lookup::Time, Lookup::Discharge, Lookup::Depth, Lookup::Level};
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

const std::vector<BoundaryType> FLOW_TYPES = {
  // name                 place   code                    second                 direction friction  series   inputs                                                                   modifications
  {"inflow",              Edge,   InflowNormalDepth,      NONE,                  IN,  FRICTION,    TIME,    discharge(0) + SLOPE,                                                    {{OverLength, 2, {0}}}},
  {"inflow_froude",       Edge,   InflowFroude,           NONE,                  IN,  NO_FRICTION, TIME,    discharge(0) + FROUDE,                                                   {{OverLength, 2, {0}}}},
  {"normal_depth",        Edge,   OutflowNormalDepth,     NONE,                  OUT, FRICTION,    {},      {{"slope", 0, Value, Positive, REQUIRED}},                               {}},
  {"weir",                Edge,   OutflowWeir,            NONE,                  OUT, NO_FRICTION, {},      weir(0, 1, 2),                                                           {{WeirVelocity, 3, {0, 1, 2}}}},
  {"rating_curve",        Edge,   OutflowRatingCurve,     NONE,                  OUT, NO_FRICTION, CURVE,   ratingCurve(0),                                                          {{OverWettedArea, 3, {0}}}},
  {"switched_outflow",    Edge,   OutflowRatingCurve,     NONE,                  OUT, NO_FRICTION, {},      switched("discharge", NotNegative, 0.0, REQUIRED, {0, 1, 2, 4, 5}),      {{Switch, 3, {0, 1, 2, 4, 5}}}},
  {"outflow",             Edge,   OutflowDischarge,       NONE,                  OUT, NO_FRICTION, TIME,    discharge(0),                                                            {{OverWettedArea, 1, {0}}}},
  {"free_outflow",        Edge,   OutflowFree,            NONE,                  OUT, NO_FRICTION, {},      {},                                                                      {}},
  {"level",               Edge,   WaterLevel,             NONE,                  OUT, NO_FRICTION, CONTROL, {{"level", 0, SeriesToo, Any, REQUIRED}, {"inflow", 1, Flag, Any, 1.0}}, {}},
  {"inner_weir",          Inside, InnerTransfer,          NONE,                  OUT, NO_FRICTION, {},      weir(0, 2, 3),                                                           {{WeirVelocity, 1, {0, 2, 3}}}},
  {"inner_rating_curve",  Inside, InnerTransfer,          NONE,                  OUT, NO_FRICTION, CURVE,   ratingCurve(0),                                                          {{OverWettedArea, 1, {0}}}},
  {"inner_discharge",     Inside, InnerTransfer,          NONE,                  OUT, NO_FRICTION, TIME,    discharge(0),                                                            {{OverWettedArea, 1, {0}}}},
  {"gate_by_time",        Inside, InnerGate,              NONE,                  OUT, NO_FRICTION, {},      {{"opens_at", 0, Value, Any, REQUIRED}},                                 {{OpenFromTime, 1, {0}}}},
  {"gate_by_series",      Inside, InnerGate,              NONE,                  OUT, NO_FRICTION, TIME,    {{"opening", 1, Series, Any, REQUIRED}},                                 {}},
  {"gate_by_level",       Inside, InnerGate,              NONE,                  OUT, NO_FRICTION, {},      switched("opening", Any, -1.0, 1.0, {0, 2, 3, 4, 5}),                    {{Switch, 1, {0, 2, 3, 4, 5}}}},
  {"inner_wall",          Inside, InnerWall,              NONE,                  OUT, NO_FRICTION, {},      {},                                                                      {}},
  {"linked_weir",         Link,   LinkWeirOutflow,        LinkWeirInflow,        OUT, NO_FRICTION, {},      weir(0, 1, 2),                                                           {{WeirVelocity, 3, {0, 1, 2}}, {WettedAreaOverSecondLength, 4, {}}}},
  {"linked_rating_curve", Link,   LinkRatingCurveOutflow, LinkRatingCurveInflow, OUT, NO_FRICTION, CURVE,   ratingCurve(0),                                                          {{OverWettedArea, 3, {0}}, {WettedAreaOverSecondLength, 4, {}}}},
  {"linked_discharge",    Link,   LinkDischargeOutflow,   LinkDischargeInflow,   OUT, NO_FRICTION, TIME,    discharge(0),                                                            {{OverWettedArea, 1, {0}}, {OverSecondLength, 2, {0}}}},
  {"linked_switch",       Link,   LinkSwitchOutflow,      LinkSwitchInflow,      OUT, NO_FRICTION, {},      switched("discharge", NotNegative, 0.0, REQUIRED, {0, 1, 2, 3, 4}),      {{Switch, 5, {0, 1, 2, 3, 4}}, {WettedAreaOverSecondLength, 6, {}}}},
  {"linked_level",        Link,   LinkLevelOutflow,       LinkLevelInflow,       OUT, NO_FRICTION, LINKED,  {{"level", 0, SeriesToo, Any, REQUIRED}},                                {{DischargeOverSecondLength, 1, {}}}},
};

const Input ELEVATION = {"elevation", 0, SeriesToo, Any,         REQUIRED};
const Input AMOUNT    = {"discharge", 0, SeriesToo, NotNegative, REQUIRED, Uncalibrated};
const Input SHARE_IN  = {"share",     0, SeriesToo, NotNegative, 1.0};
const Input SHARE_OUT = {"share",     0, SeriesToo, NotNegative, 1.0,      MinusOne};

/// A given amount that leaves is one that comes in, negative by a share of -1.
const std::vector<Input> LOSS = {{"",          0, Nothing,   Any,         -1.0},
                                 {"discharge", 2, SeriesToo, NotNegative, REQUIRED, Uncalibrated}};

const std::vector<BoundaryType> BED_TYPES = {
  // name                            place code                                   second direction friction series  inputs       modifications
  {"lowest_bed",                     Edge, MorBoundaryCode::LowestBed,            NONE, IN,  NO_FRICTION, TIME,     {ELEVATION}, {}},
  {"highest_bed",                    Edge, MorBoundaryCode::HighestBed,           NONE, OUT, NO_FRICTION, TIME,     {ELEVATION}, {}},
  {"inflow",                         Edge, MorBoundaryCode::Inflow,               NONE, IN,  NO_FRICTION, RATING,   {AMOUNT},    {{BedloadOverLength, 1, {0}}}},
  {"inflow_by_depth",                Edge, MorBoundaryCode::InflowByDepth,        NONE, IN,  NO_FRICTION, RATING,   {AMOUNT},    {{BedloadOverWettedArea, 1, {0}}}},
  {"inflow_by_conveyance",           Edge, MorBoundaryCode::InflowByConveyance,   NONE, IN,  FRICTION,    RATING,   {AMOUNT},    {{BedloadOverConveyance, 1, {0}}}},
  {"capacity_inflow",                Edge, MorBoundaryCode::Capacity,             NONE, IN,  NO_FRICTION, RATING,   {SHARE_IN},  {{CapacityOverLength, 1, {}}}},
  {"capacity_outflow",               Edge, MorBoundaryCode::Capacity,             NONE, OUT, NO_FRICTION, RATING,   {SHARE_OUT}, {{CapacityOverLength, 1, {}}}},
  {"outflow",                        Edge, MorBoundaryCode::Capacity,             NONE, OUT, NO_FRICTION, RATING,   LOSS,        {{BedloadOverLength, 1, {2}}}},
  {"capacity_inflow_by_depth",       Edge, MorBoundaryCode::CapacityByDepth,      NONE, IN,  NO_FRICTION, RATING,   {SHARE_IN},  {{CapacityOverWettedArea, 1, {}}}},
  {"capacity_outflow_by_depth",      Edge, MorBoundaryCode::CapacityByDepth,      NONE, OUT, NO_FRICTION, RATING,   {SHARE_OUT}, {{CapacityOverWettedArea, 1, {}}}},
  {"outflow_by_depth",               Edge, MorBoundaryCode::CapacityByDepth,      NONE, OUT, NO_FRICTION, RATING,   LOSS,        {{BedloadOverWettedArea, 1, {2}}}},
  {"capacity_inflow_by_conveyance",  Edge, MorBoundaryCode::CapacityByConveyance, NONE, IN,  FRICTION,    RATING,   {SHARE_IN},  {{CapacityOverConveyance, 1, {}}}},
  {"capacity_outflow_by_conveyance", Edge, MorBoundaryCode::CapacityByConveyance, NONE, OUT, FRICTION,    RATING,   {SHARE_OUT}, {{CapacityOverConveyance, 1, {}}}},
  {"outflow_by_conveyance",          Edge, MorBoundaryCode::CapacityByConveyance, NONE, OUT, FRICTION,    RATING,   LOSS,        {{BedloadOverConveyance, 1, {2}}}},
};
// clang-format on

}  // namespace

const std::vector<BoundaryType>& boundaryTypes() {
  return FLOW_TYPES;
}

const std::vector<BoundaryType>& bedBoundaryTypes() {
  return BED_TYPES;
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

model::InterpolationKey keyOf(Lookup lookup) {
  using enum model::InterpolationKey;
  switch (lookup) {
    // clang-format off
    case Lookup::Time:           return Time;
    case Lookup::Depth:          return Depth;
    case Lookup::Level:          return WaterLevel;
    case Lookup::Discharge:      return Discharge;
    case Lookup::ReceivingLevel: return WaterLevel;
      // clang-format on
  }
  return Time;
}

int numberOf(const BoundaryCode& code) {
  return std::visit([](auto known) { return static_cast<int>(known); }, code);
}

}  // namespace setup
