#include "jsv/annotations/Collection.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "jsv/report.h"

namespace jsv {
namespace {

using test::at;
using ::testing::ElementsAre;

TEST(AnnotationCollection, IsEmptyAtFirst) {
  const AnnotationCollection collection;
  EXPECT_TRUE(collection.empty());
  EXPECT_EQ(collection.size(), 0);
  EXPECT_TRUE(collection.begin() == collection.end());
}

TEST(AnnotationCollection, KeepsEqualEntriesOnce) {
  AnnotationCollection collection;
  collection.addAnnotation(JsonPointer("/a"), MissingItem{});
  collection.addAnnotation(JsonPointer("/a"), MissingItem{});
  EXPECT_THAT(collection, ElementsAre(at("/a", MissingItem{})));
}

TEST(AnnotationCollection, KeepsDifferentEntriesOfOnePlace) {
  AnnotationCollection collection;
  collection.addAnnotation(JsonPointer("/a"), ValidAdditionalKeyAnnotation{"y"});
  collection.addAnnotation(JsonPointer("/a"), ValidAdditionalKeyAnnotation{"x"});
  collection.addAnnotation(JsonPointer("/a"), InvalidItem{});
  EXPECT_THAT(collection,
              ElementsAre(at("/a", InvalidItem{}), at("/a", ValidAdditionalKeyAnnotation{"x"}),
                          at("/a", ValidAdditionalKeyAnnotation{"y"})));
}

TEST(AnnotationCollection, ComparesPointersTokenByTokenAsText) {
  const std::vector<std::string> sorted = {"",       "/",     "/a",   "/a/0",  "/a/10", "/a/2",
                                           "/a/2/x", "/a/~0", "/a-b", "/a~1b", "/b",    "/ä"};
  AnnotationCollection collection;
  for (auto pointer = sorted.rbegin(); pointer != sorted.rend(); ++pointer) {
    collection.addAnnotation(JsonPointer(*pointer), UnusedItem{});
  }
  std::vector<std::string> found;
  for (const auto& located : collection) found.push_back(located.first.to_string());
  EXPECT_EQ(found, sorted);
}

TEST(AnnotationCollection, CanBeCleared) {
  AnnotationCollection collection;
  collection.addAnnotation(JsonPointer("/a"), MissingItem{});
  collection.clear();
  EXPECT_TRUE(collection.empty());
}

TEST(FilteredAnnotationCollection, OfIssuesKeepsErrorsAndWarnings) {
  FilteredAnnotationCollection<IssueFilter> collection;
  AbstractAnnotationCollection& receiver = collection;
  receiver.addAnnotation(JsonPointer("/a"), MissingItem{});
  receiver.addAnnotation(JsonPointer("/a"), UnusedItem{});
  receiver.addAnnotation(JsonPointer("/a"), OptionalItemAnnotation{});
  EXPECT_THAT(collection, ElementsAre(at("/a", MissingItem{}), at("/a", UnusedItem{})));
}

TEST(FilteredAnnotationCollection, OfInformationKeepsTheRest) {
  FilteredAnnotationCollection<InfoFilter> collection;
  AbstractAnnotationCollection& receiver = collection;
  receiver.addAnnotation(JsonPointer("/a"), MissingItem{});
  receiver.addAnnotation(JsonPointer("/a"), UnusedItem{});
  receiver.addAnnotation(JsonPointer("/a"), OptionalItemAnnotation{});
  EXPECT_THAT(collection, ElementsAre(at("/a", OptionalItemAnnotation{})));
}

TEST(NumberOf, CountsEachTypeOfAnnotation) {
  AnnotationCollection collection;
  collection.addAnnotation(JsonPointer("/a"), MissingItem{});
  collection.addAnnotation(JsonPointer("/b"), InvalidItem{});
  collection.addAnnotation(JsonPointer("/c"), InvalidItem{});
  collection.addAnnotation(JsonPointer("/b"), UnusedItem{});
  collection.addAnnotation(JsonPointer("/b"), OptionalItemAnnotation{});
  collection.addAnnotation(JsonPointer("/b"), StringIsURIAnnotation{});
  EXPECT_EQ(numberOf(AnnotationType::Error, collection), 3);
  EXPECT_EQ(numberOf(AnnotationType::Warning, collection), 1);
  EXPECT_EQ(numberOf(AnnotationType::Info, collection), 2);
}

}  // namespace
}  // namespace jsv
