// A copy of the results of a sample, which a test may damage before it is read.
//
//   class ResultsTest : public samples::SampleResults {};
//   TEST_F(ResultsTest, ...) { use("full_model"); invalidate("CellsAll/HydState", 3); ... }
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <string>
#include <vector>

#include "dataio/Archive.h"
#include "dataio/H5Reader.h"
#include "dataio/H5Writer.h"
#include "dataio/ResultReader.h"
#include "export/results/Results.h"
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

  /// Puts a text into the archived study document.
  void setDomain(const std::string& key, const std::string& value) const {
    nlohmann::json study;
    {
      dataio::H5Reader reader(file);
      study = nlohmann::json::parse(dataio::Archive::getModel(&reader));
    }
    study["SETUP"]["DOMAIN"][key] = value;
    dataio::H5Writer writer(file, "rw");
    writer.writeStringVec(".config/model", 1, {study.dump()});
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

  static const api::IOutput& output(const exporter::Results& results, const std::string& name) {
    for (const api::IOutput* candidate : results.outputs()) {
      if (candidate->getName() == name) return *candidate;
    }
    throw std::runtime_error("no output " + name);
  }

  const support::TempDir dir;
  const std::string file = dir.file("run_results.h5");
};

}  // namespace samples
