// The schema of a study document: what a user may write there.
//
// The frame stands in StudySchema.cpp, its two large groups in geometrySchema.h and
// hydraulicsSchema.h.
#pragma once

#include <string>

namespace setup {

/// A JSON document in the language that docs/schema.md describes.
const std::string& studySchema();

}  // namespace setup
