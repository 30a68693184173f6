#include "simulation/RHEOcommon_op.h"

#include <malloc.h>

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <limits>
#include <new>
#include <optional>
#include <utility>

#include "api/IResultReader.h"
#include "common/NewFile.h"
#include "common/check.h"
#include "common/console.h"
#include "dataio/Archive.h"
#include "dataio/Factory.h"
#include "dataio/H5FileNameDefinitions.h"
#include "dataio/ResultReader.h"
#include "model/Factory.h"
#include "model/components.h"
#include "model/vectors.h"
#include "op/core/op_rt_support.h"
#include "op/core/op_seq.h"
#include "op/io/op_hdf5.h"
#include "simulation/ExecutionPlan.h"
#include "simulation/InputChecks.h"
#include "simulation/SeriesGuard.h"
#include "simulation/SignalWatch.h"
#include "simulation/StallWatch.h"
#include "simulation/kernels/Parameters.h"

namespace simulation {

namespace console = common::console;

namespace {

// The lines that these checks show in their messages: the same ones wherever the code moves.
constexpr int LINE_MINIMUM_STEP = 168;
constexpr int LINE_PARAMETER_COUNT = 411;
constexpr int LINE_INT_PARAMETER = 425;
constexpr int LINE_REAL_PARAMETER = 431;

// Steps are reset to this value before each pass; every bound lies below it.
constexpr double NO_LIMIT = 1e12;

// Times of records are compared after rounding to this many digits, with which the reader's factor
// overflows: only times that agree to 2^-31 s match.
constexpr int TIME_DIGITS = 100;

// Elements of a set that are numbered, per byte of the run file: with any data they are far fewer.
constexpr std::uintmax_t MOST_ELEMENTS = 128;

// Truncates toward zero; what no int can hold (0/0 where a run has no length) becomes INT_MIN.
int truncated(double value) {
  constexpr double LIMIT = 2147483648.0;
  return std::fabs(value) < LIMIT ? static_cast<int>(value) : std::numeric_limits<int>::min();
}

double secondsSince(const std::chrono::steady_clock::time_point& start) {
  const auto passed = std::chrono::steady_clock::now() - start;
  const auto count = std::chrono::duration_cast<std::chrono::nanoseconds>(passed).count();
  return static_cast<double>(count) / 1e9;
}

}  // namespace

RHEOcommon::RHEOcommon(const std::string& commandFileName, const std::string& runFileName)
    : model(model::Factory::createModel(runFileName)),
      commandFile(dataio::Factory::createCommandFileReader(commandFileName)),
      runFile(dataio::Factory::createH5Reader(runFileName)) {
  model->addOutputs(commandFile->getOptionalStringList("SIMULATION/OUTPUT", {}));
}

RHEOcommon::~RHEOcommon() {
  op_exit();
}

// A file gets the text as a whole or not at all; a device or the target of a link as it comes.
void RHEOcommon::printHash(const std::string& file) {
  console::info("restoring the model configuration to file <", file, ">");
  std::error_code ignored;
  const std::filesystem::file_status place = std::filesystem::symlink_status(file, ignored);
  std::optional<common::NewFile> whole;
  if (!exists(place) || is_regular_file(place)) whole.emplace(file, common::Sources());
  if (!dataio::Archive::restore(runFile.get(), whole ? whole->unfinished() : file)) {
    console::fail("file <", file,
                  "> cannot be written: is the disk full, or the folder not yours?");
  }
  if (whole) whole->finish();
}

void RHEOcommon::setParallel(const int& threads) {
  if (threads > 1) console::info("no parallel run!");
}

void RHEOcommon::init(const int& level, const bool& showProgress, const bool& debug,
                      const std::string& output) {
  logLevel = level;
  progress = showProgress;
  G_Debug = debug ? 1 : 0;
  if (debug) console::info("DEBUG MODE ACTIVATED");
  op_init(0, nullptr, logLevel);

  const std::string fileName = runFile->getFilename();
  initializeSetsAndKernels(fileName);
  initializeMaps(fileName);
  initializeSolutionData();
  if (startTime() > 0.0) {
    initializeReRunData(output, startTime());
    initializeData(fileName, true);
  } else {
    initializeData(fileName, false);
    initializeResultsFile(output);
  }
  initializeOutputData();
  initializeParameters();
  initializeVariables();
  // Copies of the setup have left the heap full of holes: the run can do without them.
  malloc_trim(0);
  op_diagnostic_output();
}

void RHEOcommon::initializeSetsAndKernels(const std::string& fileName) {
  for (const model::SetID id : model->getSets()) {
    api::ISet* set = model->getSet(id);
    sets[id] = op_decl_set_hdf5(fileName.c_str(), set->getH5Path().c_str());
    set->setSize(op_get_size(sets[id]));
    if (G_Debug != 0) setEnumerators[id] = createDebugData(set);
  }
  deactivateKernels();
}

// A kernel over an empty set loses its callable and so gets no plan and no loop.
void RHEOcommon::deactivateKernels() {
  const std::vector<model::KernelID> ofModel = model->getKernels();
  std::vector<model::KernelID> idle;
  for (const auto& entry : kernels) {
    if (model::elementInVector(entry.first, ofModel) < 0) continue;
    const op_set set = sets.at(model->getKernel(entry.first)->getSet()->getID());
    if (op_get_size(set) == 0) idle.push_back(entry.first);
  }
  for (const model::KernelID id : idle) {
    if (logLevel > 0) {
      console::info("de-activating the kernel <", model->getKernel(id)->getName(), ">");
    }
    kernels.erase(id);
  }
}

void RHEOcommon::initializeMaps(const std::string& fileName) {
  for (const model::MapID id : model->getMaps()) {
    const api::IMap* map = model->getMap(id);
    const std::string path = map->getH5Path();
    if (!runFile->existDataset(path)) {
      if (logLevel > 0) console::info("map <", path, "> not found in runfile");
      continue;
    }
    if (logLevel > 2) console::info("loading map <", path, "> ...");
    maps[id] = op_decl_map_hdf5(sets[map->getSet()->getID()], sets[map->getSetMapped()->getID()],
                                map->getSize(), fileName.c_str(), path.c_str());
  }
}

void RHEOcommon::initializeSolutionData() {
  for (const model::DataID id : model->getDats()) {
    if (!model->getData(id)->isSolution()) continue;
    solutionData.push_back(id);
    outputData.push_back(id);
  }
}

void RHEOcommon::initializeData(const std::string& fileName, bool isReRun) {
  for (const model::KernelID kernel : model->getKernels()) {
    for (const model::DataID id : model->getKernel(kernel)->getOptionalData()) {
      if (logLevel > 4) {
        console::info("assign (empty) optional data <", static_cast<int>(id), "> ...");
      }
      dats[id] = nullptr;
    }
  }
  for (const model::DataID id : model->getDats()) {
    api::IData* data = model->getData(id);
    if (isReRun && data->isSolution()) continue;
    dats[id] = loadData(data, fileName);
  }
}

op_dat RHEOcommon::loadData(api::IData* data, const std::string& fileName) {
  const std::string path = data->getH5Path();
  const std::string type = data->getType();
  if (data->isSimulationOnly()) {
    if (type == "int") return createLocalData<int>(data);
    if (type == "double") return createLocalData<double>(data);
    return nullptr;
  }
  if (data->isSetupOnly()) return nullptr;
  if (!runFile->existDataset(path)) {
    if (logLevel > 0) console::info("data <", path, "> not found in runfile");
    return nullptr;
  }
  if (logLevel > 2) console::info("loading data <", path, "> ...");
  return op_decl_dat_hdf5(sets[data->getSet()->getID()], data->getDimension().at(1), type.c_str(),
                          fileName.c_str(), path.c_str());
}

void RHEOcommon::initializeReRunData(const std::string& output, const double& time) {
  const std::string name = dataio::H5FileNameDefinitions::getResultFileName(output);
  if (logLevel > 1) {
    console::info("opening the existing solution file <", name, "> to setup the RE-RUN simulation");
  }
  std::unique_ptr<api::IResultReader> reader(dataio::Factory::createResultReader(name));
  std::vector<std::string> paths;
  paths.reserve(solutionData.size());
  for (const model::DataID id : solutionData) paths.push_back(model->getData(id)->getH5Path());

  const int position = reader->findTime(paths, time, TIME_DIGITS);
  if (position < 0) {
    console::info("Restart time ", time,
                  " [s] is not available. Please choose among available times:");
    reader->printValidTimes(paths);
    console::fail("impossible to setup proper Re-Run Initial Conditions");
  }
  outputCounter = position;
  for (const model::DataID id : solutionData) {
    const api::IData* data = model->getData(id);
    const std::string record =
        dataio::ResultReader::getOutputPath(data->getH5Path(), outputCounter);
    dats[id] = op_decl_dat_hdf5(sets[data->getSet()->getID()], data->getDimension().at(1),
                                data->getType().c_str(), name.c_str(), record.c_str());
    reader->deleteResults(data->getH5Path(), position);
  }
  console::info("Re-run properly set at ", time, " [s]");
  // The writer has the file before the reader lets it go: records become invalid together with the
  // first one that replaces them, not when this run fails or is killed before.
  resultFile.reset(dataio::Factory::createRecordWriter(name, "rw"));
  reader.reset();
}

void RHEOcommon::initializeParameters() {
  CHECK_THAT_AT(PARAMETER_SLOTS >= static_cast<int>(this->model->getPars().size()),
                "number of parameters not updated...see 'model/Dimensions'", LINE_PARAMETER_COUNT);
  for (const model::ParameterID id : model->getPars()) {
    const api::IParameter* parameter = model->getParameter(id);
    if (parameter->isSimulationOnly()) continue;
    const std::string path = parameter->getH5Path();
    const auto slot = static_cast<std::size_t>(parameter->getID());
    if (parameter->getType() == "int") {
      if (parameter->getSize() == 1) {
        G_INT[slot] = runFile->readIntScalar(path);
        continue;
      }
      const std::vector<std::vector<int>> data = runFile->readIntVecVec(path);
      CHECK_THAT_AT(data.size() == 1, "parameters cannot have length > 1", LINE_INT_PARAMETER);
      checkParameterSize(path, slot, data[0].size());
      std::copy(data[0].begin(), data[0].end(), G_INT + slot);
    } else if (parameter->getType() == "double") {
      if (parameter->getSize() == 1) {
        G_REAL[slot] = runFile->readDoubleScalar(path);
        continue;
      }
      const std::vector<std::vector<double>> data = runFile->readDoubleVecVec(path);
      CHECK_THAT_AT(data.size() == 1, "parameters cannot have length > 1", LINE_REAL_PARAMETER);
      checkParameterSize(path, slot, data[0].size());
      std::copy(data[0].begin(), data[0].end(), G_REAL + slot);
    }
  }
  initializeSimulationParameters();
  op_decl_const_char(PARAMETER_SLOTS, "int", sizeof(int), reinterpret_cast<char*>(G_INT), "G_INT");
  op_decl_const_char(PARAMETER_SLOTS, "double", sizeof(double), reinterpret_cast<char*>(G_REAL),
                     "G_REAL");
  op_decl_const_char(1, "int", sizeof(int), reinterpret_cast<char*>(&G_Debug), "G_Debug");
}

void RHEOcommon::initializeVariables() {
  for (const model::VariableID id : model->getVars()) {
    const api::IVariable* variable = model->getVariable(id);
    const auto count = static_cast<std::size_t>(variable->getSize());
    if (variable->getType() == "int") {
      intVariables[variable->getID()] = Memory(std::calloc(count, sizeof(int)));
    } else if (variable->getType() == "double") {
      realVariables[variable->getID()] = Memory(std::calloc(count, sizeof(double)));
    }
  }
}

void* RHEOcommon::keepMemory(std::size_t count, std::size_t size) {
  if (count == 0) return nullptr;
  Memory memory(std::calloc(count, size));
  if (memory == nullptr) throw std::bad_alloc();
  localMemory.push_back(std::move(memory));
  return localMemory.back().get();
}

// Data of the simulation itself start at zero; the kernels fill them.
template <class T>
op_dat RHEOcommon::createLocalData(api::IData* const& data) {
  const std::vector<int> size = data->getDimension();
  const std::size_t count =
      static_cast<std::size_t>(size.at(0)) * static_cast<std::size_t>(size.at(1));
  T* values = static_cast<T*>(keepMemory(count, sizeof(T)));
  return op_decl_dat(sets[data->getSet()->getID()], size.at(1), data->getType().c_str(), values,
                     data->getH5Path().c_str());
}

op_dat RHEOcommon::createDebugData(api::ISet* const& set) {
  const int size = set->getSize();
  // A set that has no data can have any size, but its numbers take memory.
  const auto most = std::filesystem::file_size(runFile->getFilename()) * MOST_ELEMENTS;
  if (static_cast<std::uintmax_t>(size) > most) {
    console::fail(
        "set <", set->getH5Path(), "> has ", size,
        " elements: run it without --debug, which numbers the elements of a set, at most ", most,
        " in a file of this size");
  }
  int* numbers = static_cast<int*>(keepMemory(static_cast<std::size_t>(size), sizeof(int)));
  for (int i = 0; i < size; ++i) numbers[i] = i;
  const std::string path = set->getH5Path();
  op_dat dat = op_decl_dat(sets[set->getID()], 1, "int", numbers, path.c_str());
  console::info("ENUMERATOR DATA FOR SET <", path, "> CREATED");
  return dat;
}

double RHEOcommon::startTime() const {
  return commandFile->getOptionalDouble("SIMULATION/TIME/start", 0.0);
}

double RHEOcommon::endTime() const {
  bool found = false;
  const double end = commandFile->getDouble("SIMULATION/TIME/end", found);
  if (!found) console::fail("end of simulation not defined: SIMULATION/TIME/end");
  return end;
}

double RHEOcommon::outTime() const {
  return commandFile->getOptionalDouble("SIMULATION/TIME/out", 0.0);
}

double RHEOcommon::dtInit() const {
  return commandFile->getOptionalDouble("SIMULATION/TIMESTEP/init", 0.02);
}

// Without an interval there are two records: at start and at end.
api::IExecutionPlan* RHEOcommon::createOutputPlan(const double& start, const double& out,
                                                  const double& end) {
  return Factory::createExecutionPlan(start, out == 0.0 ? end : out, end);
}

api::IExecutionPlan* RHEOcommon::createProgressPlan(const double& start, const double& end) const {
  return Factory::createExecutionPlan(start, progress ? (end - start) / progressSteps : end, end);
}

// Windows are relative to the start of this run, so the kernels that prepare the cells run again
// after a restart.
void RHEOcommon::initKernelPlans(const double& start) {
  const auto ids = runFile->readIntVecVec(model::Kernel::kernelPath);
  const auto execution = runFile->readDoubleVecVec(model::Kernel::kernelTimingPath);
  for (std::size_t i = 0; i < ids.size(); ++i) {
    const auto id = static_cast<model::KernelID>(ids[i].at(0));
    if (kernels.count(id) == 0) continue;
    const std::vector<double>& timing = execution.at(i);
    kernelPlans[id].reset(
        Factory::createExecutionPlan(timing.at(0) + start, timing.at(1), start + timing.at(2)));
  }
}

// Steps up to twice the limit that the message names are refused with it.
double RHEOcommon::minimumTimeStep() const {
  const double dtMin = commandFile->getOptionalDouble("SIMULATION/TIMESTEP/minimum", 0.0001);
  CHECK_THAT_AT(dtMin > 2 * 1.e-12,
                "Minimum integration timestep must be larger than <" << 1e-12 << ">",
                LINE_MINIMUM_STEP);
  return dtMin;
}

bool RHEOcommon::isInModel(model::KernelID kernel) const {
  return model::elementInVector(kernel, model->getKernels()) >= 0;
}

// What the first pass would refuse is refused before the first record: a slip in a run file must
// not cost the results of an earlier run.
void RHEOcommon::prepareFirstPass() {
  for (const auto& entry : kernelPlans) {
    if (!entry.second->execute(currentTime)) continue;
    if (!isInModel(entry.first)) break;  // its call ends the run
    prepareKernel(entry.first);
  }
  initKernelPlans(currentTime);  // asking the plans has used them up
}

// Comes before the first call of a kernel; one that is never called may have any input.
void RHEOcommon::prepareKernel(model::KernelID kernel) {
  if (!preparedKernels.insert(kernel).second || !isInModel(kernel)) return;
  if (kernel == model::KernelID::HydBoundaryFluxes ||
      kernel == model::KernelID::MorBoundaryFluxes) {
    provideFriction();
  }
  checkKernelInput(kernel, dats, maps);
  const SeriesGuard guard(kernel, dats, maps);
  if (guard.empty()) return;
  kernels[kernel] = [this, guard, call = kernels.at(kernel)] {
    guard.check(currentTime);
    call();
  };
}

// Some types of boundaries ask for the friction of their cell, in runs without friction too. It is
// zero then.
void RHEOcommon::provideFriction() {
  op_dat& coefficient = dats[model::DataID::ChezyCoe];
  if (coefficient != nullptr) return;
  const std::unique_ptr<api::IData> data(model::Factory::createData(
      model::DataID::ChezyCoe, model->getSet(model::SetID::CellsAll), false));
  coefficient = createLocalData<double>(data.get());
}

void RHEOcommon::run() {
  const double start = startTime();
  const double end = endTime();
  const double minimum = minimumTimeStep();
  const std::unique_ptr<api::IExecutionPlan> outputPlan(createOutputPlan(start, outTime(), end));
  const std::unique_ptr<api::IExecutionPlan> progressPlan(createProgressPlan(start, end));
  initKernelPlans(start);
  currentTime = start;
  timeStep = NO_LIMIT;
  initialTimeStep = dtInit();
  archive();
  copyMinDepthParameter();
  checkRecordData(outputData, dats);
  checkRecordData(trackedData, dats);
  if (end > start) prepareFirstPass();
  if (outputPlan->execute(currentTime, timeStep)) writeRegularOutput(currentTime);

  const SignalWatch signals;
  StallWatch stall(start, end);
  const Clock::time_point clock = Clock::now();
  if (progressPlan->execute(currentTime)) {
    printProgressMessage(progressPlan->getIncrement(), clock, initialTimeStep);
  }
  while (end > currentTime) {
    executeKernels();
    if (minimum > timeStep && logLevel > 0) {
      console::info("time step smaller than allowed minimal ", minimum, ". check for stability...");
    }
    currentTime = timeStep + currentTime;
    stall.pass(currentTime);
    if (logLevel > 2) console::info("time: ", currentTime);
    if (progressPlan->execute(currentTime)) {
      printProgressMessage(progressPlan->getIncrement(), clock, timeStep);
    }
    timeStep = NO_LIMIT;
    if (outputPlan->execute(currentTime, timeStep)) writeRegularOutput(currentTime);
    stopSignal = SignalWatch::stopSignal();
    if (SignalWatch::takeRecordRequest() || stopSignal != 0) writeRequestedOutput(currentTime);
    if (stopSignal != 0) break;
  }
  writeTrackingOutput(currentTime);
  console::info("simulation finished! (cpu-time = ", secondsSince(clock), "s)");
  op_timing_output();
}

// All plans are asked at the time at which the step starts.
void RHEOcommon::executeKernels() {
  for (const auto& entry : kernelPlans) {
    if (!entry.second->execute(currentTime)) continue;
    prepareKernel(entry.first);
    kernels.at(entry.first)();
  }
}

void RHEOcommon::printProgressMessage(const double& increment, const Clock::time_point& clock,
                                      const double& dt) const {
  if (!progress) return;
  const double simulated = currentTime - startTime();
  console::info("Progress: ", truncated(simulated / increment), "/", progressSteps, ", dt = ", dt,
                " [s]", ", RTS = ", simulated / secondsSince(clock));
}

}  // namespace simulation
