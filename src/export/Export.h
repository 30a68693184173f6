// Turns a results file into what other programs read, as the command line asks for it.
//
//   exporter::Request request;
//   request.results = "run_results.h5";
//   request.document = "run.xdmf";
//   exporter::run(request);
//
// The formats stand in files of their own, each with a function of a Results; another one needs a
// field of the request and a line in run.
#pragma once

#include <string>
#include <vector>

#include "export/formats/geotiff.h"

namespace exporter {

/// An empty name asks for nothing.
struct Request {
  std::string results;              ///< the results file
  std::string document;             ///< XDMF document to be written
  std::string mesh;                 ///< 2dm file of the mesh to be written
  std::string strings;              ///< CSV file of the discharges of nodestrings
  std::vector<std::string> gauges;  ///< "x,y" or "x,y,name"
  std::string gaugeFile;            ///< CSV file of the gauges
  std::string masked;               ///< HDF5 file of derived values
  std::string ugrid;                ///< NetCDF file of the mesh and all outputs
  RasterRequest raster;             ///< GeoTIFF of one quantity
  bool quantities = false;          ///< print the table of quantities; no file is needed for it
  bool list = false;                ///< report what the file holds
  bool json = false;                ///< reports as one JSON object, and nothing else
};

/// Writes all that is asked for and tells on standard output what has been made.
/// @throws BaseException after a message on standard error.
void run(const Request& request);

}  // namespace exporter
