#include "catalogue/Sets.h"

#include <gtest/gtest.h>

#include "catalogue/keys.h"

namespace model {
namespace {

TEST(Sets, HaveAPropertyAndADescriptionEach) {
  EXPECT_EQ(SetProps.size(), 21U);
  EXPECT_EQ(catalogue::keysOf(SetDescription), catalogue::keysOf(SetProps));
}

TEST(Sets, AreOneIntEachUnderANameOfEightCharacters) {
  for (const auto& [id, property] : SetProps) {
    EXPECT_EQ(property.size, 1) << property.name;
    EXPECT_EQ(property.type, DataType::Int) << property.name;
    EXPECT_EQ(property.name.size(), 8U) << property.name;
  }
}

TEST(Sets, OfMorphologicalSourcesComeLast) {
  EXPECT_EQ(SetProps.rbegin()->second.name, "ClMorSrc");
  EXPECT_EQ(SetDescription.rbegin()->second,
            "Set of cells that are affected by morphological source terms (subset of CELLSALL).");
}

}  // namespace
}  // namespace model
