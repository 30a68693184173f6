// An XDMF document in the making, with the mesh and the origin of the results in it.
//
//   exporter::XdmfFile xdmf(results, "run.xdmf", results.file());
//   xdmf.writer().addTimeStep(0.0);
//   xdmf.finish();
#pragma once

#include <memory>
#include <string>

#include "api/IXdmfWriter.h"
#include "common/NewFile.h"
#include "export/results/Results.h"

namespace exporter {

class XdmfFile {
 public:
  /// @param data the HDF5 file that the document points to; it holds the mesh of the results
  /// @throws BaseException if the document cannot be written, or names cannot be told apart.
  XdmfFile(const Results& results, const std::string& document, const std::string& data);

  api::IViewerXdmfWriter& writer() { return *xdmf; }
  /// The file with the data as the document names it: relative to itself.
  const std::string& dataFile() const { return relative; }

  /// @throws BaseException if the document cannot be written.
  void finish();

 private:
  common::NewFile file;
  std::string name;
  std::string relative;
  std::unique_ptr<api::IViewerXdmfWriter> xdmf;
};

/// The name of a file as seen from the folder of a document.
/// @throws BaseException if it holds a colon, which separates file and dataset in XDMF.
std::string nameFrom(const std::string& document, const std::string& file);

}  // namespace exporter
