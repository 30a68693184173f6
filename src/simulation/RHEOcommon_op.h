// The driver: loads a model into the mesh-loop runtime, marches it in time, writes the results.
//
// It knows nothing of the numerics: kernels are callables in KernelID order, which RHEOdomain
// fills in. Life of the object: constructed, init, run, destroyed; once per process.
#pragma once

#include <chrono>
#include <cstdlib>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "api/ICommandFileReader.h"
#include "api/IExecutionPlan.h"
#include "api/IH5Reader.h"
#include "api/IH5Writer.h"
#include "api/IModel.h"
#include "api/ISimulation.h"
#include "op/core/op_lib_core.h"

namespace simulation {

class RHEOcommon : public api::ISimulation {
 public:
  /// @param commandFile name of the JSON document with the SIMULATION section
  /// @param runFile name of the HDF5 file that the setup tool has written
  /// @throws BaseException or std::exception if one of them cannot be used
  RHEOcommon(const std::string& commandFile, const std::string& runFile);
  ~RHEOcommon() override;
  RHEOcommon(const RHEOcommon&) = delete;
  RHEOcommon& operator=(const RHEOcommon&) = delete;
  RHEOcommon(RHEOcommon&&) = delete;
  RHEOcommon& operator=(RHEOcommon&&) = delete;

  void printHash(const std::string& file) override;
  void setParallel(const int& threads) override;
  void init(const int& logLevel, const bool& progress, const bool& debug,
            const std::string& output) override;
  void run() override;
  void initializeSimulationParameters() override {}
  /// The signal that ended the run before its time, or 0.
  int endedBySignal() const { return stopSignal; }

 protected:
  struct Free {
    void operator()(void* memory) const { std::free(memory); }
  };
  using Memory = std::unique_ptr<void, Free>;
  using Clock = std::chrono::steady_clock;

  std::unique_ptr<api::IModel> model;
  std::unique_ptr<api::ICommandFileReader> commandFile;
  std::unique_ptr<api::IH5Reader> runFile;
  std::unique_ptr<api::IH5RecordWriter> resultFile;  ///< null until init has prepared it

  std::map<model::KernelID, std::function<void()>> kernels;
  std::map<model::KernelID, std::unique_ptr<api::IExecutionPlan>> kernelPlans;
  std::set<model::KernelID> preparedKernels;  ///< those whose input has been checked

  std::map<model::SetID, op_set> sets;
  std::map<model::MapID, op_map> maps;
  std::map<model::DataID, op_dat> dats;           ///< null for data that this run does not have
  std::map<model::SetID, op_dat> setEnumerators;  ///< only with --debug

  std::vector<model::DataID> solutionData;  ///< the state that a record must restore
  std::vector<model::DataID> outputData;    ///< written at each output time
  std::vector<model::DataID> trackedData;   ///< written once, at the end

  int logLevel = 0;
  int outputCounter = 0;  ///< index of the next record
  bool progress = false;
  int progressSteps = 100;  ///< number of progress lines that a run aims at

  double currentTime = 0.0;      ///< simulated time [s]
  double timeStep = 0.0;         ///< step of the current pass [s]
  double initialTimeStep = 0.0;  ///< [s]
  bool firstTimeStep = true;

 private:
  double startTime() const;
  double endTime() const;
  double outTime() const;
  double dtInit() const;

  void initializeSetsAndKernels(const std::string& fileName);
  void deactivateKernels();
  void initializeMaps(const std::string& fileName);
  void initializeSolutionData();
  void initializeData(const std::string& fileName, bool isReRun);
  op_dat loadData(api::IData* data, const std::string& fileName);
  void initializeReRunData(const std::string& output, const double& time);
  void initializeResultsFile(const std::string& output);
  void initializeOutputData();
  void initializeParameters();
  void initializeVariables();

  template <class T>
  op_dat createLocalData(api::IData* const& data);
  op_dat createDebugData(api::ISet* const& set);
  Memory::pointer keepMemory(std::size_t count, std::size_t size);

  static api::IExecutionPlan* createOutputPlan(const double& start, const double& out,
                                               const double& end);
  api::IExecutionPlan* createProgressPlan(const double& start, const double& end) const;
  /// @throws BaseException if the command file asks for one that is too small
  double minimumTimeStep() const;
  void initKernelPlans(const double& start);
  bool isInModel(model::KernelID kernel) const;
  void prepareFirstPass();
  void prepareKernel(model::KernelID kernel);
  void provideFriction();
  void executeKernels();
  void printProgressMessage(const double& increment, const Clock::time_point& clock,
                            const double& dt) const;

  void archive();
  void copyMinDepthParameter();
  void keepSetup();
  void writeOutput(const double& time, const model::DataID& id, const int& index);
  void writeRegularOutput(const double& time);
  void writeRequestedOutput(const double& time);
  void reserveRecord(const std::vector<model::DataID>& data, int index);
  void commitRecord();
  void writeTrackingOutput(const double& time);

  double lastRecordTime = -1.0;  ///< [s]
  int stopSignal = 0;
  bool replacesResults = true;  ///< the results file is an earlier one, until the first record

  std::map<model::VariableID, Memory> intVariables;
  std::map<model::VariableID, Memory> realVariables;
  std::vector<Memory> localMemory;
};

}  // namespace simulation
