#include "export/meanings.h"

#include <gtest/gtest.h>

#include <set>

#include "catalogue/Outputs.h"
#include "export/components.h"

namespace {

TEST(Meanings, EachComponentHasOneOfItsOwn) {
  std::set<std::string> names;
  std::size_t components = 0;
  for (const auto& [id, property] : model::OutputProps) {
    ASSERT_EQ(exporter::meaningsOf(id).size(), exporter::componentsOf(id).size());
    for (const exporter::Meaning& meaning : exporter::meaningsOf(id)) {
      names.insert(meaning.longName);
      ++components;
    }
  }
  EXPECT_EQ(names.size(), components);
}

TEST(Meanings, ComponentsOfVectorsAreNamedAsViewersWantThem) {
  const auto& velocity = exporter::meaningsOf(model::OutputID::flow_velocity);
  EXPECT_EQ(velocity.at(0).longName, "flow velocity, x-component");
  EXPECT_EQ(velocity.at(1).longName, "flow velocity, y-component");
}

}  // namespace
