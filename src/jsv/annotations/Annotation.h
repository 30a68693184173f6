// What a validator has to say about one value of a document: a fault, a warning, or information
// for tools that help to write a document.
//
//   Annotation annotation = IncorrectType{JsonTypeClass::Number};
//   annotationType(annotation) == AnnotationType::Error
//
// The position of a type in the variant is the order in which annotations of one value are
// reported. The texts stand in AnnotationToMessage.
#pragma once

#include <absl/types/variant.h>

#include <array>
#include <compare>
#include <nlohmann/json.hpp>
#include <string>
#include <utility>

#include "jsv/annotations/JsonType.h"
#include "jsv/annotations/Pointer.h"
#include "jsv/annotations/SortableWrappedVector.h"

namespace jsv {

enum class AnnotationType { Error, Warning, Info };

enum class ExtremumType { Minimum, ExclusiveMinimum, Maximum, ExclusiveMaximum };

// clang-tidy 14 takes the 0 in generated comparisons for a null pointer.
// NOLINTBEGIN(modernize-use-nullptr)

/// The value is not the one string that is allowed.
struct ConstConstraintViolation {
  std::string expectedValue;
  auto operator<=>(const ConstConstraintViolation&) const = default;
};

/// The value is none of the strings that are allowed.
struct EnumConstraintViolation {
  SortableWrappedVector enumOptions;
  auto operator<=>(const EnumConstraintViolation&) const = default;
};

/// The object holds two items that exclude each other.
struct ExclusiveItemViolation {
  std::array<std::string, 2> items;
  auto operator<=>(const ExclusiveItemViolation&) const = default;
};

/// The number is on the wrong side of a bound.
template <ExtremumType TYPE>
struct ExtremumConstraintViolation {
  double extremum;
  auto operator<=>(const ExtremumConstraintViolation&) const = default;
};

/// The value is not of the class of types that is asked for.
struct IncorrectType {
  JsonTypeClass requiredType;
  auto operator<=>(const IncorrectType&) const = default;
};

/// The document lacks an item that it must hold; the pointer leads to where it should be.
struct MissingItem {
  auto operator<=>(const MissingItem&) const = default;
};

/// The object holds none of several items of which it must hold one.
struct MissingExclusiveItemsViolation {
  SortableWrappedVector items;
  auto operator<=>(const MissingExclusiveItemsViolation&) const = default;
};

/// The value names nothing of an array elsewhere in the document: no item of the array at
/// `pointer` has it as its `name`.
struct RequiredInViolation {
  std::string pointer;
  std::string name;
  auto operator<=>(const RequiredInViolation&) const = default;
};

/// No schema knows the item, so that nobody will read it.
struct UnusedItem {
  auto operator<=>(const UnusedItem&) const = default;
};

/// No value at all is allowed here.
struct InvalidItem {
  auto operator<=>(const InvalidItem&) const = default;
};

/// The class of types that the value should have.
struct RequiredTypeAnnotation {
  JsonTypeClass requiredType;
  auto operator<=>(const RequiredTypeAnnotation&) const = default;
};

/// The strings that the value may be.
struct EnumRequiredAnnotation {
  SortableWrappedVector enumOptions;
  auto operator<=>(const EnumRequiredAnnotation&) const = default;
};

/// The item may be left out.
struct OptionalItemAnnotation {
  auto operator<=>(const OptionalItemAnnotation&) const = default;
};

/// The string is a URI.
struct StringIsURIAnnotation {
  auto operator<=>(const StringIsURIAnnotation&) const = default;
};

/// What the value means, in words for users.
struct DescriptionAnnotation {
  std::string description;
  auto operator<=>(const DescriptionAnnotation&) const = default;
};

/// The string or number that a reader takes when the item is left out.
struct DefaultValueAnnotation {
  nlohmann::json defaultValue;
  auto operator<=>(const DefaultValueAnnotation&) const = default;
};

/// A name that could be added to the object.
struct ValidAdditionalKeyAnnotation {
  std::string key;
  auto operator<=>(const ValidAdditionalKeyAnnotation&) const = default;
};

// NOLINTEND(modernize-use-nullptr)

// clang-format off
using Annotation = absl::variant<
    ConstConstraintViolation,                                      //  0
    EnumConstraintViolation,                                       //  1
    ExclusiveItemViolation,                                        //  2
    ExtremumConstraintViolation<ExtremumType::Minimum>,            //  3
    ExtremumConstraintViolation<ExtremumType::ExclusiveMinimum>,   //  4
    ExtremumConstraintViolation<ExtremumType::Maximum>,            //  5
    ExtremumConstraintViolation<ExtremumType::ExclusiveMaximum>,   //  6
    IncorrectType,                                                 //  7
    MissingItem,                                                   //  8
    MissingExclusiveItemsViolation,                                //  9
    RequiredInViolation,                                           // 10
    UnusedItem,                                                    // 11
    InvalidItem,                                                   // 12
    RequiredTypeAnnotation,                                        // 13
    EnumRequiredAnnotation,                                        // 14
    OptionalItemAnnotation,                                        // 15
    StringIsURIAnnotation,                                         // 16
    DescriptionAnnotation,                                         // 17
    DefaultValueAnnotation,                                        // 18
    ValidAdditionalKeyAnnotation>;                                 // 19
// clang-format on

/// An annotation and the value of the document that it is about.
using LocatedAnnotation = std::pair<JsonPointer, Annotation>;

/// UnusedItem is the only warning; what follows InvalidItem is information.
AnnotationType annotationType(const Annotation& annotation);

}  // namespace jsv
