// The domain object: the 25 kernels of the numerics as methods over a loaded model.
//
// A method does what stands around a loop: it computes flags and globals, calls the loop and deals
// with what the loop returned in its globals. Which data the loop reaches, and how, is told by its
// description in loops/..
#pragma once

#include <string>

#include "simulation/RHEOcommon_op.h"
#include "simulation/loops/descriptions.h"

namespace simulation {

class RHEOdomain : public RHEOcommon {
 public:
  /// The one object of the process, made on the first call; later arguments are ignored.
  /// The caller that ends the run deletes it.
  static RHEOdomain* getInstance(const std::string& commandFile, const std::string& runFile);

  void initializeSimulationParameters() override;

  void kernel_HYDRAULICS_InitializeCellFeatures();
  void kernel_MORPHOLOGY_InitializeCellFeatures();
  void kernel_HYDRAULICS_InitializeFriction();
  void kernel_HYDRAULICS_TimeStep();
  void kernel_TOPOLOGY_NodeStringStates();
  void kernel_DATA_EdgeInterpolation();
  void kernel_DATA_CellInterpolation();
  void kernel_DATA_EdgeModification();
  void kernel_DATA_CellModification();
  void kernel_HYDRAULICS_CalcCurvature();
  void kernel_MORPHOLOGY_CalcBedGradient();
  void kernel_HYDRAULICS_Boundary();
  void kernel_MORPHOLOGY_Boundary();
  void kernel_HYDRAULICS_WallFluxes();
  void kernel_MORPHOLOGY_WallFluxes();
  void kernel_HYDRAULICS_InternalFluxes();
  void kernel_MORPHOLOGY_LocalBedSlope();
  void kernel_MORPHOLOGY_CalcBedloadTransport();
  void kernel_MORPHOLOGY_InternalFluxes();
  /// Corrects until no fixed bed is undercut by more than FixBedAccuracy, or FixBedMaxIter times.
  void kernel_MORPHOLOGY_FixedBedCorrection();
  void kernel_GLOBAL_Update();
  void kernel_HYDRAULICS_Friction();
  void kernel_HYDRAULICS_FloodTracking();
  void kernel_HYDRAULICS_Source();
  void kernel_MORPHOLOGY_Source();

 protected:
  /// For classes that watch the kernels of a run: they may wrap the callables in `kernels`.
  RHEOdomain(const std::string& commandFile, const std::string& runFile);

 private:
  int flag(loops::Flag which) const;

  /// Builds the arguments of loop L from the model's data and maps and calls its frame.
  /// @param globals the global arguments, in the order of the rows
  template <class L, class... Globals>
  void parLoop(Globals&... globals);
  template <class L, std::size_t I, class GlobalTuple>
  op_arg argument(const GlobalTuple& globals);

  op_dat datOf(model::DataID id) { return dats[id]; }
  op_dat datOf(model::SetID id) { return setEnumerators[id]; }
};

}  // namespace simulation
