#include "simulation/kernels/topology/node_string_states.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstddef>
#include <type_traits>

#include "simulation/kernels/RunParameters.h"
#include "simulation/loops/descriptions.h"

static_assert(std::is_same_v<decltype(kernels::topology::node_string_states),
                             loops::NodeStringStateCalc::Body>);

namespace {

using model::MISSING_VALUE;

/// An edge of the nodestring with its upstream cell.
struct Link {
  int sign = 1;
  double length = 1.0;
  std::array<double, 5> fluxHy{0.0, 1e9, 1e9, 1e9, 1e9};
  double fluxMo = 0.0;
  double chezy = 1.0;
  double critical = 0.0;
  double grainSize = 1.0;
  std::array<double, 3> state{};
  double bed = 0.0;
  double area = 1.0;
};

class NodeStringStates : public support::Parameters {
 protected:
  static constexpr std::size_t COLUMNS = 40;
  using Pointers = std::array<const double*, COLUMNS>;
  using Result = std::array<double, 10>;

  NodeStringStates() {
    set(ParameterID::MinWaterDepth, 0.25);
    set(ParameterID::BedPorosity, 0.5);
    set(ParameterID::Gravity, 8.0);
    set(ParameterID::InvGravity, 0.125);
    set(ParameterID::SedRelDensity, 2.0);
    set(ParameterID::BedloadCoeff, 3.0);
    set(ParameterID::BedloadExpon, 2.0);
    setInt(ParameterID::BeadloadType, 3);
  }

  /// The state of the first `size` links. Columns behind them are null, as are the columns that
  /// the flags switch off.
  Result evaluate(int size, int morphology, int friction) {
    std::array<int, COLUMNS> sign{};
    Pointers length{}, fluxHy{}, fluxMo{}, chezy{}, critical{}, grain{}, state{}, bed{}, area{};
    for (std::size_t i = 0; i < static_cast<std::size_t>(size); ++i) {
      const Link& link = links[i];
      sign[i] = link.sign;
      length[i] = &link.length;
      fluxHy[i] = link.fluxHy.data();
      fluxMo[i] = &link.fluxMo;
      chezy[i] = &link.chezy;
      critical[i] = &link.critical;
      grain[i] = &link.grainSize;
      state[i] = link.state.data();
      bed[i] = &link.bed;
      area[i] = &link.area;
    }
    const bool bedMoves = morphology == 1;
    Result result{};
    result.fill(-99.0);
    kernels::topology::node_string_states(
        par(), &morphology, &friction, &size, sign.data(), length.data(), fluxHy.data(),
        bedMoves ? fluxMo.data() : nullptr, friction == 1 ? chezy.data() : nullptr,
        bedMoves ? critical.data() : nullptr, bedMoves ? grain.data() : nullptr, state.data(),
        bed.data(), area.data(), result.data());
    return result;
  }

  /// Two wet edges and a dry one between them.
  void twoWetEdges() {
    links[0].length = 2.0;
    links[0].fluxHy[0] = 3.0;
    links[0].state = {5.0, 0.0, 0.0};
    links[0].bed = 1.0;
    links[0].area = 10.0;
    links[1].length = 100.0;
    links[1].fluxHy[0] = 1e6;
    links[1].fluxMo = 1e6;
    links[1].state = {-6.75, 1e6, 1e6};
    links[1].bed = -7.0;
    links[1].area = 1e6;
    links[2].length = 6.0;
    links[2].fluxHy[0] = 0.5;
    links[2].state = {3.0, 0.0, 0.0};
    links[2].bed = 2.0;
    links[2].area = 5.0;
  }

  /// One wet edge of depth 2 over a bed at 0, with a discharge of (3, 4).
  void oneEdge() {
    links[0].length = 8.0;
    links[0].state = {2.0, 3.0, 4.0};
  }

  std::array<Link, COLUMNS> links{};
};

TEST_F(NodeStringStates, OfAnEmptyStringAreMissing) {
  const Result expected{MISSING_VALUE, 0.0, 0.0, MISSING_VALUE, 1e12, 0.0, 0.0, 0.0, 0.0, 0.0};
  EXPECT_EQ(evaluate(0, 0, 0), expected);
  EXPECT_EQ(evaluate(0, 1, 1), expected);
}

TEST_F(NodeStringStates, OfADryStringHaveTheLowestBedOnly) {
  twoWetEdges();
  links[0].state[0] = 1.25;
  links[2].state[0] = 1.0;
  EXPECT_EQ(evaluate(3, 1, 1),
            (Result{MISSING_VALUE, 0.0, 0.0, MISSING_VALUE, -7.0, 0.0, 0.0, 0.0, 0.0, 0.0}));
}

TEST_F(NodeStringStates, IntegrateOverTheWetEdges) {
  twoWetEdges();
  const Result result = evaluate(3, 0, 0);
  EXPECT_EQ(result[0], (5.0 * 2.0 + 3.0 * 6.0) / 8.0);
  EXPECT_EQ(result[1], 9.0);
  EXPECT_EQ(result[2], 14.0);
  EXPECT_EQ(result[3], (1.0 * 2.0 + 2.0 * 6.0) / 8.0);
  EXPECT_EQ(result[4], -7.0);
  EXPECT_EQ(result[5], 8.0);
  EXPECT_EQ(result[6], 45.0);
}

TEST_F(NodeStringStates, OfTheShortestWetLengthAreNotMissing) {
  links[0].length = 1e-9;
  links[0].state = {2.0, 0.0, 0.0};
  links[0].bed = 1.0;
  EXPECT_DOUBLE_EQ(evaluate(1, 0, 0)[0], 2.0);
  EXPECT_DOUBLE_EQ(evaluate(1, 0, 0)[3], 1.0);
}

TEST_F(NodeStringStates, CountACellAsDryAtTheMinimumDepth) {
  links[0].state = {0.25, 0.0, 0.0};
  EXPECT_EQ(evaluate(1, 0, 0)[5], 0.0);
  links[0].state = {std::nextafter(0.25, 1.0), 0.0, 0.0};
  EXPECT_EQ(evaluate(1, 0, 0)[5], 1.0);
}

TEST_F(NodeStringStates, OfAFlippedEdgeReverseItsFluxesOnly) {
  oneEdge();
  links[0].fluxHy[0] = 3.0;
  links[0].fluxMo = 0.25;
  const Result along = evaluate(1, 1, 1);
  links[0].sign = -1;
  const Result against = evaluate(1, 1, 1);
  EXPECT_EQ(along[1], 24.0);
  EXPECT_EQ(along[8], 1.0);
  for (std::size_t k = 0; k < along.size(); ++k) {
    EXPECT_EQ(against[k], (k == 1 || k == 8 ? -1.0 : 1.0) * along[k]) << k;
  }
}

TEST_F(NodeStringStates, BeforeTheBedMovesHaveNoMorphology) {
  oneEdge();
  links[0].fluxMo = 0.25;
  const Result result = evaluate(1, 0, 0);
  EXPECT_EQ(result[5], 8.0);
  EXPECT_EQ(result[7], 0.0);
  EXPECT_EQ(result[8], 0.0);
  EXPECT_EQ(result[9], 0.0);
}

TEST_F(NodeStringStates, ConveyanceNeedsFriction) {
  oneEdge();
  links[0].chezy = 8.0;
  EXPECT_EQ(evaluate(1, 1, 0)[7], 0.0);
  EXPECT_EQ(evaluate(1, 1, 1)[7], 64.0);  // 2 * 8 * sqrt(8 * 2)
}

TEST_F(NodeStringStates, SedimentDischargeIsThatOfTheGrains) {
  oneEdge();
  links[0].fluxMo = 0.25;
  set(ParameterID::BedPorosity, 0.25);
  EXPECT_EQ(evaluate(1, 1, 0)[8], 1.5);  // 8 * 0.25 * 0.75
}

TEST_F(NodeStringStates, GrassCapacityFollowsTheVelocity) {
  oneEdge();
  links[0].critical = 0.5;
  EXPECT_EQ(evaluate(1, 1, 0)[9], 96.0);  // 3 (2.5 - 0.5)^2 * 8
  links[0].critical = 3.0;
  EXPECT_EQ(evaluate(1, 1, 0)[9], 0.0);
}

TEST_F(NodeStringStates, PowerLawCapacityIsQuadraticInTheDischarge) {
  oneEdge();
  setInt(ParameterID::BeadloadType, 4);
  links[0].grainSize = 0.5;
  links[0].chezy = 0.25;
  links[0].critical = 1e9;
  // 0.05 / 64 sqrt(2) * 2 * 4 * 2 * 25 / 32 per metre
  const double expected = 0.05 / 64.0 * std::sqrt(2.0) * 12.5 * 8.0;
  EXPECT_DOUBLE_EQ(evaluate(1, 1, 1)[9], expected);
  links[0].grainSize = 0.0;
  EXPECT_EQ(evaluate(1, 1, 1)[9], 0.0);
}

TEST_F(NodeStringStates, MpmCapacityFollowsTheShieldsParameter) {
  oneEdge();
  links[0].grainSize = 0.25;
  links[0].chezy = 0.5;
  links[0].critical = 1.125;
  // theta = 25 / 4 * 2 / 8 / 0.5 = 3.125; sqrt(d^3 g s) = 0.5; 3 * 0.5 * 2^2 * 8
  for (const int type : {1, 2, 0, 5}) {
    setInt(ParameterID::BeadloadType, type);
    EXPECT_EQ(evaluate(1, 1, 1)[9], 48.0) << type;
  }
  links[0].critical = 3.125;
  EXPECT_EQ(evaluate(1, 1, 1)[9], 0.0);
}

TEST_F(NodeStringStates, MpmShieldsParameterGroupsItsSquares) {
  setInt(ParameterID::BeadloadType, 1);
  set(ParameterID::InvGravity, 1.0 / 9.81);
  set(ParameterID::SedRelDensity, 1.65);
  set(ParameterID::BedloadExpon, 1.0);
  set(ParameterID::BedloadCoeff, 1.0);
  set(ParameterID::Gravity, 1.0);
  links[0].grainSize = 0.006;
  links[0].chezy = 98.8;
  links[0].state = {1.8, 1.8, 0.89};
  const volatile double q = std::sqrt(1.8 * 1.8 + 0.89 * 0.89);
  const double ih = 1.0 / 1.8;
  const volatile double squares = (q * q) * (ih * ih);
  const volatile double weight = (1.0 / 98.8) * (1.0 / 9.81);
  const volatile double load = squares * weight;
  const double theta = load / (1.65 * 0.006);
  const volatile double unit = std::sqrt(0.006 * 0.006 * 0.006 * 1.0 * 1.65);
  EXPECT_EQ(evaluate(1, 1, 1)[9], unit * theta);
  // In the last digit, not that of the transport on the cells.
  const double cells =
      kernels::morphology::mpmBedload(par(), {q, ih, 1.0 / 98.8, 0.006, 0.0}).capacity;
  EXPECT_NE(evaluate(1, 1, 1)[9], cells);
  EXPECT_DOUBLE_EQ(evaluate(1, 1, 1)[9], cells);
}

TEST_F(NodeStringStates, MpmCapacityWithoutFrictionVanishes) {
  oneEdge();
  setInt(ParameterID::BeadloadType, 1);
  links[0].critical = 0.047;
  EXPECT_EQ(evaluate(1, 1, 0)[9], 0.0);
  EXPECT_EQ(evaluate(1, 1, 0)[7], 0.0);
  // Nearly, but not exactly without load: the inverse Chezy value is not 0.
  links[0].critical = 0.0;
  set(ParameterID::BedloadExpon, 1.0);
  EXPECT_GT(evaluate(1, 1, 0)[9], 0.0);
  EXPECT_LT(evaluate(1, 1, 0)[9], 1e-300);
}

TEST_F(NodeStringStates, MpmCapacityWithoutChezyValueIsZero) {
  oneEdge();
  setInt(ParameterID::BeadloadType, 1);
  set(ParameterID::BedloadExpon, 1.0);
  links[0].chezy = 9e-13;
  EXPECT_EQ(evaluate(1, 1, 1)[9], 0.0);
}

TEST_F(NodeStringStates, CapacityOfAThinFilmIsThatOfNoVelocity) {
  set(ParameterID::MinWaterDepth, 0.0);
  links[0].state = {9e-13, 3.0, 4.0};
  EXPECT_EQ(evaluate(1, 1, 0)[5], 1.0);
  EXPECT_EQ(evaluate(1, 1, 0)[9], 0.0);
}

TEST_F(NodeStringStates, ReadOnlyTheListedColumns) {
  twoWetEdges();
  const Result result = evaluate(1, 0, 0);
  EXPECT_EQ(result[5], 2.0);
  EXPECT_EQ(result[4], 1.0);
}

TEST_F(NodeStringStates, HoldUpToFortyEdges) {
  for (Link& link : links) link.state = {2.0, 0.0, 0.0};
  EXPECT_EQ(evaluate(40, 0, 0)[5], 40.0);
  EXPECT_EQ(evaluate(40, 0, 0)[2], 80.0);
}

}  // namespace
