// Faults of studies that the schema finds.
#include <gtest/gtest.h>

#include "setup/studies.h"
#include "setup/study/document/study_report.h"

using nlohmann::json;
using studies::Report;
using studies::validate;

namespace {

using Pointer = json::json_pointer;

const std::string BOUNDARY = studies::HYDRAULICS + "/BOUNDARY";
const std::string BEDLOAD = studies::MORPHOLOGY + "/BEDLOAD";

}  // namespace

/// A change of the study with the rectangle, or of the one with the channel if the place is in one.
struct SchemaFault {
  std::string name;
  std::string place;
  std::string value;   ///< empty: the key is taken away
  std::string report;  ///< what is said; a place of its own stands before it if it is another one
};

class StudySchemaFaults : public ::testing::TestWithParam<SchemaFault> {};

TEST_P(StudySchemaFaults, AreReported) {
  const auto& [name, place, value, report] = GetParam();
  json study = place.find("CHANNEL") != std::string::npos ? studies::withChannel()
                                                          : studies::withRectangle();
  if (value.empty()) {
    const Pointer pointer(place);
    study.at(pointer.parent_pointer()).erase(pointer.back());
  } else {
    study[Pointer(place)] = json::parse(value);
  }
  const Report found = validate(study);
  EXPECT_EQ(found.verdict, 2);
  EXPECT_EQ(found.text, (report.starts_with('/') ? report : place + ": " + report) + "\n");
}

namespace {

const std::string& G = studies::GEOMETRY;
const std::string& H = studies::HYDRAULICS;
const std::string& I = studies::INITIAL;
const std::string& M = studies::MORPHOLOGY;
const std::string& L = BEDLOAD;
const std::string B = M + "/BEDMATERIAL";
const std::string MISSING = "This item is required but missing.";
const std::string POSITIVE = "This value must be greater than 0.000000.";
const std::string NOT_NEGATIVE = "This value must be greater than or equal to 0.000000.";
const std::string ONE_AT_LEAST = "This value must be greater than or equal to 1.000000.";
const std::string NO_REGION = "This value must match a 'name' in '" + G + "/REGIONDEF'.";
const std::string NO_STRING = "This value must match a 'name' in '" + G + "/STRINGDEF'.";
const std::string PATTERN =
    "This value must be equal to one of the following: 'alternating', 'crossed', 'diagonal'.";

}  // namespace

// clang-format off
INSTANTIATE_TEST_SUITE_P(All, StudySchemaFaults, ::testing::Values(
  SchemaFault{"noSetup",            "/SETUP",                         "",            MISSING},
  SchemaFault{"noDomain",           "/SETUP/DOMAIN",                  "",            MISSING},
  SchemaFault{"numericCrs",         "/SETUP/DOMAIN/crs",              "2056",        "This value must be a string."},
  SchemaFault{"noPlane",            "/SETUP/DOMAIN/RHEOPLANE_2D",     "",            MISSING},
  SchemaFault{"noGeometry",         G,                                "",            G + ": " + MISSING + "\n" +
                                                                                     BOUNDARY + "/0/string: " + NO_STRING + "\n" +
                                                                                     BOUNDARY + "/1/string: " + NO_STRING + "\n" +
                                                                                     BOUNDARY + "/2/string: " + NO_STRING + "\n" +
                                                                                     BOUNDARY + "/3/string: " + NO_STRING + "\n" +
                                                                                     BOUNDARY + "/3/to: " + NO_STRING + "\n" +
                                                                                     H + "/FRICTION/ZONES/0/region: " + NO_REGION + "\n" +
                                                                                     I + "/ZONES/0/region: " + NO_REGION + "\n" +
                                                                                     H + "/SOURCE/0/region: " + NO_REGION + "\n" +
                                                                                     H + "/SOURCE/1/region: " + NO_REGION + "\n" +
                                                                                     L + "/BOUNDARY/0/string: " + NO_STRING + "\n" +
                                                                                     L + "/BOUNDARY/1/string: " + NO_STRING + "\n" +
                                                                                     B + "/FIXED_BED/ZONES/0/region: " + NO_REGION + "\n" +
                                                                                     B + "/ZONES/0/region: " + NO_REGION + "\n" +
                                                                                     M + "/SOURCE/0/region: " + NO_REGION + "\n" +
                                                                                     M + "/SOURCE/1/region: " + NO_REGION},
  SchemaFault{"noHydraulics",       H,                                "",            MISSING},
  SchemaFault{"noMesh",             G + "/RECTANGLE",                 "",            G + ": One of the following items must be provided: 'CHANNEL', 'MESH', 'RECTANGLE'."},
  SchemaFault{"twoMeshes",          G + "/MESH",                      R"({"file": "m"})", G + ": Only one of the following two items is allowed: 'MESH', 'RECTANGLE'."},
  SchemaFault{"noFile",             G + "/MESH",                      "{}",          G + ": Only one of the following two items is allowed: 'MESH', 'RECTANGLE'.\n" +
                                                                                     G + "/MESH/file: " + MISSING},
  SchemaFault{"noLength",           G + "/RECTANGLE/length",          "",            MISSING},
  SchemaFault{"length",             G + "/RECTANGLE/length",          "0",           POSITIVE},
  SchemaFault{"noWidth",            G + "/RECTANGLE/width",           "",            MISSING},
  SchemaFault{"width",              G + "/RECTANGLE/width",           "-1",          POSITIVE},
  SchemaFault{"noCells",            G + "/RECTANGLE/cells",           "",            MISSING},
  SchemaFault{"noCell",             G + "/RECTANGLE/cells/1",         "0",           ONE_AT_LEAST},
  SchemaFault{"tooManyCells",       G + "/RECTANGLE/cells/0",         "25000001",    "This value must be less than or equal to 25000000.000000."},
  SchemaFault{"halfACell",          G + "/RECTANGLE/cells/0",         "2.5",         "This value must be an integer."},
  SchemaFault{"origin",             G + "/RECTANGLE/origin/0",        "\"0\"",       "This value must be a number."},
  SchemaFault{"pattern",            G + "/RECTANGLE/pattern",         "\"striped\"", PATTERN},
  SchemaFault{"noChannelLength",    G + "/CHANNEL/length",            "",            MISSING},
  SchemaFault{"channelLength",      G + "/CHANNEL/length",            "0",           POSITIVE},
  SchemaFault{"noBedWidth",         G + "/CHANNEL/bed_width",         "",            MISSING},
  SchemaFault{"bedWidth",           G + "/CHANNEL/bed_width",         "0",           POSITIVE},
  SchemaFault{"sideSlope",          G + "/CHANNEL/side_slope",        "-1",          NOT_NEGATIVE},
  SchemaFault{"bankHeight",         G + "/CHANNEL/bank_height",       "-1",          NOT_NEGATIVE},
  SchemaFault{"noChannelCells",     G + "/CHANNEL/cells",             "",            MISSING},
  SchemaFault{"noChannelCell",      G + "/CHANNEL/cells/2",           "0",           ONE_AT_LEAST},
  SchemaFault{"channelPattern",     G + "/CHANNEL/pattern",           "\"striped\"", PATTERN},
  SchemaFault{"noIndex",            G + "/REGIONDEF/0/index",         "",            MISSING},
  SchemaFault{"hugeIndex",          G + "/REGIONDEF/0/index",         "2147483648",  "This value must be less than or equal to 2147483647.000000."},
  SchemaFault{"lowIndex",           G + "/REGIONDEF/0/index",         "-2147483649", "This value must be greater than or equal to -2147483648.000000."},
  SchemaFault{"halfAnIndex",        G + "/REGIONDEF/0/index",         "1.0",         "This value must be an integer."},
  SchemaFault{"noRegion",           G + "/REGIONDEF/0",               "7",           G + "/BED/1/region: " + NO_REGION + "\n" +
                                                                                     G + "/REGIONDEF/0: This value must be an object.\n" +
                                                                                     I + "/ZONES/0/region: " + NO_REGION + "\n" +
                                                                                     H + "/SOURCE/0/region: " + NO_REGION + "\n" +
                                                                                     M + "/SOURCE/0/region: " + NO_REGION},
  SchemaFault{"noStringName",       G + "/STRINGDEF/5/name",          "",            MISSING},
  SchemaFault{"halfANode",          G + "/STRINGDEF/2/nodes/1",       "2.5",         "This value must be an integer."},
  SchemaFault{"hugeNode",           G + "/STRINGDEF/2/nodes/1",       "2147483648",  "This value must be less than or equal to 2147483647.000000."},
  SchemaFault{"from",               G + "/STRINGDEF/1/from/0",        "\"0\"",       "This value must be a number."},
  SchemaFault{"bedRegion",          G + "/BED/0/region",              "\"none\"",    NO_REGION},
  SchemaFault{"bedOfAnotherType",   G + "/BED/0/region",              "1",           G + "/BED/0/region: This value must be a string.\n" +
                                                                                     G + "/BED/0/region: " + NO_REGION},
  SchemaFault{"bedNothing",         G + "/BED/1/raise",               "",            G + "/BED/1: One of the following items must be provided: 'elevation', 'raise'."},
  SchemaFault{"bedBoth",            G + "/BED/0/raise",               "1",           G + "/BED/0: Only one of the following two items is allowed: 'elevation', 'raise'."},
  SchemaFault{"box",                G + "/BED/1/box/3",               "{}",          "This value must be a number."},
  SchemaFault{"gradient",           G + "/BED/0/gradient/0",          "null",        "This value must be a number."},
  SchemaFault{"at",                 G + "/BED/0/at/1",                "true",        "This value must be a number."},
  SchemaFault{"lowCfl",             H + "/PARAMETER/cfl",             "0",           POSITIVE},
  SchemaFault{"highCfl",            H + "/PARAMETER/cfl",             "1.5",         "This value must be less than or equal to 1.000000."},
  SchemaFault{"timeStep",           H + "/PARAMETER/maximum_time_step", "0",         POSITIVE},
  SchemaFault{"dryDepth",           H + "/PARAMETER/minimum_water_depth", "0",       POSITIVE},
  SchemaFault{"gravity",            H + "/PARAMETER/gravity",         "-9.81",       POSITIVE},
  SchemaFault{"depth",              I + "/water_depth",               "-1",          NOT_NEGATIVE},
  SchemaFault{"velocity",           I + "/velocity",                  "[1, \"a\"]",  I + "/velocity/1: This value must be a number."},
  SchemaFault{"zoneRegion",         I + "/ZONES/0/region",            "\"none\"",    NO_REGION},
  SchemaFault{"zoneNothing",        I + "/ZONES/0/water_level",       "",            I + "/ZONES/0: One of the following items must be provided: 'water_depth', 'water_level'."},
  SchemaFault{"zoneBoth",           I + "/ZONES/0/water_depth",       "1",           I + "/ZONES/0: Only one of the following two items is allowed: 'water_depth', 'water_level'."},
  SchemaFault{"zoneDepth",          I + "/ZONES/1/water_depth",       "-0.5",        NOT_NEGATIVE},
  SchemaFault{"zoneBox",            I + "/ZONES/1/box",               "4",           "This value must be an array."},
  SchemaFault{"zoneVelocity",       I + "/ZONES/0/velocity/0",        "\"1\"",       "This value must be a number."},
  SchemaFault{"noClosure",          H + "/FRICTION/type",             "",            MISSING},
  SchemaFault{"closure",            H + "/FRICTION/type",             "\"chezy\"",   "This value must be equal to one of the following: 'manning', 'sand_roughness', 'sand_roughness_shallow', 'strickler'."},
  SchemaFault{"noRoughness",        H + "/FRICTION/value",            "",            MISSING},
  SchemaFault{"roughness",          H + "/FRICTION/value",            "0",           POSITIVE},
  SchemaFault{"noZoneRoughness",    H + "/FRICTION/ZONES/0/value",    "",            MISSING},
  SchemaFault{"zoneRoughness",      H + "/FRICTION/ZONES/0/value",    "-1",          POSITIVE},
  SchemaFault{"frictionRegion",     H + "/FRICTION/ZONES/0/region",   "\"none\"",    NO_REGION},
  SchemaFault{"noString",           BOUNDARY + "/0/string",           "",            MISSING},
  SchemaFault{"string",             BOUNDARY + "/0/string",           "\"none\"",    NO_STRING},
  SchemaFault{"to",                 BOUNDARY + "/3/to",               "\"none\"",    NO_STRING},
  SchemaFault{"noBoundaryType",     BOUNDARY + "/0/type",             "",            MISSING},
  SchemaFault{"over",               BOUNDARY + "/1/over",             "\"days\"",    "This value must be equal to one of the following: 'depth', 'discharge', 'level', 'receiving_level', 'time'."},
  SchemaFault{"inflow",             BOUNDARY + "/0/discharge",        "-1",          NOT_NEGATIVE},
  SchemaFault{"slope",              BOUNDARY + "/0/slope",            "0",           POSITIVE},
  SchemaFault{"noSourceRegion",     H + "/SOURCE/0/region",           "",            MISSING},
  SchemaFault{"sourceRegion",       H + "/SOURCE/0/region",           "\"none\"",    NO_REGION},
  SchemaFault{"noSourceType",       H + "/SOURCE/0/type",             "",            MISSING},
  SchemaFault{"sourceType",         H + "/SOURCE/0/type",             "\"snow\"",    "This value must be equal to one of the following: 'discharge', 'rain'."},
  SchemaFault{"noRate",             H + "/SOURCE/0/intensity",        "",            H + "/SOURCE/0: One of the following items must be provided: 'discharge', 'discharge_file', 'intensity', 'intensity_file'."},
  SchemaFault{"twoRates",           H + "/SOURCE/0/intensity_file",   "\"r\"",       H + "/SOURCE/0: Only one of the following two items is allowed: 'intensity', 'intensity_file'."},
  SchemaFault{"sink",               H + "/SOURCE/0/sink",             "\"all\"",     "This value must be equal to one of the following: 'available', 'exact', 'infinity'."},
  SchemaFault{"noTrack",            H + "/FLOOD/track",               "",            MISSING},
  SchemaFault{"track",              H + "/FLOOD/track",               "\"some\"",    "This value must be equal to one of the following: 'all'."},
  SchemaFault{"noMaterial",         B,                                "",            MISSING},
  SchemaFault{"start",              M + "/PARAMETER/start",           "\"now\"",     "This value must be a number."},
  SchemaFault{"negativePores",      B + "/porosity",                  "-0.1",        NOT_NEGATIVE},
  SchemaFault{"onlyPores",          B + "/porosity",                  "1",           "This value must be less than 1.000000."},
  SchemaFault{"density",            B + "/density",                   "0",           POSITIVE},
  SchemaFault{"waterDensity",       B + "/water_density",             "0",           POSITIVE},
  SchemaFault{"grains",             B + "/grain_size",                "0",           POSITIVE},
  SchemaFault{"noZoneGrains",       B + "/ZONES/0/grain_size",        "",            MISSING},
  SchemaFault{"zoneGrains",         B + "/ZONES/0/grain_size",        "-1",          POSITIVE},
  SchemaFault{"grainRegion",        B + "/ZONES/0/region",            "\"none\"",    NO_REGION},
  SchemaFault{"noFixedZones",       B + "/FIXED_BED/ZONES",           "",            MISSING},
  SchemaFault{"accuracy",           B + "/FIXED_BED/accuracy",        "0",           POSITIVE},
  SchemaFault{"passes",             B + "/FIXED_BED/maximum_passes",  "0",           ONE_AT_LEAST},
  SchemaFault{"halfAPass",          B + "/FIXED_BED/maximum_passes",  "2.5",         "This value must be an integer."},
  SchemaFault{"fixedNothing",       B + "/FIXED_BED/ZONES/0/elevation", "",          B + "/FIXED_BED/ZONES/0: One of the following items must be provided: 'below_bed', 'elevation'."},
  SchemaFault{"fixedBoth",          B + "/FIXED_BED/ZONES/0/below_bed", "1",         B + "/FIXED_BED/ZONES/0: Only one of the following two items is allowed: 'below_bed', 'elevation'."},
  SchemaFault{"aboveBed",           B + "/FIXED_BED/ZONES/1/below_bed", "-1",        NOT_NEGATIVE},
  SchemaFault{"noBedload",          L,                                "",            MISSING},
  SchemaFault{"noFormula",          L + "/FORMULA",                   "",            MISSING},
  SchemaFault{"noFormulaType",      L + "/FORMULA/type",              "",            MISSING},
  SchemaFault{"coefficient",        L + "/FORMULA/coefficient",       "0",           POSITIVE},
  SchemaFault{"exponent",           L + "/FORMULA/exponent",          "0",           POSITIVE},
  SchemaFault{"criticalShields",    L + "/FORMULA/critical_shields",  "-1",          NOT_NEGATIVE},
  SchemaFault{"criticalVelocity",   L + "/FORMULA/critical_velocity", "-1",          NOT_NEGATIVE},
  SchemaFault{"chezy",              L + "/FORMULA/chezy",             "0",           POSITIVE},
  SchemaFault{"factor",             L + "/FORMULA/factor",            "0",           POSITIVE},
  SchemaFault{"noIkedaFactor",      L + "/DIRECTION/IKEDA",           "{}",          L + "/DIRECTION/IKEDA/factor: " + MISSING},
  SchemaFault{"ikedaFactor",        L + "/DIRECTION/IKEDA/factor",    "-1",          NOT_NEGATIVE},
  SchemaFault{"noCurvatureFactor",  L + "/DIRECTION/CURVATURE",       "{}",          L + "/DIRECTION/CURVATURE/factor: " + MISSING},
  SchemaFault{"curvatureFactor",    L + "/DIRECTION/CURVATURE/factor", "-1",         NOT_NEGATIVE},
  SchemaFault{"noBedString",        L + "/BOUNDARY/0/string",         "",            MISSING},
  SchemaFault{"bedString",          L + "/BOUNDARY/0/string",         "\"none\"",    NO_STRING},
  SchemaFault{"noBedType",          L + "/BOUNDARY/0/type",           "",            MISSING},
  SchemaFault{"bedOver",            L + "/BOUNDARY/0/over",           "\"receiving_level\"", "This value must be equal to one of the following: 'depth', 'discharge', 'level', 'time'."},
  SchemaFault{"bedInflow",          L + "/BOUNDARY/0/discharge",      "-1",          NOT_NEGATIVE},
  SchemaFault{"share",              L + "/BOUNDARY/0/share",          "-1",          NOT_NEGATIVE},
  SchemaFault{"noSlopeType",        M + "/INCIPIENT_MOTION/type",     "",            MISSING},
  SchemaFault{"slopeType",          M + "/INCIPIENT_MOTION/type",     "\"chen\"",    "This value must be equal to one of the following: 'chen_2010', 'van_rijn_1989'."},
  SchemaFault{"noRepose",           M + "/INCIPIENT_MOTION/angle_of_repose", "",     MISSING},
  SchemaFault{"flatRepose",         M + "/INCIPIENT_MOTION/angle_of_repose", "0",    POSITIVE},
  SchemaFault{"uprightRepose",      M + "/INCIPIENT_MOTION/angle_of_repose", "90",   "This value must be less than 90.000000."},
  SchemaFault{"noDumpRegion",       M + "/SOURCE/0/region",           "",            MISSING},
  SchemaFault{"dumpRegion",         M + "/SOURCE/0/region",           "\"none\"",    NO_REGION},
  SchemaFault{"dumpType",           M + "/SOURCE/0/type",             "\"rain\"",    "This value must be equal to one of the following: 'discharge', 'rise'."},
  SchemaFault{"noDumpRate",         M + "/SOURCE/0/rate",             "",            M + "/SOURCE/0: One of the following items must be provided: 'discharge', 'discharge_file', 'rate', 'rate_file'."},
  SchemaFault{"twoDumpRates",       M + "/SOURCE/0/rate_file",        "\"r\"",       M + "/SOURCE/0: Only one of the following two items is allowed: 'rate', 'rate_file'."},
  SchemaFault{"dumpSink",           M + "/SOURCE/0/sink",             "\"all\"",     "This value must be equal to one of the following: 'available', 'exact', 'infinity'."},
  SchemaFault{"noObject",           "",                               "[]",          "/: This value must be an object."}
), [](const ::testing::TestParamInfo<SchemaFault>& fault) { return fault.param.name; });
// clang-format on
