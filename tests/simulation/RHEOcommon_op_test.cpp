// The driver with kernels that only note their calls: initialisation, plans and the time loop.
#include "simulation/RHEOcommon_op.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

#include "common/BaseException.h"
#include "dataio/Factory.h"
#include "model/components.h"
#include "op/core/op_lib_core.h"
#include "simulation/Driver.h"
#include "simulation/ModelMock.h"
#include "simulation/kernels/Parameters.h"
#include "support/H5Compare.h"

namespace {

using model::KernelID;
using support::Driver;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::Return;

/// The lines of a text that begin with `start`.
std::vector<std::string> linesWith(const std::string& start, const std::string& text) {
  std::vector<std::string> found;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) {
    if (line.rfind(start, 0) == 0) found.push_back(line);
  }
  return found;
}

// -- which kernels run, and when ------------------------------------------------------------------

// The sample schedules the kernels 0 (once), 3, 13, 15 (over an empty set) and 21.
class KernelPlans : public support::Driven {
 protected:
  KernelPlans() { setTimes(R"("start": 0, "end": 1, "out": 1)"); }

  /// The driver with kernels for all rows but that of the empty set. It holds the run file open:
  /// schedules are changed before.
  Driver& prepare() {
    Driver& domain = driver();
    domain.on(KernelID::Update, [] {});
    domain.on(KernelID::HydWallBFluxes, [] {});
    domain.on(KernelID::InitCellHydFeatures, [] {});
    domain.allowSteps(0.5);
    return domain;
  }
  /// The kernels in the order of their calls.
  std::vector<KernelID> called() {
    std::vector<KernelID> ids;
    for (const Driver::Call& call : driver().calls) ids.push_back(call.kernel);
    return ids;
  }
  /// The times at which a kernel was called.
  std::vector<double> timesOf(KernelID kernel) {
    std::vector<double> times;
    for (const Driver::Call& call : driver().calls) {
      if (call.kernel == kernel) times.push_back(call.time);
    }
    return times;
  }
  void schedule(std::size_t row, int kernel) {
    support::overwrite(runFile, "kernels/ID", row, kernel);
  }
  void setTiming(std::size_t row, double start, double increment, double end) {
    support::overwrite(runFile, "kernels/execution", 3 * row, start);
    support::overwrite(runFile, "kernels/execution", 3 * row + 1, increment);
    support::overwrite(runFile, "kernels/execution", 3 * row + 2, end);
  }
};

const std::vector<KernelID> TWO_PASSES{KernelID::InitCellHydFeatures,
                                       KernelID::TimeStepCalculation,
                                       KernelID::HydWallBFluxes,
                                       KernelID::Update,
                                       KernelID::TimeStepCalculation,
                                       KernelID::HydWallBFluxes,
                                       KernelID::Update};

TEST_F(KernelPlans, RunInTheOrderOfTheirIDs) {
  prepare();
  run();
  EXPECT_EQ(called(), TWO_PASSES);
}

TEST_F(KernelPlans, TheOrderOfTheRunFilePlaysNoPart) {
  schedule(1, 21);
  schedule(4, 3);
  prepare();
  run();
  EXPECT_EQ(called(), TWO_PASSES);
}

TEST_F(KernelPlans, AllOfAPassAreAskedAtTheTimeOfItsStart) {
  const Driver& domain = prepare();
  run();
  ASSERT_EQ(domain.calls.size(), 7U);
  for (std::size_t i = 0; i < 7; ++i) EXPECT_EQ(domain.calls[i].time, i < 4 ? 0.0 : 0.5) << i;
}

TEST_F(KernelPlans, AKernelWithoutARowNeverRuns) {
  schedule(2, 77);
  prepare().on(KernelID::HydFlood, [] {});
  run();
  EXPECT_TRUE(timesOf(KernelID::HydWallBFluxes).empty());
  EXPECT_TRUE(timesOf(KernelID::HydFlood).empty());
  EXPECT_EQ(timesOf(KernelID::Update).size(), 2U);
}

TEST_F(KernelPlans, AKernelOverAnEmptySetIsDeactivatedAndNeverRuns) {
  prepare().on(KernelID::HydInternalFluxes, [] {});
  EXPECT_THAT(run(1), HasSubstr(" -> de-activating the kernel <HydInternalFluxes>\n"));
  EXPECT_EQ(called(), TWO_PASSES);
}

TEST_F(KernelPlans, DeactivationIsSilentAtLevelZero) {
  prepare().on(KernelID::HydInternalFluxes, [] {});
  EXPECT_THAT(run(0), Not(HasSubstr("de-activating")));
}

TEST_F(KernelPlans, AKernelThatTheModelDoesNotKnowRunsIfItHasARow) {
  schedule(3, static_cast<int>(KernelID::HydFlood));
  setTiming(3, 0.0, 0.0, 10.0);
  prepare().on(KernelID::HydFlood, [] {});
  run();
  EXPECT_EQ(timesOf(KernelID::HydFlood).size(), 2U);
}

TEST_F(KernelPlans, ARepeatedKernelHasThePlanOfItsLastRow) {
  schedule(3, 0);
  setTiming(3, 0.5, 0.0, 10.0);
  prepare();
  run();
  EXPECT_EQ(timesOf(KernelID::InitCellHydFeatures), (std::vector<double>{0.5}));
}

TEST_F(KernelPlans, WindowsAndIncrementsAreThoseOfTheRunFile) {
  setTimes(R"("start": 0, "end": 4, "out": 4)");
  setTiming(0, 1.0, 0.0, 2.0);  // on every call inside
  setTiming(2, 0.5, 1.5, 3.9);
  prepare();
  run();
  EXPECT_EQ(timesOf(KernelID::InitCellHydFeatures), (std::vector<double>{1.0, 1.5, 2.0}));
  EXPECT_EQ(timesOf(KernelID::HydWallBFluxes), (std::vector<double>{0.5, 2.0, 3.5}));
}

TEST_F(KernelPlans, WindowsAreRelativeToTheStartOfAReRun) {
  prepare();
  run();
  dropDriver();
  setTimes(R"("start": 1, "end": 3, "out": 1)");
  setTiming(2, 0.5, 1.0, 10.0);
  prepare();
  run();
  EXPECT_EQ(timesOf(KernelID::InitCellHydFeatures), (std::vector<double>{1.0}));
  EXPECT_EQ(timesOf(KernelID::HydWallBFluxes), (std::vector<double>{1.5, 2.5}));
}

// -- the time loop --------------------------------------------------------------------------------

class TimeLoop : public support::Driven {
 protected:
  /// The attribute "t" of the records, from the first on.
  std::vector<double> recordTimes() const {
    std::vector<double> times;
    for (const std::string& path : support::datasetPaths(resultFile)) {
      if (path.rfind("RESULTS/CellsAll/HydState/", 0) == 0) {
        times.push_back(support::readTime(resultFile, path));
      }
    }
    return times;
  }
};

TEST_F(TimeLoop, StepsAreClippedToTheOutputGridAndNotToTheEnd) {
  setTimes(R"("start": 0, "end": 1, "out": 0.375)");
  driver().allowSteps(0.25);
  run();
  // 0.25, 0.375, 0.625, 0.75, 1
  EXPECT_EQ(driver().time(), 1.0);
  EXPECT_EQ(driver().calls.size(), 5U);
  EXPECT_EQ(recordTimes(), (std::vector<double>{0.0, 0.375, 0.75}));
}

TEST_F(TimeLoop, AnEndOffTheGridIsPassedByUpToOneStep) {
  setTimes(R"("start": 0, "end": 1, "out": 0.75)");
  driver().allowSteps(0.4375);
  run();
  EXPECT_EQ(driver().time(), 1.1875);
  EXPECT_EQ(recordTimes(), (std::vector<double>{0.0, 0.75}));
}

TEST_F(TimeLoop, AnEndOnTheGridHasARecord) {
  setTimes(R"("start": 0, "end": 1, "out": 0.5)");
  driver().allowSteps(0.375);
  run();
  EXPECT_EQ(driver().time(), 1.0);
  EXPECT_EQ(recordTimes(), (std::vector<double>{0.0, 0.5, 1.0}));
}

TEST_F(TimeLoop, WithoutDurationWritesOneRecordAndRunsNoKernel) {
  setTimes(R"("start": 0, "end": 0, "out": 0.5)");
  driver().allowSteps(0.25);
  EXPECT_THAT(run(), HasSubstr(" -> simulation finished! (cpu-time = "));
  EXPECT_TRUE(driver().calls.empty());
  EXPECT_EQ(recordTimes(), (std::vector<double>{0.0}));
}

TEST_F(TimeLoop, WithoutOutputIntervalHasRecordsAtStartAndEnd) {
  setTimes(R"("start": 0, "end": 1, "out": 0)");
  driver().allowSteps(0.25);
  run();
  EXPECT_EQ(recordTimes(), (std::vector<double>{0.0, 1.0}));
}

TEST_F(TimeLoop, WithoutOutputIntervalAReRunHasARecordAtItsStartOnly) {
  setTimes(R"("start": 0, "end": 1, "out": 0)");
  driver().allowSteps(0.25);
  run();
  dropDriver();
  setTimes(R"("start": 1, "end": 2, "out": 0)");
  driver().allowSteps(0.25);
  run();
  EXPECT_EQ(driver().time(), 2.0);
  EXPECT_EQ(recordTimes(), (std::vector<double>{0.0, 1.0}));
}

TEST_F(TimeLoop, WithoutTimeStepKernelStepsFromRecordToRecord) {
  setTimes(R"("start": 0, "end": 1, "out": 0.5)");
  run();
  EXPECT_EQ(driver().time(), 1.0);
  EXPECT_EQ(driver().records(), 3);
}

TEST_F(TimeLoop, DoesNotRefuseAStepOfZeroOrLess) {
  setTimes(R"("start": 0, "end": 1, "out": 1)");
  Driver& domain = driver();
  domain.on(KernelID::TimeStepCalculation, [&domain] {
    const std::vector<double> steps{0.5, 0.0, -0.25, 0.75};
    domain.setStep(steps.at(domain.calls.size() - 1));
  });
  run();
  const std::vector<Driver::Call> expected{{KernelID::TimeStepCalculation, 0.0},
                                           {KernelID::TimeStepCalculation, 0.5},
                                           {KernelID::TimeStepCalculation, 0.5},
                                           {KernelID::TimeStepCalculation, 0.25}};
  EXPECT_EQ(domain.calls, expected);
  EXPECT_EQ(domain.time(), 1.0);
}

TEST_F(TimeLoop, EndsWhereTheTimeIsNotANumber) {
  setTimes(R"("start": 0, "end": 1, "out": 1)");
  Driver& domain = driver();
  domain.on(KernelID::TimeStepCalculation,
            [&domain] { domain.setStep(std::numeric_limits<double>::quiet_NaN()); });
  EXPECT_THAT(run(), HasSubstr(" -> simulation finished!"));
  EXPECT_TRUE(std::isnan(domain.time()));
}

TEST_F(TimeLoop, OfStepsThatLeadNowhereWarnsAndGoesOn) {
  setTimes(R"("start": 0, "end": 1, "out": 1)");
  Driver& domain = driver();
  domain.on(KernelID::TimeStepCalculation, [&domain] {
    if (domain.calls.size() == 250) throw BaseException();
    domain.setStep(1e-300);
  });
  ::testing::internal::CaptureStderr();
  EXPECT_THROW(run(), BaseException);
  EXPECT_EQ(linesWith(" -> the run does not get on: its last 100 steps took it 1e-298 s further",
                      ::testing::internal::GetCapturedStderr())
                .size(),
            1U);
}

TEST_F(TimeLoop, AFailingKernelLeavesTheRecordsThatAreWritten) {
  setTimes(R"("start": 0, "end": 1, "out": 0.25)");
  driver().allowSteps(0.25);
  Driver& domain = driver();
  domain.on(KernelID::Update, [&domain] {
    if (domain.time() >= 0.5) throw BaseException();
  });
  EXPECT_THROW(run(), BaseException);
  EXPECT_EQ(recordTimes(), (std::vector<double>{0.0, 0.25, 0.5}));
}

// -- what the loop tells --------------------------------------------------------------------------

class LoopConsole : public support::Driven {};

const std::string SMALL_STEP =
    " -> time step smaller than allowed minimal 0.375. check for stability...";

TEST_F(LoopConsole, WarnsOfSmallStepsAboveLevelZero) {
  setTimes(R"("start": 0, "end": 1, "out": 1)", R"("init": 0.02, "minimum": 0.375)");
  driver().allowSteps(0.25);
  EXPECT_EQ(linesWith(SMALL_STEP, run(0)).size(), 0U);
  EXPECT_EQ(driver().time(), 1.0);
  dropDriver();
  driver().allowSteps(0.25);
  EXPECT_EQ(linesWith(SMALL_STEP, run(1)).size(), 4U);
}

TEST_F(LoopConsole, AStepAtTheMinimumIsNotSmall) {
  setTimes(R"("start": 0, "end": 0.75, "out": 0.75)", R"("init": 0.02, "minimum": 0.375)");
  driver().allowSteps(0.375);
  EXPECT_EQ(linesWith(SMALL_STEP, run(1)).size(), 0U);
}

TEST_F(LoopConsole, AnnouncesRecordsAboveLevelOne) {
  setTimes(R"("start": 0, "end": 1, "out": 0.5)");
  const std::vector<std::string> announced{
      " -> writing output at t = 0 ...", " -> writing output at t = 0.5 ...",
      " -> writing output at t = 1 ...", " -> writing tracked output ..."};
  EXPECT_EQ(linesWith(" -> writing", run(1)).size(), 0U);
  dropDriver();
  EXPECT_EQ(linesWith(" -> writing", run(2)), announced);
}

TEST_F(LoopConsole, ShowsTheTimeOfEachStepAboveLevelTwo) {
  setTimes(R"("start": 0, "end": 1, "out": 0.5)");
  driver().allowSteps(0.375);
  EXPECT_EQ(linesWith(" -> time:", run(2)).size(), 0U);
  dropDriver();
  driver().allowSteps(0.375);
  EXPECT_EQ(linesWith(" -> time:", run(3)),
            (std::vector<std::string>{" -> time: 0.375", " -> time: 0.5", " -> time: 0.875",
                                      " -> time: 1"}));
}

/// The lines of progress, without the rate, which depends on the machine.
std::vector<std::string> progressLines(const std::string& text) {
  std::vector<std::string> lines;
  for (const std::string& line : linesWith(" -> Progress: ", text)) {
    lines.push_back(std::regex_replace(line, std::regex(", RTS = [-+.0-9a-z]+$"), ", RTS = #"));
  }
  return lines;
}

TEST_F(LoopConsole, ProgressHasALinePerHundredthOfTheRunAndOneAtItsStart) {
  setTimes(R"("start": 0, "end": 1000, "out": 1000)");
  driver().allowSteps(1.0);
  const std::vector<std::string> lines = progressLines(run(0, true));
  ASSERT_EQ(lines.size(), 101U);
  EXPECT_EQ(lines[0], " -> Progress: 0/100, dt = 0.02 [s], RTS = #");
  for (std::size_t i = 1; i <= 100; ++i) {
    EXPECT_EQ(lines[i], " -> Progress: " + std::to_string(i) + "/100, dt = 1 [s], RTS = #");
  }
}

TEST_F(LoopConsole, ProgressCountsWhatIsDoneWhereStepsAreLong) {
  setTimes(R"("start": 0, "end": 8, "out": 8)", R"("init": 0.5, "minimum": 0.1)");
  driver().allowSteps(3.0);
  EXPECT_EQ(progressLines(run(0, true)),
            (std::vector<std::string>{" -> Progress: 0/100, dt = 0.5 [s], RTS = #",
                                      " -> Progress: 37/100, dt = 3 [s], RTS = #",
                                      " -> Progress: 75/100, dt = 3 [s], RTS = #",
                                      " -> Progress: 100/100, dt = 2 [s], RTS = #"}));
}

TEST_F(LoopConsole, ProgressIsSilentWithoutItsOption) {
  setTimes(R"("start": 0, "end": 1, "out": 1)");
  EXPECT_EQ(progressLines(run(5, false)).size(), 0U);
}

TEST_F(LoopConsole, ProgressOfARunWithoutDurationDividesByZero) {
  setTimes(R"("start": 0, "end": 0, "out": 0)");
  EXPECT_EQ(progressLines(run(0, true)),
            (std::vector<std::string>{" -> Progress: -2147483648/100, dt = 0.02 [s], RTS = #"}));
}

// -- what a run is refused for --------------------------------------------------------------------

class Refusal : public support::Driven {
 protected:
  using Driven::Driven;

  /// What the driver says on standard error before it gives up.
  std::string refusal() {
    driver();
    ::testing::internal::CaptureStderr();
    EXPECT_THROW(run(), BaseException);
    return ::testing::internal::GetCapturedStderr();
  }
};

const std::string SMALL_MINIMUM =
    " -> Minimum integration timestep must be larger than <1e-12>, in file: "
    "src/simulation/RHEOcommon_op on line 168, version v3.0.1\n";

TEST_F(Refusal, OfAMinimumStepNotAboveTwiceTheLimit) {
  setTimes(R"("start": 0, "end": 1, "out": 1)", R"("init": 0.02, "minimum": 2e-12)");
  EXPECT_EQ(refusal(), SMALL_MINIMUM);
  dropDriver();
  setTimes(R"("start": 0, "end": 1, "out": 1)", R"("init": 0.02, "minimum": 2.0000001e-12)");
  EXPECT_NO_THROW(run());
}

TEST_F(Refusal, OfARunWithoutEnd) {
  setTimes(R"("start": 0, "out": 1)");
  EXPECT_EQ(refusal(),
            " -> path <SIMULATION/TIME/end> not found.\n"
            " -> end of simulation not defined: SIMULATION/TIME/end\n");
}

class RefusalOfParameters : public Refusal {
 protected:
  RefusalOfParameters() : Refusal("fixbed_many") {}
};

TEST_F(RefusalOfParameters, WithSeveralRows) {
  support::removeLink(runFile, "Parameters/BedloadInts");
  std::unique_ptr<api::IH5Writer>(dataio::Factory::createH5Writer(runFile, "rw"))
      ->writeIntVecVec("Parameters/BedloadInts", {{0, 1}, {1, 0}});
  EXPECT_EQ(refusal(),
            " -> parameters cannot have length > 1, in file: src/simulation/RHEOcommon_op on line "
            "425, version v3.0.1\n");
}

TEST_F(RefusalOfParameters, WithMoreValuesThanThereAreSlots) {
  support::removeLink(runFile, "Parameters/BedloadInts");
  std::unique_ptr<api::IH5Writer>(dataio::Factory::createH5Writer(runFile, "rw"))
      ->writeIntVecVec("Parameters/BedloadInts", {{0, 1, 2, 3, 4, 5, 6, 7, 8, 9}});
  EXPECT_EQ(refusal(),
            " -> parameter <Parameters/BedloadInts> has 10 values, but there is room for 9\n");
}

/// A model that holds nothing but parameters that the run file need not hold.
std::unique_ptr<api::IModel> modelWithParameters(std::size_t count, api::IParameter* parameter) {
  auto mock = std::make_unique<::testing::NiceMock<support::ModelMock>>();
  ON_CALL(*mock, getPars)
      .WillByDefault(
          Return(std::vector<model::ParameterID>(count, model::ParameterID::InvGravity)));
  ON_CALL(*mock, getParameter).WillByDefault(Return(parameter));
  return mock;
}

TEST_F(Refusal, OfMoreParametersThanThereAreSlots) {
  model::Parameter derived(model::ParameterID::InvGravity, "InvGravity", "", true, false,
                           DataType::Double, 1);
  driver().replaceModel(modelWithParameters(28, &derived));
  EXPECT_NO_THROW(run());
  dropDriver();
  driver().replaceModel(modelWithParameters(29, &derived));
  EXPECT_EQ(refusal(),
            " -> number of parameters not updated...see 'model/Dimensions', in file: "
            "src/simulation/RHEOcommon_op on line 411, version v3.0.1\n");
}

// -- what a run is made of ------------------------------------------------------------------------

class Initialisation : public support::Driven {
 protected:
  Initialisation() : Driven("fixbed_many") {}

  static double realSlot(model::ParameterID id) { return G_REAL[static_cast<int>(id)]; }
};

TEST_F(Initialisation, AParameterFillsTheSlotOfItsTypeAtItsID) {
  setTimes(R"("start": 0, "end": 0, "out": 0)");
  support::overwrite(runFile, "Parameters/BedloadInts", 0, 7);
  support::overwrite(runFile, "Parameters/BedloadInts", 1, 9);
  run();
  EXPECT_EQ(realSlot(model::ParameterID::Gravity), 9.81);
  EXPECT_EQ(G_INT[4], 0);
  EXPECT_EQ(G_INT[13], 3);
  EXPECT_EQ(G_REAL[13], 0.0);
  EXPECT_EQ(G_INT[19], 7);
  EXPECT_EQ(G_INT[20], 9);
  EXPECT_EQ(G_INT[21], 0);
}

TEST_F(Initialisation, OnlyTwoOrMoreThreadsAreAnswered) {
  Driver& domain = driver();
  for (const int threads : {-1, 0, 1, 2, 8}) {
    ::testing::internal::CaptureStdout();
    domain.setParallel(threads);
    EXPECT_EQ(::testing::internal::GetCapturedStdout(),
              threads < 2 ? "" : " -> no parallel run!\n");
  }
}

}  // namespace
