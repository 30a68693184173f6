#include "setup/study/boundary_types.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

#include "setup/codes.h"

using setup::BoundaryType;
using setup::Input;
using ::testing::ElementsAre;

namespace {

/// The positions of the record that the flux of a code reads.
std::set<int> usesOf(int code) {
  if (code <= 402) return {0};
  return code <= 408 ? std::set<int>{1} : std::set<int>{0, 1};
}

bool readsTheRecord(int modification) {
  return modification <= 12;
}

}  // namespace

TEST(BedBoundaryTable, GivesANameToEveryCode) {
  std::set<int> codes;
  for (const BoundaryType& type : setup::bedBoundaryTypes())
    codes.insert(setup::numberOf(type.code));
  EXPECT_THAT(codes, ElementsAre(400, 402, 404, 406, 408, 410, 412, 414));
}

TEST(BedBoundaryTable, NamesStandOnce) {
  std::set<std::string> names;
  for (const BoundaryType& type : setup::bedBoundaryTypes()) {
    EXPECT_TRUE(names.insert(type.name).second) << type.name;
    EXPECT_EQ(type.place, setup::Place::Edge);
    EXPECT_FALSE(type.receivingCode);
  }
}

TEST(BedBoundaryTable, WhatTheFluxReadsIsWrittenOnceAndBeforeItIsRead) {
  for (const BoundaryType& type : setup::bedBoundaryTypes()) {
    std::set<int> written;
    for (const Input& input : type.inputs) EXPECT_TRUE(written.insert(input.position).second);
    for (const setup::Modification& entry : type.modifications) {
      if (readsTheRecord(codes::numberOf(entry.type))) {
        EXPECT_EQ(written.count(entry.sources[0]), 1U) << type.name;
      }
      EXPECT_TRUE(written.insert(entry.target).second) << type.name;
    }
    for (const int position : usesOf(setup::numberOf(type.code))) {
      EXPECT_EQ(written.count(position), 1U) << type.name << ", position " << position;
    }
  }
}

TEST(BedBoundaryTable, OnlyTheConveyanceNeedsFriction) {
  for (const BoundaryType& type : setup::bedBoundaryTypes()) {
    EXPECT_EQ(type.needsFriction, type.name.ends_with("_by_conveyance")) << type.name;
    EXPECT_EQ(type.needsFriction,
              setup::numberOf(type.code) == 408 || setup::numberOf(type.code) == 414)
        << type.name;
  }
}

TEST(BedBoundaryTable, TheWeightOfTheCodeIsThatOfTheModification) {
  for (const BoundaryType& type : setup::bedBoundaryTypes()) {
    if (setup::numberOf(type.code) <= 402) continue;
    const int modification = codes::numberOf(type.modifications.at(0).type);
    EXPECT_EQ((modification - 10) % 3, (setup::numberOf(type.code) - 404) / 2 % 3) << type.name;
  }
}
