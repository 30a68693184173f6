#include "bench/simulation/DamBreak.h"

#include <fstream>
#include <nlohmann/json.hpp>
#include <stdexcept>

#include "bench/simulation/RunReport.h"
#include "bench/support/ChildProcess.h"

namespace bench {

using nlohmann::json;

namespace {

json studyOf(const std::array<int, 2>& rectangles) {
  const auto [along, across] = rectangles;
  // clang-format off
  const json rectangle = {{"length", along}, {"width", across}, {"cells", {along, across}}};
  const json reservoir = {{"box", {0.0, 0.0, 0.5 * along, across}}, {"water_level", 2.0}};
  const json initial   = {{"water_level", 1.0}, {"ZONES", json::array({reservoir})}};
  const json plane     = {{"GEOMETRY", {{"RECTANGLE", rectangle}}},
                          {"HYDRAULICS", {{"PARAMETER", {{"cfl", 0.5}}}, {"INITIAL", initial}}}};
  // clang-format on
  return {{"SETUP", {{"DOMAIN", {{"RHEOPLANE_2D", plane}}}}}};
}

json commandOf(double end) {
  const json time = {{"start", 0.0}, {"end", end}, {"out", 0.0}};
  return {{"SIMULATION", {{"TIME", time}, {"OUTPUT", {"water_surface"}}}}};
}

void write(const std::filesystem::path& file, const json& document) {
  std::ofstream stream(file);
  stream << document.dump(2) << '\n';
  stream.flush();
  if (!stream) throw std::runtime_error("cannot write " + file.string());
}

}  // namespace

DamBreak::DamBreak(const std::array<int, 2>& rectangles, double end) {
  write(folder.path() / "study.json", studyOf(rectangles));
  write(folder.path() / "command.json", commandOf(end));
  runChild(folder.path(), {SETUP_EXECUTABLE, "-f", "study.json", "-o", "run.h5"});
}

DamBreakFigures DamBreak::run() const {
  const ChildReport report = runChild(
      folder.path(),
      {SIMULATION_EXECUTABLE, "-f", "command.json", "-r", "run.h5", "-o", "run.h5", "--log", "2"});
  return {callsOf(report.output, "Update"), loopSeconds(report.output), report.peakBytes,
          runtimeBytes(report.output)};
}

}  // namespace bench
