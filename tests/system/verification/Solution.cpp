#include "system/verification/Solution.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <sstream>
#include <stdexcept>

#include "support/H5Compare.h"
#include "support/Process.h"
#include "system/verification/CompensatedSum.h"

namespace verification {

namespace {

std::string studyText(const Case& study) {
  std::ostringstream text;
  text << R"({"SETUP": {"DOMAIN": {"RHEOPLANE_2D": {"GEOMETRY": {)" << study.geometry
       << R"(}, "HYDRAULICS": {"PARAMETER": {"cfl": 0.5, "gravity": )" << GRAVITY
       << R"(, "minimum_water_depth": )" << study.minimumDepth << R"(, "maximum_time_step": )"
       << study.longestStep << R"(}, "INITIAL": {)" << study.initial << "}"
       << (study.processes.empty() ? "" : ", ") << study.processes << "}}}}}";
  return text.str();
}

bool hasBoundaries(const Case& study) {
  return study.processes.find("BOUNDARY") != std::string::npos;
}

std::string commandText(const Case& study) {
  std::ostringstream text;
  text << R"({"SIMULATION": {"TIME": {"start": 0.0, "end": )" << study.end << R"(, "out": )"
       << study.out << R"(}, "OUTPUT": ["water_surface", "flow_velocity", "bottom_elevation")"
       << (hasBoundaries(study) ? R"(, "ns_hyd_discharge")" : "") << "]}}";
  return text.str();
}

/// @returns what the program has printed.
std::string require(const std::string& folder, const std::string& program,
                    const std::vector<std::string>& arguments) {
  const support::Outcome outcome = support::runIn(folder, program, arguments);
  if (outcome.status == 0) return outcome.out;
  throw std::runtime_error(program + " failed with status " + std::to_string(outcome.status) +
                           ":\n" + outcome.out + outcome.err);
}

constexpr const char* STATES = "RESULTS/CellsAll/HydState/";
constexpr const char* STRINGS = "RESULTS/NodeStrg/StateVar/";

/// The second of the ten values that a string has.
std::vector<double> readDischarges(const std::string& resultsFile, const std::string& path) {
  const std::vector<double> states = support::readNumbers(resultsFile, path);
  std::vector<double> discharges;
  for (std::size_t k = 1; k < states.size(); k += 10) discharges.push_back(states.at(k));
  return discharges;
}

std::vector<Record> readRecords(const std::string& resultsFile, bool withStrings) {
  std::vector<Record> records;
  for (const std::string& path : support::datasetPaths(resultsFile)) {
    if (path.rfind(STATES, 0) != 0) continue;
    const std::vector<double> state = support::readNumbers(resultsFile, path);
    // The greatest and the least of values pass over a NaN in silence.
    if (!std::all_of(state.begin(), state.end(),
                     [](double value) { return std::isfinite(value); })) {
      throw std::runtime_error(resultsFile + ": " + path + " holds values that are not finite");
    }
    Record record;
    record.time = support::readTime(resultsFile, path);
    for (std::size_t k = 0; k < state.size(); k += 3) {
      record.surface.push_back(state.at(k));
      record.dischargeX.push_back(state.at(k + 1));
      record.dischargeY.push_back(state.at(k + 2));
    }
    if (withStrings) {
      const std::string number = path.substr(std::string(STATES).size());
      record.throughStrings = readDischarges(resultsFile, STRINGS + number);
    }
    records.push_back(std::move(record));
  }
  return records;
}

}  // namespace

std::vector<std::array<Point, 3>> readCells(const std::string& runFile) {
  const std::vector<double> coordinates = support::readNumbers(runFile, "NodesAll/Coordnts");
  const std::vector<double> corners = support::readNumbers(runFile, "CellsAll/Topology");
  const auto nodes = static_cast<std::size_t>(support::readNumbers(runFile, "NodesAll/set").at(0));
  const std::size_t width = coordinates.size() / nodes;
  std::vector<std::array<Point, 3>> cells(corners.size() / 3);
  for (std::size_t k = 0; k < corners.size(); ++k) {
    const auto node = static_cast<std::size_t>(corners[k]);
    cells[k / 3][k % 3] = {coordinates.at(width * node), coordinates.at(width * node + 1)};
  }
  return cells;
}

Point Solution::centroid(std::size_t cell) const {
  const auto& [a, b, c] = cells[cell];
  return {(a.x + b.x + c.x) / 3.0, (a.y + b.y + c.y) / 3.0};
}

Solution simulate(const std::string& folder, const Case& study) {
  support::writeFile(folder + "/study.json", studyText(study));
  support::writeFile(folder + "/command.json", commandText(study));
  require(folder, SETUP_EXE, {"-f", "study.json", "-o", "run.h5"});

  Solution run;
  run.console =
      require(folder, SIMULATION_EXE, {"-f", "command.json", "-r", "run.h5", "-o", "run.h5"});
  run.name = folder + "/run_results.h5";
  const std::string runFile = folder + "/run.h5";
  run.cells = readCells(runFile);
  run.areas = support::readNumbers(runFile, "CellsAll/GeomArea");
  run.bed = support::readNumbers(runFile, "CellsAll/BottomEl");
  run.records = readRecords(run.name, hasBoundaries(study));
  return run;
}

double volume(const Solution& run, const Record& record) {
  CompensatedSum sum;
  for (std::size_t cell = 0; cell < run.areas.size(); ++cell) {
    sum.add(run.areas[cell] * run.depth(record, cell));
  }
  return sum.value();
}

double leastDepth(const Solution& run) {
  double least = std::numeric_limits<double>::infinity();
  for (const Record& record : run.records) {
    for (std::size_t cell = 0; cell < run.bed.size(); ++cell) {
      least = std::min(least, run.depth(record, cell));
    }
  }
  return least;
}

std::size_t countDeeper(const Solution& run, const Record& record, double depth) {
  std::size_t count = 0;
  for (std::size_t cell = 0; cell < run.bed.size(); ++cell) {
    if (run.depth(record, cell) > depth) ++count;
  }
  return count;
}

int callsOf(const std::string& kernel, const std::string& console) {
  std::istringstream lines(console);
  for (std::string line; std::getline(lines, line);) {
    std::istringstream words(line);
    int count = 0;
    if (!(words >> count)) continue;
    std::string word;
    while (words >> word) {
    }
    if (word == kernel) return count;
  }
  return 0;
}

}  // namespace verification
