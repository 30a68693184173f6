#include "system/Simulation.h"

#include <hdf5.h>

#include <cstddef>
#include <filesystem>
#include <regex>
#include <sstream>
#include <stdexcept>

namespace support {

const char* const HEADER =
    "RHEOMARK v3.0.1\n"
    "RHEOplane sequential binary\n"
    "v3.0.1\n"
    "Results are computed without warranty; checking them is up to the user.\n"
    "\n";

const char* const FOOTER =
    "\n"
    "------------------------------------------------------------\n"
    " RHEOMARK successfully processed all necessary jobs!\n"
    "\n";

namespace {

std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

hid_t open(hid_t id, const std::string& what) {
  if (id < 0) throw std::runtime_error("cannot use " + what);
  return id;
}

void store(const std::string& file, const std::string& path, const std::vector<hsize_t>& shape,
           hid_t type, const void* values) {
  removeLink(file, path);
  const hid_t handle = open(H5Fopen(file.c_str(), H5F_ACC_RDWR, H5P_DEFAULT), file);
  const hid_t space = H5Screate_simple(static_cast<int>(shape.size()), shape.data(), nullptr);
  const hid_t dataset = open(
      H5Dcreate2(handle, path.c_str(), type, space, H5P_DEFAULT, H5P_DEFAULT, H5P_DEFAULT), path);
  H5Dwrite(dataset, type, H5S_ALL, H5S_ALL, H5P_DEFAULT, values);
  H5Dclose(dataset);
  H5Sclose(space);
  H5Fclose(handle);
}

template <class T>
void fill(const std::string& file, const std::string& path, const std::vector<int>& shape,
          hid_t type, T value) {
  const std::vector<hsize_t> extents(shape.begin(), shape.end());
  std::size_t count = 1;
  for (const hsize_t extent : extents) count *= extent;
  const std::vector<T> values(count + 1, value);  // never empty, so that there is an address
  store(file, path, extents, type, values.data());
}

hid_t textType() {
  const hid_t type = H5Tcopy(H5T_C_S1);
  H5Tset_size(type, H5T_VARIABLE);
  H5Tset_cset(type, H5T_CSET_UTF8);
  return type;
}

}  // namespace

std::string masked(const std::string& output) {
  static const std::regex time("cpu-time = [-+.0-9a-z]+s\\)");
  static const std::regex rate(", RTS = [-+.0-9a-z]+");
  static const std::regex row("^( *[0-9]+);.*;   ([A-Za-z]+) $");
  std::string text;
  for (const std::string& line : linesOf(output)) {
    std::string shown = std::regex_replace(line, time, "cpu-time = #s)");
    shown = std::regex_replace(shown, rate, ", RTS = #");
    text += std::regex_replace(shown, row, "$1; #;   $2 ") + '\n';
  }
  return text;
}

std::string ownLines(const std::string& report) {
  std::string text;
  for (const std::string& line : linesOf(report)) {
    if (line.rfind(" -> ", 0) == 0) text += line + '\n';
  }
  return text;
}

int callsOf(const std::string& kernel, const std::string& output) {
  const std::regex row("^ *([0-9]+);.*;   " + kernel + " $");
  for (const std::string& line : linesOf(output)) {
    std::smatch match;
    if (std::regex_match(line, match, row)) return std::stoi(match[1]);
  }
  return 0;
}

std::vector<std::string> linesWith(const std::string& part, const std::string& text) {
  std::vector<std::string> found;
  for (const std::string& line : linesOf(text)) {
    if (line.find(part) != std::string::npos) found.push_back(line);
  }
  return found;
}

void replace(const std::string& file, const std::string& path, const std::vector<int>& shape,
             double value) {
  fill(file, path, shape, H5T_NATIVE_DOUBLE, value);
}

void replaceInts(const std::string& file, const std::string& path, const std::vector<int>& shape,
                 int value) {
  fill(file, path, shape, H5T_NATIVE_INT, value);
}

void replaceText(const std::string& file, const std::string& path, const std::string& value) {
  const hid_t type = textType();
  const char* text = value.c_str();
  store(file, path, {1}, type, static_cast<const void*>(&text));
  H5Tclose(type);
}

void replaceByGroup(const std::string& file, const std::string& path) {
  removeLink(file, path);
  const hid_t handle = open(H5Fopen(file.c_str(), H5F_ACC_RDWR, H5P_DEFAULT), file);
  H5Gclose(open(H5Gcreate2(handle, path.c_str(), H5P_DEFAULT, H5P_DEFAULT, H5P_DEFAULT), path));
  H5Fclose(handle);
}

std::string readText(const std::string& file, const std::string& path) {
  const hid_t handle = open(H5Fopen(file.c_str(), H5F_ACC_RDONLY, H5P_DEFAULT), file);
  const hid_t dataset = open(H5Dopen2(handle, path.c_str(), H5P_DEFAULT), path);
  const hid_t type = textType();
  const hid_t space = H5Dget_space(dataset);
  char* text = nullptr;
  H5Dread(dataset, type, H5S_ALL, H5S_ALL, H5P_DEFAULT, static_cast<void*>(&text));
  const std::string value = text == nullptr ? "" : text;
  H5Dvlen_reclaim(type, space, H5P_DEFAULT, static_cast<void*>(&text));
  H5Sclose(space);
  H5Tclose(type);
  H5Dclose(dataset);
  H5Fclose(handle);
  return value;
}

void Simulation::useSample(const std::string& name) {
  copySample(name, dir.path());
  std::filesystem::create_symlink(SIMULATION_EXE, dir.file("simulation"));
}

void Simulation::useExample(const std::string& name) {
  std::filesystem::copy(std::string(EXAMPLES_FOLDER) + "/" + name, dir.path(),
                        std::filesystem::copy_options::recursive);
  std::filesystem::create_symlink(SIMULATION_EXE, dir.file("simulation"));
}

void Simulation::changeStudy(const std::string& text, const std::string& by) {
  std::string study = readFile(dir.file("study.json"));
  const std::size_t position = study.find(text);
  if (position == std::string::npos) throw std::runtime_error("the study has no " + text);
  writeFile(dir.file("study.json"), study.replace(position, text.size(), by));
}

void Simulation::makeRunFile() {
  const Outcome setup = runIn(dir.path(), SETUP_EXE, {"-f", "study.json"});
  if (setup.status != 0) throw std::runtime_error(setup.out + setup.err);
}

void Simulation::setCommand(const std::string& time, const std::string& outputs,
                            const std::string& timeStep) {
  writeFile(commandFile, R"({"SIMULATION": {"TIME": {)" + time + "}" +
                             (timeStep.empty() ? "" : R"(, "TIMESTEP": {)" + timeStep + "}") +
                             R"(, "OUTPUT": [)" + outputs + "]}}");
}

Outcome Simulation::simulate(const std::vector<std::string>& options) {
  return finish(dir.path(), startSimulation(options));
}

Outcome Simulation::program(const std::vector<std::string>& arguments) {
  return runIn(dir.path(), "./simulation", arguments);
}

pid_t Simulation::startSimulation(const std::vector<std::string>& options) {
  std::vector<std::string> arguments{"-f", "command.json", "-r", "run.h5", "-o", "results.h5"};
  arguments.insert(arguments.end(), options.begin(), options.end());
  return start(dir.path(), "./simulation", arguments);
}

Outcome Simulation::simulateBehind(const std::string& shellCommand) {
  return runIn(
      dir.path(), "/bin/sh",
      {"-c", shellCommand + "; exec ./simulation -f command.json -r run.h5 -o results.h5"});
}

}  // namespace support
