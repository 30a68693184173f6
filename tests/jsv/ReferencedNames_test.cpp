#include "jsv/ReferencedNames.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace jsv {
namespace {

using nlohmann::json;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

SortableWrappedVector names(const json& document, const std::string& pointer,
                            const std::string& itemProperty = "name") {
  ReferencedNames referenced;
  return referenced.of(document, JsonPointer(pointer), itemProperty);
}

TEST(ReferencedNames, AreSorted) {
  const auto document = json::parse(R"({"a": {"b": [{"name": "y"}, {"name": "x"}]}})");
  EXPECT_THAT(names(document, "/a/b"), ElementsAre("x", "y"));
}

TEST(ReferencedNames, AreReadFromThePropertyAskedFor) {
  const auto document = json::parse(R"([{"name": "x", "id": "1"}, {"name": "y", "id": "2"}])");
  EXPECT_THAT(names(document, "", "id"), ElementsAre("1", "2"));
}

TEST(ReferencedNames, AnItemWithoutThePropertyOffersTheEmptyString) {
  const auto document = json::parse(R"({"a": [{"name": "x"}, {"id": "y"}]})");
  EXPECT_THAT(names(document, "/a"), ElementsAre("", "x"));
}

TEST(ReferencedNames, WhatIsNoNamedItemOffersNothing) {
  const auto document =
      json::parse(R"({"a": [1, "name", null, [], {"name": 3}, {"name": {}}, {"name": "x"}]})");
  EXPECT_THAT(names(document, "/a"), ElementsAre("x"));
}

TEST(ReferencedNames, APointerThatLeadsNowhereOffersNothing) {
  const auto document = json::parse(R"({"a": [{"name": "x"}], "b": "text"})");
  for (const auto* pointer :
       {"/c", "/a/1", "/a/-", "/a/name", "/a/00", "/a/", "/b", "/b/0", "/a/99999999999999999999"}) {
    EXPECT_THAT(names(document, pointer), IsEmpty()) << pointer;
  }
}

TEST(ReferencedNames, OfADocumentThatIsNoObjectAreNone) {
  EXPECT_THAT(names(json(3), "/a"), IsEmpty());
  EXPECT_THAT(names(json(), "/a"), IsEmpty());
}

TEST(ReferencedNames, AreReadOnce) {
  const auto document = json::parse(R"({"a": [{"name": "x"}], "b": [{"name": "y"}]})");
  ReferencedNames referenced;
  const auto* first = &referenced.of(document, JsonPointer("/a"), "name");
  EXPECT_THAT(referenced.of(document, JsonPointer("/b"), "name"), ElementsAre("y"));
  EXPECT_THAT(referenced.of(document, JsonPointer("/a"), "id"), ElementsAre(""));
  EXPECT_EQ(&referenced.of(document, JsonPointer("/a"), "name"), first);
}

}  // namespace
}  // namespace jsv
