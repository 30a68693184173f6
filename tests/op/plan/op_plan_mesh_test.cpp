// Plans of loops over triangle meshes as they are made for studies: no two elements of one colour
// in a block and no two blocks of one colour change the same data, whatever the size of the mesh,
// its numbering and the staging.
#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "op/plan/op_plan_test_support.h"
#include "setup/mesh/Topology.h"
#include "setup/mesh/made_meshes.h"

namespace {

using op_test::blockCollisions;
using op_test::blockColours;
using op_test::elementCollisions;
using op_test::elementColours;
using op_test::outputOf;
using op_test::PlannedLoop;

using Ints = std::vector<int>;

/// Rectangles along and across, two cells each, and whether the edges are numbered at random.
struct MeshCase {
  std::array<int, 2> rectangles;
  bool shuffled;

  friend void PrintTo(const MeshCase& mesh, std::ostream* out) {
    *out << 2 * mesh.rectangles[0] * mesh.rectangles[1] << (mesh.shuffled ? "_shuffled" : "");
  }
};

template <std::size_t N>
Ints flat(const std::vector<std::array<int, N>>& rows) {
  Ints entries;
  for (const auto& row : rows) entries.insert(entries.end(), row.begin(), row.end());
  return entries;
}

class OpPlanMesh : public op_test::PlanTest, public testing::WithParamInterface<MeshCase> {
 protected:
  Ints edgeCellTable_;
  Ints cellEdgeTable_;
  op_set edges_ = nullptr;
  op_set cells_ = nullptr;
  op_map edgeCells_ = nullptr;
  op_map cellEdges_ = nullptr;
  double sum_ = 0.0;

  void SetUp() override {
    PlanTest::SetUp();
    setup::RectangleMesh grid;
    grid.cells = GetParam().rectangles;
    grid.length = grid.cells[0];
    grid.width = grid.cells[1];
    setup::Topology topology = setup::findTopology(setup::makeMesh(grid));
    if (GetParam().shuffled) {
      std::mt19937 random(7);
      shuffle(topology.edgeCells, random);
      shuffle(topology.cellEdges, random);
    }
    edgeCellTable_ = flat(topology.edgeCells);
    cellEdgeTable_ = flat(topology.cellEdges);
    edges_ = op_decl_set(static_cast<int>(topology.edgeCells.size()), "EdgesAll");
    cells_ = op_decl_set(static_cast<int>(topology.cellEdges.size()), "CellsAll");
    edgeCells_ = op_decl_map(edges_, cells_, 2, edgeCellTable_.data(), "EdgesAll/CellsAll");
    cellEdges_ = op_decl_map(cells_, edges_, 3, cellEdgeTable_.data(), "CellsAll/EdgesAll");
  }

  // The library's own shuffle differs between systems.
  template <class Row>
  static void shuffle(std::vector<Row>& rows, std::mt19937& random) {
    for (std::size_t k = rows.size(); k > 1; --k) std::swap(rows[k - 1], rows[random() % k]);
  }

  // Each edge changes its two cells and reads another datum of one of them; two globals.
  PlannedLoop edgeLoop(op_access access, const std::string& name) {
    const op_dat changed = op_decl_dat_temp_char(cells_, 3, "double", 8, (name + "a").c_str());
    const op_dat read = op_decl_dat_temp_char(cells_, 1, "double", 8, (name + "b").c_str());
    PlannedLoop loop;
    loop.name = name;
    loop.set = edges_;
    loop.add(op_arg_dat(changed, 0, edgeCells_, 3, "double", access), 0);
    loop.add(op_arg_dat(read, 1, edgeCells_, 1, "double", OP_READ), 1);
    loop.add(op_arg_dat(changed, 1, edgeCells_, 3, "double", access), 0);
    loop.add(op_arg_gbl(&sum_, 1, "double", OP_INC));
    return loop;
  }
  // Each cell changes its three edges.
  PlannedLoop cellLoop(const std::string& name) {
    const op_dat changed = op_decl_dat_temp_char(edges_, 1, "double", 8, name.c_str());
    PlannedLoop loop;
    loop.name = name;
    loop.set = cells_;
    for (int k = 0; k < 3; ++k) {
      loop.add(op_arg_dat(changed, k, cellEdges_, 1, "double", OP_INC), 0);
    }
    return loop;
  }

  // Builds the plan, which checks itself, and looks for collisions.
  static void expectSound(PlannedLoop loop, int staging, int part_size) {
    loop.name += std::to_string(staging) + "/" + std::to_string(part_size);
    loop.part_size = part_size;
    SCOPED_TRACE(loop.name);
    EXPECT_EQ(outputOf([&] { loop.plan(staging); }), "");
    const op_plan& plan = OP_plans[OP_plan_index - 1];
    const int elements = plan.offset[plan.nblocks - 1] + plan.nelems[plan.nblocks - 1];
    EXPECT_EQ(elementCollisions(plan, loop, elements), 0);
    EXPECT_EQ(blockCollisions(plan, loop, elements), 0);
    expectKindsApart(plan, staging);
    if (plan.col_reord != nullptr) expectSorted(plan);
  }
  // The core and the set's own elements have colours of their own.
  static void expectKindsApart(const op_plan& plan, int staging) {
    if (staging == OP_ONE_BLOCK) return;
    const Ints colours = blockColours(plan);
    int mixed = 0;
    for (int b = 0; b < plan.nblocks; ++b) {
      const int colour = colours[static_cast<std::size_t>(b)];
      const bool isCore = plan.offset[b] < plan.set->core_size;
      const bool isOwn = plan.offset[b] < plan.set->size;
      mixed += static_cast<int>(isCore != (colour < plan.ncolors_core));
      mixed += static_cast<int>(isOwn != (colour < plan.ncolors_owned));
    }
    EXPECT_EQ(mixed, 0);
  }
  static void expectSorted(const op_plan& plan) {
    int wrong = 0;
    for (int b = 0; b < plan.nblocks; ++b) {
      const int* const elements = plan.col_reord + plan.offset[b];
      const int* const colours = plan.thrcol + plan.offset[b];
      Ints block(elements, elements + plan.nelems[b]);
      for (int c = 0; c < plan.nthrcol[b]; ++c) {
        for (int i = plan.col_offsets[b][c]; i < plan.col_offsets[b][c + 1]; ++i) {
          wrong += static_cast<int>(colours[i] != c);
        }
      }
      wrong += static_cast<int>(plan.col_offsets[b][plan.nthrcol[b]] != plan.nelems[b]);
      std::sort(block.begin(), block.end());
      for (int i = 0; i < plan.nelems[b]; ++i) {
        wrong += static_cast<int>(block[static_cast<std::size_t>(i)] != plan.offset[b] + i);
      }
    }
    EXPECT_EQ(wrong, 0);
  }
};

TEST_P(OpPlanMesh, EdgesOfOneColourChangeNoCellTwice) {
  const PlannedLoop increments = edgeLoop(OP_INC, "increments");
  const PlannedLoop changes = edgeLoop(OP_RW, "changes");
  for (const int staging : {1, 2, 3, 4}) {
    expectSound(increments, staging, 0);
    expectSound(changes, staging, 100);
  }
}

TEST_P(OpPlanMesh, CellsOfOneColourChangeNoEdgeTwice) {
  const PlannedLoop loop = cellLoop("cells");
  for (const int staging : {2, 3, 4}) expectSound(loop, staging, 64);
}

// A part of a distributed mesh: the last tenths of the edges belong to other processes or wait for
// them.
TEST_P(OpPlanMesh, HaloEdgesKeepToColoursOfTheirOwn) {
  const int tenth = edges_->size / 10;
  edges_->core_size = 7 * tenth;
  edges_->exec_size = tenth;
  edges_->size -= tenth;
  const PlannedLoop increments = edgeLoop(OP_INC, "increments");
  const PlannedLoop changes = edgeLoop(OP_RW, "changes");
  for (const int staging : {1, 2, 3, 4}) {
    expectSound(increments, staging, 0);
    expectSound(changes, staging, 100);
  }
}

// What a block does with its copy of the data, in the order of the plan, gives the same sums as
// the loop in set order.
TEST_P(OpPlanMesh, StagedIncrementsGiveTheSumsOfTheSetOrder) {
  PlannedLoop loop = edgeLoop(OP_INC, "sums");
  const op_plan& plan = *loop.plan();
  std::vector<std::int64_t> expected(static_cast<std::size_t>(cells_->size), 0);
  for (int e = 0; e < edges_->size; ++e) {
    for (std::size_t k = 0; k < 2; ++k) {
      const int cell = edgeCellTable_[2 * static_cast<std::size_t>(e) + k];
      expected[static_cast<std::size_t>(cell)] += e + 1;
    }
  }
  std::vector<std::int64_t> sums(expected.size(), 0);
  for (int i = 0; i < plan.nblocks; ++i) {
    const int b = plan.blkmap[i];
    const int entry = b * plan.nargs_staged;
    const int* const list = plan.ind_maps[0] + plan.ind_offs[entry];
    std::vector<std::int64_t> shared(static_cast<std::size_t>(plan.ind_sizes[entry]), 0);
    for (int e = plan.offset[b]; e < plan.offset[b] + plan.nelems[b]; ++e) {
      for (const int m : {0, 2}) shared[static_cast<std::size_t>(plan.loc_maps[m][e])] += e + 1;
    }
    for (std::size_t j = 0; j < shared.size(); ++j) {
      sums[static_cast<std::size_t>(list[j])] += shared[j];
    }
  }
  EXPECT_EQ(sums, expected);
}

#ifdef __SANITIZE_ADDRESS__  // needs ten times as long
constexpr std::array<int, 2> LARGE{150, 100};
constexpr std::array<int, 2> LARGEST{250, 200};
#else
constexpr std::array<int, 2> LARGE{250, 200};
constexpr std::array<int, 2> LARGEST{1000, 500};
#endif

INSTANTIATE_TEST_SUITE_P(Cells, OpPlanMesh,
                         testing::Values(MeshCase{{10, 5}, false}, MeshCase{{10, 5}, true},
                                         MeshCase{{25, 20}, false}, MeshCase{{25, 20}, true},
                                         MeshCase{{100, 50}, false}, MeshCase{{100, 50}, true},
                                         MeshCase{LARGE, false}, MeshCase{LARGE, true},
                                         MeshCase{LARGEST, false}),
                         testing::PrintToStringParamName());

}  // namespace
