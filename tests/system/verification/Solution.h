// Runs a study from its text to its results, and reads them back.
//
//   const support::TempDir dir;
//   support::writeFile(dir.file("mesh.2dm"), to2dm(mesh));
//   const Solution run = simulate(dir.path(), {.geometry = R"("MESH": {"file": "mesh.2dm"})",
//                                              .initial = R"("water_level": 0.0)",
//                                              .end = 60.0,
//                                              .out = 20.0});
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "system/verification/TriangleMesh.h"

namespace verification {

constexpr double GRAVITY = 9.81;  ///< [m/s2]

struct Case {
  std::string geometry;         ///< the keys of GEOMETRY in the study document
  std::string initial;          ///< the keys of INITIAL
  std::string processes = {};   ///< further groups of HYDRAULICS, as R"("FRICTION": {...})"
  double end = 0.0;             ///< [s]
  double out = 0.0;             ///< time between two records [s], a divisor of `end`
  double minimumDepth = 0.001;  ///< cells with less count as dry [m]
  double longestStep = 100.0;   ///< bound of the time step before the CFL number [s]
};

/// The flow at one time.
struct Record {
  double time = 0.0;            ///< [s]
  std::vector<double> surface;  ///< per cell [m]
  std::vector<double> dischargeX;
  std::vector<double> dischargeY;  ///< per cell [m2/s]
  std::vector<double> throughStrings =
      {};  ///< discharge [m3/s]; empty unless the case has boundaries
};

struct Solution {
  std::string name;                         ///< of the results file
  std::string console;                      ///< what the simulation has printed
  std::vector<std::array<Point, 3>> cells;  ///< corners
  std::vector<double> areas;                ///< per cell [m2]
  std::vector<double> bed;                  ///< per cell [m]
  std::vector<Record> records;              ///< in the order of time, the first at 0

  const Record& last() const { return records.back(); }
  double depth(const Record& record, std::size_t cell) const {
    return record.surface[cell] - bed[cell];
  }
  Point centroid(std::size_t cell) const;
};

/// Corners of all cells of a run file.
std::vector<std::array<Point, 3>> readCells(const std::string& runFile);

/// Makes the run file of a case in a folder and runs it, with the CFL number 0.5. Where its
/// processes do not say otherwise there are closed walls all around and no friction.
/// @throws std::runtime_error with what was printed if one of the programs fails, and if a result
/// is
///         not a finite number.
Solution simulate(const std::string& folder, const Case& study);

/// Water in all cells [m3], summed with compensation of the rounding.
double volume(const Solution& run, const Record& record);

/// Least depth of all cells in all records [m].
double leastDepth(const Solution& run);

/// How many cells are deeper than `depth`.
std::size_t countDeeper(const Solution& run, const Record& record, double depth);

/// How often a kernel has been called, by the table of times that a simulation prints at its end; 0
/// if the table does not have it.
int callsOf(const std::string& kernel, const std::string& console);

}  // namespace verification
