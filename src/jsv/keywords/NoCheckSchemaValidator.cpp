#include "jsv/keywords/NoCheckSchemaValidator.h"

namespace jsv {

ItemNames NoCheckSchemaValidator::check(const JsonPointer& /*jsonPointer*/,
                                        const JsonPointer& /*schemaPointer*/,
                                        AbstractAnnotationCollection& /*collection*/) const {
  return {};
}

}  // namespace jsv
