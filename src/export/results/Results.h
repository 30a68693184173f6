// A results file, opened for reading: the mesh, the records and the values of the outputs.
//
//   const exporter::Results results("run_results.h5");
//   for (const api::IOutput* output : results.outputs()) {
//     for (const exporter::Record& record : results.records()) {
//       if (results.holds(*output, record)) use(results.values(*output, record));
//     }
//   }
//
// The file tells by itself what it holds: the model is composed from the archived study document,
// the outputs are those that the archived command file asks for. If it asks for none, they are the
// water surface and the specific discharge, which every run stores.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "api/IH5Reader.h"
#include "api/IModel.h"
#include "common/NewFile.h"
#include "dataio/RecordIndex.h"
#include "export/results/Mesh.h"

namespace exporter {

using dataio::Record;

/// A column of a dataset of the results file.
struct Column {
  std::string dataset;  ///< path in the file
  int columns;          ///< that the dataset has
  int column;           ///< that is meant, from 0
};

class Results {
 public:
  /// @throws BaseException after a message on standard error if there is no such file, if it is
  ///         damaged or no results file, or if it holds nothing that can be shown.
  explicit Results(const std::string& file);

  const std::string& file() const { return name; }
  /// What must not be overwritten.
  common::Sources sources() const { return {{"results file", name}}; }
  /// The archived study document and command file, as compact JSON.
  const std::string& study() const { return studyText; }
  const std::string& command() const { return commandText; }

  const Mesh& mesh() const { return triangles; }
  /// Names of the nodestrings, in the order of their rows.
  const std::vector<std::string>& strings() const { return stringNames; }
  /// Depth up to which a cell counts as dry [m].
  double minimalDepth() const { return dryDepth; }

  /// In the order of time; none if the file holds tracked data only.
  const std::vector<Record>& records() const { return index->records(); }
  /// The records, or one at time 0 without a position if the file holds tracked data only.
  std::vector<Record> steps() const;
  /// Records that are not valid, or not complete.
  int invalidRecords() const { return index->invalid(); }
  /// Times from which a run can be continued [s].
  std::vector<double> restartTimes() const { return index->restartTimes(); }

  /// Outputs on cells or nodestrings of which the file holds at least one state.
  const std::vector<const api::IOutput*>& outputs() const { return shown; }
  /// Those on cells, or on nodestrings.
  std::vector<const api::IOutput*> outputsOn(model::SetID set) const;

  /// Whether the data of the output stand in the record. Tracked outputs hold at any time.
  bool holds(const api::IOutput& output, const Record& record) const;
  /// Whether the output is the same at all times: tracked, or made of data that do not vary.
  bool isConstant(const api::IOutput& output) const;

  /// Where the columns of the output stand, in the order of the arguments of its operations. A
  /// column that compares with the initial state is that of the first record.
  std::vector<Column> columns(const api::IOutput& output, const Record& record) const;
  /// The values, element after element, as the operations of the catalogue give them. They put the
  /// velocities of dry cells to 0.
  /// @throws std::exception if the data cannot be read, or if those of cells are not one per cell.
  std::vector<double> values(const api::IOutput& output, const Record& record) const;
  /// Depth of the water in each cell [m]; empty if the file does not hold the bottom elevation,
  /// which hydraulic runs store only if an output needs it.
  /// @throws std::exception if the data cannot be read.
  std::vector<double> depths(const Record& record) const;

 private:
  void readArchive();
  void composeModel();
  void readMesh();
  void readIndex();
  void chooseOutputs();
  bool isConstant(model::DataID id) const;
  bool exists(const std::string& path) const;
  std::string datasetOf(const api::IOutput& output, model::DataID id, const Record& record) const;
  std::string datasetAt(model::DataID id, const Record& record) const;
  std::vector<double> read(const Column& column) const;
  std::vector<double> readCells(const Column& column) const;

  std::string name;
  std::unique_ptr<api::IH5Reader> reader;
  std::string studyText;
  std::string commandText;
  std::unique_ptr<api::IModel> model;
  Mesh triangles;
  std::vector<std::string> stringNames;
  double dryDepth = 0.0;
  std::unique_ptr<dataio::RecordIndex> index;
  std::vector<const api::IOutput*> shown;
};

}  // namespace exporter
