// The executable that turns results into what viewers and tables read.

#include <tclap/CmdLine.h>

#include <string>
#include <vector>

#include "common/console.h"
#include "common/process.h"
#include "common/version.h"
#include "export/Export.h"

namespace console = common::console;

namespace {

/// Ends the process for --help, --version and arguments that are not understood.
exporter::Request parse(int argc, char** argv) {
  using Name = TCLAP::ValueArg<std::string>;
  TCLAP::CmdLine line("This is the 'export' binary of the RHEOMARK framework.", ' ',
                      common::VERSION);
  Name results("r", "results", "the results file", false, "", "file", line);
  Name document("o", "output", "XDMF document to be written, for ParaView and QGIS", false, "",
                "file", line);
  Name mesh("", "mesh", "mesh to be written (.2dm), to which QGIS adds the document", false, "",
            "file", line);
  Name strings("c", "csv", "table of the discharges of nodestrings to be written", false, "",
               "file", line);
  TCLAP::MultiArg<std::string> gauges(
      "g", "gauge", "point at which the outputs are sampled; may be given several times", false,
      "x,y[,name]", line);
  Name gaugeFile("", "gauge-csv", "table of the gauges to be written", false, "gauges.csv", "file",
                 line);
  Name masked("m", "masked",
              "file of derived values to be written, in which dry cells show no flow (.h5)", false,
              "", "file", line);
  Name ugrid("u", "ugrid", "NetCDF file of the mesh and all outputs to be written", false, "",
             "file", line);
  Name raster("", "geotiff", "raster of one quantity to be written", false, "", "file", line);
  TCLAP::ValueArg<double> resolution("", "resolution", "side of a pixel of the raster [m]", false,
                                     0.0, "length", line);
  Name quantity("", "quantity", "what the raster shows, such as water_depth", false, "", "name",
                line);
  TCLAP::ValueArg<double> time("", "time", "when [s]; by default the last record", false, 0.0,
                               "time", line);
  TCLAP::SwitchArg quantities("", "quantities", "prints the table of quantities as JSON", line);
  TCLAP::SwitchArg list("l", "list", "tells what the results file holds", line);
  TCLAP::SwitchArg json("j", "json", "reports as one JSON object", line);
  line.parse(argc, argv);
  exporter::RasterRequest rasterRequest{
      raster.getValue(), resolution.getValue(), quantity.getValue(), {}};
  if (time.isSet()) rasterRequest.time = time.getValue();
  return {results.getValue(), document.getValue(),   mesh.getValue(),   strings.getValue(),
          gauges.getValue(),  gaugeFile.getValue(),  masked.getValue(), ugrid.getValue(),
          rasterRequest,      quantities.getValue(), list.getValue(),   json.getValue()};
}

}  // namespace

int main(int argc, char** argv) {
  common::startProcess();
  try {
    const exporter::Request request = parse(argc, argv);
    const bool forPeople = !request.json && !request.quantities;
    if (forPeople) console::printHeader("sequential");
    exporter::run(request);
    if (forPeople) console::printFooter();
    common::endWell();
  } catch (const std::exception& fault) {
    common::endFailed(fault);
  }
}
