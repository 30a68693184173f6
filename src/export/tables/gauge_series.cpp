#include "export/tables/gauge_series.h"

#include "common/NewFile.h"
#include "export/quantities.h"
#include "export/tables/Csv.h"

namespace exporter {

namespace {

/// One value, or none where the output does not stand in the record.
void addValues(Csv& table, const std::vector<double>& values, std::size_t cell, std::size_t size) {
  for (std::size_t i = 0; i < size; ++i) {
    if (values.empty()) {
      table.addNothing();
    } else {
      table.add(values[cell * size + i]);
    }
  }
}

}  // namespace

void writeGaugeSeries(const Results& results, const std::vector<Gauge>& gauges,
                      const std::string& file) {
  const std::vector<const api::IOutput*> outputs = results.outputsOn(model::SetID::CellsAll);
  std::vector<std::size_t> cells;
  Csv table(results.file());
  table.add("time [s]");
  for (const Gauge& gauge : gauges) {
    cells.push_back(cellAt(results.mesh(), gauge));
    for (const api::IOutput* output : outputs) {
      for (const Quantity& quantity : quantitiesOf(output->getID())) {
        table.add(gauge.name + " " + labelOf(quantity));
      }
    }
  }
  table.endRow();

  for (const Record& record : results.steps()) {
    std::vector<std::vector<double>> values;
    values.reserve(outputs.size());
    for (const api::IOutput* output : outputs) {
      values.push_back(results.holds(*output, record) ? results.values(*output, record)
                                                      : std::vector<double>{});
    }
    table.add(record.time);
    for (const std::size_t cell : cells) {
      for (std::size_t i = 0; i < outputs.size(); ++i) {
        addValues(table, values[i], cell, static_cast<std::size_t>(outputs[i]->getSize()));
      }
    }
    table.endRow();
  }
  common::writeText(file, table.text(), results.sources());
}

}  // namespace exporter
