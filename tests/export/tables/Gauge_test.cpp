#include "export/tables/Gauge.h"

#include <gtest/gtest.h>

#include "dataio/failures.h"

namespace {

using exporter::cellAt;
using exporter::Gauge;
using exporter::Mesh;
using exporter::parseGauge;
using failures::reportOf;

/// Two triangles of a square of 2 m, the second one clockwise.
const Mesh SQUARE = {{{0, 1, 2}, {1, 2, 3}}, {{0, 0, 0}, {2, 0, 0}, {0, 2, 0}, {2, 2, 0}}};

TEST(GaugeText, HoldsAPointAndPerhapsAName) {
  const Gauge named = parseGauge("12.5,-3e1,old bridge, left", 1);
  EXPECT_EQ(named.x, 12.5);
  EXPECT_EQ(named.y, -30.0);
  EXPECT_EQ(named.name, "old bridge, left");
  EXPECT_EQ(parseGauge("1,2", 3).name, "gauge 3");
  EXPECT_EQ(parseGauge("1,2,", 4).name, "gauge 4");
}

TEST(GaugeText, IsRefusedIfItIsNoPoint) {
  for (const std::string text :
       {"", "1", "1,", "1;2", "a,b", "1,b", "1,2x", "nan,1", "1,inf", ",1", "1e999,1"}) {
    EXPECT_EQ(reportOf([&] { parseGauge(text, 1); }),
              " -> gauge <" + text + ">: give x,y or x,y,name, as in 12.5,3,bridge\n");
  }
}

TEST(CellAtGauge, ContainsThePointWhateverItsSense) {
  EXPECT_EQ(cellAt(SQUARE, {"g", 0.5, 0.5}), 0U);
  EXPECT_EQ(cellAt(SQUARE, {"g", 1.5, 1.9}), 1U);
}

TEST(CellAtGauge, IsTheFirstOneOnEdgesAndCorners) {
  EXPECT_EQ(cellAt(SQUARE, {"g", 1.0, 1.0}), 0U);
  EXPECT_EQ(cellAt(SQUARE, {"g", 2.0, 0.0}), 0U);
  EXPECT_EQ(cellAt(SQUARE, {"g", 2.0, 1.0}), 1U);
}

TEST(CellAtGauge, IsRefusedOutsideTheMesh) {
  EXPECT_EQ(reportOf([] {
              cellAt(SQUARE, {"mill", 2.5, 1.0});
            }),
            " -> gauge <mill> at 2.5, 1 lies outside the mesh, whose x runs from 0 to 2 and y from "
            "0 to 2 m\n");
}

}  // namespace
