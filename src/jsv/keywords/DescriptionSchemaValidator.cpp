#include "jsv/keywords/DescriptionSchemaValidator.h"

namespace jsv {

ItemNames DescriptionSchemaValidator::check(const JsonPointer& jsonPointer,
                                            const JsonPointer& schemaPointer,
                                            AbstractAnnotationCollection& collection) const {
  collection.addAnnotation(jsonPointer, DescriptionAnnotation{schemaString(schemaPointer)});
  return {};
}

}  // namespace jsv
