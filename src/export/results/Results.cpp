#include "export/results/Results.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <limits>
#include <system_error>

#include "common/console.h"
#include "dataio/Archive.h"
#include "dataio/Factory.h"
#include "dataio/ResultReader.h"
#include "h5/Handle.h"
#include "model/Factory.h"

namespace console = common::console;

namespace exporter {

namespace {

using dataio::ResultReader;

constexpr const char* TOPOLOGY = "CellsAll/Topology";
constexpr const char* COORDINATES = "NodesAll/Coordnts";
constexpr const char* STRING_NAMES = "NodeStrg/StrNames";
constexpr const char* MINIMAL_DEPTH = "Parameters/MinWaterDepth";

/// Which the state of every run gives.
const std::vector<std::string> STATE_OUTPUTS = {"water_surface", "spec_discharge"};

std::unique_ptr<api::IH5Reader> open(const std::string& file) {
  std::error_code ignored;
  if (!std::filesystem::exists(file, ignored)) {
    console::fail("results file <", file, ">: there is no such file");
  }
  if (std::filesystem::is_directory(file, ignored)) {
    console::fail("results file <", file, "> is a folder");
  }
  try {
    return std::unique_ptr<api::IH5Reader>(dataio::Factory::createH5Reader(file));
  } catch (const std::exception& fault) {
    console::fail(
        "results file <", file,
        "> cannot be opened: it is damaged, not yours to read, or no HDF5 file: ", fault.what());
  }
}

template <class T>
std::vector<std::array<T, 3>> triplesOf(const std::vector<std::vector<T>>& rows,
                                        const std::string& path) {
  std::vector<std::array<T, 3>> triples;
  triples.reserve(rows.size());
  for (const std::vector<T>& row : rows) {
    if (row.size() != 3) throw std::runtime_error("<" + path + "> must have three columns");
    triples.push_back({row[0], row[1], row[2]});
  }
  return triples;
}

void requireNodes(const Mesh& mesh) {
  const auto nodes = static_cast<int>(mesh.nodes.size());
  for (const std::array<int, 3>& cell : mesh.cells) {
    for (const int node : cell) {
      if (node < 0 || node >= nodes) {
        throw std::runtime_error("a cell names the node " + std::to_string(node) + " of " +
                                 std::to_string(nodes));
      }
    }
  }
}

}  // namespace

Results::Results(const std::string& file) : name(file) {
  const h5::Silence expectedFailures;
  reader = open(file);
  readArchive();
  try {
    composeModel();
    readMesh();
    readIndex();
  } catch (const BaseException&) {
    console::fail("results file <", name, "> cannot be read: see above");
  } catch (const std::exception& fault) {
    console::fail("results file <", name,
                  "> cannot be read: it is damaged or incomplete: ", fault.what());
  }
  chooseOutputs();
}

bool Results::exists(const std::string& path) const {
  try {
    return reader->existDataset(path);
  } catch (const h5::Error&) {
    return false;
  }
}

void Results::readArchive() {
  const auto entry = [](const char* part) {
    return std::string(dataio::Archive::ROOT) + "/" + part;
  };
  if (!exists(entry(dataio::Archive::MODEL))) {
    console::fail("results file <", name, "> holds no study document: it is no results file");
  }
  if (!exists(entry(dataio::Archive::SIMULATION))) {
    console::fail("results file <", name, "> holds no command file: is it a run file? Results of ",
                  "run.h5 stand in run_results.h5");
  }
  try {
    studyText = dataio::Archive::getModel(reader.get());
    commandText = dataio::Archive::getSimulation(reader.get());
  } catch (const std::exception& fault) {
    console::fail("results file <", name, "> is damaged: ", fault.what());
  }
}

void Results::composeModel() {
  model.reset(model::Factory::getModelFromCommandFile(studyText));
  model->create();
  const std::unique_ptr<api::ICommandFileReader> command(
      dataio::Factory::createCommandFileReader(commandText));
  const std::vector<std::string> asked =
      command->getOptionalStringList("SIMULATION/OUTPUT", STATE_OUTPUTS);
  model->addOutputs(asked);
}

void Results::readMesh() {
  triangles.cells = triplesOf(reader->readIntVecVec(TOPOLOGY), TOPOLOGY);
  triangles.nodes = triplesOf(reader->readDoubleVecVec(COORDINATES), COORDINATES);
  requireNodes(triangles);
  if (exists(STRING_NAMES)) stringNames = reader->readStrVec(STRING_NAMES);
  dryDepth = reader->readDoubleScalar(MINIMAL_DEPTH);
}

void Results::readIndex() {
  std::vector<std::string> state;
  for (const model::DataID id : model->getDats()) {
    if (model->getData(id)->isSolution()) state.push_back(model->getData(id)->getH5Path());
  }
  std::vector<std::string> others;
  for (const model::OutputID id : model->getOuts()) {
    if (model->getOutput(id)->isTracking()) continue;
    for (const model::DataID datum : model->getOutput(id)->getData()) {
      if (!isConstant(datum)) others.push_back(model->getData(datum)->getH5Path());
    }
  }
  index = std::make_unique<dataio::RecordIndex>(*reader, state, others);
}

void Results::chooseOutputs() {
  for (const model::OutputID id : model->getOuts()) {
    const api::IOutput* output = model->getOutput(id);
    if (std::find(shown.begin(), shown.end(), output) != shown.end()) continue;
    const bool found =
        isConstant(*output)
            ? holds(*output, {})
            : std::any_of(records().begin(), records().end(),
                          [&](const Record& record) { return holds(*output, record); });
    if (found) shown.push_back(output);
  }
  const bool tracked = std::any_of(shown.begin(), shown.end(),
                                   [](const api::IOutput* output) { return output->isTracking(); });
  if (records().empty() && !tracked) {
    console::fail("results file <", name, "> holds no valid record: the run has ended before its ",
                  "first one was complete, or all have been marked as not valid");
  }
}

std::vector<Record> Results::steps() const {
  return records().empty() ? std::vector<Record>{{0.0, dataio::NO_POSITION}} : records();
}

std::vector<const api::IOutput*> Results::outputsOn(model::SetID set) const {
  std::vector<const api::IOutput*> found;
  for (const api::IOutput* output : shown) {
    if (output->getSet()->getID() == set) found.push_back(output);
  }
  return found;
}

// -- data and values ------------------------------------------------------------------------------

bool Results::isConstant(model::DataID id) const {
  return !model->getData(id)->isVariableInTime();
}

bool Results::isConstant(const api::IOutput& output) const {
  if (output.isTracking()) return true;
  const std::vector<model::DataID> data = output.getData();
  return std::all_of(data.begin(), data.end(),
                     [this](const model::DataID id) { return isConstant(id); });
}

bool Results::holds(const api::IOutput& output, const Record& record) const {
  const std::vector<model::DataID> data = output.getData();
  return std::all_of(data.begin(), data.end(), [&](const model::DataID id) {
    if (output.isTracking() || isConstant(id)) return exists(datasetOf(output, id, record));
    return index->holds(model->getData(id)->getH5Path(), record);
  });
}

std::string Results::datasetOf(const api::IOutput& output, model::DataID id,
                               const Record& record) const {
  if (!output.isTracking()) return datasetAt(id, record);
  return ResultReader::getOutputPath(model->getData(id)->getH5Path(), 0);
}

std::string Results::datasetAt(model::DataID id, const Record& record) const {
  const std::string path = model->getData(id)->getH5Path();
  return isConstant(id) ? path : ResultReader::getOutputPath(path, record.position);
}

std::vector<Column> Results::columns(const api::IOutput& output, const Record& record) const {
  const std::vector<int> initial = output.getInitData();
  const Record initialRecord = records().empty() ? record : records().front();
  std::vector<Column> found;
  int position = 0;
  for (const auto& [id, component] : output.getDataColumns()) {
    const bool isInitial = std::find(initial.begin(), initial.end(), position) != initial.end();
    found.push_back({datasetOf(output, id, isInitial ? initialRecord : record),
                     model->getData(id)->getSize(), component});
    ++position;
  }
  return found;
}

// A single value is stored without columns.
std::vector<double> Results::read(const Column& column) const {
  if (column.columns == 1 && triangles.cells.size() == 1 &&
      column.dataset.rfind(ResultReader::RESULTPATH, 0) != 0) {
    return {reader->readDoubleScalar(column.dataset)};
  }
  return reader->readDoubleVecFrom2dDataset(column.dataset, column.column);
}

// Whoever draws or looks up values counts on one for each cell.
std::vector<double> Results::readCells(const Column& column) const {
  std::vector<double> values = read(column);
  if (values.size() == triangles.cells.size()) return values;
  throw std::runtime_error("<" + column.dataset + "> has " + std::to_string(values.size()) +
                           " rows, but the mesh has " + std::to_string(triangles.cells.size()) +
                           " cells");
}

std::vector<double> Results::values(const api::IOutput& output, const Record& record) const {
  const bool onCells = output.getSet()->getID() == model::SetID::CellsAll;
  std::vector<std::vector<double>> stored;
  for (const Column& column : columns(output, record)) {
    stored.push_back(onCells ? readCells(column) : read(column));
  }
  const std::size_t elements = stored.front().size();
  const auto size = static_cast<std::size_t>(output.getSize());
  std::vector<model::OutputOperation> operations;
  operations.reserve(size);
  for (int i = 0; i < output.getNrDataFunctions(); ++i) {
    operations.push_back(output.getDataFunction(i));
  }

  // The operations take a depth for wet that is not below the one they are given.
  const double leastWetDepth = std::nextafter(dryDepth, std::numeric_limits<double>::infinity());
  std::vector<double> result;
  result.reserve(elements * size);
  std::vector<double> arguments(stored.size());
  for (std::size_t element = 0; element < elements; ++element) {
    for (std::size_t i = 0; i < stored.size(); ++i) arguments[i] = stored[i].at(element);
    if (operations.empty()) result.insert(result.end(), arguments.begin(), arguments.end());
    for (const model::OutputOperation& operation : operations) {
      result.push_back(operation.function(leastWetDepth, arguments));
    }
  }
  return result;
}

std::vector<double> Results::depths(const Record& record) const {
  using enum model::DataID;
  const auto column = [&](model::DataID id) {
    return Column{datasetAt(id, record), model->getData(id)->getSize(), 0};
  };
  if (record.position == dataio::NO_POSITION || !exists(column(BottomEl).dataset)) return {};
  std::vector<double> depth = readCells(column(HydState));
  const std::vector<double> bottom = readCells(column(BottomEl));
  for (std::size_t cell = 0; cell < depth.size(); ++cell) depth[cell] -= bottom[cell];
  return depth;
}

}  // namespace exporter
