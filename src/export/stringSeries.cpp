#include "export/stringSeries.h"

#include "common/console.h"
#include "export/Csv.h"
#include "export/NewFile.h"
#include "export/components.h"

namespace exporter {

namespace {

using Outputs = std::vector<const api::IOutput*>;

std::string columnName(const Results& results, const api::IOutput& output, std::size_t string) {
  const std::vector<std::string>& names = results.strings();
  const std::string name =
      string < names.size() ? names[string] : "nodestring " + std::to_string(string + 1);
  const bool sediment = output.getID() == model::OutputID::ns_mor_discharge;
  return name + (sediment ? " sediment" : "") + " [" + componentsOf(output.getID())[0].unit + "]";
}

/// Of any record that holds it.
std::size_t countStrings(const Results& results, const api::IOutput& output) {
  for (const Record& record : results.records()) {
    if (results.holds(output, record)) return results.values(output, record).size();
  }
  return 0;
}

}  // namespace

void writeStringSeries(const Results& results, const std::string& file) {
  const Outputs outputs = results.outputsOn(model::SetID::NodeStrg);
  if (outputs.empty()) {
    common::console::fail("results file <", results.file(), "> holds no discharges of nodestrings:",
                          " ask for ns_hyd_discharge in SIMULATION/OUTPUT of the command file");
  }
  const std::size_t strings = countStrings(results, *outputs.front());

  Csv table(results.file());
  table.add("time [s]");
  for (const api::IOutput* output : outputs) {
    for (std::size_t i = 0; i < strings; ++i) table.add(columnName(results, *output, i));
  }
  table.endRow();
  for (const Record& record : results.records()) {
    table.add(record.time);
    for (const api::IOutput* output : outputs) {
      if (results.holds(*output, record)) {
        for (const double value : results.values(*output, record)) table.add(value);
      } else {
        for (std::size_t i = 0; i < strings; ++i) table.addNothing();
      }
    }
    table.endRow();
  }
  writeText(results.file(), file, table.text());
}

}  // namespace exporter
