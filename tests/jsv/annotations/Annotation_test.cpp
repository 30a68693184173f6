#include "jsv/annotations/Annotation.h"

#include <gtest/gtest.h>

#include <vector>

namespace jsv {
namespace {

/// One annotation of each type, in the order of the variant.
std::vector<Annotation> oneOfEach() {
  return {ConstConstraintViolation{"z"},
          EnumConstraintViolation{makeSortable({"z"})},
          ExclusiveItemViolation{{"y", "z"}},
          ExtremumConstraintViolation<ExtremumType::Minimum>{9.0},
          ExtremumConstraintViolation<ExtremumType::ExclusiveMinimum>{8.0},
          ExtremumConstraintViolation<ExtremumType::Maximum>{7.0},
          ExtremumConstraintViolation<ExtremumType::ExclusiveMaximum>{6.0},
          IncorrectType{JsonTypeClass::Array},
          MissingItem{},
          MissingExclusiveItemsViolation{makeSortable({"x"})},
          RequiredInViolation{"/w", "v"},
          UnusedItem{},
          InvalidItem{},
          RequiredTypeAnnotation{JsonTypeClass::Number},
          EnumRequiredAnnotation{makeSortable({"u"})},
          OptionalItemAnnotation{},
          StringIsURIAnnotation{},
          DescriptionAnnotation{"t"},
          DefaultValueAnnotation{3},
          ValidAdditionalKeyAnnotation{"s"}};
}

TEST(Annotation, TypesStandAtTheirIndices) {
  const auto annotations = oneOfEach();
  ASSERT_EQ(annotations.size(), absl::variant_size<Annotation>::value);
  for (std::size_t i = 0; i < annotations.size(); ++i) EXPECT_EQ(annotations[i].index(), i);
}

TEST(Annotation, OnlyTheUnusedItemIsAWarning) {
  const auto annotations = oneOfEach();
  for (std::size_t i = 0; i < annotations.size(); ++i) {
    const auto expected = i == 11   ? AnnotationType::Warning
                          : i <= 12 ? AnnotationType::Error
                                    : AnnotationType::Info;
    EXPECT_EQ(annotationType(annotations[i]), expected) << "index " << i;
  }
}

TEST(Annotation, TheInvalidItemIsAnErrorThoughItStandsBehindTheWarning) {
  EXPECT_EQ(annotationType(InvalidItem{}), AnnotationType::Error);
}

TEST(Annotation, TypesHaveTheirValues) {
  EXPECT_EQ(static_cast<int>(AnnotationType::Error), 0);
  EXPECT_EQ(static_cast<int>(AnnotationType::Warning), 1);
  EXPECT_EQ(static_cast<int>(AnnotationType::Info), 2);
  EXPECT_EQ(static_cast<int>(ExtremumType::Minimum), 0);
  EXPECT_EQ(static_cast<int>(ExtremumType::ExclusiveMinimum), 1);
  EXPECT_EQ(static_cast<int>(ExtremumType::Maximum), 2);
  EXPECT_EQ(static_cast<int>(ExtremumType::ExclusiveMaximum), 3);
}

TEST(Annotation, DifferentTypesCompareByIndexWhateverTheyHold) {
  const auto annotations = oneOfEach();
  for (std::size_t i = 1; i < annotations.size(); ++i) {
    EXPECT_TRUE(annotations[i - 1] < annotations[i]) << "index " << i;
    EXPECT_FALSE(annotations[i] < annotations[i - 1]) << "index " << i;
  }
}

TEST(Annotation, EqualTypesCompareByWhatTheyHold) {
  using AtLeast = ExtremumConstraintViolation<ExtremumType::Minimum>;
  EXPECT_TRUE(Annotation(AtLeast{1.0}) < Annotation(AtLeast{2.0}));
  EXPECT_TRUE(Annotation(IncorrectType{JsonTypeClass::Integer}) <
              Annotation(IncorrectType{JsonTypeClass::Array}));
  EXPECT_TRUE(Annotation(EnumConstraintViolation{makeSortable({"b", "a"})}) <
              Annotation(EnumConstraintViolation{makeSortable({"c", "a"})}));
  EXPECT_TRUE(Annotation(RequiredInViolation{"/a", "z"}) <
              Annotation(RequiredInViolation{"/b", "a"}));
  EXPECT_TRUE(Annotation(DefaultValueAnnotation{1}) < Annotation(DefaultValueAnnotation{1.5}));
  EXPECT_TRUE(Annotation(MissingItem{}) == Annotation(MissingItem{}));
}

}  // namespace
}  // namespace jsv
