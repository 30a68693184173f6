#include "jsv/annotations/Collection.h"

#include <algorithm>

namespace jsv {

void AnnotationCollection::addAnnotation(const JsonPointer& pointer, const Annotation& annotation) {
  annotations_.emplace(pointer, annotation);
}

std::size_t numberOf(AnnotationType type, const AnnotationCollection& collection) {
  const auto number = std::count_if(
      collection.begin(), collection.end(),
      [type](const LocatedAnnotation& located) { return annotationType(located.second) == type; });
  return static_cast<std::size_t>(number);
}

}  // namespace jsv
