#include "setup/mesh/Mesh.h"

#include <gtest/gtest.h>

using setup::place;

TEST(Mesh, PlaceNamesFileAndLine) {
  EXPECT_EQ(place("a.2dm", 7), "mesh file <a.2dm>, line 7: ");
}

TEST(Mesh, PlaceWithoutLineNamesTheFile) {
  EXPECT_EQ(place("a.2dm", 0), "mesh file <a.2dm>: ");
}

TEST(Mesh, PlaceOfAMadeMeshNamesNoFile) {
  EXPECT_EQ(place("", 7), "mesh: ");
}
