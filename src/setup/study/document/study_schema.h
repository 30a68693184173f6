// The schema of a study document: what a user may write there.
//
// The frame stands in study_schema.cpp, its large groups in geometry_schema.h, hydraulics_schema.h
// and morphology_schema.h.
#pragma once

#include <string>

namespace setup {

/// A JSON document in the language that docs/schema.md describes.
const std::string& studySchema();

}  // namespace setup
