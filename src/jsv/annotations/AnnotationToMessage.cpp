#include "jsv/annotations/AnnotationToMessage.h"

namespace jsv {
namespace {

std::string withItems(std::string text, const SortableWrappedVector& items) {
  for (const auto& item : items) text += " '" + item + "',";
  text.back() = '.';
  return text;
}

std::string typeWord(JsonTypeClass typeClass) {
  switch (typeClass) {
    case JsonTypeClass::Integer:
      return "an integer";
    case JsonTypeClass::Number:
      return "a number";
    case JsonTypeClass::String:
      return "a string";
    case JsonTypeClass::Object:
      return "an object";
    case JsonTypeClass::Array:
      return "an array";
    case JsonTypeClass::Unknown:
      break;
  }
  return "of a different type";
}

std::string bound(ExtremumType type) {
  switch (type) {
    case ExtremumType::Minimum:
      return "greater than or equal to ";
    case ExtremumType::ExclusiveMinimum:
      return "greater than ";
    case ExtremumType::Maximum:
      return "less than or equal to ";
    case ExtremumType::ExclusiveMaximum:
      break;
  }
  return "less than ";
}

struct MessageOf {
  std::string operator()(const ConstConstraintViolation& violation) const {
    return "This value must be equal to '" + violation.expectedValue + "'.";
  }
  std::string operator()(const EnumConstraintViolation& violation) const {
    return withItems("This value must be equal to one of the following:", violation.enumOptions);
  }
  std::string operator()(const ExclusiveItemViolation& violation) const {
    return "Only one of the following two items is allowed: '" + violation.items[0] + "', '" +
           violation.items[1] + "'.";
  }
  template <ExtremumType TYPE>
  std::string operator()(const ExtremumConstraintViolation<TYPE>& violation) const {
    return "This value must be " + bound(TYPE) + std::to_string(violation.extremum) + ".";
  }
  std::string operator()(const IncorrectType& fault) const {
    return "This value must be " + typeWord(fault.requiredType) + ".";
  }
  std::string operator()(const MissingItem& /*fault*/) const {
    return "This item is required but missing.";
  }
  std::string operator()(const MissingExclusiveItemsViolation& violation) const {
    return withItems("One of the following items must be provided:", violation.items);
  }
  std::string operator()(const RequiredInViolation& violation) const {
    return "This value must match a '" + violation.name + "' in '" + violation.pointer + "'.";
  }
  std::string operator()(const UnusedItem& /*fault*/) const {
    return "The value of this item will not be used.";
  }
  std::string operator()(const InvalidItem& /*fault*/) const { return "This item is invalid."; }

  template <class Information>
  std::string operator()(const Information& /*information*/) const {
    return "";
  }
};

}  // namespace

std::string DefaultAnnotationToMessageConverter::toMessage(const Annotation& annotation) {
  return absl::visit(MessageOf{}, annotation);
}

std::string DefaultLocatedAnnotationToMessageConverter::toMessage(
    const LocatedAnnotation& located) {
  const auto message = DefaultAnnotationToMessageConverter::toMessage(located.second);
  return message.empty() ? message : toText(located.first) + ": " + message;
}

std::string DefaultAnnotationCollectionToMessageConverter::toMessage(
    const AnnotationCollection& collection) {
  std::string text;
  for (const auto& located : collection) {
    const auto message = DefaultLocatedAnnotationToMessageConverter::toMessage(located);
    if (!message.empty()) text += message + '\n';
  }
  if (!text.empty()) text.pop_back();
  return text;
}

}  // namespace jsv
