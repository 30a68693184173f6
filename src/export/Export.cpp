#include "export/Export.h"

#include <iostream>
#include <memory>

#include "common/console.h"
#include "common/sources.h"
#include "export/formats/masked_file.h"
#include "export/formats/mesh_file.h"
#include "export/formats/ugrid.h"
#include "export/formats/xdmf.h"
#include "export/report.h"
#include "export/results/Results.h"
#include "export/results/quantities.h"
#include "export/tables/gauges.h"
#include "export/tables/string_series.h"

namespace console = common::console;

namespace exporter {

namespace {

/// While it lives, nothing appears on standard output.
class Quiet {
 public:
  explicit Quiet(bool active) : buffer(active ? std::cout.rdbuf(nullptr) : std::cout.rdbuf()) {}
  ~Quiet() { std::cout.rdbuf(buffer); }
  Quiet(const Quiet&) = delete;
  Quiet& operator=(const Quiet&) = delete;
  Quiet(Quiet&&) = delete;
  Quiet& operator=(Quiet&&) = delete;

 private:
  std::streambuf* buffer;
};

std::vector<Gauge> gaugesOf(const Request& request) {
  std::vector<Gauge> gauges;
  for (const std::string& text : request.gauges) {
    gauges.push_back(parseGauge(text, static_cast<int>(gauges.size()) + 1));
  }
  return gauges;
}

void requireWish(const Request& request) {
  if (request.results.empty()) console::fail("which results file? Name it with --results");
  const bool asksForFile = !request.document.empty() || !request.mesh.empty() ||
                           !request.strings.empty() || !request.gauges.empty() ||
                           !request.masked.empty() || !request.ugrid.empty() ||
                           !request.raster.file.empty();
  if (asksForFile || request.list || request.json) return;
  console::fail("nothing to do: ask for a document with --output, for the mesh with --mesh, for ",
                "tables with --csv or --gauge, for derived values with --masked, for NetCDF with ",
                "--ugrid, for a raster with --geotiff, or for a report with --list");
}

void requireWholeRaster(const RasterRequest& raster) {
  const bool isDescribed = raster.resolution != 0.0 || !raster.quantity.empty() || raster.time;
  if (raster.file.empty() && isDescribed) {
    console::fail("--resolution, --quantity and --time describe a raster: name its file with ",
                  "--geotiff");
  }
  if (!raster.file.empty() && raster.resolution == 0.0) {
    console::fail("--geotiff needs the side of a pixel in m: give --resolution");
  }
  if (!raster.file.empty() && raster.quantity.empty()) {
    console::fail("--geotiff shows one quantity, such as water_depth: give --quantity");
  }
}

/// Asked for all files before the first one is written.
void requireOtherFiles(const Request& request, const common::Sources& sources) {
  const std::string gaugeFile = request.gauges.empty() ? "" : request.gaugeFile;
  for (const std::string& name : {request.document, request.mesh, request.strings, gaugeFile,
                                  request.masked, request.ugrid, request.raster.file}) {
    common::requireNoSource(name, sources);
  }
}

/// @return the names of the files
std::vector<std::string> writeFiles(const Results& results, const Request& request) {
  std::vector<std::string> written;
  const std::vector<Gauge> gauges = gaugesOf(request);
  const auto write = [&](bool wanted, const std::string& file, const auto& writer) {
    if (!wanted) return;
    writer(results, file);
    written.push_back(file);
    console::info("file <", file, "> written");
  };
  write(!request.document.empty(), request.document, writeXdmf);
  write(!request.mesh.empty(), request.mesh, writeMesh);
  write(!request.strings.empty(), request.strings, writeStringSeries);
  write(!gauges.empty(), request.gaugeFile, [&](const Results& from, const std::string& file) {
    writeGaugeSeries(from, gauges, file);
  });
  write(!request.masked.empty(), request.masked, writeMasked);
  write(!request.ugrid.empty(), request.ugrid, writeUgrid);
  write(!request.raster.file.empty(), request.raster.file,
        [&](const Results& from, const std::string&) { writeGeotiff(from, request.raster); });
  return written;
}

}  // namespace

void run(const Request& request) {
  if (request.quantities) {
    std::cout << describeQuantities().dump(2) << std::endl;
    return;
  }
  requireWish(request);
  requireWholeRaster(request.raster);
  nlohmann::ordered_json report;
  {
    const Quiet quiet(request.json);
    const Results results(request.results);
    requireOtherFiles(request, results.sources());
    if (request.list) printReport(results);
    report = describe(results);
    report["written"] = writeFiles(results, request);
  }
  if (request.json) std::cout << report.dump(2) << std::endl;
}

}  // namespace exporter
