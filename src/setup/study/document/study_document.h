// Reads the JSON document of a study and checks it against its schema: what a user may write there.
//
//   const nlohmann::json document = readStudyDocument("study.json");
//   document.at("SETUP").at("DOMAIN")...   // all required keys are there, and no unknown ones
#pragma once

#include <nlohmann/json.hpp>
#include <string>

namespace setup {

/// Reports all that the schema finds to standard output, a line each, before it gives up. An
/// unknown key is no lesser fault than others, so that a misspelt one never leaves a default.
/// @throws BaseException for a file that cannot be read or is not JSON, a key that stands twice in
///         one group, any report of the schema, and groups, lists and texts that are empty.
nlohmann::json readStudyDocument(const std::string& file);

/// The schema in the language that docs/schema.md describes. Its frame stands in study_schema.cpp,
/// its large groups in geometry_schema.h, hydraulics_schema.h and morphology_schema.h.
const std::string& studySchema();

}  // namespace setup
