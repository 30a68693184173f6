#include "bench/simulation/RunReport.h"

#include <map>
#include <sstream>
#include <stdexcept>

#include "catalogue/Data.h"
#include "catalogue/Relations.h"
#include "catalogue/Sets.h"

namespace bench {

namespace {

/// The rows of the list with the heading `<kind> <unit> ...`, up to the first empty line.
std::istringstream listOf(const std::string& console, const std::string& kind,
                          const std::string& unit) {
  std::istringstream lines(console);
  std::string rows;
  bool inside = false;
  for (std::string line; std::getline(lines, line);) {
    std::istringstream words(line);
    std::string first;
    std::string second;
    words >> first >> second;
    if (inside && first.empty()) break;
    if (inside && first.front() != '-') rows += line + '\n';
    if (first == kind && second == unit) inside = true;
  }
  if (rows.empty()) throw std::runtime_error("the run lists no " + kind);
  return std::istringstream(rows);
}

/// Bytes of one value of a datum, by its path.
std::size_t bytesOf(const std::string& path) {
  for (const auto& [id, property] : model::DataProps) {
    if (model::SetProps.at(model::Data2Set.at(id)).name + "/" + property.name != path) continue;
    return property.type == DataType::Int ? sizeof(int) : sizeof(double);
  }
  throw std::runtime_error("the run has data <" + path + ">, which is not in the catalogue");
}

}  // namespace

double loopSeconds(const std::string& console) {
  const std::string mark = "simulation finished! (cpu-time = ";
  const std::size_t found = console.find(mark);
  if (found == std::string::npos) throw std::runtime_error("the run does not tell its time");
  return std::stod(console.substr(found + mark.size()));
}

int callsOf(const std::string& console, const std::string& kernel) {
  std::istringstream lines(console);
  for (std::string line; std::getline(lines, line);) {
    if (!line.ends_with("   " + kernel + " ")) continue;
    return std::stoi(line);
  }
  throw std::runtime_error("the run has no timing of the kernel <" + kernel + ">");
}

std::size_t runtimeBytes(const std::string& console) {
  std::string name;
  std::string on;
  std::string to;
  std::size_t count = 0;
  std::map<std::string, std::size_t> elements;
  for (auto sets = listOf(console, "set", "size"); sets >> name >> count;) elements[name] = count;
  std::size_t bytes = 0;
  for (auto maps = listOf(console, "map", "dim"); maps >> name >> count >> on >> to;) {
    bytes += elements.at(on) * count * sizeof(int);
  }
  for (auto dats = listOf(console, "dat", "dim"); dats >> name >> count >> on;) {
    bytes += elements.at(on) * count * bytesOf(name);
  }
  return bytes;
}

}  // namespace bench
