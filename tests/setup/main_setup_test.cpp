// The executable as users start it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "support/Process.h"
#include "support/TempDir.h"

using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::StartsWith;

namespace {

const std::string STUDY = R"({"SETUP": {"DOMAIN": {"RHEOPLANE_2D": {
  "GEOMETRY": {"RECTANGLE": {"length": 4, "width": 2, "cells": [4, 2]}},
  "HYDRAULICS": {"INITIAL": {"water_level": 1.5}}}}}})";

const std::string FOOTER =
    "\n" + std::string(60, '-') + "\n RHEOMARK successfully processed all necessary jobs!\n\n";

class SetupExecutable : public ::testing::Test {
 protected:
  support::Outcome run(const std::vector<std::string>& arguments) const {
    return support::runIn(dir.path(), SETUP_EXE, arguments);
  }

  const support::TempDir dir;
};

}  // namespace

TEST_F(SetupExecutable, WritesTheRunFileBetweenBannerAndFooter) {
  support::writeFile(dir.file("study.json"), STUDY);
  const support::Outcome outcome = run({"-f", "study.json", "-o", "made.h5"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.err, "");
  EXPECT_THAT(outcome.out, StartsWith("RHEOMARK v3.0.1\nRHEOplane sequential binary\n"));
  EXPECT_THAT(outcome.out, HasSubstr(" -> run file <made.h5> written in "));
  EXPECT_THAT(outcome.out, EndsWith(FOOTER));
  EXPECT_TRUE(std::filesystem::exists(dir.file("made.h5")));
}

TEST_F(SetupExecutable, WritesNoMessagesIntoTheRunFile) {
  support::writeFile(dir.file("study.json"), STUDY);
  const support::Outcome outcome = support::runIn(
      dir.path(), "/bin/sh", {"-c", "exec <&- >&- 2>&-; exec " SETUP_EXE " -f study.json"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_THAT(support::readFile(dir.file("run.h5")),
              ::testing::AllOf(StartsWith("\x89HDF"), ::testing::Not(HasSubstr("RHEOMARK"))));
}

TEST_F(SetupExecutable, NamesTheRunFileItselfIfTheUserDoesNot) {
  support::writeFile(dir.file("study.json"), STUDY);
  EXPECT_EQ(run({"-f", "study.json"}).status, 0);
  EXPECT_TRUE(std::filesystem::exists(dir.file("run.h5")));
}

TEST_F(SetupExecutable, EndsWithStatusOneAndNoFooterAfterAFailure) {
  const support::Outcome outcome = run({"-f", "none.json", "-o", "run.h5"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.err,
            " -> study file <none.json> cannot be read\n"
            " -> ... unfortunately RHEOMARK is killed!\n");
  EXPECT_THAT(outcome.out, ::testing::Not(HasSubstr("successfully")));
}

TEST_F(SetupExecutable, ReportsAMisspeltKeyOnStandardOutputAndEndsWithStatusOne) {
  std::string study = STUDY;
  study.replace(study.find("INITIAL"), 7, "INITAL");
  support::writeFile(dir.file("study.json"), study);
  const support::Outcome outcome = run({"-f", "study.json"});
  const std::string place = "/SETUP/DOMAIN/RHEOPLANE_2D/HYDRAULICS/INITAL";
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.out,
              EndsWith("\n\n" + place + ": The value of this item will not be used.\n" + place +
                       "/water_level: The value of this item will not be used.\n"));
  EXPECT_EQ(outcome.err,
            " -> Terminating setup due to JSON validation errors in study file <study.json>: a "
            "study must not hold keys that are not used.\n"
            " -> ... unfortunately RHEOMARK is killed!\n");
  EXPECT_FALSE(std::filesystem::exists(dir.file("run.h5")));
}

TEST_F(SetupExecutable, ReportsEachErrorOnStandardOutputAndEndsWithStatusOne) {
  std::string study = STUDY;
  study.replace(study.find("\"width\": 2"), 10, "\"width\": 0");
  support::writeFile(dir.file("study.json"), study);
  const support::Outcome outcome = run({"-f", "study.json"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.out, EndsWith("\n\n/SETUP/DOMAIN/RHEOPLANE_2D/GEOMETRY/RECTANGLE/width: "
                                    "This value must be greater than 0.000000.\n"));
  EXPECT_EQ(outcome.err,
            " -> Terminating setup due to JSON validation errors in study file <study.json>.\n"
            " -> ... unfortunately RHEOMARK is killed!\n");
}

TEST_F(SetupExecutable, EndsWithStatusOneIfItsReportIsLost) {
  support::writeFile(dir.file("study.json"), STUDY);
  const support::Outcome outcome = support::runIn(
      dir.path(), "/bin/sh", {"-c", std::string(SETUP_EXE) + " -f study.json > /dev/full"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.err,
            " -> standard output cannot be written: is the disk full?\n"
            " -> ... unfortunately RHEOMARK is killed!\n");
  EXPECT_TRUE(std::filesystem::exists(dir.file("run.h5")));
}

TEST_F(SetupExecutable, EndsWithStatusOneWhereFilesAreLimited) {
  support::writeFile(dir.file("study.json"), STUDY);
  support::writeFile(dir.file("run.h5"), "earlier");
  const support::Outcome outcome =
      support::runIn(dir.path(), "/bin/sh",
                     {"-c", std::string("ulimit -f 8; exec ") + SETUP_EXE + " -f study.json"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.err, HasSubstr(" -> run file <run.h5> cannot be written: "));
  EXPECT_THAT(outcome.err, HasSubstr("File too large"));
  EXPECT_EQ(support::readFile(dir.file("run.h5")), "earlier");
}

TEST_F(SetupExecutable, RefusesACommandLineWithoutAStudy) {
  const support::Outcome outcome = run({});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.err, HasSubstr("PARSE ERROR"));
}

TEST_F(SetupExecutable, HelpNamesTheArguments) {
  const support::Outcome outcome = run({"--help"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_THAT(outcome.out, HasSubstr("This is the 'setup' binary of the RHEOMARK framework."));
  EXPECT_THAT(outcome.out, HasSubstr("--file"));
  EXPECT_THAT(outcome.out, HasSubstr("--output"));
}
