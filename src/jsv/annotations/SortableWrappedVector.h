// A sorted list of strings with an order among such lists.
//
// Annotations that offer a choice carry one, so that they compare in an ordered collection and list
// their options in a stable order. Copies share the strings: a long list costs no more than a
// short one when it goes into thousands of annotations.
#pragma once

#include <compare>
#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace jsv {

class SortableWrappedVector {
 public:
  using value_type = std::string;
  using const_iterator = std::vector<std::string>::const_iterator;

  /// Takes over `sorted`, which must be in ascending order; see makeSortable.
  explicit SortableWrappedVector(std::vector<std::string> sorted);

  const_iterator begin() const { return values_->begin(); }
  const_iterator end() const { return values_->end(); }
  bool empty() const { return values_->empty(); }
  std::size_t size() const { return values_->size(); }

  /// Whether `value` is in the list; logarithmic in its size.
  bool contains(const std::string& value) const;

  friend bool operator==(const SortableWrappedVector& a, const SortableWrappedVector& b) {
    return *a.values_ == *b.values_;
  }
  friend std::strong_ordering operator<=>(const SortableWrappedVector& a,
                                          const SortableWrappedVector& b) {
    return *a.values_ <=> *b.values_;
  }

 private:
  std::shared_ptr<const std::vector<std::string>> values_;
};

/// The sorted copy of a list; equal strings are all kept.
SortableWrappedVector makeSortable(std::vector<std::string> values);

}  // namespace jsv
