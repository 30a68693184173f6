#include "setup/study/document/study_document.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <set>

#include "catalogue/Aggregates.h"
#include "setup/studies.h"
#include "setup/study/Study.h"
#include "setup/study/boundary_types.h"
#include "setup/study/document/study_report.h"
#include "support/Process.h"

using nlohmann::json;
using studies::Report;
using studies::validate;
using ::testing::HasSubstr;

namespace {

using Pointer = json::json_pointer;

const std::string BOUNDARY = studies::HYDRAULICS + "/BOUNDARY";
const std::string BEDLOAD = studies::MORPHOLOGY + "/BEDLOAD";

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

/// The tables of boundaries by the place of their list in a study.
std::map<std::string, const std::vector<setup::BoundaryType>*> tables() {
  return {{BOUNDARY, &setup::boundaryTypes()}, {BEDLOAD + "/BOUNDARY", &setup::bedBoundaryTypes()}};
}

json withoutBackticks(const std::string& cell) {
  return json::parse(cell.starts_with('`') ? between(cell, "`", "`") : cell);
}

}  // namespace

TEST(StudySchema, CompleteStudiesAreClean) {
  for (const json& study : studies::all()) {
    const Report report = validate(study);
    EXPECT_EQ(report.verdict, 0);
    EXPECT_EQ(report.text, "");
  }
}

TEST(StudySchema, TheExampleIsClean) {
  const Report report = validate(
      json::parse(support::readFile(std::string(EXAMPLES_FOLDER) + "/dam_break/study.json")));
  EXPECT_EQ(report.verdict, 0);
  EXPECT_EQ(report.text, "");
}

TEST(StudySchema, HasNoKeyThatTheStudiesOfTheTestsLack) {
  std::set<std::string> keys;
  for (const json& study : studies::all()) {
    forEachValue(study, Pointer(), "",
                 [&](const json&, const Pointer&, const std::string& key) { keys.insert(key); });
  }
  EXPECT_EQ(keys, keysOfTheSchema());
}

TEST(StudySchema, DescribesEachKey) {
  forEachKey([](const std::string& path, const json& schema, bool) {
    EXPECT_FALSE(schema.value("description", "").empty()) << path;
  });
}

TEST(StudySchema, AnUnknownKeyIsReportedAtEachLevel) {
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

TEST(StudySchema, AValueOfAnotherTypeIsReportedForEachKey) {
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

TEST(StudySchema, HoldsThePathsOfAllAggregates) {
  const std::set<std::string> keys = keysOfTheSchema();
  for (const auto& [id, paths] : model::Aggregate2CmdFilePaths) {
    for (const std::string& path : paths) EXPECT_EQ(keys.count("/" + path), 1U) << path;
  }
}

TEST(StudySchema, TellsTheDefaultsOfTheProgram) {
  std::map<std::string, json> defaults;
  forEachKey([&defaults](const std::string& path, const json& schema, bool) {
    if (schema.contains("default")) defaults[path] = schema.at("default");
  });
  const setup::HydraulicParameters flow;
  const setup::RectangleMesh rectangle;
  const setup::ChannelMesh channel;
  const setup::BedMaterial material;
  const setup::FixedBed fixed;
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
      {studies::MORPHOLOGY + "/SOURCE/sink", setup::sinkNames().at(1)},
      {studies::MORPHOLOGY + "/PARAMETER/start", setup::Morphology().start},
      {studies::MORPHOLOGY + "/BEDMATERIAL/porosity", material.porosity},
      {studies::MORPHOLOGY + "/BEDMATERIAL/density", material.density},
      {studies::MORPHOLOGY + "/BEDMATERIAL/water_density", material.waterDensity},
      {studies::MORPHOLOGY + "/BEDMATERIAL/FIXED_BED/accuracy", fixed.accuracy},
      {studies::MORPHOLOGY + "/BEDMATERIAL/FIXED_BED/maximum_passes", fixed.maximumPasses},
      {BEDLOAD + "/FORMULA/factor", setup::Bedload().factor},
  };
  for (const auto& [path, types] : tables()) {
    for (const setup::BoundaryType& type : *types) {
      for (const setup::Input& input : type.inputs) {
        const bool isTold = input.takes != setup::Takes::Flag &&
                            input.takes != setup::Takes::Nothing && input.key != "lower_level";
        if (input.fallback && isTold) expected[path + "/" + input.key] = *input.fallback;
      }
    }
  }
  EXPECT_EQ(defaults, expected);
}

TEST(StudySchema, NamesTheTypesOfTheProgram) {
  std::map<std::string, std::set<std::string>> choices;
  forEachKey([&choices](const std::string& path, const json& schema, bool) {
    if (schema.contains("enum")) choices[path] = schema.at("enum").get<std::set<std::string>>();
  });
  std::map<std::string, std::set<std::string>> expected;
  const std::string& hydraulics = studies::HYDRAULICS;
  const std::string& morphology = studies::MORPHOLOGY;
  for (const auto& closure : setup::frictionClosures()) {
    expected[hydraulics + "/FRICTION/type"].insert(closure.name);
  }
  for (const auto& [path, types] : tables()) {
    for (const auto& type : *types) {
      expected[path + "/type"].insert(type.name);
      for (const auto lookup : type.lookups) expected[path + "/over"].insert(nameOf(lookup));
    }
  }
  for (const auto& type : setup::sourceTypes()) {
    expected[hydraulics + "/SOURCE/type"].insert(type.name);
  }
  for (const auto& type : setup::bedSourceTypes()) {
    expected[morphology + "/SOURCE/type"].insert(type.name);
  }
  for (const auto& name : setup::sinkNames()) {
    expected[hydraulics + "/SOURCE/sink"].insert(name);
    expected[morphology + "/SOURCE/sink"].insert(name);
  }
  for (const auto& formula : setup::bedloadFormulas()) {
    expected[BEDLOAD + "/FORMULA/type"].insert(formula.name);
  }
  for (const auto& correction : setup::slopeCorrections()) {
    expected[morphology + "/INCIPIENT_MOTION/type"].insert(correction.name);
  }
  for (const auto& [key, names] : expected) EXPECT_EQ(choices.at(key), names) << key;
}

TEST(StudySchema, BoundsTheInputsOfBoundariesAsTheirTableDoes) {
  std::map<std::string, json> schemas;
  forEachKey(
      [&schemas](const std::string& path, const json& schema, bool) { schemas[path] = schema; });
  const auto check = [&schemas](const std::string& key, const setup::Input& input) {
    if (input.takes == setup::Takes::Nothing) return;
    if (input.takes == setup::Takes::Series || input.takes == setup::Takes::SeriesToo) {
      EXPECT_EQ(schemas.count(key + "_file"), 1U) << key;
    }
    if (input.takes == setup::Takes::Series) return;
    ASSERT_EQ(schemas.count(key), 1U) << key;
    const json& schema = schemas.at(key);
    EXPECT_EQ(schema.value("minimum", -1), input.bound == setup::Bound::Any ? -1 : 0) << key;
    EXPECT_EQ(schema.value("exclusiveMinimum", false), input.bound == setup::Bound::Positive)
        << key;
  };
  for (const auto& [path, types] : tables()) {
    for (const setup::BoundaryType& type : *types) {
      for (const setup::Input& input : type.inputs) check(path + "/" + input.key, input);
    }
  }
}

TEST(StudySchema, EachKeyIsOnThePageAndEachKeyOfThePageIsInTheSchema) {
  std::set<std::string> keys;
  for (const auto& [path, cell] : readPage()) keys.insert(path);
  EXPECT_EQ(keys, keysOfTheSchema());
}

TEST(StudySchema, ThePageTellsWhatIsRequiredAndTheDefaults) {
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
