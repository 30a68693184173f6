#include "setup/Setup.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>

#include "dataio/Factory.h"
#include "model/Factory.h"
#include "setup/faults.h"
#include "support/H5Compare.h"
#include "support/Process.h"
#include "support/TempDir.h"

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::MatchesRegex;

namespace {

const std::string STUDY = R"({"SETUP": {"DOMAIN": {"name": "basin", "RHEOPLANE_2D": {
  "GEOMETRY": {"RECTANGLE": {"length": 4, "width": 2, "cells": [4, 2]}},
  "HYDRAULICS": {"INITIAL": {"water_level": 1.5}, "FLOOD": {"track": "all"}}}}}})";

class Setup : public ::testing::Test {
 protected:
  std::string make() {
    ::testing::internal::CaptureStdout();
    setup::makeRunFile(dir.file("study.json"), run);
    return ::testing::internal::GetCapturedStdout();
  }

  const support::TempDir dir;
  const std::string run = dir.file("run.h5");
};

}  // namespace

TEST_F(Setup, TellsWhatItHasMade) {
  support::writeFile(dir.file("study.json"), STUDY);
  EXPECT_THAT(make(), MatchesRegex(
                          " -> found aggregate <hydraulics_aggr>\n"
                          " -> found aggregate <hyd_flood_aggr>\n"
                          " -> study <basin>\n"
                          " -> cells: 16, edges: 30 \\(on the boundary: 12\\), nodes: 15\n"
                          " -> numbering: neighbours are [0-9]+ cells apart at most "
                          "\\(as given: [0-9]+\\)\n"
                          " -> area: 8 m2, shortest edge: 1 m, smallest cell size: 0.4714[0-9]* m\n"
                          " -> initial water volume: 12 m3\n"
                          " -> aggregates: hydraulics_aggr, hyd_flood_aggr\n"
                          " -> run file <" +
                          run + "> written in [0-9.e-]+ s\n"));
}

TEST_F(Setup, TheModelCanBeComposedFromTheRunFile) {
  support::writeFile(dir.file("study.json"), STUDY);
  make();
  const std::unique_ptr<api::IModel> model(model::Factory::createModel(run));
  EXPECT_THAT(model->getAggregates(),
              ElementsAre(model::AggregateID::hydraulics_aggr, model::AggregateID::hyd_flood_aggr));
}

TEST_F(Setup, ARefusedStudyLeavesNoRunFile) {
  support::writeFile(dir.file("study.json"), "{}");
  EXPECT_EQ(faults::messageOf([this] { setup::makeRunFile(dir.file("study.json"), run); }),
            "Terminating setup due to JSON validation errors in study file <" +
                dir.file("study.json") + ">.");
  EXPECT_FALSE(std::filesystem::exists(run));
}

TEST_F(Setup, ARefusedMeshLeavesNoRunFile) {
  support::writeFile(dir.file("study.json"),
                     R"({"SETUP": {"DOMAIN": {"RHEOPLANE_2D": {
                         "GEOMETRY": {"MESH": {"file": "m.2dm"}},
                         "HYDRAULICS": {"FLOOD": {"track": "all"}}}}}})");
  support::writeFile(dir.file("m.2dm"), "MESH2D\nE4Q 1 1 2 3 4 1\n");
  EXPECT_THAT(faults::messageOf([this] { setup::makeRunFile(dir.file("study.json"), run); }),
              HasSubstr("element card <E4Q> is not supported"));
  EXPECT_FALSE(std::filesystem::exists(run));
}

TEST_F(Setup, RefusesARunFileNameBeforeItReadsAnything) {
  EXPECT_EQ(faults::messageOf([this] { setup::makeRunFile(dir.file("none"), "run.txt"); }),
            "run file <run.txt>: the name must end in \".h5\" and hold no other dot");
}

TEST_F(Setup, TheDamBreakExampleHasAReservoirAboveADryPlain) {
  ::testing::internal::CaptureStdout();
  setup::makeRunFile(std::string(EXAMPLES_FOLDER) + "/dam_break/study.json", run);
  const std::string report = ::testing::internal::GetCapturedStdout();
  EXPECT_THAT(report, HasSubstr("cells: 4872, edges: 7440 (on the boundary: 264), nodes: 2569\n"));
  const std::unique_ptr<api::IH5Reader> reader(dataio::Factory::createH5Reader(run));
  const auto flow = reader->readDoubleVecVec("CellsAll/HydState");
  const auto bed = reader->readDoubleVecVec("CellsAll/BottomEl");
  int wet = 0;
  for (std::size_t cell = 0; cell < flow.size(); ++cell) {
    EXPECT_TRUE(flow[cell][0] == 10.0 || flow[cell][0] == bed[cell][0]);
    if (flow[cell][0] == 10.0) ++wet;
  }
  EXPECT_EQ(wet, 2472);
}
