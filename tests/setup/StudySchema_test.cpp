#include "setup/StudySchema.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <set>
#include <sstream>

#include "jsv/StreamValidator.h"
#include "model/catalogue/Aggregates.h"
#include "setup/Study.h"
#include "setup/studies.h"
#include "support/Process.h"

using nlohmann::json;
using ::testing::HasSubstr;

namespace {

using Pointer = json::json_pointer;

const std::string BOUNDARY = studies::HYDRAULICS + "/BOUNDARY";

struct Report {
  int verdict = 0;
  std::string text;
};

Report validate(const json& document) {
  std::istringstream documentStream(document.dump());
  std::istringstream schemaStream(setup::studySchema());
  std::ostringstream output;
  const int verdict = jsv::StreamValidator(&output).validate(documentStream, schemaStream);
  return {verdict, output.str()};
}

/// Calls `visit` for the schema of each key; keys of groups in a list stand behind the list.
void forEachKey(const json& schema, const std::string& path,
                const std::function<void(const std::string&, const json&, bool)>& visit) {
  if (schema.contains("items")) forEachKey(schema.at("items"), path, visit);
  if (!schema.contains("properties")) return;
  const json required = schema.value("required", json::array());
  for (const auto& [name, inner] : schema.at("properties").items()) {
    const bool isRequired = std::find(required.begin(), required.end(), name) != required.end();
    visit(path + "/" + name, inner, isRequired);
    forEachKey(inner, path + "/" + name, visit);
  }
}

void forEachKey(const std::function<void(const std::string&, const json&, bool)>& visit) {
  forEachKey(json::parse(setup::studySchema()), "", visit);
}

std::set<std::string> keysOfTheSchema() {
  std::set<std::string> keys;
  forEachKey([&](const std::string& path, const json&, bool) { keys.insert(path); });
  return keys;
}

/// Calls `visit` for each value below `value`, with its place and its key as the schema has it.
void forEachValue(
    const json& value, const Pointer& place, const std::string& key,
    const std::function<void(const json&, const Pointer&, const std::string&)>& visit) {
  if (!value.is_structured()) return;
  for (const auto& [name, inner] : value.items()) {
    const std::string innerKey = value.is_array() ? key : key + "/" + name;
    visit(inner, place / name, innerKey);
    forEachValue(inner, place / name, innerKey, visit);
  }
}

/// What a table of the page says of a key, empty for keys that only have a heading.
using Page = std::map<std::string, std::string>;

std::string between(const std::string& text, const std::string& begin, const std::string& end) {
  const std::size_t start = text.find(begin);
  const std::size_t stop = text.find(end, start + begin.size());
  if (start == std::string::npos || stop == std::string::npos) return "";
  return text.substr(start + begin.size(), stop - start - begin.size());
}

std::vector<std::string> split(const std::string& text, const std::string& separator) {
  std::vector<std::string> parts;
  std::size_t start = 0;
  for (std::size_t stop = text.find(separator); stop != std::string::npos;
       stop = text.find(separator, start)) {
    parts.push_back(text.substr(start, stop - start));
    start = stop + separator.size();
  }
  parts.push_back(text.substr(start));
  return parts;
}

void addHeading(Page& page, const std::string& path) {
  for (std::size_t slash = path.find('/', 1); slash != std::string::npos;
       slash = path.find('/', slash + 1)) {
    page.emplace(path.substr(0, slash), "");
  }
  page.emplace(path, "");
}

/// The keys of docs/setup.md: headings, and the tables below them.
Page readPage() {
  Page page;
  std::string chapter;
  std::string group;
  bool isTableOfKeys = false;
  for (const std::string& line :
       split(support::readFile(std::string(DOCS_FOLDER) + "/setup.md"), "\n")) {
    if (!line.starts_with("|")) isTableOfKeys = false;
    if (line.starts_with("| Key | ")) isTableOfKeys = true;
    if (line.starts_with("## ")) {
      const std::string path = between(line, "`", "`");
      chapter = path.empty() ? "" : "/" + path;
      group = chapter;
      if (!group.empty()) addHeading(page, group);
    } else if (line.starts_with("### ") && !chapter.empty()) {
      group = chapter + "/" + between(line, "`", "`");
      addHeading(page, group);
    } else if (line.starts_with("| `") && isTableOfKeys && !group.empty()) {
      const std::vector<std::string> cells = split(line, " | ");
      for (const std::string& name : split(cells.at(0).substr(2), ", ")) {
        page[group + "/" + between(name, "`", "`")] = cells.at(2);
      }
    }
  }
  return page;
}

json withoutBackticks(const std::string& cell) {
  return json::parse(cell.starts_with('`') ? between(cell, "`", "`") : cell);
}

}  // namespace

TEST(StudySchema, completeStudiesAreClean) {
  for (const json& study : studies::all()) {
    const Report report = validate(study);
    EXPECT_EQ(report.verdict, 0);
    EXPECT_EQ(report.text, "");
  }
}

TEST(StudySchema, theExampleIsClean) {
  const Report report = validate(
      json::parse(support::readFile(std::string(EXAMPLES_FOLDER) + "/dam_break/study.json")));
  EXPECT_EQ(report.verdict, 0);
  EXPECT_EQ(report.text, "");
}

TEST(StudySchema, hasNoKeyThatTheStudiesOfTheTestsLack) {
  std::set<std::string> keys;
  for (const json& study : studies::all()) {
    forEachValue(study, Pointer(), "",
                 [&](const json&, const Pointer&, const std::string& key) { keys.insert(key); });
  }
  EXPECT_EQ(keys, keysOfTheSchema());
}

TEST(StudySchema, describesEachKey) {
  forEachKey([](const std::string& path, const json& schema, bool) {
    EXPECT_FALSE(schema.value("description", "").empty()) << path;
  });
}

TEST(StudySchema, anUnknownKeyIsReportedAtEachLevel) {
  for (const json& study : studies::all()) {
    const auto check = [&study](const json& value, const Pointer& place, const std::string&) {
      if (!value.is_object()) return;
      json changed = study;
      changed[place / "oops"] = 1;
      const Report report = validate(changed);
      EXPECT_EQ(report.verdict, 1);
      EXPECT_EQ(report.text,
                (place / "oops").to_string() + ": The value of this item will not be used.\n");
    };
    check(study, Pointer(), "");
    forEachValue(study, Pointer(), "", check);
  }
}

TEST(StudySchema, aValueOfAnotherTypeIsReportedForEachKey) {
  std::map<std::string, std::string> types;
  forEachKey([&types](const std::string& path, const json& schema, bool) {
    types[path] = schema.value("type", "");
  });
  for (const json& study : studies::all()) {
    forEachValue(
        study, Pointer(), "", [&](const json&, const Pointer& place, const std::string& key) {
          const std::string type = types.at(key);
          if (type.empty() || place.back().find_first_not_of("0123456789") == std::string::npos)
            return;
          json changed = study;
          changed[place] = true;
          const Report report = validate(changed);
          EXPECT_EQ(report.verdict, 2);
          const std::string article = type.find_first_of("aio") == 0 ? "an " : "a ";
          EXPECT_THAT("\n" + report.text,
                      HasSubstr("\n" + place.to_string() + ": This value must be " + article +
                                type + ".\n"));
        });
  }
}

TEST(StudySchema, holdsThePathsOfTheAggregatesThatAStudyCanSelect) {
  using enum model::AggregateID;
  const std::set<std::string> keys = keysOfTheSchema();
  for (const auto id :
       {hydraulics_aggr, hyd_boundary_aggr, hyd_friction_aggr, hyd_source_aggr, hyd_flood_aggr}) {
    for (const std::string& path : model::Aggregate2CmdFilePaths.at(id)) {
      EXPECT_EQ(keys.count("/" + path), 1U) << path;
    }
  }
}

TEST(StudySchema, tellsTheDefaultsOfTheProgram) {
  std::map<std::string, json> defaults;
  forEachKey([&defaults](const std::string& path, const json& schema, bool) {
    if (schema.contains("default")) defaults[path] = schema.at("default");
  });
  const setup::HydraulicParameters flow;
  const setup::RectangleMesh rectangle;
  const setup::ChannelMesh channel;
  const std::string parameter = studies::HYDRAULICS + "/PARAMETER/";
  std::map<std::string, json> expected = {
      {parameter + "cfl", flow.cfl},
      {parameter + "maximum_time_step", flow.maximumTimeStep},
      {parameter + "minimum_water_depth", flow.minimumWaterDepth},
      {parameter + "gravity", flow.gravity},
      {studies::GEOMETRY + "/RECTANGLE/elevation", rectangle.elevation},
      {studies::GEOMETRY + "/RECTANGLE/slope", rectangle.slope},
      {studies::GEOMETRY + "/RECTANGLE/pattern", "alternating"},
      {studies::GEOMETRY + "/CHANNEL/side_slope", channel.sideSlope},
      {studies::GEOMETRY + "/CHANNEL/bank_height", channel.bankHeight},
      {studies::GEOMETRY + "/CHANNEL/elevation", channel.elevation},
      {studies::GEOMETRY + "/CHANNEL/slope", channel.slope},
      {studies::GEOMETRY + "/CHANNEL/pattern", "alternating"},
      {studies::INITIAL + "/water_level", "dry"},
      {studies::HYDRAULICS + "/SOURCE/sink", setup::sinkNames().at(1)},
  };
  for (const setup::BoundaryType& type : setup::boundaryTypes()) {
    for (const setup::Input& input : type.inputs) {
      const bool isTold = input.takes != setup::Takes::Flag && input.key != "lower_level";
      if (input.fallback && isTold) expected[BOUNDARY + "/" + input.key] = *input.fallback;
    }
  }
  EXPECT_EQ(defaults, expected);
}

TEST(StudySchema, namesTheTypesOfTheProgram) {
  std::map<std::string, std::set<std::string>> choices;
  forEachKey([&choices](const std::string& path, const json& schema, bool) {
    if (schema.contains("enum")) choices[path] = schema.at("enum").get<std::set<std::string>>();
  });
  std::map<std::string, std::set<std::string>> expected;
  for (const auto& closure : setup::frictionClosures()) {
    expected["/FRICTION/type"].insert(closure.name);
  }
  for (const auto& type : setup::boundaryTypes()) {
    expected["/BOUNDARY/type"].insert(type.name);
    for (const auto lookup : type.lookups) expected["/BOUNDARY/over"].insert(nameOf(lookup));
  }
  for (const auto& type : setup::sourceTypes()) expected["/SOURCE/type"].insert(type.name);
  for (const auto& name : setup::sinkNames()) expected["/SOURCE/sink"].insert(name);
  for (const auto& [key, names] : expected) {
    EXPECT_EQ(choices.at(studies::HYDRAULICS + key), names) << key;
  }
}

TEST(StudySchema, boundsTheInputsOfBoundariesAsTheirTableDoes) {
  std::map<std::string, json> schemas;
  forEachKey(
      [&schemas](const std::string& path, const json& schema, bool) { schemas[path] = schema; });
  for (const setup::BoundaryType& type : setup::boundaryTypes()) {
    for (const setup::Input& input : type.inputs) {
      const std::string key = BOUNDARY + "/" + input.key;
      if (input.takes == setup::Takes::Series || input.takes == setup::Takes::SeriesToo) {
        EXPECT_EQ(schemas.count(key + "_file"), 1U) << type.name << ": " << key;
      }
      if (input.takes == setup::Takes::Series) continue;
      ASSERT_EQ(schemas.count(key), 1U) << type.name << ": " << key;
      const json& schema = schemas.at(key);
      EXPECT_EQ(schema.value("minimum", -1), input.bound == setup::Bound::Any ? -1 : 0) << key;
      EXPECT_EQ(schema.value("exclusiveMinimum", false), input.bound == setup::Bound::Positive)
          << key;
    }
  }
}

TEST(StudySchema, eachKeyIsOnThePageAndEachKeyOfThePageIsInTheSchema) {
  std::set<std::string> keys;
  for (const auto& [path, cell] : readPage()) keys.insert(path);
  EXPECT_EQ(keys, keysOfTheSchema());
}

TEST(StudySchema, thePageTellsWhatIsRequiredAndTheDefaults) {
  const Page page = readPage();
  forEachKey([&page](const std::string& path, const json& schema, bool isRequired) {
    const auto entry = page.find(path);
    if (entry == page.end() || schema.contains("properties")) return;
    EXPECT_EQ(entry->second == "required", isRequired) << path;
    if (schema.contains("default")) {
      EXPECT_EQ(withoutBackticks(entry->second), schema.at("default")) << path;
    }
  });
}

/// A change of the study with the rectangle, or of the one with the channel if the place is in one.
struct SchemaFault {
  std::string name;
  std::string place;
  std::string value;   ///< empty: the key is taken away
  std::string report;  ///< what is said; a place of its own stands before it if it is another one
};

class StudySchemaFaults : public ::testing::TestWithParam<SchemaFault> {};

TEST_P(StudySchemaFaults, areReported) {
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
                                                                                     H + "/SOURCE/1/region: " + NO_REGION},
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
                                                                                     H + "/SOURCE/0/region: " + NO_REGION},
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
  SchemaFault{"noObject",           "",                               "[]",          "/: This value must be an object."}
), [](const ::testing::TestParamInfo<SchemaFault>& fault) { return fault.param.name; });
// clang-format on
