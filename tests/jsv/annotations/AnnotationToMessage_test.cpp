#include "jsv/annotations/AnnotationToMessage.h"

#include <gtest/gtest.h>

#include <vector>

namespace jsv {
namespace {

std::string message(const Annotation& annotation) {
  return DefaultAnnotationToMessageConverter::toMessage(annotation);
}

TEST(AnnotationToMessage, SaysWhichStringIsExpected) {
  EXPECT_EQ(message(ConstConstraintViolation{"discharge"}),
            "This value must be equal to 'discharge'.");
}

TEST(AnnotationToMessage, ListsTheOptionsSortedWithAFullStopBehindTheLast) {
  EXPECT_EQ(message(EnumConstraintViolation{makeSortable({"c", "a", "b"})}),
            "This value must be equal to one of the following: 'a', 'b', 'c'.");
  EXPECT_EQ(message(EnumConstraintViolation{makeSortable({"only"})}),
            "This value must be equal to one of the following: 'only'.");
}

TEST(AnnotationToMessage, AnEmptyListEndsWithAFullStopToo) {
  EXPECT_EQ(message(EnumConstraintViolation{makeSortable({})}),
            "This value must be equal to one of the following.");
}

TEST(AnnotationToMessage, NamesTwoItemsThatExcludeEachOther) {
  EXPECT_EQ(message(ExclusiveItemViolation{{"file", "values"}}),
            "Only one of the following two items is allowed: 'file', 'values'.");
}

TEST(AnnotationToMessage, BoundsHaveSixDecimals) {
  EXPECT_EQ(message(ExtremumConstraintViolation<ExtremumType::Minimum>{0.0}),
            "This value must be greater than or equal to 0.000000.");
  EXPECT_EQ(message(ExtremumConstraintViolation<ExtremumType::ExclusiveMinimum>{-1.5}),
            "This value must be greater than -1.500000.");
  EXPECT_EQ(message(ExtremumConstraintViolation<ExtremumType::Maximum>{1e9}),
            "This value must be less than or equal to 1000000000.000000.");
  EXPECT_EQ(message(ExtremumConstraintViolation<ExtremumType::ExclusiveMaximum>{1e-7}),
            "This value must be less than 0.000000.");
}

TEST(AnnotationToMessage, HugeBoundsAreWrittenInFull) {
  const auto text = message(ExtremumConstraintViolation<ExtremumType::Maximum>{1e300});
  EXPECT_EQ(text.size(), std::string("This value must be less than or equal to .").size() + 308);
}

TEST(AnnotationToMessage, SaysWhichTypeIsRequired) {
  EXPECT_EQ(message(IncorrectType{JsonTypeClass::Integer}), "This value must be an integer.");
  EXPECT_EQ(message(IncorrectType{JsonTypeClass::Number}), "This value must be a number.");
  EXPECT_EQ(message(IncorrectType{JsonTypeClass::String}), "This value must be a string.");
  EXPECT_EQ(message(IncorrectType{JsonTypeClass::Object}), "This value must be an object.");
  EXPECT_EQ(message(IncorrectType{JsonTypeClass::Array}), "This value must be an array.");
  EXPECT_EQ(message(IncorrectType{JsonTypeClass::Unknown}),
            "This value must be of a different type.");
}

TEST(AnnotationToMessage, SaysWhatIsMissingOrUnusedOrInvalid) {
  EXPECT_EQ(message(MissingItem{}), "This item is required but missing.");
  EXPECT_EQ(message(UnusedItem{}), "The value of this item will not be used.");
  EXPECT_EQ(message(InvalidItem{}), "This item is invalid.");
}

TEST(AnnotationToMessage, ListsTheItemsOfWhichOneIsNeeded) {
  EXPECT_EQ(message(MissingExclusiveItemsViolation{makeSortable({"values", "file"})}),
            "One of the following items must be provided: 'file', 'values'.");
}

TEST(AnnotationToMessage, SaysWhatAReferenceMustMatch) {
  EXPECT_EQ(message(RequiredInViolation{"/GEOMETRY/regions", "name"}),
            "This value must match a 'name' in '/GEOMETRY/regions'.");
}

TEST(AnnotationToMessage, InformationHasNoWords) {
  const std::vector<Annotation> information = {RequiredTypeAnnotation{JsonTypeClass::Number},
                                               EnumRequiredAnnotation{makeSortable({"a"})},
                                               OptionalItemAnnotation{},
                                               StringIsURIAnnotation{},
                                               DescriptionAnnotation{"text"},
                                               DefaultValueAnnotation{1.0},
                                               ValidAdditionalKeyAnnotation{"key"}};
  for (const auto& annotation : information) EXPECT_EQ(message(annotation), "");
}

TEST(LocatedAnnotationToMessage, PutsThePlaceBeforeTheWords) {
  EXPECT_EQ(DefaultLocatedAnnotationToMessageConverter::toMessage(
                {JsonPointer("/SIMULATION/TIME"), MissingItem{}}),
            "/SIMULATION/TIME: This item is required but missing.");
}

TEST(LocatedAnnotationToMessage, TheRootIsASlash) {
  EXPECT_EQ(DefaultLocatedAnnotationToMessageConverter::toMessage({JsonPointer(), InvalidItem{}}),
            "/: This item is invalid.");
}

TEST(LocatedAnnotationToMessage, InformationStaysEmpty) {
  EXPECT_EQ(DefaultLocatedAnnotationToMessageConverter::toMessage(
                {JsonPointer("/a"), OptionalItemAnnotation{}}),
            "");
}

TEST(AnnotationCollectionToMessage, AnEmptyCollectionGivesAnEmptyText) {
  EXPECT_EQ(DefaultAnnotationCollectionToMessageConverter::toMessage(AnnotationCollection()), "");
}

TEST(AnnotationCollectionToMessage, InformationAloneGivesAnEmptyText) {
  AnnotationCollection collection;
  collection.addAnnotation(JsonPointer("/a"), DescriptionAnnotation{"text"});
  EXPECT_EQ(DefaultAnnotationCollectionToMessageConverter::toMessage(collection), "");
}

TEST(AnnotationCollectionToMessage, LinesFollowTheOrderOfTheCollection) {
  AnnotationCollection collection;
  collection.addAnnotation(JsonPointer("/b"), InvalidItem{});
  collection.addAnnotation(JsonPointer("/a/c"), UnusedItem{});
  collection.addAnnotation(JsonPointer("/a"), OptionalItemAnnotation{});
  collection.addAnnotation(JsonPointer("/a"), UnusedItem{});
  collection.addAnnotation(JsonPointer("/a"), IncorrectType{JsonTypeClass::String});
  EXPECT_EQ(DefaultAnnotationCollectionToMessageConverter::toMessage(collection),
            "/a: This value must be a string.\n"
            "/a: The value of this item will not be used.\n"
            "/a/c: The value of this item will not be used.\n"
            "/b: This item is invalid.");
}

}  // namespace
}  // namespace jsv
