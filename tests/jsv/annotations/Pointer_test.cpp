#include "jsv/annotations/Pointer.h"

#include <gtest/gtest.h>

namespace jsv {
namespace {

TEST(Pointer, RootIsASlash) {
  EXPECT_EQ(toText(JsonPointer()), "/");
}

TEST(Pointer, NamesAndIndicesFollowSlashes) {
  EXPECT_EQ(toText(JsonPointer() / "SIMULATION" / "OUTPUT" / 10), "/SIMULATION/OUTPUT/10");
}

TEST(Pointer, TildesAndSlashesInNamesAreEscaped) {
  EXPECT_EQ(toText(JsonPointer() / "a/b" / "c~d" / "~1"), "/a~1b/c~0d/~01");
}

TEST(Pointer, EmptyNamesAreKept) {
  EXPECT_EQ(toText(JsonPointer() / "" / "" / "a"), "///a");
}

TEST(Pointer, OtherLettersAreLeftAsTheyAre) {
  EXPECT_EQ(toText(JsonPointer() / "Gefälle ‰"), "/Gefälle ‰");
}

TEST(Pointer, TextIsThatOfTheLibrary) {
  const auto pointer = JsonPointer() / "~/~" / "" / 3 / "x y";
  EXPECT_EQ(toText(pointer), pointer.to_string());
}

TEST(Pointer, AHundredThousandNamesAreNoTrouble) {
  JsonPointer pointer;
  for (int i = 0; i < 100000; ++i) pointer.push_back("a");
  EXPECT_EQ(toText(pointer).size(), 200000);
}

}  // namespace
}  // namespace jsv
