// The executable as users start it.
#include <gmock/gmock.h>

#include <nlohmann/json.hpp>

#include "export/SampleResults.h"
#include "export/Table.h"
#include "support/Xml.h"

using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

namespace {

const std::string FOOTER =
    "\n" + std::string(60, '-') + "\n RHEOMARK successfully processed all necessary jobs!\n\n";

class ExportExecutable : public samples::SampleResults {
 protected:
  support::Outcome run(std::vector<std::string> arguments) const {
    arguments.insert(arguments.begin(), {"-r", "run_results.h5"});
    return support::runIn(dir.path(), EXPORT_EXE, arguments);
  }

  /// Nothing but our own words, the last of which is that the program has ended.
  void expectFailure(const support::Outcome& outcome, const std::string& message) const {
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.err, HasSubstr(message));
    EXPECT_THAT(outcome.err, EndsWith(" -> ... unfortunately RHEOMARK is killed!\n"));
    EXPECT_THAT(outcome.err, Not(HasSubstr("HDF5-DIAG")));
    EXPECT_THAT(outcome.out, Not(HasSubstr("successfully")));
  }
};

}  // namespace

TEST_F(ExportExecutable, WritesNothingIfOneFileIsTheResultsFile) {
  use("full_model");
  std::filesystem::create_hard_link(file, dir.file("hard.h5"));
  const std::string before = support::readFile(file);
  for (const std::string name : {"./run_results.h5", "hard.h5"}) {
    expectFailure(run({"-o", "run.xdmf", "--csv", "strings.csv", "-m", name}),
                  " -> file <" + name + "> is the results file itself: give another name\n");
    EXPECT_FALSE(std::filesystem::exists(dir.file("run.xdmf")));
  }
  EXPECT_EQ(support::readFile(file), before);
}

TEST_F(ExportExecutable, WritesNoMessagesIntoItsFiles) {
  use("full_model");
  ASSERT_EQ(run({"--csv", "strings.csv", "-m", "dry.h5"}).status, 0);
  const std::string command =
      "exec <&- >&- 2>&-; exec " EXPORT_EXE " -r run_results.h5 --csv again.csv -m closed.h5";
  EXPECT_EQ(support::runIn(dir.path(), "/bin/sh", {"-c", command}).status, 0);
  // Its first lines tell when it was made.
  const auto table = [this](const char* name) {
    const std::string text = support::readFile(dir.file(name));
    return text.substr(text.find("\n", text.rfind("\n#") + 1));
  };
  EXPECT_EQ(table("again.csv"), table("strings.csv"));
  EXPECT_THAT(support::differences(dir.file("dry.h5"), dir.file("closed.h5")),
              ::testing::IsEmpty());
}

TEST_F(ExportExecutable, WritesAllThatIsAskedForBetweenBannerAndFooter) {
  use("full_model");
  const support::Outcome outcome =
      run({"-o", "run.xdmf", "--mesh", "run.2dm", "--csv", "strings.csv", "--gauge", "1,1,mill",
           "-g", "2,1", "--masked", "dry.h5", "--list"});
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  EXPECT_EQ(outcome.err, "");
  EXPECT_THAT(outcome.out, StartsWith("RHEOMARK v"));
  EXPECT_THAT(outcome.out, HasSubstr(" -> record 0000004: t[s]: 4, a run can be continued from it\n"
                                     " -> file <run.xdmf> written\n"
                                     " -> file <run.2dm> written\n"
                                     " -> file <strings.csv> written\n"
                                     " -> file <gauges.csv> written\n"
                                     " -> file <dry.h5> written\n"));
  EXPECT_THAT(outcome.out, EndsWith(FOOTER));
  const support::Xml document(support::readFile(dir.file("run.xdmf")));
  EXPECT_THAT(document.texts("/Xdmf/Domain/Topology/DataItem"),
              ::testing::ElementsAre("run_results.h5:CellsAll/Topology"));
  EXPECT_EQ(samples::readTable(dir.file("strings.csv")).size(), 6U);
  const auto gauges = samples::readTable(dir.file("gauges.csv"));
  EXPECT_EQ(gauges.at(0).at(1), "mill flood_arrival_time [s]");
  EXPECT_THAT(gauges.at(0).back(), StartsWith("gauge 2 "));
  EXPECT_FALSE(support::datasetPaths(dir.file("dry.h5")).empty());
}

TEST_F(ExportExecutable, LeavesTheResultsAsTheyWere) {
  use("full_model");
  std::filesystem::permissions(file, std::filesystem::perms::owner_read);
  const std::string before = support::readFile(file);
  EXPECT_EQ(run({"-o", "run.xdmf", "-m", "dry.h5", "-l"}).status, 0);
  EXPECT_EQ(support::readFile(file), before);
}

TEST_F(ExportExecutable, PrintsOneJsonObjectAndNothingElse) {
  use("full_model");
  const support::Outcome outcome = run({"--json", "-o", "run.xdmf", "--list"});
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  const auto report = nlohmann::json::parse(outcome.out);
  EXPECT_EQ(report.at("file"), "run_results.h5");
  EXPECT_EQ(report.at("written"), nlohmann::json({"run.xdmf"}));
  EXPECT_EQ(report.at("restart_times"), nlohmann::json({1.0, 2.0, 3.0, 4.0}));
}

TEST_F(ExportExecutable, PutsGaugesWhereItIsTold) {
  use("full_model");
  EXPECT_EQ(run({"-g", "1,1", "--gauge-csv", "points.csv"}).status, 0);
  EXPECT_TRUE(std::filesystem::exists(dir.file("points.csv")));
  EXPECT_FALSE(std::filesystem::exists(dir.file("gauges.csv")));
}

TEST_F(ExportExecutable, NeedsSomethingToDo) {
  use("one_cell");
  expectFailure(run({}), " -> nothing to do: ask for a document with --output, ");
}

TEST_F(ExportExecutable, NeedsAResultsFile) {
  expectFailure(support::runIn(dir.path(), EXPORT_EXE, {"--list"}),
                " -> which results file? Name it with --results\n");
}

TEST_F(ExportExecutable, PrintsTheTableOfQuantitiesAndNothingElse) {
  const support::Outcome outcome = support::runIn(dir.path(), EXPORT_EXE, {"--quantities"});
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  const auto table = nlohmann::json::parse(outcome.out);
  EXPECT_EQ(table.at("outputs").at(1).at("quantities").at(0).at("formula"), "$0-$1");
}

TEST_F(ExportExecutable, RefusesBadFiles) {
  expectFailure(run({"-l"}), " -> results file <run_results.h5>: there is no such file\n");

  support::writeFile(file, "no results");
  expectFailure(run({"-l"}), " -> results file <run_results.h5> cannot be opened: it is damaged, ");

  use("one_cell");
  std::filesystem::resize_file(file, std::filesystem::file_size(file) - 512);
  expectFailure(run({"-l"}), " -> results file <run_results.h5> cannot be opened: it is damaged, ");

  std::filesystem::rename(dir.file("run.h5"), file);
  expectFailure(run({"-l"}), " -> results file <run_results.h5> holds no command file: ");
}

TEST_F(ExportExecutable, RefusesAFileWithoutResults) {
  use("dam_dry");
  remove("RESULTS");
  expectFailure(run({"-o", "run.xdmf"}), "holds no valid record: ");
  EXPECT_FALSE(std::filesystem::exists(dir.file("run.xdmf")));
}

TEST_F(ExportExecutable, RefusesRecordsThatDoNotFitTheMesh) {
  use("full_model");
  const std::string record = "RESULTS/CellsAll/HydState/0000002";
  remove(record);
  {
    dataio::H5Writer writer(file, "rw");
    writer.writeDoubleVecVec(record, std::vector<std::vector<double>>(5, {0.0, 0.0, 0.0}));
    writer.attachAttributeDouble(record, "t", 2.0);
  }
  std::vector<std::vector<std::string>> formats = {{"-g", "1,1"}, {"-m", "dry.h5"}};
#ifdef HAVE_NETCDF
  formats.push_back({"-u", "run.nc"});
#endif
#ifdef HAVE_GDAL
  formats.push_back(
      {"--geotiff", "h.tif", "--quantity", "water_surface", "--resolution", "1", "--time", "2"});
#endif
  for (const std::vector<std::string>& format : formats) {
    expectFailure(run(format),
                  "</RESULTS/CellsAll/HydState/0000002> has 5 rows, but the mesh has "
                  "364 cells");
  }
}

TEST_F(ExportExecutable, TakesASingleRecord) {
  use("full_model");
  invalidate("CellsAll/HydState", 1);
  EXPECT_EQ(run({"-o", "run.xdmf", "-c", "s.csv", "-g", "1,1", "-m", "dry.h5"}).status, 0);
  EXPECT_EQ(samples::readTable(dir.file("s.csv")).size(), 2U);
}

TEST_F(ExportExecutable, TakesTrackedDataAlone) {
  use("dam_dry");
  remove("RESULTS/CellsAll/HydState");
  EXPECT_EQ(run({"-o", "run.xdmf", "-m", "dry.h5", "-l"}).status, 0);
  expectFailure(run({"-c", "s.csv"}), "holds no discharges of nodestrings: ");
}

TEST_F(ExportExecutable, RefusesAGaugeOutsideTheMeshAndKeepsItsOldTable) {
  use("one_cell");
  support::writeFile(dir.file("gauges.csv"), "before");
  expectFailure(run({"-g", "1e6,0,sea"}), " -> gauge <sea> at 1e+06, 0 lies outside the mesh, ");
  EXPECT_EQ(support::readFile(dir.file("gauges.csv")), "before");
}

TEST_F(ExportExecutable, RefusesToOverwriteTheResults) {
  use("one_cell");
  const std::string before = support::readFile(file);
  expectFailure(run({"-m", "run_results.h5"}), "is the results file itself: give another name\n");
  expectFailure(run({"-c", "run_results.h5", "-g", "0,0"}), " -> ");
  EXPECT_EQ(support::readFile(file), before);
}

TEST_F(ExportExecutable, EndsWithStatusOneIfADiskIsFull) {
  use("full_model");
  const support::Outcome outcome = support::runIn(
      dir.path(), "/bin/sh",
      {"-c", std::string("ulimit -f 100; exec ") + EXPORT_EXE + " -r run_results.h5 -m dry.h5"});
  EXPECT_EQ(outcome.status, 1) << outcome.err;
  EXPECT_EQ(outcome.err,
            " -> file <dry.h5> cannot be written: the disk is full, or the size of files is "
            "limited\n -> ... unfortunately RHEOMARK is killed!\n");
  for (const std::string name : {"dry.h5", "dry.h5.part", "dry.xdmf", "dry.xdmf.part"}) {
    EXPECT_FALSE(std::filesystem::exists(dir.file(name))) << name;
  }
}

TEST_F(ExportExecutable, EndsWithStatusOneIfItsReportIsLost) {
  use("one_cell");
  for (const std::string report : {"--list", "--json"}) {
    const support::Outcome outcome = support::runIn(
        dir.path(), "/bin/sh",
        {"-c", std::string(EXPORT_EXE) + " -r run_results.h5 " + report + " > /dev/full"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.err,
              " -> standard output cannot be written: is the disk full?\n"
              " -> ... unfortunately RHEOMARK is killed!\n");
  }
}

TEST_F(ExportExecutable, ARasterNeedsAllThatDescribesIt) {
  use("one_cell");
  expectFailure(run({"--geotiff", "a.tif", "--quantity", "water_depth"}),
                " -> --geotiff needs the side of a pixel in m: give --resolution\n");
  expectFailure(run({"--geotiff", "a.tif", "--resolution", "0.1"}),
                " -> --geotiff shows one quantity, such as water_depth: give --quantity\n");
  for (const std::vector<std::string>& option :
       {std::vector<std::string>{"--resolution", "1"}, {"--quantity", "q"}, {"--time", "0"}}) {
    std::vector<std::string> arguments = {"--list"};
    arguments.insert(arguments.end(), option.begin(), option.end());
    expectFailure(run(arguments), " -> --resolution, --quantity and --time describe a raster: ");
  }
}

// What each format says where its library is missing stands in the tests of the format.
TEST_F(ExportExecutable, WritesFormatsOfOtherLibrariesOrNamesTheirPackages) {
  use("full_model");
  const support::Outcome ugrid = run({"-u", "run.nc"});
  const support::Outcome raster = run(
      {"--geotiff", "run.tif", "--resolution", "0.25", "--quantity", "water_depth", "--time", "2"});
  for (const auto& [outcome, name, package] : {std::tuple(ugrid, "run.nc", "libnetcdf-dev"),
                                               std::tuple(raster, "run.tif", "libgdal-dev")}) {
    if (outcome.status == 0) {
      EXPECT_THAT(outcome.out, HasSubstr(std::string(" -> file <") + name + "> written\n"));
      EXPECT_TRUE(std::filesystem::exists(dir.file(name)));
    } else {
      expectFailure(outcome, std::string("; install ") + package + " and build it again\n");
    }
  }
}

TEST_F(ExportExecutable, HelpNamesTheArguments) {
  const support::Outcome outcome = run({"--help"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_THAT(outcome.out, HasSubstr("This is the 'export' binary of the RHEOMARK framework."));
  for (const std::string option :
       {"--results", "--output", "--csv", "--gauge", "--gauge-csv", "--masked", "--ugrid",
        "--geotiff", "--resolution", "--quantity", "--time", "--quantities", "--list", "--json"}) {
    EXPECT_THAT(outcome.out, HasSubstr(option));
  }
}
