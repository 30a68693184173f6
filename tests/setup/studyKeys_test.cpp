#include "setup/studyKeys.h"

#include <gtest/gtest.h>

#include <set>

#include "model/catalogue/Aggregates.h"

namespace {

bool isKnown(const std::string& path) {
  for (const setup::Key& key : setup::studyKeys()) {
    if (key.path == path) return true;
  }
  return false;
}

}  // namespace

TEST(StudyKeys, standOnceEachAndBehindTheGroupThatHoldsThem) {
  std::set<std::string> before{""};
  for (const setup::Key& key : setup::studyKeys()) {
    const std::size_t slash = key.path.rfind('/');
    std::string group = slash == std::string::npos ? "" : key.path.substr(0, slash);
    if (group.ends_with("[]")) group.resize(group.size() - 2);
    EXPECT_EQ(before.count(group), 1U) << key.path;
    EXPECT_TRUE(before.insert(key.path).second) << key.path;
  }
}

TEST(StudyKeys, holdThePathsOfTheAggregatesThatAStudyCanSelect) {
  using enum model::AggregateID;
  for (const auto id :
       {hydraulics_aggr, hyd_boundary_aggr, hyd_friction_aggr, hyd_source_aggr, hyd_flood_aggr}) {
    for (const std::string& path : model::Aggregate2CmdFilePaths.at(id)) {
      EXPECT_TRUE(isKnown(path)) << path;
    }
  }
}
