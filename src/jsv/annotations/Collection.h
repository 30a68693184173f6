// Collections that receive the annotations of a walk through a document.
//
// AnnotationCollection keeps all of them; FilteredAnnotationCollection<IssueFilter> keeps faults
// and warnings, for a check whose outcome is all that matters.
#pragma once

#include <cstddef>
#include <set>

#include "jsv/annotations/Annotation.h"

namespace jsv {

class AbstractAnnotationCollection {
 public:
  virtual ~AbstractAnnotationCollection() = default;
  virtual void addAnnotation(const JsonPointer& pointer, const Annotation& annotation) = 0;
};

/// Iterates by pointer, token by token as text, then by annotation; equal entries are kept once.
class AnnotationCollection : public AbstractAnnotationCollection {
 public:
  using value_type = LocatedAnnotation;
  using const_iterator = std::set<LocatedAnnotation>::const_iterator;

  void addAnnotation(const JsonPointer& pointer, const Annotation& annotation) override;

  const_iterator begin() const { return annotations_.begin(); }
  const_iterator end() const { return annotations_.end(); }
  bool empty() const { return annotations_.empty(); }
  std::size_t size() const { return annotations_.size(); }
  void clear() { annotations_.clear(); }

 private:
  std::set<LocatedAnnotation> annotations_;
};

/// Passes errors and warnings.
struct IssueFilter {
  static bool filter(const Annotation& annotation) {
    return annotationType(annotation) < AnnotationType::Info;
  }
};

/// Passes information.
struct InfoFilter {
  static bool filter(const Annotation& annotation) {
    return annotationType(annotation) == AnnotationType::Info;
  }
};

/// Keeps what `Filter::filter` passes and drops all else.
template <class Filter>
class FilteredAnnotationCollection : public AnnotationCollection {
 public:
  void addAnnotation(const JsonPointer& pointer, const Annotation& annotation) override {
    if (Filter::filter(annotation)) AnnotationCollection::addAnnotation(pointer, annotation);
  }
};

/// The number of annotations of one type.
std::size_t numberOf(AnnotationType type, const AnnotationCollection& collection);

}  // namespace jsv
