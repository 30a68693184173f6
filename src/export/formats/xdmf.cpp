#include "export/formats/xdmf.h"

#include <utility>

#include "export/formats/XdmfFile.h"
#include "export/results/quantities.h"

namespace exporter {

namespace {

/// QGIS knows differences. It computes other values than meant for the magnitude of a velocity, and
/// refuses a document with any other function.
bool isKnownEverywhere(const std::vector<std::string>& functions) {
  return functions.size() == 1 && (functions[0] == "$0-$1" || functions[0] == "$1-$0");
}

/// The columns of an output as the writer takes them.
struct Lists {
  std::vector<std::string> files;
  std::vector<std::string> datasets;
  std::vector<int> sizes;
  std::vector<int> columns;
};

Lists listsOf(const std::vector<Column>& columns, const std::string& file) {
  Lists lists;
  for (const Column& column : columns) {
    lists.files.push_back(file);
    lists.datasets.push_back(column.dataset);
    lists.sizes.push_back(column.columns);
    lists.columns.push_back(column.column);
  }
  return lists;
}

class Description {
 public:
  Description(const Results& newResults, api::IViewerXdmfWriter& newWriter, std::string newFile)
      : results(newResults),
        writer(newWriter),
        file(std::move(newFile)),
        rows(static_cast<int>(newResults.mesh().cells.size())) {}

  void add(const api::IOutput& output, const Record& record) const {
    const std::vector<Column> columns = results.columns(output, record);
    if (output.getNrDataFunctions() > 0) {
      addFunctions(output, listsOf(columns, file));
    } else if (columns.size() == 2) {
      writer.addVector(output.getName(), rows, file, columns[0].dataset, columns[0].columns,
                       {columns[0].column, columns[1].column});
    } else {
      addScalars(output, columns);
    }
  }

 private:
  void addFunctions(const api::IOutput& output, const Lists& lists) const {
    std::vector<std::string> functions;
    functions.reserve(static_cast<std::size_t>(output.getNrDataFunctions()));
    for (int i = 0; i < output.getNrDataFunctions(); ++i) {
      functions.push_back(viewerExpression(output.getDataFunction(i).expression));
    }
    const bool hidden = !isKnownEverywhere(functions);
    if (hidden) writer.beginIncluded();
    if (functions.size() == 1) {
      writer.addFunctionScalar(output.getName(), rows, functions[0], lists.files, lists.datasets,
                               lists.sizes, lists.columns);
    } else {
      writer.addFunctionVector(output.getName(), rows, functions, lists.files, lists.datasets,
                               lists.sizes, lists.columns);
    }
    if (hidden) writer.endIncluded();
  }

  void addScalars(const api::IOutput& output, const std::vector<Column>& columns) const {
    const std::vector<Quantity>& quantities = quantitiesOf(output.getID());
    for (std::size_t i = 0; i < columns.size(); ++i) {
      writer.addScalar(quantities[i].name, rows, file, columns[i].dataset, columns[i].columns,
                       columns[i].column);
    }
  }

  const Results& results;
  api::IViewerXdmfWriter& writer;
  std::string file;
  int rows;
};

}  // namespace

std::string viewerExpression(const std::string& expression) {
  const std::string inverse = "1.0/";
  if (expression.rfind(inverse, 0) != 0) return expression;
  const std::string divisor = expression.substr(inverse.size());
  return divisor + "/(" + divisor + "*" + divisor + ")";
}

void writeXdmf(const Results& results, const std::string& document) {
  XdmfFile xdmf(results, document, results.file());
  const Description description(results, xdmf.writer(), xdmf.dataFile());
  for (const Record& record : results.steps()) {
    xdmf.writer().addTimeStep(record.time);
    for (const api::IOutput* output : results.outputsOn(model::SetID::CellsAll)) {
      if (results.holds(*output, record)) description.add(*output, record);
    }
  }
  xdmf.finish();
}

}  // namespace exporter
