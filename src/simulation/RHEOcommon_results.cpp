#include <cstddef>
#include <exception>
#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

#include "common/console.h"
#include "dataio/Archive.h"
#include "dataio/Factory.h"
#include "dataio/H5FileNameDefinitions.h"
#include "dataio/ResultReader.h"
#include "model/vectors.h"
#include "op/io/op_hdf5.h"
#include "simulation/RHEOcommon_op.h"
#include "simulation/SetupOutput.h"

namespace simulation {

namespace console = common::console;

namespace {

// The file answers for one level at a time.
bool holds(const api::IH5Base& file, const std::string& path) {
  for (std::size_t slash = path.find('/', 1); slash != std::string::npos;
       slash = path.find('/', slash + 1)) {
    if (!file.existDataset(path.substr(0, slash))) return false;
  }
  return file.existDataset(path);
}

}  // namespace

void RHEOcommon::initializeResultsFile(const std::string& output) {
  const std::string name = dataio::H5FileNameDefinitions::getResultFileName(output);
  if (logLevel > 1) {
    console::info("creating a new file container to store the simulation results: ", name);
  }
  std::error_code unknown;
  replacesResults = std::filesystem::exists(name, unknown);
  resultFile.reset(dataio::Factory::createRecordWriter(name, "w"));
  keepSetup();

  std::vector<model::DataID> setupData;
  for (const model::DataID id : model->getDats()) {
    if (model->getData(id)->isSetupOnly()) setupData.push_back(id);
  }
  for (const model::OutputID out : model->getOuts()) {
    for (const model::DataID id : model->getOutput(out)->getData()) {
      if (!model->getData(id)->isVariableInTime()) setupData.push_back(id);
    }
  }
  model::sortVector(setupData);
  for (const model::DataID id : setupData) {
    writeSetupOutput(model->getData(id), runFile.get(), resultFile.get(), logLevel);
    keepSetup();
  }
  for (const model::ParameterID id : model->getPars()) {
    api::IParameter* parameter = model->getParameter(id);
    if (parameter->isSetupOnly()) {
      writeSetupOutput(parameter, runFile.get(), resultFile.get(), logLevel);
      keepSetup();
    }
  }
}

// Where there are no earlier results, the file shows how far a run came that fails before its first
// record. Earlier ones stay as they are until then: the first flush replaces them.
void RHEOcommon::keepSetup() {
  if (replacesResults) return;
  try {
    resultFile->flush();
  } catch (const std::exception&) {
    // The file keeps the failure in mind: its first record tells of it.
  }
}

void RHEOcommon::initializeOutputData() {
  for (const model::OutputID id : model->getOuts()) {
    const api::IOutput* output = model->getOutput(id);
    if (logLevel > 0) console::info("init output <", output->getName(), ">");
    for (const model::DataID datum : output->getData()) {
      if (output->isTracking()) {
        trackedData.push_back(datum);
      } else if (model->getData(datum)->isVariableInTime()) {
        outputData.push_back(datum);
      }
    }
  }
  model::sortVector(outputData);
  model::sortVector(trackedData);
}

void RHEOcommon::archive() {
  dataio::Archive::addModel(resultFile.get(), dataio::Archive::getModel(runFile.get()));
  dataio::Archive::addSimulation(resultFile.get(), commandFile->getHash());
  keepSetup();
}

void RHEOcommon::copyMinDepthParameter() {
  const std::string path = "Parameters/MinWaterDepth";
  resultFile->writeDoubleScalar(path, runFile->readDoubleScalar(path));
  keepSetup();
}

void RHEOcommon::writeOutput(const double& time, const model::DataID& id, const int& index) {
  const std::string path =
      dataio::ResultReader::getOutputPath(model->getData(id)->getH5Path(), index);
  const std::string name = resultFile->getFilename();
  op_fetch_data_hdf5_file_path(dats.at(id), name.c_str(), path.c_str());
  resultFile->attachAttributeDouble(path, "t", time);
}

// On a full disk the file is not touched any more: all earlier records can be read. New data make
// the file longer; what is overwritten, of which is the list of names, goes into its journal.
void RHEOcommon::reserveRecord(const std::vector<model::DataID>& data, int index) {
  constexpr std::size_t OVERHEAD = 16384;  // object header and group nodes of a dataset [bytes]
  constexpr std::size_t GROWTH = 64;       // of the list of names, per record [bytes]
  std::size_t appended = 0;
  std::size_t overwritten = 0;
  for (const model::DataID id : data) {
    const op_dat dat = dats.at(id);
    const std::string path =
        dataio::ResultReader::getOutputPath(model->getData(id)->getH5Path(), index);
    const std::size_t overhead = OVERHEAD + GROWTH * static_cast<std::size_t>(index);
    (holds(*resultFile, path) ? overwritten : appended) +=
        static_cast<std::size_t>(dat->set->size) * static_cast<std::size_t>(dat->size) + overhead;
    overwritten += overhead;
  }
  if (resultFile->reserve(appended, overwritten)) return;
  console::fail(
      "results file <", resultFile->getFilename(), "> cannot grow by ", appended + overwritten,
      " bytes for the next record: the disk is full, or the size of files is limited. All ",
      "records before it are kept");
}

// The data of a record come into the file together: a run that is killed or fails leaves whole
// records.
void RHEOcommon::commitRecord() {
  try {
    resultFile->flush();
  } catch (const std::exception& fault) {
    console::fail("results file <", resultFile->getFilename(),
                  "> cannot take the next record: ", fault.what(),
                  ". All records before it are kept");
  }
}

void RHEOcommon::writeRegularOutput(const double& time) {
  if (logLevel > 1) console::info("writing output at t = ", time, " ...");
  reserveRecord(outputData, outputCounter);
  for (const model::DataID id : outputData) writeOutput(time, id, outputCounter);
  commitRecord();
  outputCounter = outputCounter + 1;
  lastRecordTime = time;
}

// Each time has one record, from which a run can be continued.
void RHEOcommon::writeRequestedOutput(const double& time) {
  if (lastRecordTime != time) writeRegularOutput(time);
}

// Tracked data tell of the whole run: they stand at record 0 and carry no time of their own.
void RHEOcommon::writeTrackingOutput(const double& /*time*/) {
  if (logLevel > 1) console::info("writing tracked output ...");
  reserveRecord(trackedData, 0);
  for (const model::DataID id : trackedData) writeOutput(0.0, id, 0);
  commitRecord();
}

}  // namespace simulation
