#include "export/formats/Raster.h"

#include <gmock/gmock.h>

#include <cmath>

#include "dataio/failures.h"

namespace {

using exporter::cellsOf;
using exporter::Mesh;
using exporter::NO_CELL;
using exporter::Raster;
using exporter::rasterOver;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

/// The lower right and the upper left half of a rectangle.
Mesh rectangle(double west, double south, double length, double width) {
  return {{{0, 1, 2}, {0, 2, 3}},
          {{west, south, 0},
           {west + length, south, 0},
           {west + length, south + width, 0},
           {west, south + width, 0}}};
}

std::string refusalOf(const Mesh& mesh, double resolution) {
  return failures::reportOf([&] { rasterOver(mesh, resolution); });
}

TEST(Raster, BeginsInTheUpperLeftCorner) {
  const Raster raster = rasterOver(rectangle(10, 20, 4, 3), 0.5);
  EXPECT_EQ(raster.columns, 8);
  EXPECT_EQ(raster.rows, 6);
  EXPECT_EQ(raster.x(0), 10.25);
  EXPECT_EQ(raster.y(0), 22.75);
  EXPECT_EQ(raster.x(7), 13.75);
  EXPECT_EQ(raster.y(5), 20.25);
}

TEST(Raster, CoversTheWholeMesh) {
  const Raster raster = rasterOver(rectangle(0, 0, 4.1, 2.9), 1.0);
  EXPECT_EQ(raster.columns, 5);
  EXPECT_EQ(raster.rows, 3);
}

TEST(Raster, RoundOffAddsNoPixels) {
  const Raster raster = rasterOver(rectangle(1.1, 0, 1.1, 0.3), 0.1);
  EXPECT_EQ(raster.columns, 11);
  EXPECT_EQ(raster.rows, 3);
}

TEST(Raster, PixelsTakeTheCellOfTheirCentre) {
  const Mesh mesh = rectangle(0, 0, 4, 2);
  const Raster raster = rasterOver(mesh, 1.0);
  EXPECT_THAT(cellsOf(raster, mesh, 0, 2), ElementsAre(1, 1, 1, 0, 1, 0, 0, 0));
}

TEST(Raster, OnAnEdgeTheFirstCellCounts) {
  Mesh mesh = rectangle(0, 0, 2, 2);
  const Raster raster = rasterOver(mesh, 1.0);
  EXPECT_THAT(cellsOf(raster, mesh, 0, 2), ElementsAre(1, 0, 0, 0));
  std::swap(mesh.cells[0], mesh.cells[1]);
  EXPECT_THAT(cellsOf(raster, mesh, 0, 2), ElementsAre(0, 0, 0, 1));
}

TEST(Raster, OutsideTheMeshThereIsNoCell) {
  Mesh mesh = rectangle(0, 0, 4, 2);
  mesh.cells.pop_back();
  const Raster raster = rasterOver(mesh, 1.0);
  EXPECT_THAT(cellsOf(raster, mesh, 0, 2),
              ElementsAre(NO_CELL, NO_CELL, NO_CELL, 0, NO_CELL, 0, 0, 0));
}

TEST(Raster, StripsMakeTheWhole) {
  const Mesh mesh = rectangle(-3, 7, 5, 4);
  const Raster raster = rasterOver(mesh, 0.3);
  std::vector<int> strips;
  for (int row = 0; row < raster.rows; row += 4) {
    const std::vector<int> strip = cellsOf(raster, mesh, row, std::min(4, raster.rows - row));
    strips.insert(strips.end(), strip.begin(), strip.end());
  }
  EXPECT_EQ(strips, cellsOf(raster, mesh, 0, raster.rows));
}

TEST(Raster, FindsTheCellThatASearchOverAllFinds) {
  const Mesh mesh = {{{0, 1, 2}, {0, 2, 3}, {0, 3, 1}},
                     {{2600000.3, 1200000.2, 0},
                      {2600010.9, 1199995.1, 0},
                      {2600003.7, 1200012.6, 0},
                      {2599992.4, 1199996.8, 0}}};
  const Raster raster = rasterOver(mesh, 0.37);
  const std::vector<int> cells = cellsOf(raster, mesh, 0, raster.rows);
  std::size_t pixel = 0;
  for (int row = 0; row < raster.rows; ++row) {
    for (int column = 0; column < raster.columns; ++column) {
      int expected = NO_CELL;
      for (int cell = 2; cell >= 0; --cell) {
        const auto& nodes = mesh.cells[static_cast<std::size_t>(cell)];
        if (exporter::contains(mesh, nodes, raster.x(column), raster.y(row))) expected = cell;
      }
      ASSERT_EQ(cells[pixel++], expected) << row << " " << column;
    }
  }
}

TEST(Raster, RefusesResolutionsThatAreNone) {
  const Mesh mesh = rectangle(0, 0, 4, 2);
  EXPECT_THAT(refusalOf(mesh, 0.0), HasSubstr("resolution <0>: the side of a pixel must be "));
  EXPECT_THAT(refusalOf(mesh, -1.0), HasSubstr("must be positive, in m"));
  EXPECT_THAT(refusalOf(mesh, std::nan("")), HasSubstr("must be positive, in m"));
  EXPECT_THAT(refusalOf(mesh, HUGE_VAL), HasSubstr("must be positive, in m"));
}

TEST(Raster, RefusesToShowAMeshAsOnePixel) {
  EXPECT_EQ(refusalOf(rectangle(0, 0, 4, 2), 4.5),
            " -> resolution <4.5> is coarser than the whole mesh of 4 m x 2 m\n");
  EXPECT_EQ(rasterOver(rectangle(0, 0, 4, 2), 4.0).columns, 1);
}

TEST(Raster, RefusesAbsurdSizesAndSaysWhatIsPossible) {
  const Mesh mesh = rectangle(0, 0, 40000, 10000);
  EXPECT_EQ(refusalOf(mesh, 0.01),
            " -> resolution <0.01> is too fine: the mesh of 40000 m x 10000 m would need 4e+06 x "
            "1e+06 pixels, at most 1e9 are possible: give 0.634 or more\n");
  const Raster finest = rasterOver(mesh, 0.634);
  EXPECT_LE(static_cast<double>(finest.columns) * finest.rows, 1e9);
}

}  // namespace
