#include "export/tables/string_series.h"

#include "common/NewFile.h"
#include "common/console.h"
#include "export/results/Csv.h"
#include "export/results/origin.h"
#include "export/results/quantities.h"

namespace exporter {

namespace {

using Outputs = std::vector<const api::IOutput*>;

std::string columnName(const std::string& name, const api::IOutput& output) {
  const bool sediment = output.getID() == model::OutputID::ns_mor_discharge;
  return name + (sediment ? " sediment" : "") + " [" + quantitiesOf(output.getID())[0].unit + "]";
}

}  // namespace

void writeStringSeries(const Results& results, const std::string& file) {
  const Outputs outputs = results.outputsOn(model::SetID::NodeStrg);
  if (outputs.empty()) {
    common::console::fail("results file <", results.file(), "> holds no discharges of nodestrings:",
                          " ask for ns_hyd_discharge in SIMULATION/OUTPUT of the command file");
  }
  const std::vector<std::string> names = stringNamesOf(results);

  Csv table(results.file());
  table.add("time [s]");
  for (const api::IOutput* output : outputs) {
    for (const std::string& name : names) table.add(columnName(name, *output));
  }
  table.endRow();
  for (const Record& record : results.records()) {
    table.add(record.time);
    for (const api::IOutput* output : outputs) {
      if (results.holds(*output, record)) {
        for (const double value : results.values(*output, record)) table.add(value);
      } else {
        for (std::size_t i = 0; i < names.size(); ++i) table.addNothing();
      }
    }
    table.endRow();
  }
  common::writeText(file, table.text(), results.sources());
}

}  // namespace exporter
