#include "export/tables/gauges.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

#include "common/NewFile.h"
#include "common/console.h"
#include "export/results/Csv.h"
#include "export/results/quantities.h"

namespace console = common::console;

namespace exporter {

namespace {

/// "0 to 12.5"
std::string extent(const Mesh& mesh, std::size_t axis) {
  double least = std::numeric_limits<double>::infinity();
  double most = -least;
  for (const std::array<double, 3>& node : mesh.nodes) {
    least = std::min(least, node[axis]);
    most = std::max(most, node[axis]);
  }
  return numberText(least) + " to " + numberText(most);
}

/// Takes a number off the front of a text.
bool takeNumber(const char*& begin, const char* end, double& value) {
  const auto parsed = std::from_chars(begin, end, value);
  begin = parsed.ptr;
  return parsed.ec == std::errc() && std::isfinite(value);
}

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

Gauge parseGauge(const std::string& text, int number) {
  Gauge gauge{"gauge " + std::to_string(number), 0.0, 0.0};
  const char* next = text.data();
  const char* const end = next + text.size();
  const bool isPoint = takeNumber(next, end, gauge.x) && next != end && *next++ == ',' &&
                       takeNumber(next, end, gauge.y);
  if (!isPoint || (next != end && *next != ',')) {
    console::fail("gauge <", text, ">: give x,y or x,y,name, as in 12.5,3,bridge");
  }
  if (next != end && next + 1 != end) gauge.name.assign(next + 1, end);
  return gauge;
}

std::size_t cellAt(const Mesh& mesh, const Gauge& gauge) {
  for (std::size_t cell = 0; cell < mesh.cells.size(); ++cell) {
    if (contains(mesh, mesh.cells[cell], gauge.x, gauge.y)) return cell;
  }
  console::fail("gauge <", gauge.name, "> at ", numberText(gauge.x), ", ", numberText(gauge.y),
                " lies outside the mesh, whose x runs from ", extent(mesh, 0), " and y from ",
                extent(mesh, 1), " m");
}

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
