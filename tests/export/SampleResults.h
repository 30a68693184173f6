// A copy of the results of a sample, which a test may damage before it is read.
//
//   class ResultsTest : public samples::SampleResults {};
//   TEST_F(ResultsTest, ...) { use("full_model"); invalidate("CellsAll/HydState", 3); ... }
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <string>
#include <vector>

#include "dataio/H5Writer.h"
#include "dataio/ResultReader.h"
#include "support/H5Compare.h"
#include "support/Process.h"
#include "support/TempDir.h"

namespace samples {

class SampleResults : public ::testing::Test {
 protected:
  void use(const std::string& sample) {
    support::copySample(sample, dir.path());
    std::filesystem::rename(dir.file("expected_results.h5"), file);
  }

  /// Marks the records from a position on as not valid, as a continued run does.
  void invalidate(const std::string& data, int from) const {
    dataio::ResultReader(file).deleteResults(data, from);
  }

  void setOutputs(const std::string& names) const {
    dataio::H5Writer writer(file, "rw");
    writer.writeStringVec(".config/simulation", 1,
                          {R"({"SIMULATION":{"OUTPUT":[)" + names + R"(],"TIME":{"end":1}}})"});
  }

  void remove(const std::string& path) const { support::removeLink(file, path); }

  /// One column of a dataset of the file.
  std::vector<double> stored(const std::string& path, std::size_t columns,
                             std::size_t column) const {
    const std::vector<double> all = support::readNumbers(file, path);
    std::vector<double> values;
    for (std::size_t i = column; i < all.size(); i += columns) values.push_back(all[i]);
    return values;
  }

  const support::TempDir dir;
  const std::string file = dir.file("run_results.h5");
};

}  // namespace samples
