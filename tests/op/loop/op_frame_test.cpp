// The frame with a toy loop per kind of row.
//
// The linker leads calls of op_mpi_wait_all here, which counts them.
#include "op/loop/op_frame.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <new>
#include <string>
#include <vector>

#include "op/backend/sequential.h"

namespace {

// Counts what a loop allocates: the frame and the backend must not allocate per element.
std::size_t allocations = 0;  // NOLINT: seen by the replaced operator new

int waits = 0;  // NOLINT: seen by the replaced op_mpi_wait_all

}  // namespace

void countedWait(int nargs, op_arg* args) asm("__wrap__Z15op_mpi_wait_alliP6op_arg");
void countedWait(int /*nargs*/, op_arg* /*args*/) {
  ++waits;
}

// Out of line: the compiler would see malloc paired with delete otherwise.
[[gnu::noinline]] void* operator new(std::size_t size) {
  ++allocations;
  if (void* memory = std::malloc(size)) return memory;
  throw std::bad_alloc();
}
[[gnu::noinline]] void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
  ++allocations;
  return std::malloc(size);
}
[[gnu::noinline]] void operator delete(void* memory) noexcept {
  std::free(memory);
}
[[gnu::noinline]] void operator delete(void* memory, std::size_t /*size*/) noexcept {
  std::free(memory);
}

namespace {

enum class Datum { area, depth, state, flag };
enum class Map { edgeCells, cellEdges };
enum class Kernel { toy };
enum class Set { cells };
enum class Switch { on };

using op::all;
using op::at;
using op::Order;
using op::backend::Sequential;

void copyBody(const double* in, double* out) {
  out[0] = in[0] + in[1];
}
using CopyLoop = op::Loop<0, Kernel::toy, Set::cells, Order::any, op::read<Datum::state, double[2]>,
                          op::write<Datum::depth, double>>;

void jumpBody(const double* left, const double* right, const double* factor, double* out) {
  out[0] = (right[0] - left[0]) * factor[0];
}
using JumpLoop = op::Loop<1, Kernel::toy, Set::cells, Order::any,
                          op::read<Datum::depth, double, at<Map::edgeCells, 0>>,
                          op::read<Datum::depth, double, at<Map::edgeCells, 1>>, op::given<double>,
                          op::write<Datum::state, double>>;

void sumBody(const double* const* values, const int* number, double* out, double* highest) {
  out[0] = values[0][0] + values[1][0] + values[2][0];
  if (number != nullptr) out[0] += number[0];
  if (out[0] > highest[0]) highest[0] = out[0];
}
using SumLoop = op::Loop<2, Kernel::toy, Set::cells, Order::any,
                         op::read<Datum::area, double, all<Map::cellEdges, 3>>,
                         op::read_if<Switch::on, Datum::flag, int>,
                         op::change<Datum::depth, double>, op::highest<double>>;

void lowestBody(const int* value, int* lowest) {
  if (value[0] < lowest[0]) lowest[0] = value[0];
}
using LowestLoop = op::Loop<3, Kernel::toy, Set::cells, Order::ascending,
                            op::read<Datum::flag, int>, op::lowest<int>>;

void flatBody(const double* in, double* out) {
  out[0] = in[0];
}
using FlatLoop = op::Loop<4, Kernel::toy, Set::cells, Order::any, op::read<Datum::state, double>,
                          op::write<Datum::depth, double>>;

double limitOfRun = 0;  // NOLINT: the constant of the toy loops

struct Limit {
  double value;
  static Limit ofRun() { return {limitOfRun}; }
};

void raiseBody(const Limit& limit, double* value) {
  value[0] = limit.value + 1;
}
using RaiseLoop = op::Loop<5, Kernel::toy, Set::cells, Order::ascending, op::constants<Limit>,
                           op::change<Datum::depth, double, at<Map::cellEdges, 0>>>;

struct Complaint {
  int element;
  double value;
  bool operator==(const Complaint&) const = default;
};

/// Notes a value at an element.
struct Complaints {
  using Notice = Complaint;
  Complaints(Complaint* noticesOfLoop, int* noticeCount, int elementNumber)
      : notices(noticesOfLoop), count(noticeCount), element(elementNumber) {}
  void add(double value) const { notices[(*count)++] = {element, value}; }
  Complaint* notices;
  int* count;
  int element;
};

std::vector<Complaint> printed;  // NOLINT: what the loop has had printed

void print(const Complaint* notices, int count) {
  printed.insert(printed.end(), notices, notices + count);
}

void complainBody(const Limit& limit, const Complaints& complaints, const double* value) {
  if (value[0] < limit.value) complaints.add(value[0]);
}
using ComplainLoop = op::Loop<6, Kernel::toy, Set::cells, Order::any, op::constants<Limit>,
                              op::notices<Complaints, print>, op::read<Datum::depth, double>>;

static_assert(CopyLoop::isDirect && CopyLoop::entries == 2);
static_assert(ComplainLoop::rows == 1 && ComplainLoop::entries == 1 && ComplainLoop::isDirect);
static_assert(ComplainLoop::takesNotices && !RaiseLoop::takesNotices);
static_assert(std::is_same_v<ComplainLoop::Frame, void(const char*, op_set, op_arg)>);
static_assert(
    std::is_same_v<JumpLoop::Frame, void(const char*, op_set, op_arg, op_arg, op_arg, op_arg)>);
static_assert(!JumpLoop::isDirect && JumpLoop::entries == 4);
static_assert(!SumLoop::isDirect && SumLoop::entries == 6);
static_assert(
    std::is_same_v<SumLoop::Body, void(const double* const*, const int*, double*, double*)>);

class Frame : public ::testing::Test {
 protected:
  Frame() {
    ::testing::internal::CaptureStdout();
    op_init(0, nullptr, 0);
    ::testing::internal::GetCapturedStdout();
    cells = op_decl_set(4, "cells");
    edges = op_decl_set(3, "edges");
    none = op_decl_set(0, "none");
    edgeCells = op_decl_map(edges, cells, 2, edgeCellTable.data(), "edgeCells");
    cellEdges = op_decl_map(cells, edges, 3, cellEdgeTable.data(), "cellEdges");
    depth = dat(cells, 1, depths.data(), "depth");
    state = dat(cells, 2, states.data(), "state");
    jump = dat(edges, 1, jumps.data(), "jump");
    numbers = op_decl_dat_char(cells, 1, "int", sizeof(int),
                               reinterpret_cast<char*>(numberValues.data()), "numbers");
  }
  ~Frame() override { op_exit(); }
  Frame(const Frame&) = delete;
  Frame& operator=(const Frame&) = delete;
  Frame(Frame&&) = delete;
  Frame& operator=(Frame&&) = delete;

  void runJump(op_set set) {
    static double factor = 10;
    op::par_loop<JumpLoop, jumpBody, Sequential>(
        "toy_jump", "jump", set,
        {op_arg_dat(depth, 0, edgeCells, 1, "double", OP_READ),
         op_arg_dat(depth, 1, edgeCells, 1, "double", OP_READ),
         op_arg_gbl(&factor, 1, "double", OP_READ), direct(jump, 1, OP_WRITE)});
  }

  static op_dat dat(op_set set, int dim, double* data, const char* name) {
    return op_decl_dat_char(set, dim, "double", sizeof(double), reinterpret_cast<char*>(data),
                            name);
  }
  static op_arg direct(op_dat of, int dim, op_access access) {
    return op_arg_dat(of, -1, nullptr, dim, "double", access);
  }

  void runCopy(op_set set) {
    op::par_loop<CopyLoop, copyBody, Sequential>(
        "toy_copy", "copy", set, {direct(state, 2, OP_READ), direct(depth, 1, OP_WRITE)});
  }

  std::array<int, 6> edgeCellTable{0, 1, 1, 2, 3, 0};
  std::array<int, 12> cellEdgeTable{0, 1, 2, 0, 0, 0, 2, 1, 0, 1, 1, 2};
  std::array<double, 4> depths{1, 2, 4, 8};
  std::array<double, 8> states{1, 10, 2, 20, 3, 30, 4, 40};
  std::array<double, 3> jumps{1, 100, 10000};
  std::array<int, 4> numberValues{5, -7, 3, 9};
  op_set cells = nullptr;
  op_set edges = nullptr;
  op_set none = nullptr;
  op_map edgeCells = nullptr;
  op_map cellEdges = nullptr;
  op_dat depth = nullptr;
  op_dat state = nullptr;
  op_dat jump = nullptr;
  op_dat numbers = nullptr;
};

TEST_F(Frame, DirectRowsWalkTheSet) {
  runCopy(cells);
  EXPECT_EQ(depths, (std::array<double, 4>{11, 22, 33, 44}));
}

TEST_F(Frame, ColumnsOfAMapReachBothCells) {
  runJump(edges);
  EXPECT_EQ(jumps, (std::array<double, 3>{10, 20, -70}));
}

TEST_F(Frame, VectorRowsGiveAllColumnsAndOptionalRowsAPointerOrNull) {
  double highest = 0;
  const op_arg absent = op_opt_arg_dat(0, nullptr, -1, nullptr, 1, "int", OP_READ);
  const op_arg values = op_arg_dat(jump, -3, cellEdges, 1, "double", OP_READ);
  const op_arg global = op_arg_gbl(&highest, 1, "double", OP_MAX);
  op::par_loop<SumLoop, sumBody, Sequential>("toy_sum", "sum", cells,
                                             {values, absent, direct(depth, 1, OP_RW), global});
  EXPECT_EQ(depths, (std::array<double, 4>{10101, 3, 10101, 10200}));
  EXPECT_EQ(highest, 10200);

  const op_arg present = op_opt_arg_dat(1, numbers, -1, nullptr, 1, "int", OP_READ);
  op::par_loop<SumLoop, sumBody, Sequential>("toy_sum", "sum", cells,
                                             {values, present, direct(depth, 1, OP_RW), global});
  EXPECT_EQ(depths, (std::array<double, 4>{10106, -4, 10104, 10209}));
}

TEST_F(Frame, AnOptionalRowOutOfUseComesThroughIfItsDatExists) {
  double highest = 0;
  op::par_loop<SumLoop, sumBody, Sequential>(
      "toy_sum", "sum", cells,
      {op_arg_dat(jump, -3, cellEdges, 1, "double", OP_READ),
       op_opt_arg_dat(0, numbers, -1, nullptr, 1, "int", OP_READ), direct(depth, 1, OP_RW),
       op_arg_gbl(&highest, 1, "double", OP_MAX)});
  EXPECT_EQ(depths, (std::array<double, 4>{10106, -4, 10104, 10209}));
}

TEST_F(Frame, ReductionsKeepTheRunningValue) {
  int lowest = 4;
  op::par_loop<LowestLoop, lowestBody, Sequential>(
      "toy_lowest", "lowest", cells,
      {op_arg_dat(numbers, -1, nullptr, 1, "int", OP_READ), op_arg_gbl(&lowest, 1, "int", OP_MIN)});
  EXPECT_EQ(lowest, -7);
}

TEST_F(Frame, TheStrideIsTheDimOfTheRowNotOfTheDat) {
  // One value of a dat with two: element e reads the flat entry e.
  op::par_loop<FlatLoop, flatBody, Sequential>(
      "toy_flat", "flat", cells, {direct(state, 1, OP_READ), direct(depth, 1, OP_WRITE)});
  EXPECT_EQ(depths, (std::array<double, 4>{1, 10, 2, 20}));
}

TEST_F(Frame, AnEmptySetRunsNoBodyButIsAccountedFor) {
  runCopy(none);
  EXPECT_EQ(depths, (std::array<double, 4>{1, 2, 4, 8}));
  ASSERT_GE(OP_kern_max, 1);
  EXPECT_EQ(OP_kernels[0].count, 1);
  EXPECT_EQ(OP_kernels[0].transfer, 0.0F);
}

TEST_F(Frame, AnIndirectLoopOverAnEmptySetWaitsOnceAndIsAccountedFor) {
  waits = 0;
  runJump(none);
  EXPECT_EQ(waits, 1);
  EXPECT_EQ(jumps, (std::array<double, 3>{1, 100, 10000}));
  EXPECT_EQ(OP_kernels[1].count, 1);
  EXPECT_STREQ(OP_kernels[1].name, "jump");
}

TEST_F(Frame, AnIndirectLoopWaitsOnceWhereverItsCoreEnds) {
  for (const int core : {0, 1, 3}) {
    edges->core_size = core;
    waits = 0;
    runJump(edges);
    EXPECT_EQ(waits, 1) << core;
    EXPECT_EQ(jumps, (std::array<double, 3>{10, 20, -70}));
  }
}

TEST_F(Frame, ADirectLoopNeverWaits) {
  waits = 0;
  runCopy(cells);
  runCopy(none);
  EXPECT_EQ(waits, 0);
}

TEST_F(Frame, CountRisesPerCallAndTheNameIsThatOfTheCaller) {
  runCopy(cells);
  runCopy(cells);
  EXPECT_EQ(OP_kernels[0].count, 2);
  EXPECT_STREQ(OP_kernels[0].name, "copy");
  EXPECT_GE(OP_kernels[0].time, 0.0);
}

TEST_F(Frame, ADirectLoopCountsWrittenDataTwice) {
  runCopy(cells);
  EXPECT_EQ(OP_kernels[0].transfer, 4.0F * 16 + 4.0F * 8 * 2);
}

TEST_F(Frame, AnIndirectLoopCountsADatumPerMapOnceAndEachMap) {
  runJump(edges);
  EXPECT_EQ(OP_kernels[1].transfer, 3.0F * 8 + 3.0F * 8 + 3.0F * 2 * 4);
}

TEST_F(Frame, AnIndirectLoopCountsChangedDataTwiceAndOptionalOnesAlways) {
  double highest = 0;
  op::par_loop<SumLoop, sumBody, Sequential>(
      "toy_sum", "sum", cells,
      {op_arg_dat(jump, -3, cellEdges, 1, "double", OP_READ),
       op_opt_arg_dat(0, numbers, -1, nullptr, 1, "int", OP_READ), direct(depth, 1, OP_RW),
       op_arg_gbl(&highest, 1, "double", OP_MAX)});
  EXPECT_EQ(OP_kernels[2].transfer, 4.0F * 8 + 4.0F * 4 + 4.0F * 8 * 2 + 4.0F * 3 * 4);
}

std::string outputOfCopyAtLevel(int level, const std::function<void()>& run) {
  OP_diags = level;
  ::testing::internal::CaptureStdout();
  run();
  std::fflush(stdout);
  return ::testing::internal::GetCapturedStdout();
}

TEST_F(Frame, DirectLoopsShowALineWithoutEndAboveLevelTwo) {
  EXPECT_EQ(outputOfCopyAtLevel(2, [this] { runCopy(cells); }), "");
  EXPECT_EQ(outputOfCopyAtLevel(3,
                                [this] {
                                  runCopy(cells);
                                  runCopy(cells);
                                }),
            " kernel routine w/o indirection:  toy_copy"
            " kernel routine w/o indirection:  toy_copy");
}

TEST_F(Frame, IndirectLoopsShowALineOfTheirOwnAboveLevelTwo) {
  const auto run = [this] { runJump(edges); };
  EXPECT_EQ(outputOfCopyAtLevel(2, run), "");
  EXPECT_EQ(outputOfCopyAtLevel(3, run), " kernel routine with indirection: toy_jump\n");
}

// The loop writes into its own constant.
TEST_F(Frame, ConstantsAreThoseOfTheStartOfTheLoop) {
  limitOfRun = 7;
  const op_set one = op_decl_set(1, "one");
  std::array<int, 4> zeros{};
  const op_map map = op_decl_map(cells, one, 1, zeros.data(), "toOne");
  const op_dat own = dat(one, 1, &limitOfRun, "limit");
  op::par_loop<RaiseLoop, raiseBody, Sequential>("toy_raise", "raise", cells,
                                                 {op_arg_dat(own, 0, map, 1, "double", OP_RW)});
  EXPECT_EQ(limitOfRun, 8);
}

TEST_F(Frame, NoticesArePrintedByTheEndOfTheLoopInTheOrderOfTheElements) {
  limitOfRun = 5;
  printed.clear();
  op::par_loop<ComplainLoop, complainBody, Sequential>("toy_complain", "complain", cells,
                                                       {direct(depth, 1, OP_READ)});
  EXPECT_EQ(printed, (std::vector<Complaint>{{0, 1}, {1, 2}, {2, 4}}));
}

TEST_F(Frame, ANoticeFromEachOfManyElementsIsPrinted) {
  limitOfRun = 1e9;
  printed.clear();
  std::vector<double> values(100'000);
  std::vector<Complaint> expected;
  for (int i = 0; i < 100'000; ++i) {
    values[static_cast<std::size_t>(i)] = i % 1000;
    expected.push_back({i, static_cast<double>(i % 1000)});
  }
  const op_set many = op_decl_set(100'000, "many");
  op::par_loop<ComplainLoop, complainBody, Sequential>(
      "toy_complain", "complain", many, {direct(dat(many, 1, values.data(), "v"), 1, OP_READ)});
  EXPECT_EQ(printed, expected);
}

TEST_F(Frame, NothingIsAllocatedOnceTheSlotExists) {
  runCopy(cells);
  const std::size_t before = allocations;
  runCopy(cells);
  EXPECT_EQ(allocations, before);
}

}  // namespace
