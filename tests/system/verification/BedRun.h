// A run with a moving bed that keeps account of its sand.
//
//   const Silence silence;
//   const support::TempDir dir;
//   setUp(dir.path(), {.geometry = ..., .hydraulics = ..., .morphology = ..., .end = 60.0});
//   BedRun run(dir.path());
//   run.setCells([](const Point& at) { return BedRun::Cell{.bed = 0.1 * at.x, .depth = 1.0}; });
//   run.go();
//   EXPECT_LE(run.largestSandError(), 1e-13 * run.sand());
//
// The run is that of the executable, in this process. Its update is wrapped in code that reads and
// adds up. In the account stand the bed, pores included, and the bed fluxes of all edges with the
// same cell on either side, which are those along the boundary of the domain, times length and
// step. Sources have no term: a run with sources of sediment is not accounted for.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "simulation/RHEOdomain.h"
#include "system/verification/CompensatedSum.h"
#include "system/verification/TriangleMesh.h"

namespace verification {

/// A study and how long it runs.
struct BedCase {
  std::string geometry;    ///< the keys of GEOMETRY in the study document
  std::string hydraulics;  ///< the keys of HYDRAULICS
  std::string morphology;  ///< the keys of MORPHOLOGY
  double end = 0.0;        ///< [s]
};

/// Makes run.h5 and command.json of a case in a folder.
/// @throws std::runtime_error with what was printed if setup fails
void setUp(const std::string& folder, const BedCase& study);

/// Keeps what a run prints to itself.
class Silence {
 public:
  Silence();
  ~Silence();
  Silence(const Silence&) = delete;
  Silence& operator=(const Silence&) = delete;
  Silence(Silence&&) = delete;
  Silence& operator=(Silence&&) = delete;
};

class BedRun : public simulation::RHEOdomain {
 public:
  struct Cell {
    double bed = 0.0;    ///< [m]
    double depth = 0.0;  ///< [m]
    double u = 0.0;      ///< velocity along x [m/s]
    double v = 0.0;      ///< and along y
  };

  /// Loads run.h5 and command.json of a folder.
  explicit BedRun(const std::string& folder);

  /// Replaces the state at the start, cell by cell, by one at their centroids.
  void setCells(const std::function<Cell(const Point&)>& stateAt);
  /// From now on the update gets the fluxes of the bed only, those of the water are zero.
  void holdWater() { waterIsHeld = true; }
  void go();

  std::size_t cells() const { return areas.size(); }
  const Point& centroid(std::size_t cell) const { return centroids[cell]; }
  double area(std::size_t cell) const { return areas[cell]; }
  double bed(std::size_t cell) const;
  double surface(std::size_t cell) const;
  double curvature(std::size_t cell) const;
  /// One of the ten integrated values of a nodestring.
  double ofString(std::size_t nodestring, std::size_t value) const;

  /// Volume of the bed over the level 0, pores included [m3].
  double sand() const;
  double sandIn() const { return in.value(); }    ///< over boundaries [m3]
  double sandOut() const { return out.value(); }  ///< over boundaries [m3]
  /// What was missing or too much at the end of any step [m3].
  double largestSandError() const { return sandError; }
  /// By how much a bed was below its fixed bed at the end of any step [m].
  double deepestUndercut() const { return undercut; }
  /// Largest difference between the ways of surface and bed in a cell in one step, in units in the
  /// last place of the surface.
  double largestDepthChange() const { return depthChange; }
  int steps() const { return passes; }

 private:
  template <class T>
  T* values(model::DataID id) const {
    return reinterpret_cast<T*>(dats.at(id)->data);
  }
  void watchUpdate(const std::function<void()>& update);
  void countBoundaries();
  void closeAccount();
  void compareWays(const std::vector<double>& surfaces, const std::vector<double>& beds);
  void lookForUndercut();

  std::vector<Point> centroids;
  std::vector<double> areas;
  bool waterIsHeld = false;
  double sandAtStart = 0.0;
  CompensatedSum in, out;
  double sandError = 0.0;
  double undercut = 0.0;
  double depthChange = 0.0;
  int passes = 0;
};

}  // namespace verification
