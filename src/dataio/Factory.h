// Makes the readers and writers of the data layer. Everything above works with their interfaces.
//
//   const std::unique_ptr<api::IH5Reader> reader(dataio::Factory::createH5Reader("run.h5"));
//   const auto nodes = reader->readDoubleVecVec("NodesAll/Coordnts");
//
// Each creator of HDF5 access opens its file at once; the caller deletes what it gets.
#pragma once

#include <string>

#include "api/ICommandFileReader.h"
#include "api/IH5Reader.h"
#include "api/IH5Writer.h"
#include "api/IResultReader.h"
#include "api/IXdmfWriter.h"

namespace dataio {

class Factory {
 public:
  /// Opens an existing file for reading.
  /// @throws h5::Error if the file cannot be opened; so do all creators of HDF5 access.
  static api::IH5Reader* createH5Reader(const std::string& file);

  /// Creates a file, erasing what it held before.
  static api::IH5Writer* createH5Writer(const std::string& file);

  /// @param access "w" creates the file, "rw" goes on writing to an existing one; anything else
  ///        opens read-only, so that the first write fails
  static api::IH5Writer* createH5Writer(const std::string& file, const std::string& access);
  /// The same, to write record by record.
  static api::IH5RecordWriter* createRecordWriter(const std::string& file,
                                                  const std::string& access);

  /// Opens an existing results file for reading and for invalidating records.
  static api::IResultReader* createResultReader(const std::string& file);

  /// @param input a JSON document, or else the name of a file that holds one
  /// @throws BaseException if neither can be parsed.
  static api::ICommandFileReader* createCommandFileReader(const std::string& input);

  /// Begins a plain description of results; nothing is written before its write().
  /// @param file name of the document
  static api::IXdmfWriter* createXdmfWriter(const std::string& file);
  /// The same with what ParaView and QGIS need besides; see dataio::XdmfWriter.
  static api::IViewerXdmfWriter* createViewerXdmfWriter(const std::string& file);
};

}  // namespace dataio
