#include "simulation/RHEOdomain.h"

#include <cmath>
#include <tuple>
#include <utility>

#include "common/console.h"
#include "op/core/op_seq.h"
#include "simulation/LoopArguments.h"
#include "simulation/kernels/Parameters.h"
#include "simulation/loops/all_loops.h"

namespace simulation {

namespace console = common::console;
using kernels::Parameters;
using loops::Flag;
using model::KernelID;
using model::ParameterID;

namespace {

// Numerical trouble ends the run only where the user asked for it.
void stopInSafeMode(int check, const std::string& message) {
  if (check == 0 && Parameters::ofRun().integer(ParameterID::SafeMode) == 1) console::fail(message);
}

}  // namespace

RHEOdomain* RHEOdomain::getInstance(const std::string& commandFile, const std::string& runFile) {
  static RHEOdomain* const instance = new RHEOdomain(commandFile, runFile);
  return instance;
}

RHEOdomain::RHEOdomain(const std::string& commandFileName, const std::string& runFileName)
    : RHEOcommon(commandFileName, runFileName) {
  // clang-format off
  kernels[KernelID::InitCellHydFeatures]   = [this] { kernel_HYDRAULICS_InitializeCellFeatures(); };
  kernels[KernelID::InitCellMorFeatures]   = [this] { kernel_MORPHOLOGY_InitializeCellFeatures(); };
  kernels[KernelID::InitFrictionFeatures]  = [this] { kernel_HYDRAULICS_InitializeFriction(); };
  kernels[KernelID::TimeStepCalculation]   = [this] { kernel_HYDRAULICS_TimeStep(); };
  kernels[KernelID::NodeStringStateCalc]   = [this] { kernel_TOPOLOGY_NodeStringStates(); };
  kernels[KernelID::EdgeDataInterpolation] = [this] { kernel_DATA_EdgeInterpolation(); };
  kernels[KernelID::CellDataInterpolation] = [this] { kernel_DATA_CellInterpolation(); };
  kernels[KernelID::EdgeDataModification]  = [this] { kernel_DATA_EdgeModification(); };
  kernels[KernelID::CellDataModification]  = [this] { kernel_DATA_CellModification(); };
  kernels[KernelID::CalCCurvature]         = [this] { kernel_HYDRAULICS_CalcCurvature(); };
  kernels[KernelID::CalcBedGradient]       = [this] { kernel_MORPHOLOGY_CalcBedGradient(); };
  kernels[KernelID::HydBoundaryFluxes]     = [this] { kernel_HYDRAULICS_Boundary(); };
  kernels[KernelID::MorBoundaryFluxes]     = [this] { kernel_MORPHOLOGY_Boundary(); };
  kernels[KernelID::HydWallBFluxes]        = [this] { kernel_HYDRAULICS_WallFluxes(); };
  kernels[KernelID::MorWallBFluxes]        = [this] { kernel_MORPHOLOGY_WallFluxes(); };
  kernels[KernelID::HydInternalFluxes]     = [this] { kernel_HYDRAULICS_InternalFluxes(); };
  kernels[KernelID::LocalBedSlope]         = [this] { kernel_MORPHOLOGY_LocalBedSlope(); };
  kernels[KernelID::MorBedloadTransport]   = [this] { kernel_MORPHOLOGY_CalcBedloadTransport(); };
  kernels[KernelID::MorInternalFluxes]     = [this] { kernel_MORPHOLOGY_InternalFluxes(); };
  kernels[KernelID::MorFixBedCorrection]   = [this] { kernel_MORPHOLOGY_FixedBedCorrection(); };
  kernels[KernelID::Update]                = [this] { kernel_GLOBAL_Update(); };
  kernels[KernelID::HydFriction]           = [this] { kernel_HYDRAULICS_Friction(); };
  kernels[KernelID::HydFlood]              = [this] { kernel_HYDRAULICS_FloodTracking(); };
  kernels[KernelID::HydSource]             = [this] { kernel_HYDRAULICS_Source(); };
  kernels[KernelID::MorSource]             = [this] { kernel_MORPHOLOGY_Source(); };
  // clang-format on
}

// Derived in every run, also from slots that a model leaves at zero: what comes out is not finite
// then, and no kernel of that model reads it.
void RHEOdomain::initializeSimulationParameters() {
  const auto slot = [](ParameterID id) -> double& { return G_REAL[static_cast<int>(id)]; };
  slot(ParameterID::InvGravity) = 1.0 / slot(ParameterID::Gravity);
  slot(ParameterID::InvBedPorosity) = 1.0 / (1.0 - slot(ParameterID::BedPorosity));
  slot(ParameterID::SedRelDensity) =
      (slot(ParameterID::SedimentDensity) - slot(ParameterID::FluidDensity)) /
      slot(ParameterID::FluidDensity);
}

int RHEOdomain::flag(Flag which) const {
  const Parameters par = Parameters::ofRun();
  const bool friction = par.integer(ParameterID::FrictionOn) == 1;
  const bool morphology = currentTime >= par.real(ParameterID::MorphStart);
  switch (which) {
    case Flag::debug:
      return par.debug() ? 1 : 0;
    case Flag::friction:
      return friction ? 1 : 0;
    case Flag::morphology:
      return morphology ? 1 : 0;
    case Flag::morphologyFriction:
      return morphology && friction ? 1 : 0;
  }
  return 0;
}

template <class L, std::size_t I, class GlobalTuple>
op_arg RHEOdomain::argument(const GlobalTuple& globals) {
  using Row = typename L::template Row<I>;
  using Value = typename Row::Value;
  if constexpr (Row::global) {
    return op_arg_gbl(&std::get<globalOrdinal<L, I>()>(globals), Row::dim, op::typeText<Value>(),
                      Row::access);
  } else {
    const op_dat dat = datOf(Row::datum);
    op_map map = nullptr;
    if constexpr (Row::mapped) map = maps[Row::Route::map];
    int used = 1;
    if constexpr (Row::optional) used = flag(Row::flag());
    if (used != 0) {
      requireDat(dat, Row::datum, L::kernel);
      if constexpr (Row::mapped) requireMap(map, Row::Route::map, L::kernel);
    }
    if constexpr (Row::optional) {
      return op_opt_arg_dat(used, dat, Row::Route::idx, map, Row::dim, op::typeText<Value>(),
                            Row::access);
    } else {
      return op_arg_dat(dat, Row::Route::idx, map, Row::dim, op::typeText<Value>(), Row::access);
    }
  }
}

template <class L, class... Globals>
void RHEOdomain::parLoop(Globals&... globals) {
  const std::tuple<Globals&...> given(globals...);
  const char* const name = model->getKernel(L::kernel)->getNameC();
  [&]<std::size_t... I>(std::index_sequence<I...> /*rows*/) {
    const typename L::Arguments args{argument<L, I>(given)...};
    loops::FrameOf<L>::run(name, sets[L::set], args[I]...);
  }
  (std::make_index_sequence<L::rows>{});
}

void RHEOdomain::kernel_HYDRAULICS_InitializeCellFeatures() {
  parLoop<loops::InitCellHydFeatures>();
}

void RHEOdomain::kernel_MORPHOLOGY_InitializeCellFeatures() {
  parLoop<loops::InitCellMorFeatures>();
}

void RHEOdomain::kernel_HYDRAULICS_InitializeFriction() {
  parLoop<loops::InitFrictionFeatures>();
}

// On the first step of a domain that nothing limits (all dry, say) the initial step is taken.
void RHEOdomain::kernel_HYDRAULICS_TimeStep() {
  const Parameters par = Parameters::ofRun();
  const double longest = par.real(ParameterID::DTmax);
  const double courant = par.real(ParameterID::CFLnumber);
  double dtLocal = longest;
  parLoop<loops::TimeStepCalculation>(dtLocal);
  if (firstTimeStep) {
    if (dtLocal == longest) dtLocal = initialTimeStep / courant;
    firstTimeStep = false;
  }
  timeStep = std::fmin(timeStep, courant * dtLocal);
}

void RHEOdomain::kernel_TOPOLOGY_NodeStringStates() {
  int morphology = flag(Flag::morphology);
  int morphologyFriction = flag(Flag::morphologyFriction);
  parLoop<loops::NodeStringStateCalc>(morphology, morphologyFriction);
}

void RHEOdomain::kernel_DATA_EdgeInterpolation() {
  double time = currentTime;
  parLoop<loops::EdgeDataInterpolation>(time);
}

void RHEOdomain::kernel_DATA_CellInterpolation() {
  double time = currentTime;
  parLoop<loops::CellDataInterpolation>(time);
}

void RHEOdomain::kernel_DATA_EdgeModification() {
  double time = currentTime;
  parLoop<loops::EdgeDataModification>(time);
}

void RHEOdomain::kernel_DATA_CellModification() {
  double time = currentTime;
  parLoop<loops::CellDataModification>(time);
}

void RHEOdomain::kernel_HYDRAULICS_CalcCurvature() {
  parLoop<loops::CalCCurvature>();
}

void RHEOdomain::kernel_MORPHOLOGY_CalcBedGradient() {
  parLoop<loops::CalcBedGradient>();
}

void RHEOdomain::kernel_HYDRAULICS_Boundary() {
  parLoop<loops::HydBoundaryFluxes>();
}

void RHEOdomain::kernel_MORPHOLOGY_Boundary() {
  double dt = timeStep;
  parLoop<loops::MorBoundaryFluxes>(dt);
}

void RHEOdomain::kernel_HYDRAULICS_WallFluxes() {
  parLoop<loops::HydWallBFluxes>();
}

void RHEOdomain::kernel_MORPHOLOGY_WallFluxes() {
  parLoop<loops::MorWallBFluxes>();
}

void RHEOdomain::kernel_HYDRAULICS_InternalFluxes() {
  parLoop<loops::HydInternalFluxes>();
}

void RHEOdomain::kernel_MORPHOLOGY_LocalBedSlope() {
  parLoop<loops::LocalBedSlope>();
}

void RHEOdomain::kernel_MORPHOLOGY_CalcBedloadTransport() {
  int friction = flag(Flag::friction);
  parLoop<loops::MorBedloadTransport>(friction);
}

void RHEOdomain::kernel_MORPHOLOGY_InternalFluxes() {
  parLoop<loops::MorInternalFluxes>();
}

void RHEOdomain::kernel_MORPHOLOGY_FixedBedCorrection() {
  const Parameters par = Parameters::ofRun();
  const double accuracy = par.real(ParameterID::FixBedAccuracy);
  const int mostIterations = par.integer(ParameterID::FixBedMaxIter);
  if (!(1e12 > accuracy) || mostIterations <= 0) return;
  double deviation = accuracy;
  int iteration = 0;
  do {
    double dt = timeStep;
    deviation = accuracy;
    parLoop<loops::MorFixBedCorrection>(dt);
    if (mostIterations == 1) return;
    parLoop<loops::MorFixBedCorrectionMax>(deviation);
    ++iteration;
  } while (deviation > accuracy && mostIterations > iteration);
}

void RHEOdomain::kernel_GLOBAL_Update() {
  double dt = timeStep;
  int morphology = flag(Flag::morphology);
  int check = 1;
  parLoop<loops::Update>(dt, morphology, check);
  stopInSafeMode(check, "ERROR in kernel_GLOBAL_Update... MASS not conserved");
}

void RHEOdomain::kernel_HYDRAULICS_Friction() {
  double dt = timeStep;
  parLoop<loops::HydFriction>(dt);
}

void RHEOdomain::kernel_HYDRAULICS_FloodTracking() {
  double time = currentTime;
  parLoop<loops::HydFlood>(time);
}

void RHEOdomain::kernel_HYDRAULICS_Source() {
  double dt = timeStep;
  int check = 1;
  parLoop<loops::HydSource>(dt, check);
  stopInSafeMode(check, "ERROR in kernel_HYDRAULICS_Source... LIQUID MASS not conserved");
}

void RHEOdomain::kernel_MORPHOLOGY_Source() {
  double dt = timeStep;
  int check = 1;
  parLoop<loops::MorSource>(dt, check);
  stopInSafeMode(check, "ERROR in kernel_MORPHOLOGY_Source... SEDIMENT MASS not conserved");
}

}  // namespace simulation
