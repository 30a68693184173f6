// The command line as users type it: whole outputs and exit statuses.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "system/Simulation.h"

namespace {

using support::FOOTER;
using support::HEADER;
using support::Outcome;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

class CommandLine : public support::Simulation {
 protected:
  CommandLine() { useSample("one_cell"); }

  bool exists(const std::string& name) const { return std::filesystem::exists(dir.file(name)); }
};

TEST_F(CommandLine, HelpShowsTheUsageAndNoFooter) {
  const Outcome run = program({"--help"});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.err, "");
  EXPECT_EQ(run.out, std::string(HEADER) + R"text(
USAGE: 

   ./simulation  [-o <string>] [-d] [-p] -r <string> [-a <string>] [-n
                 <int>] [-l <int>] -f <string> [--] [--version] [-h]


Where: 

   -o <string>,  --output <string>
     name of .h5 file for storing results (must contain ending .h5)

   -d,  --debug
     print IDs showing numerical issues

   -p,  --progress
     print simulation progress

   -r <string>,  --runfile <string>
     (required)  h5 file with model definition

   -a <string>,  --archive <string>
     restore the archive

   -n <int>,  --nthreads <int>
     number of threads

   -l <int>,  --log <int>
     level of debug messages

   -f <string>,  --file <string>
     (required)  the configuration file

   --,  --ignore_rest
     Ignores the rest of the labeled arguments following this flag.

   --version
     Displays version information and exits.

   -h,  --help
     Displays usage information and exits.


   This is the 'simulation' binary of the RHEOMARK framework.

)text");
}

TEST_F(CommandLine, VersionIsShownWithoutFooter) {
  const Outcome run = program({"--version"});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.err, "");
  EXPECT_EQ(run.out, std::string(HEADER) + "\n./simulation  version: v3.0.1\n\n");
}

const char* const BRIEF_USAGE = R"text(
Brief USAGE: 
   ./simulation  [-o <string>] [-d] [-p] -r <string> [-a <string>] [-n
                 <int>] [-l <int>] -f <string> [--] [--version] [-h]

For complete USAGE and HELP type: 
   ./simulation --help

)text";

TEST_F(CommandLine, BothFilesAreRequired) {
  const Outcome withoutRun = program({"-f", "command.json"});
  EXPECT_EQ(withoutRun.status, 1);
  EXPECT_EQ(withoutRun.out, HEADER);
  EXPECT_EQ(withoutRun.err, "PARSE ERROR:  \n             Required argument missing: runfile\n" +
                                std::string(BRIEF_USAGE));

  const Outcome withoutCommand = program({"-r", "run.h5"});
  EXPECT_EQ(withoutCommand.status, 1);
  EXPECT_EQ(withoutCommand.out, HEADER);
  EXPECT_EQ(withoutCommand.err, "PARSE ERROR:  \n             Required argument missing: file\n" +
                                    std::string(BRIEF_USAGE));
}

TEST_F(CommandLine, ANumberIsNeededWhereOneIsAskedFor) {
  const Outcome run = simulate({"--log", "much"});
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.out, HEADER);
  EXPECT_EQ(run.err,
            "PARSE ERROR: Argument: -l (--log)\n"
            "             Couldn't read argument value from string 'much'\n" +
                std::string(BRIEF_USAGE));
}

TEST_F(CommandLine, UnknownOptionsAreRefused) {
  const Outcome run = simulate({"--fast"});
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.out, HEADER);
  EXPECT_EQ(run.err,
            "PARSE ERROR: Argument: --fast\n             Couldn't find match for "
            "argument\n" +
                std::string(BRIEF_USAGE));
}

TEST_F(CommandLine, LongNamesAreThoseOfTheShortOnes) {
  const Outcome run =
      program({"--file", "command.json", "--runfile", "run.h5", "--output", "long.h5", "--log", "1",
               "--nthreads", "1", "--progress", "--debug"});
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_THAT(run.out, HasSubstr(" -> init output <water_surface>\n"));
  EXPECT_THAT(run.out, HasSubstr(" -> Progress: 0/100, "));
  EXPECT_THAT(run.out, HasSubstr(" -> DEBUG MODE ACTIVATED\n"));
  EXPECT_TRUE(exists("long_results.h5"));
}

// -- the command file -----------------------------------------------------------------------------

TEST_F(CommandLine, AMissingCommandFileIsReportedBeforeTheRunFileIsLookedAt) {
  const Outcome run = program({"-f", "nothing.json", "-r", "nothing.h5"});
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.out, HEADER);
  EXPECT_EQ(run.err,
            " -> configuration file not found: nothing.json\n"
            " -> ... unfortunately RHEOMARK is killed!\n");
}

const char* const NOT_VALID =
    " -> Terminating RHEOMARK due to JSON validation errors.\n"
    " -> ... unfortunately RHEOMARK is killed!\n";

TEST_F(CommandLine, ACommandFileWithErrorsStopsTheRun) {
  support::writeFile(commandFile, R"({"SIMULATION": {"TIME": {"start": 0, "end": 1, "out": 1}}})");
  const Outcome run = simulate();
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.out,
            std::string(HEADER) + "/SIMULATION/OUTPUT: This item is required but missing.\n");
  EXPECT_EQ(run.err, NOT_VALID);
  EXPECT_FALSE(exists("results_results.h5"));
}

TEST_F(CommandLine, ACommandFileWithoutEndStopsTheRun) {
  setCommand(R"("start": 0, "out": 1)");
  const Outcome run = simulate();
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.out,
            std::string(HEADER) + "/SIMULATION/TIME/end: This item is required but missing.\n");
  EXPECT_EQ(run.err, NOT_VALID);
}

TEST_F(CommandLine, OutputsThatAUserMayNotAskForStopTheRun) {
  for (const std::string output : {"flow_velocity_abs", "flood_tracking"}) {
    setCommand(R"("start": 0, "end": 1, "out": 1)", "\"" + output + "\"");
    const Outcome run = simulate();
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.out, HasSubstr("/SIMULATION/OUTPUT/0: "));
    EXPECT_EQ(run.err, NOT_VALID);
  }
}

TEST_F(CommandLine, OutputsThatTheModelDoesNotHaveStopTheRun) {
  setCommand(R"("start": 0, "end": 1, "out": 1)", R"("flow_curvature")");
  const Outcome run = simulate();
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.err,
            " -> output <flow_curvature> cannot be defined within the this model setup, valid "
            "are:\n"
            " -> water_surface\n -> water_depth\n -> bottom_elevation\n -> spec_discharge\n"
            " -> delta_z\n -> flow_velocity\n -> flow_velocity_abs\n -> \n"
            " -> ... unfortunately RHEOMARK is killed!\n");
}

TEST_F(CommandLine, TextThatIsNoDocumentStopsTheRun) {
  for (const std::string text : {"", "{\"SIMULATION\"", "no document"}) {
    support::writeFile(commandFile, text);
    const Outcome run = simulate();
    EXPECT_EQ(run.status, 1) << text;
    EXPECT_THAT(run.out, StartsWith(std::string(HEADER) + "Parsing the JSON data file failed: "));
    EXPECT_EQ(run.err, NOT_VALID);
  }
}

TEST_F(CommandLine, WarningsDoNotStopTheRun) {
  support::writeFile(commandFile, R"({"SETUP": {}, "SIMULATION": {"OUTPUT": [],
                                      "TIME": {"start": 0, "end": 0, "out": 0, "more": 1}}})");
  const Outcome run = simulate();
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.err, "");
  EXPECT_THAT(run.out, StartsWith(std::string(HEADER) +
                                  "/SETUP: The value of this item will not be used.\n"
                                  "/SIMULATION/TIME/more: The value of this item will not be "
                                  "used.\n"
                                  " -> composing the model from archive\n"));
  EXPECT_THAT(run.out, EndsWith(FOOTER));
}

// -- threads, archive, names ----------------------------------------------------------------------

TEST_F(CommandLine, MoreThreadsThanOneAreAnsweredAndTheRunIsTheSame) {
  setCommand(R"("start": 0, "end": 0.5, "out": 0.5)");
  ASSERT_EQ(simulate().status, 0);
  const std::string alone = dir.file("alone.h5");
  std::filesystem::rename(resultFile, alone);
  for (const std::string threads : {"8", "2"}) {
    const Outcome run = simulate({"--nthreads", threads});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(support::linesWith("parallel", run.out).size(), 1U) << threads;
    EXPECT_THAT(run.out, HasSubstr(" -> no parallel run!\n"));
    EXPECT_THAT(support::differences(alone, resultFile), ::testing::IsEmpty());
  }
  for (const std::string threads : {"1", "0"}) {
    EXPECT_THAT(simulate({"--nthreads", threads}).out, Not(HasSubstr("parallel"))) << threads;
  }
}

TEST_F(CommandLine, ArchiveRestoresTheSetupDocumentAndRunsNothing) {
  const Outcome run = simulate({"--archive", "out.txt", "--nthreads", "8", "--progress"});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.err, "");
  EXPECT_EQ(run.out, std::string(HEADER) +
                         " -> composing the model from archive\n"
                         " -> found aggregate <hydraulics_aggr>\n"
                         " -> restoring the model configuration to file <out.txt>\n" +
                         FOOTER);
  EXPECT_EQ(support::readFile(dir.file("out.txt")), support::readText(runFile, ".config/model"));
  EXPECT_FALSE(exists("results_results.h5"));
}

TEST_F(CommandLine, ArchiveRestoresFromAResultsFileAsWell) {
  ASSERT_EQ(simulate().status, 0);
  const Outcome run = program({"-f", "command.json", "-r", "results_results.h5", "-a", "out.txt"});
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(support::readFile(dir.file("out.txt")), support::readText(runFile, ".config/model"));
}

TEST_F(CommandLine, ArchiveTellsOfAPlaceThatCannotBeWritten) {
  const std::vector<std::pair<std::string, std::string>> places = {
      {"nofolder/out.txt", "there is no folder <nofolder>"},
      {".", "is the disk full, or the folder not yours?"},
      {"/dev/full", "is the disk full, or the folder not yours?"}};
  for (const auto& [place, reason] : places) {
    const Outcome run = simulate({"--archive", place});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err, " -> file <" + place + "> cannot be written: " + reason +
                           "\n -> ... unfortunately RHEOMARK is killed!\n");
  }
}

TEST_F(CommandLine, ArchiveFollowsALink) {
  std::filesystem::create_symlink("out.txt", dir.file("link.txt"));
  ASSERT_EQ(simulate({"--archive", "link.txt"}).status, 0);
  EXPECT_TRUE(std::filesystem::is_symlink(dir.file("link.txt")));
  EXPECT_EQ(support::readFile(dir.file("out.txt")), support::readText(runFile, ".config/model"));
}

TEST_F(CommandLine, ArchiveDoesNotReplaceTheFilesThatAreRead) {
  std::filesystem::create_hard_link(runFile, dir.file("hard.h5"));
  std::filesystem::create_symlink("command.json", dir.file("soft.txt"));
  const std::string runBefore = support::readFile(runFile);
  const std::string commandBefore = support::readFile(commandFile);
  for (const std::string name : {"run.h5", "./run.h5", "hard.h5"}) {
    const Outcome run = simulate({"--archive", name});
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.err, StartsWith(" -> file <" + name + "> is the run file itself: "));
  }
  for (const std::string name : {"command.json", "soft.txt"}) {
    const Outcome run = simulate({"--archive", name});
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.err, StartsWith(" -> file <" + name + "> is the command file itself: "));
  }
  EXPECT_EQ(support::readFile(runFile), runBefore);
  EXPECT_EQ(support::readFile(commandFile), commandBefore);
}

TEST_F(CommandLine, ResultsDoNotReplaceTheFilesThatAreRead) {
  std::filesystem::rename(runFile, dir.file("all_results.h5"));
  std::filesystem::create_hard_link(dir.file("all_results.h5"), dir.file("hard_results.h5"));
  std::filesystem::rename(commandFile, dir.file("command_results.h5"));
  const std::string runBefore = support::readFile(dir.file("all_results.h5"));
  const std::string commandBefore = support::readFile(dir.file("command_results.h5"));
  const auto refusal = [&](const std::string& output) {
    const Outcome run = program({"-f", "command_results.h5", "-r", "all_results.h5", "-o", output});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, HEADER);
    return run.err;
  };
  EXPECT_THAT(refusal("./all.h5"),
              StartsWith(" -> file <./all_results.h5> is the run file itself: "));
  EXPECT_THAT(refusal("hard.h5"),
              StartsWith(" -> file <hard_results.h5> is the run file itself: "));
  EXPECT_THAT(refusal("command.h5"),
              StartsWith(" -> file <command_results.h5> is the command file itself: "));
  EXPECT_EQ(support::readFile(dir.file("all_results.h5")), runBefore);
  EXPECT_EQ(support::readFile(dir.file("command_results.h5")), commandBefore);
}

// Files that are opened must not take the places of the streams.
TEST_F(CommandLine, ClosedStandardStreamsLeaveTheResultsAlone) {
  setCommand(R"("start": 0, "end": 0.5, "out": 0.25)");
  ASSERT_EQ(simulate().status, 0);
  const std::string before = dir.file("before.h5");
  std::filesystem::rename(resultFile, before);
  for (const std::string closed : {"<&- >&- 2>&-", ">&-", "<&- 2>&-"}) {
    EXPECT_EQ(simulateBehind("exec " + closed).status, 0) << closed;
    EXPECT_THAT(support::readFile(resultFile), Not(HasSubstr("simulation finished"))) << closed;
    EXPECT_THAT(support::differences(before, resultFile), ::testing::IsEmpty()) << closed;
  }
}

TEST_F(CommandLine, ArchiveNeedsTheCommandFileToBeValid) {
  setCommand(R"("start": 0, "out": 1)");
  EXPECT_EQ(simulate({"--archive", "out.txt"}).status, 1);
  EXPECT_FALSE(exists("out.txt"));
}

TEST_F(CommandLine, OutputMayHaveTheNameOfTheRunFile) {
  const std::string before = support::readFile(runFile);
  const Outcome run = program({"-f", "command.json", "-r", "run.h5", "-o", "run.h5"});
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_TRUE(exists("run_results.h5"));
  EXPECT_EQ(support::readFile(runFile), before);
}

TEST_F(CommandLine, ResultsHaveADefaultName) {
  EXPECT_EQ(program({"-f", "command.json", "-r", "run.h5"}).status, 0);
  EXPECT_TRUE(exists("results_results.h5"));
}

TEST_F(CommandLine, TheNameOfTheResultsIsCutAtItsFirstExtension) {
  EXPECT_EQ(program({"-f", "command.json", "-r", "run.h5", "-o", "a.h5.h5"}).status, 0);
  EXPECT_TRUE(exists("a_results.h5"));
}

TEST_F(CommandLine, ANameOfResultsWithoutExtensionIsRefused) {
  const Outcome run = program({"-f", "command.json", "-r", "run.h5", "-o", "results"});
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.err,
            " -> no filename with '.h5' extension.\n"
            " -> ... unfortunately RHEOMARK is killed!\n");
}

TEST_F(CommandLine, ARunFileMayBeNamedFromTheWorkingFolder) {
  const Outcome run = program({"-f", "command.json", "-r", "./run.h5"});
  EXPECT_EQ(run.status, 0) << run.err;
}

TEST_F(CommandLine, ARunFileInAFolderWithADotIsNoModelDefinition) {
  std::filesystem::create_directory(dir.file("a.b"));
  std::filesystem::copy(runFile, dir.file("a.b/run.h5"));
  const Outcome run = program({"-f", "command.json", "-r", "a.b/run.h5"});
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.out, HEADER);
  EXPECT_EQ(run.err,
            " -> no model definition found\n"
            " -> ... unfortunately RHEOMARK is killed!\n");
}

TEST_F(CommandLine, NoFooterFollowsAFailure) {
  support::removeLink(runFile, "Parameters/Gravity");
  const Outcome run = simulate();
  EXPECT_EQ(run.status, 1);
  EXPECT_THAT(run.out, Not(HasSubstr("successfully processed")));
}

}  // namespace
