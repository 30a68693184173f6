// The texts in which annotations are reported to users.
//
// One converter for the words, one that puts the place before them, one for the whole report.
// Information has no words: it is for tools that read the collection.
#pragma once

#include <string>

#include "jsv/annotations/Annotation.h"
#include "jsv/annotations/Collection.h"

namespace jsv {

class DefaultAnnotationToMessageConverter {
 public:
  /// One sentence, "This item is required but missing." for instance; empty for information.
  static std::string toMessage(const Annotation& annotation);
};

class DefaultLocatedAnnotationToMessageConverter {
 public:
  /// Pointer, ": " and sentence, "/SIMULATION/TIME: This item is required but missing." for
  /// instance; the root pointer is "/". Empty for information.
  static std::string toMessage(const LocatedAnnotation& located);
};

class DefaultAnnotationCollectionToMessageConverter {
 public:
  /// One line per fault and warning, in the order of the collection, without a line end behind
  /// the last.
  static std::string toMessage(const AnnotationCollection& collection);
};

}  // namespace jsv
