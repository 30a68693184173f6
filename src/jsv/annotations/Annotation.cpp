#include "jsv/annotations/Annotation.h"

#include <cstddef>
#include <type_traits>

namespace jsv {
namespace {

constexpr std::size_t UNUSED_ITEM = 11;
constexpr std::size_t LAST_ISSUE = 12;

static_assert(std::is_same_v<absl::variant_alternative_t<UNUSED_ITEM, Annotation>, UnusedItem>);
static_assert(std::is_same_v<absl::variant_alternative_t<LAST_ISSUE, Annotation>, InvalidItem>);

}  // namespace

AnnotationType annotationType(const Annotation& annotation) {
  if (annotation.index() == UNUSED_ITEM) return AnnotationType::Warning;
  return annotation.index() <= LAST_ISSUE ? AnnotationType::Error : AnnotationType::Info;
}

}  // namespace jsv
