// The schema of a study document: what a user may write there.
//
// The frame stands in StudySchema.cpp, its large groups in geometrySchema.h, hydraulicsSchema.h and
// morphologySchema.h.
#pragma once

#include <string>

namespace setup {

/// A JSON document in the language that docs/schema.md describes.
const std::string& studySchema();

}  // namespace setup
