#include "export/formats/geotiff.h"

#include <cpl_conv.h>
#include <cpl_error.h>
#include <cpl_string.h>
#include <gdal.h>
#include <gdal_frmts.h>
#include <ogr_srs_api.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <memory>
#include <stdexcept>

#include "common/NewFile.h"
#include "common/console.h"
#include "export/formats/Raster.h"
#include "export/results/Csv.h"
#include "export/results/Field.h"
#include "export/results/origin.h"

namespace console = common::console;

namespace exporter {

namespace {

constexpr float NO_DATA = -9999.0F;
constexpr int TILE = 256;  ///< pixels along the side of a tile

/// Single precision does; what it cannot hold is no number, as in the values.
float pixelOf(double value) {
  const bool fits = std::fabs(value) <= std::numeric_limits<float>::max();
  return fits ? static_cast<float>(value) : NO_DATA;
}

/// Keeps the first message of an error, as it is the one that tells the cause.
class GdalErrors {
 public:
  GdalErrors() { CPLPushErrorHandlerEx(take, this); }
  ~GdalErrors() { CPLPopErrorHandler(); }
  GdalErrors(const GdalErrors&) = delete;
  GdalErrors& operator=(const GdalErrors&) = delete;
  GdalErrors(GdalErrors&&) = delete;
  GdalErrors& operator=(GdalErrors&&) = delete;

  void require(bool success) const {
    if (!success || !first.empty())
      throw std::runtime_error(first.empty() ? "no cause is told" : first);
  }

 private:
  static void CPL_STDCALL take(CPLErr kind, CPLErrorNum /*number*/, const char* message) {
    auto* const errors = static_cast<GdalErrors*>(CPLGetErrorHandlerUserData());
    if (kind >= CE_Failure && errors->first.empty()) errors->first = message;
  }

  std::string first;
};

struct Close {
  void operator()(void* dataset) const { GDALClose(dataset); }
};
struct Destroy {
  void operator()(void* system) const { OSRDestroySpatialReference(system); }
};

class Geotiff {
 public:
  Geotiff(const std::string& name, const Raster& newRaster) : raster(newRaster) {
    GDALRegister_GTiff();
    CPLStringList options;
    options.SetNameValue("TILED", "YES");
    options.SetNameValue("COMPRESS", "DEFLATE");
    options.SetNameValue("PREDICTOR", "3");
    options.SetNameValue("BIGTIFF", "IF_SAFER");
    dataset.reset(GDALCreate(GDALGetDriverByName("GTiff"), name.c_str(), raster.columns,
                             raster.rows, 1, GDT_Float32, options.List()));
    errors.require(dataset != nullptr);
    std::array<double, 6> transform = {raster.west, raster.resolution, 0.0, raster.north,
                                       0.0,         -raster.resolution};
    errors.require(GDALSetGeoTransform(dataset.get(), transform.data()) == CE_None);
  }

  void setSystem(int epsg) {
    const std::unique_ptr<void, Destroy> system(OSRNewSpatialReference(nullptr));
    if (OSRImportFromEPSG(system.get(), epsg) != OGRERR_NONE) {
      console::fail("the study names the coordinate reference system <EPSG:", epsg,
                    ">, which the register does not hold");
    }
    errors.require(GDALSetSpatialRef(dataset.get(), system.get()) == CE_None);
  }

  void describe(const Results& results, const Field& field) {
    GDALSetDescription(band(), field.quantity.name.c_str());
    errors.require(GDALSetRasterUnitType(band(), field.quantity.unit.c_str()) == CE_None);
    errors.require(GDALSetRasterNoDataValue(band(), NO_DATA) == CE_None);
    attach("TIFFTAG_SOFTWARE", programName());
    attach("TIFFTAG_IMAGEDESCRIPTION", titleOf(results) + ": " + field.quantity.meaning);
    attach("HISTORY", historyOf(results.file()) + " --geotiff");
    attach("STUDY_DOCUMENT", results.study());
    attach("COMMAND_FILE", results.command());
    if (field.time) attach("TIME", numberText(*field.time) + " s");
  }

  /// Strip by strip, so that no more than a row of tiles stands in memory.
  void write(const Mesh& mesh, const std::vector<double>& values) {
    for (int first = 0; first < raster.rows; first += TILE) {
      const int count = std::min(TILE, raster.rows - first);
      std::vector<float> pixels;
      for (const int cell : cellsOf(raster, mesh, first, count)) {
        pixels.push_back(cell == NO_CELL ? NO_DATA
                                         : pixelOf(values[static_cast<std::size_t>(cell)]));
      }
      errors.require(GDALRasterIO(band(), GF_Write, 0, first, raster.columns, count, pixels.data(),
                                  raster.columns, count, GDT_Float32, 0, 0) == CE_None);
    }
  }

  /// What has been written is complete only after this.
  void close() {
    dataset.reset();
    errors.require(true);
  }

 private:
  GDALRasterBandH band() const { return GDALGetRasterBand(dataset.get(), 1); }

  void attach(const char* name, const std::string& text) {
    errors.require(GDALSetMetadataItem(dataset.get(), name, text.c_str(), nullptr) == CE_None);
  }

  GdalErrors errors;
  Raster raster;
  std::unique_ptr<void, Close> dataset;
};

void write(const Results& results, const RasterRequest& request, const std::string& unfinished) {
  const Field field = fieldOf(results, request.quantity, request.time);
  const Raster raster = rasterOver(results.mesh(), request.resolution);
  const int epsg = epsgOf(results);
  Geotiff file(unfinished, raster);
  if (epsg != 0) file.setSystem(epsg);
  file.describe(results, field);
  file.write(results.mesh(), field.values);
  file.close();
}

}  // namespace

void writeGeotiff(const Results& results, const RasterRequest& request) {
  common::NewFile target(request.file, results.sources());
  try {
    write(results, request, target.unfinished());
  } catch (const BaseException&) {
    throw;
  } catch (const std::exception& fault) {
    console::fail("file <", request.file, "> cannot be written: ", fault.what());
  }
  target.finish();
}

}  // namespace exporter
