#include "setup/study/bed_boundary_types.h"

namespace setup {

namespace {

using enum Place;
using enum Takes;
using enum Bound;
using enum Scale;

constexpr bool IN = true;
constexpr bool OUT = false;
constexpr bool FRICTION = true;
constexpr bool NO_FRICTION = false;

const std::optional<double> REQUIRED = std::nullopt;

const std::vector<Lookup> TIME = {Lookup::Time};
const std::vector<Lookup> RATING = {Lookup::Time, Lookup::Discharge, Lookup::Depth, Lookup::Level};

// clang-format off
const Input ELEVATION = {"elevation", 0, SeriesToo, Any,         REQUIRED};
const Input DISCHARGE = {"discharge", 0, SeriesToo, NotNegative, REQUIRED, Uncalibrated};
const Input SHARE_IN  = {"share",     0, SeriesToo, NotNegative, 1.0};
const Input SHARE_OUT = {"share",     0, SeriesToo, NotNegative, 1.0,      MinusOne};

/// A given amount that leaves is one that comes in, negative by a share of -1.
const std::vector<Input> LOSS = {{"",          0, Nothing,   Any,         -1.0},
                                 {"discharge", 2, SeriesToo, NotNegative, REQUIRED, Uncalibrated}};

// What the modifications write into the record, with the positions that they read:
//   10 over the length of the string, 11 over the wetted area, 12 over the conveyance,
//   13, 14, 15 the capacity at the string over the same
const std::vector<BoundaryType> TYPES = {
  // name                        place code  2nd direction friction     series  inputs       modifications
  {"lowest_bed",                 Edge, 400,  0,  IN,  NO_FRICTION, TIME,   {ELEVATION}, {}},
  {"highest_bed",                Edge, 402,  0,  OUT, NO_FRICTION, TIME,   {ELEVATION}, {}},
  {"inflow",                     Edge, 404,  0,  IN,  NO_FRICTION, RATING, {DISCHARGE}, {{10, 1, 0}}},
  {"inflow_by_depth",            Edge, 406,  0,  IN,  NO_FRICTION, RATING, {DISCHARGE}, {{11, 1, 0}}},
  {"inflow_by_conveyance",       Edge, 408,  0,  IN,  FRICTION,    RATING, {DISCHARGE}, {{12, 1, 0}}},
  {"capacity_inflow",            Edge, 410,  0,  IN,  NO_FRICTION, RATING, {SHARE_IN},  {{13, 1}}},
  {"capacity_outflow",           Edge, 410,  0,  OUT, NO_FRICTION, RATING, {SHARE_OUT}, {{13, 1}}},
  {"outflow",                    Edge, 410,  0,  OUT, NO_FRICTION, RATING, LOSS,        {{10, 1, 2}}},
  {"capacity_inflow_by_depth",   Edge, 412,  0,  IN,  NO_FRICTION, RATING, {SHARE_IN},  {{14, 1}}},
  {"capacity_outflow_by_depth",  Edge, 412,  0,  OUT, NO_FRICTION, RATING, {SHARE_OUT}, {{14, 1}}},
  {"outflow_by_depth",           Edge, 412,  0,  OUT, NO_FRICTION, RATING, LOSS,        {{11, 1, 2}}},
  {"capacity_inflow_by_conveyance",  Edge, 414, 0, IN,  FRICTION,  RATING, {SHARE_IN},  {{15, 1}}},
  {"capacity_outflow_by_conveyance", Edge, 414, 0, OUT, FRICTION,  RATING, {SHARE_OUT}, {{15, 1}}},
  {"outflow_by_conveyance",      Edge, 414,  0,  OUT, FRICTION,    RATING, LOSS,        {{12, 1, 2}}},
};
// clang-format on

}  // namespace

const std::vector<BoundaryType>& bedBoundaryTypes() {
  return TYPES;
}

}  // namespace setup
