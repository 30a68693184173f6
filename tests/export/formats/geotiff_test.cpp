#include "export/formats/geotiff.h"

#include <cpl_string.h>
#include <gdal.h>
#include <gdal_frmts.h>
#include <gmock/gmock.h>
#include <ogr_srs_api.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>

#include "dataio/failures.h"
#include "export/SampleResults.h"
#include "export/formats/Raster.h"
#include "export/results/Field.h"
#include "support/FileSizeLimit.h"

namespace {

using exporter::RasterRequest;
using exporter::Results;
using exporter::writeGeotiff;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::MatchesRegex;

struct Close {
  void operator()(void* dataset) const { GDALClose(dataset); }
};

class Geotiff : public samples::SampleResults {
 protected:
  void write(const std::string& quantity, double resolution,
             const std::optional<double>& time = {}) const {
    writeGeotiff(Results(file), {target, resolution, quantity, time});
  }

  std::string refusalOf(const RasterRequest& request) const {
    const Results results(file);
    return failures::reportOf([&] { writeGeotiff(results, request); });
  }

  void open() {
    GDALRegister_GTiff();
    dataset.reset(GDALOpen(target.c_str(), GA_ReadOnly));
    ASSERT_NE(dataset, nullptr);
    band = GDALGetRasterBand(dataset.get(), 1);
  }

  std::vector<float> pixels() const {
    const int columns = GDALGetRasterXSize(dataset.get());
    const int rows = GDALGetRasterYSize(dataset.get());
    std::vector<float> values(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows));
    EXPECT_EQ(GDALRasterIO(band, GF_Read, 0, 0, columns, rows, values.data(), columns, rows,
                           GDT_Float32, 0, 0),
              CE_None);
    return values;
  }

  std::string entry(const char* name) const {
    const char* const value = GDALGetMetadataItem(dataset.get(), name, nullptr);
    return value == nullptr ? "" : value;
  }

  const std::string target = dir.file("run.tif");
  std::unique_ptr<void, Close> dataset;
  GDALRasterBandH band = nullptr;
};

TEST_F(Geotiff, LiesOverTheMeshWithNorthUp) {
  use("dam_dry");
  write("water_depth", 0.5);
  open();
  EXPECT_EQ(GDALGetRasterXSize(dataset.get()), 80);
  EXPECT_EQ(GDALGetRasterYSize(dataset.get()), 4);
  std::array<double, 6> transform{};
  EXPECT_EQ(GDALGetGeoTransform(dataset.get(), transform.data()), CE_None);
  EXPECT_THAT(transform, ElementsAre(0.0, 0.5, 0.0, 2.0, 0.0, -0.5));
}

TEST_F(Geotiff, PixelsTakeTheValueOfTheCellOfTheirCentre) {
  use("full_model");
  write("water_depth", 0.11, 3.0);
  const Results results(file);
  const exporter::Field field = exporter::fieldOf(results, "water_depth", 3.0);
  const exporter::Raster raster = exporter::rasterOver(results.mesh(), 0.11);
  const std::vector<int> cells = exporter::cellsOf(raster, results.mesh(), 0, raster.rows);
  open();
  const std::vector<float> written = pixels();
  ASSERT_EQ(written.size(), cells.size());
  for (std::size_t i = 0; i < cells.size(); ++i) {
    const double value =
        cells[i] == exporter::NO_CELL ? -9999.0 : field.values[static_cast<std::size_t>(cells[i])];
    ASSERT_EQ(written[i], static_cast<float>(value)) << i;
  }
}

TEST_F(Geotiff, RastersOfSeveralTilesAreWhole) {
  use("dam_dry");
  write("flood_maximum_depth", 0.005);
  const Results results(file);
  const std::vector<double> depth = exporter::fieldOf(results, "flood_maximum_depth", {}).values;
  const exporter::Raster raster = exporter::rasterOver(results.mesh(), 0.005);
  open();
  const std::vector<float> written = pixels();
  const auto columns = static_cast<std::size_t>(raster.columns);
  ASSERT_EQ(written.size(), 8000U * 400U);
  for (const int row : {0, 255, 256, 399}) {
    const std::vector<int> cells = exporter::cellsOf(raster, results.mesh(), row, 1);
    for (std::size_t column = 0; column < columns; ++column) {
      ASSERT_EQ(written[static_cast<std::size_t>(row) * columns + column],
                static_cast<float>(depth[static_cast<std::size_t>(cells[column])]));
    }
  }
}

TEST_F(Geotiff, WithoutWaterThereIsNoVelocity) {
  use("dam_dry");
  write("flow_velocity_x", 0.5, 0.0);
  open();
  int found = 0;
  EXPECT_EQ(GDALGetRasterNoDataValue(band, &found), -9999.0);
  EXPECT_EQ(found, TRUE);
  const std::vector<float> values = pixels();
  EXPECT_EQ(values.front(), 0.0F);
  EXPECT_EQ(values.back(), -9999.0F);
}

TEST_F(Geotiff, OutsideTheMeshThereIsNoData) {
  use("one_cell");
  write("water_surface", 0.01);
  open();
  const std::vector<float> values = pixels();
  const auto outside = std::count(values.begin(), values.end(), -9999.0F);
  EXPECT_NEAR(static_cast<double>(outside) / static_cast<double>(values.size()), 0.5, 0.01);
}

TEST_F(Geotiff, WhatSinglePrecisionCannotHoldIsNoData) {
  use("one_cell");
  support::overwrite(file, "RESULTS/CellsAll/HydState/0000004", 0, 1e300);
  write("water_surface", 0.5);
  open();
  EXPECT_THAT(pixels(), ::testing::Each(-9999.0F));
}

TEST_F(Geotiff, SaysWhatItShows) {
  use("full_model");
  write("spec_discharge_x", 0.5, 2.0);
  open();
  EXPECT_STREQ(GDALGetDescription(band), "spec_discharge_x");
  EXPECT_STREQ(GDALGetRasterUnitType(band), "m2/s");
  EXPECT_EQ(entry("TIFFTAG_IMAGEDESCRIPTION"), "full_model: specific discharge, x-component");
  EXPECT_THAT(entry("TIFFTAG_SOFTWARE"), MatchesRegex("RHEOMARK v[0-9.]+"));
  EXPECT_THAT(entry("HISTORY"),
              MatchesRegex("[0-9T:-]+Z: export v[0-9.]+ of run_results.h5 --geotiff"));
  EXPECT_EQ(entry("STUDY_DOCUMENT"), Results(file).study());
  EXPECT_EQ(entry("TIME"), "2 s");
}

TEST_F(Geotiff, WhatHoldsAtAllTimesHasNone) {
  use("dam_dry");
  write("flood_arrival_time", 0.5);
  open();
  EXPECT_EQ(entry("TIME"), "");
}

TEST_F(Geotiff, HasTheReferenceSystemOfTheStudy) {
  use("dam_dry");
  write("water_depth", 1.0);
  open();
  EXPECT_EQ(GDALGetSpatialRef(dataset.get()), nullptr);
  dataset.reset();

  setDomain("crs", "EPSG:2056");
  write("water_depth", 1.0);
  open();
  const OGRSpatialReferenceH system = GDALGetSpatialRef(dataset.get());
  ASSERT_NE(system, nullptr);
  EXPECT_STREQ(OSRGetAuthorityCode(system, nullptr), "2056");
}

TEST_F(Geotiff, RefusesAReferenceSystemThatTheRegisterDoesNotHold) {
  use("dam_dry");
  setDomain("crs", "EPSG:999999");
  EXPECT_EQ(refusalOf({target, 1.0, "water_depth", {}}),
            " -> the study names the coordinate reference system <EPSG:999999>, which the register "
            "does not hold\n");
  EXPECT_FALSE(std::filesystem::exists(target));
}

TEST_F(Geotiff, RefusesWhatTheResultsDoNotHold) {
  use("one_cell");
  EXPECT_THAT(refusalOf({target, 1.0, "flood_maximum_depth", {}}),
              HasSubstr(" -> quantity <flood_maximum_depth> is not in the results file, which "));
  EXPECT_THAT(refusalOf({target, 1e-9, "water_depth", {}}), HasSubstr("is too fine: "));
}

TEST_F(Geotiff, KeepsAnOlderFileIfADiskIsFull) {
  use("dam_dry");
  support::writeFile(target, "before");
  const support::FileSizeLimit limit(2000);
  EXPECT_THAT(refusalOf({target, 0.005, "water_depth", {}}),
              HasSubstr(" -> file <" + target + "> cannot be written: "));
  EXPECT_EQ(support::readFile(target), "before");
  EXPECT_FALSE(std::filesystem::exists(target + ".part"));
}

}  // namespace
