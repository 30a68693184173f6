#include "setup/studyKeys.h"

namespace setup {

const KeyTable& studyKeys() {
  static const std::string D = "SETUP/DOMAIN";
  static const std::string P = D + "/RHEOPLANE_2D";
  static const std::string G = P + "/GEOMETRY";
  static const std::string H = P + "/HYDRAULICS";
  static const KeyRules REQUIRED = {.required = true};
  static const KeyRules LENGTH = {.required = true, .range = Range::Positive};
  static const KeyRules COUNT = {.required = true, .range = Range::Positive};
  static const KeyRules POSITIVE = {.range = Range::Positive};
  static const KeyRules NOT_NEGATIVE = {.range = Range::NotNegative};
  static const KeyRules PATTERN = {.choices = {"diagonal", "alternating", "crossed"}};

  // clang-format off
  static const KeyTable table = {
    {"SETUP",                                Kind::Group,   REQUIRED},
    {D,                                      Kind::Group,   REQUIRED},
    {D + "/name",                            Kind::Text},
    {P,                                      Kind::Group,   REQUIRED},

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

    {H,                                      Kind::Group,   REQUIRED},
    {H + "/PARAMETER",                       Kind::Group},
    {H + "/PARAMETER/cfl",                   Kind::Number,  {.range = Range::UpToOne}},
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
    {H + "/FLOOD/track",                     Kind::Text,    {.required = true, .choices = {"all"}}},
  };
  // clang-format on
  return table;
}

}  // namespace setup
