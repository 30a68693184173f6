#include "setup/studyKeys.h"

#include "setup/riverKeys.h"

namespace setup {

namespace {

const std::string D = "SETUP/DOMAIN";
const std::string P = D + "/RHEOPLANE_2D";
const std::string G = P + "/GEOMETRY";
const std::string H = P + "/HYDRAULICS";

const KeyRules REQUIRED = {.required = true};
const KeyRules LENGTH = {.required = true, .range = Range::Positive};
const KeyRules COUNT = {.required = true, .range = Range::Positive};
const KeyRules POSITIVE = {.range = Range::Positive};
const KeyRules NOT_NEGATIVE = {.range = Range::NotNegative};
const KeyRules UP_TO_ONE = {.range = Range::UpToOne};
const KeyRules PATTERN = {.choices = {"diagonal", "alternating", "crossed"}};
const KeyRules TRACK = {.required = true, .choices = {"all"}};

// clang-format off
const KeyTable DOMAIN_KEYS = {
  {"SETUP",                                Kind::Group,   REQUIRED},
  {D,                                      Kind::Group,   REQUIRED},
  {D + "/name",                            Kind::Text},
  {P,                                      Kind::Group,   REQUIRED},
};

const KeyTable MESH_KEYS = {
  {G,                                      Kind::Group,   REQUIRED},
  {G + "/MESH",                            Kind::Group},
  {G + "/MESH/file",                       Kind::Text,    REQUIRED},
  {G + "/RECTANGLE",                       Kind::Group},
  {G + "/RECTANGLE/origin",                Kind::Point},
  {G + "/RECTANGLE/length",                Kind::Number,  LENGTH},
  {G + "/RECTANGLE/width",                 Kind::Number,  LENGTH},
  {G + "/RECTANGLE/cells",                 Kind::Counts2, COUNT},
  {G + "/RECTANGLE/elevation",             Kind::Number},
  {G + "/RECTANGLE/slope",                 Kind::Number},
  {G + "/RECTANGLE/pattern",               Kind::Text,    PATTERN},
  {G + "/CHANNEL",                         Kind::Group},
  {G + "/CHANNEL/origin",                  Kind::Point},
  {G + "/CHANNEL/length",                  Kind::Number,  LENGTH},
  {G + "/CHANNEL/bed_width",               Kind::Number,  LENGTH},
  {G + "/CHANNEL/side_slope",              Kind::Number,  NOT_NEGATIVE},
  {G + "/CHANNEL/bank_height",             Kind::Number,  NOT_NEGATIVE},
  {G + "/CHANNEL/cells",                   Kind::Counts3, COUNT},
  {G + "/CHANNEL/elevation",               Kind::Number},
  {G + "/CHANNEL/slope",                   Kind::Number},
  {G + "/CHANNEL/pattern",                 Kind::Text,    PATTERN},
};

const KeyTable REGION_KEYS = {
  {G + "/REGIONDEF",                       Kind::Groups},
  {G + "/REGIONDEF[]/index",               Kind::Integer, REQUIRED},
  {G + "/REGIONDEF[]/name",                Kind::Text,    REQUIRED},
  {G + "/BED",                             Kind::Groups},
  {G + "/BED[]/region",                    Kind::Text},
  {G + "/BED[]/box",                       Kind::Box},
  {G + "/BED[]/elevation",                 Kind::Number},
  {G + "/BED[]/gradient",                  Kind::Point},
  {G + "/BED[]/at",                        Kind::Point},
  {G + "/BED[]/raise",                     Kind::Number},
};

const KeyTable HYDRAULICS_KEYS = {
  {H,                                      Kind::Group,   REQUIRED},
  {H + "/PARAMETER",                       Kind::Group},
  {H + "/PARAMETER/cfl",                   Kind::Number,  UP_TO_ONE},
  {H + "/PARAMETER/maximum_time_step",     Kind::Number,  POSITIVE},
  {H + "/PARAMETER/minimum_water_depth",   Kind::Number,  POSITIVE},
  {H + "/PARAMETER/gravity",               Kind::Number,  POSITIVE},
  {H + "/PARAMETER/safe_mode",             Kind::Flag},
  {H + "/INITIAL",                         Kind::Group},
  {H + "/INITIAL/water_level",             Kind::Level},
  {H + "/INITIAL/water_depth",             Kind::Number,  NOT_NEGATIVE},
  {H + "/INITIAL/velocity",                Kind::Point},
  {H + "/INITIAL/ZONES",                   Kind::Groups},
  {H + "/INITIAL/ZONES[]/region",          Kind::Text},
  {H + "/INITIAL/ZONES[]/box",             Kind::Box},
  {H + "/INITIAL/ZONES[]/water_level",     Kind::Level},
  {H + "/INITIAL/ZONES[]/water_depth",     Kind::Number,  NOT_NEGATIVE},
  {H + "/INITIAL/ZONES[]/velocity",        Kind::Point},
  {H + "/FLOOD",                           Kind::Group},
  {H + "/FLOOD/track",                     Kind::Text,    TRACK},
};
// clang-format on

KeyTable join(const std::vector<const KeyTable*>& parts) {
  KeyTable all;
  for (const KeyTable* part : parts) all.insert(all.end(), part->begin(), part->end());
  return all;
}

}  // namespace

const KeyTable& studyKeys() {
  static const KeyTable table =
      join({&DOMAIN_KEYS, &MESH_KEYS, &REGION_KEYS, &HYDRAULICS_KEYS, &riverKeys()});
  return table;
}

}  // namespace setup
