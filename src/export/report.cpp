#include "export/report.h"

#include <algorithm>

#include "common/console.h"
#include "dataio/H5Base.h"
#include "dataio/ResultReader.h"
#include "export/results/Csv.h"
#include "export/results/origin.h"
#include "export/results/quantities.h"

namespace console = common::console;

namespace exporter {

namespace {

using nlohmann::ordered_json;

ordered_json describe(const Results& results, const api::IOutput& output) {
  ordered_json components = ordered_json::array();
  for (const Quantity& quantity : quantitiesOf(output.getID())) {
    components.push_back({{"name", quantity.name}, {"unit", quantity.unit}});
  }
  return {{"name", output.getName()},
          {"on", output.getSet()->getName()},
          {"constant", results.isConstant(output)},
          {"components", components}};
}

std::string recordName(const Record& record) {
  return dataio::H5Base::getDataset(dataio::ResultReader::getOutputPath("", record.position));
}

void printOutput(const Results& results, const api::IOutput& output) {
  std::string labels;
  for (const Quantity& quantity : quantitiesOf(output.getID())) {
    labels += (labels.empty() ? "" : ", ") + labelOf(quantity);
  }
  const bool onStrings = output.getSet()->getID() == model::SetID::NodeStrg;
  console::info("output <", output.getName(), "> on ", onStrings ? "nodestrings" : "cells", ": ",
                labels, results.isConstant(output) ? ", the same at all times" : "");
}

void printInvalid(int records) {
  if (records == 0) return;
  console::info(records, records == 1 ? " record is" : " records are", " not valid and left out",
                records == 1 ? "" : ": the simulation cannot continue from this file");
}

}  // namespace

ordered_json describe(const Results& results) {
  ordered_json outputs = ordered_json::array();
  for (const api::IOutput* output : results.outputs()) {
    outputs.push_back(describe(results, *output));
  }
  ordered_json records = ordered_json::array();
  for (const Record& record : results.records()) {
    records.push_back({{"position", record.position}, {"time", record.time}});
  }
  return {{"program", programName()},
          {"file", results.file()},
          {"cells", results.mesh().cells.size()},
          {"nodes", results.mesh().nodes.size()},
          {"strings", results.strings()},
          {"outputs", outputs},
          {"records", records},
          {"invalid_records", results.invalidRecords()},
          {"restart_times", results.restartTimes()}};
}

void printReport(const Results& results) {
  console::info("results file <", results.file(), ">: ", results.mesh().cells.size(), " cells, ",
                results.mesh().nodes.size(), " nodes, ", results.strings().size(), " nodestrings, ",
                results.records().size(), " records");
  for (const api::IOutput* output : results.outputs()) printOutput(results, *output);
  const std::vector<double> restarts = results.restartTimes();
  for (const Record& record : results.records()) {
    const bool restart = std::find(restarts.begin(), restarts.end(), record.time) != restarts.end();
    console::info("record ", recordName(record), ": t[s]: ", numberText(record.time),
                  restart ? ", a run can be continued from it" : "");
  }
  printInvalid(results.invalidRecords());
}

}  // namespace exporter
