#include "export/formats/masked_file.h"

#include <array>
#include <cstdio>
#include <memory>
#include <stdexcept>
#include <type_traits>

#include "api/IH5Writer.h"
#include "common/NewFile.h"
#include "common/console.h"
#include "dataio/Archive.h"
#include "dataio/Factory.h"
#include "export/formats/XdmfFile.h"
#include "export/results/origin.h"
#include "export/results/quantities.h"
#include "export/results/values.h"

namespace console = common::console;

namespace exporter {

namespace {

constexpr const char* EXTENSION = ".h5";
constexpr std::size_t VECTOR = 3;
constexpr std::size_t OVERHEAD = 16384;  // object header and group nodes of a dataset [bytes]

/// "/OUTPUTS/water_depth/0000007"
std::string pathOf(const std::string& name, int position) {
  std::array<char, 16> number{};
  std::snprintf(number.data(), number.size(), "/%07i", position);
  return "/OUTPUTS/" + name + number.data();
}

/// What is drawn by itself: one or two of the values of an output.
struct Drawn {
  std::string name;
  std::size_t first;
  std::size_t width;

  /// Of its dataset: viewers want vectors of three components.
  std::size_t columns() const { return width == 1 ? 1 : VECTOR; }
};

/// Two values are a vector, more are quantities of their own.
std::vector<Drawn> drawnOf(const api::IOutput& output) {
  const std::vector<Quantity>& quantities = quantitiesOf(output.getID());
  if (quantities.size() <= 2) return {{output.getName(), 0, quantities.size()}};
  std::vector<Drawn> drawn;
  drawn.reserve(quantities.size());
  for (const Quantity& quantity : quantities) drawn.push_back({quantity.name, drawn.size(), 1});
  return drawn;
}

template <class T>
void writeTriples(api::IH5Writer& writer, const std::string& path,
                  const std::vector<std::array<T, 3>>& triples) {
  std::vector<const T*> rows;
  rows.reserve(triples.size());
  for (const std::array<T, 3>& triple : triples) rows.push_back(triple.data());
  if constexpr (std::is_same_v<T, int>) {
    writer.writeIntArray(path, static_cast<int>(rows.size()), 3, rows.data());
  } else {
    writer.writeDoubleArray(path, static_cast<int>(rows.size()), 3, rows.data());
  }
}

class MaskedFile {
 public:
  MaskedFile(const Results& newResults, api::IH5RecordWriter& newWriter, XdmfFile& newDocument)
      : results(newResults), writer(newWriter), document(newDocument) {}

  void writeSetup() {
    const Mesh& mesh = results.mesh();
    reserve(sizeof(mesh.cells[0]) * mesh.cells.size() + sizeof(mesh.nodes[0]) * mesh.nodes.size() +
            results.study().size() + results.command().size());
    dataio::Archive::addModel(&writer, results.study());
    dataio::Archive::addSimulation(&writer, results.command());
    dataio::Archive::addHash(&writer, ".config/program", programName());
    dataio::Archive::addHash(&writer, ".config/history", historyOf(results.file()));
    writeTriples(writer, "CellsAll/Topology", results.mesh().cells);
    writeTriples(writer, "NodesAll/Coordnts", results.mesh().nodes);
    writer.writeDoubleScalar("Parameters/MinWaterDepth", results.minimalDepth());
  }

  void writeStep(const Record& record, int position) {
    document.writer().addTimeStep(record.time);
    for (const api::IOutput* output : results.outputsOn(model::SetID::CellsAll)) {
      if (!results.holds(*output, record)) continue;
      const bool isNew = position == 0 || !results.isConstant(*output);
      if (isNew) writeValues(*output, record, position);
      describe(*output, isNew ? position : 0);
    }
  }

 private:
  /// On a full disk nothing is begun that the library could not end.
  void reserve(std::size_t bytes) {
    if (writer.reserve(bytes + OVERHEAD, 0)) return;
    throw std::runtime_error("the disk is full, or the size of files is limited");
  }

  void writeValues(const api::IOutput& output, const Record& record, int position) {
    const std::vector<double> values = maskedValues(results, output, record);
    const auto size = static_cast<std::size_t>(output.getSize());
    const std::size_t rows = values.size() / size;
    for (const Drawn& drawn : drawnOf(output)) {
      const std::size_t width = drawn.columns();
      reserve(sizeof(double) * rows * width);
      std::vector<double> table(rows * width, 0.0);
      std::vector<const double*> pointers(rows);
      for (std::size_t row = 0; row < rows; ++row) {
        pointers[row] = &table[row * width];
        for (std::size_t i = 0; i < drawn.width; ++i) {
          table[row * width + i] = values[row * size + drawn.first + i];
        }
      }
      const std::string path = pathOf(drawn.name, position);
      writer.writeDoubleArray(path, static_cast<int>(rows), static_cast<int>(width),
                              pointers.data());
      writer.attachAttributeDouble(path, "t", record.time);
    }
  }

  /// Twice: by columns for QGIS, and as a whole for readers of XDMF 3.
  void describe(const api::IOutput& output, int position) {
    const int rows = static_cast<int>(results.mesh().cells.size());
    for (const Drawn& drawn : drawnOf(output)) {
      const std::string path = pathOf(drawn.name, position);
      const int columns = static_cast<int>(drawn.columns());
      if (columns == 1) {
        document.writer().addScalar(drawn.name, rows, document.dataFile(), path, columns, 0);
      } else {
        document.writer().addVector(drawn.name, rows, document.dataFile(), path, columns, {0, 1});
      }
      document.writer().beginIncluded();
      document.writer().addDataset(drawn.name, rows, document.dataFile(), path, columns);
      document.writer().endIncluded();
    }
  }

  const Results& results;
  api::IH5RecordWriter& writer;
  XdmfFile& document;
};

void write(const Results& results, const std::string& unfinished, XdmfFile& document) {
  const std::unique_ptr<api::IH5RecordWriter> writer(
      dataio::Factory::createRecordWriter(unfinished, "w"));
  MaskedFile file(results, *writer, document);
  file.writeSetup();
  int position = 0;
  for (const Record& record : results.steps()) file.writeStep(record, position++);
  writer->flush();  // tells of a full disk; the destructor could not
}

}  // namespace

void writeMasked(const Results& results, const std::string& file) {
  if (!file.ends_with(EXTENSION)) {
    console::fail("file <", file, ">: the name of a file of masked values must end in .h5");
  }
  const std::string stem = file.substr(0, file.size() - std::string(EXTENSION).size());
  common::NewFile values(file, results.sources());
  XdmfFile document(results, stem + ".xdmf", file);
  try {
    write(results, values.unfinished(), document);
  } catch (const BaseException&) {
    throw;
  } catch (const std::exception& fault) {
    console::fail("file <", file, "> cannot be written: ", fault.what());
  }
  values.finish();
  document.finish();
}

}  // namespace exporter
