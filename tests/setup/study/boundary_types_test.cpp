#include "setup/study/boundary_types.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

#include "setup/codes.h"

using setup::BoundaryType;
using setup::boundaryTypes;
using setup::Input;
using ::testing::ElementsAre;

namespace {

/// How many of the read positions of a modification mean something.
std::size_t readsOf(int type) {
  switch (type) {
    // clang-format off
    case 3:          return 3;
    case 8:          return 5;
    case 9: case 16: return 0;
    default:         return 1;
      // clang-format on
  }
}

/// The positions of the record that the flux of a code reads.
std::set<int> usesOf(int code) {
  switch (code) {
    // clang-format off
    case 100: case 102:           return {1, 2};
    case 104: case 331:           return {0};
    case 106: case 108: case 323: case 325: return {3};
    case 110: case 216: case 218: case 327: case 330: return {1};
    case 114:                     return {0, 1};
    case 322: case 324:           return {3, 4};
    case 326:                     return {1, 2};
    case 328:                     return {5, 6};
    case 329:                     return {5};
    default:                      return {};
      // clang-format on
  }
}

}  // namespace

TEST(BoundaryTable, GivesANameToEveryHydraulicCode) {
  std::set<int> codes;
  for (const BoundaryType& type : boundaryTypes()) {
    codes.insert({setup::numberOf(type.code), codes::numberOf(type.receivingCode)});
  }
  codes.erase(0);
  EXPECT_THAT(codes, ElementsAre(100, 102, 104, 106, 108, 110, 112, 114, 216, 218, 220, 322, 323,
                                 324, 325, 326, 327, 328, 329, 330, 331));
}

TEST(BoundaryTable, NamesStandOnceAndAreFound) {
  std::set<std::string> names;
  for (const BoundaryType& type : boundaryTypes()) {
    EXPECT_TRUE(names.insert(type.name).second) << type.name;
    EXPECT_EQ(&setup::typeNamed(type.name, boundaryTypes()), &type);
  }
  EXPECT_THROW(setup::typeNamed("none", boundaryTypes()), std::out_of_range);
}

TEST(BoundaryTable, EveryPositionIsWrittenOnceAndBeforeItIsRead) {
  for (const BoundaryType& type : boundaryTypes()) {
    std::set<int> written;
    for (const Input& input : type.inputs) {
      EXPECT_TRUE(written.insert(input.position).second) << type.name << " " << input.key;
    }
    for (const setup::Modification& modification : type.modifications) {
      for (std::size_t k = 0; k < readsOf(codes::numberOf(modification.type)); ++k) {
        EXPECT_EQ(written.count(modification.sources.at(k)), 1U) << type.name;
      }
      EXPECT_TRUE(written.insert(modification.target).second) << type.name;
    }
    for (const int position : written) EXPECT_TRUE(position >= 0 && position < 7) << type.name;
  }
}

TEST(BoundaryTable, WhatTheFluxReadsIsWritten) {
  for (const BoundaryType& type : boundaryTypes()) {
    std::set<int> written;
    for (const Input& input : type.inputs) written.insert(input.position);
    for (const setup::Modification& entry : type.modifications) written.insert(entry.target);
    for (const int code : {setup::numberOf(type.code), codes::numberOf(type.receivingCode)}) {
      for (const int position : usesOf(code)) {
        EXPECT_EQ(written.count(position), 1U) << type.name << ", position " << position;
      }
    }
  }
}

TEST(BoundaryTable, OnlyLinksHaveASecondCode) {
  for (const BoundaryType& type : boundaryTypes()) {
    EXPECT_EQ(type.receivingCode.has_value(), type.place == setup::Place::Link) << type.name;
    EXPECT_EQ(setup::numberOf(type.code) / 100 == 1, type.place == setup::Place::Edge) << type.name;
    EXPECT_EQ(setup::numberOf(type.code) / 100 == 2, type.place == setup::Place::Inside)
        << type.name;
  }
}

TEST(BoundaryTable, OnlyCodesThatUseANormalDepthNeedFriction) {
  for (const BoundaryType& type : boundaryTypes()) {
    EXPECT_EQ(type.needsFriction,
              setup::numberOf(type.code) == 100 || setup::numberOf(type.code) == 104)
        << type.name;
  }
}

TEST(BoundaryTable, SeriesCanBeLookedUpWhereThereAreSome) {
  for (const BoundaryType& type : boundaryTypes()) {
    bool hasSeries = false;
    for (const Input& input : type.inputs) {
      if (input.takes == setup::Takes::Series || input.takes == setup::Takes::SeriesToo) {
        hasSeries = true;
      }
    }
    EXPECT_EQ(hasSeries, !type.lookups.empty()) << type.name;
  }
}

TEST(BoundaryTable, LookupsHaveTheKeysOfTheRunFile) {
  using model::InterpolationKey;
  using setup::Lookup;
  EXPECT_EQ(setup::keyOf(Lookup::Time), InterpolationKey::Time);
  EXPECT_EQ(setup::keyOf(Lookup::Depth), InterpolationKey::Depth);
  EXPECT_EQ(setup::keyOf(Lookup::Level), InterpolationKey::WaterLevel);
  EXPECT_EQ(setup::keyOf(Lookup::Discharge), InterpolationKey::Discharge);
  EXPECT_EQ(setup::keyOf(Lookup::ReceivingLevel), InterpolationKey::WaterLevel);
  EXPECT_EQ(setup::nameOf(Lookup::ReceivingLevel), "receiving_level");
}
