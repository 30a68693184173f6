#include "dataio/H5FileNameDefinitions.h"

#include <gtest/gtest.h>

#include "dataio/failures.h"

namespace {

using dataio::H5FileNameDefinitions;
using failures::reportOf;

TEST(H5FileNameDefinitions, ResultNameFollowsFromRunName) {
  EXPECT_EQ(H5FileNameDefinitions::getResultFileName("run.h5"), "run_results.h5");
}

TEST(H5FileNameDefinitions, RunNameIsCutAtItsFirstExtension) {
  EXPECT_EQ(H5FileNameDefinitions::getResultFileName("a.h5.h5"), "a_results.h5");
}

TEST(H5FileNameDefinitions, RunNameFollowsFromResultName) {
  EXPECT_EQ(H5FileNameDefinitions::getRunFromResult("run_results.h5"), "run.h5");
}

TEST(H5FileNameDefinitions, BothNamesNeedTheExtension) {
  const std::string report = " -> no filename with '.h5' extension.\n";
  EXPECT_EQ(reportOf([] { H5FileNameDefinitions::getResultFileName("run"); }), report);
  EXPECT_EQ(reportOf([] { H5FileNameDefinitions::getRunFromResult("run_results"); }), report);
}

TEST(H5FileNameDefinitions, ResultNameNeedsItsMark) {
  EXPECT_EQ(reportOf([] { H5FileNameDefinitions::getRunFromResult("run.h5"); }),
            " -> runfile names must contain '_results' extension.\n");
}

}  // namespace
