#include "system/verification/flume.h"

#include <cmath>
#include <cstddef>
#include <sstream>

namespace verification {

namespace {

/// A line of STRINGDEF across the flume.
std::string stringAt(const std::string& name, double x, const Flume& flume) {
  return R"({"name": ")" + name + R"(", "from": [)" + number(x) + ", " + number(flume.width()) +
         R"(], "to": [)" + number(x) + R"(, 0], "reverse": true})";
}

}  // namespace

std::string number(double value) {
  std::ostringstream text;
  text.precision(17);
  text << value;
  return text.str();
}

std::string geometryOf(const Flume& flume) {
  const double middle = flume.from + 0.5 * flume.length;
  return R"("RECTANGLE": {"origin": [)" + number(flume.from) + R"(, 0], "length": )" +
         number(flume.length) + R"(, "width": )" + number(flume.width()) + R"(, "cells": [)" +
         std::to_string(flume.columns) + R"(, 1], "slope": )" + number(flume.slope) +
         R"(}, "STRINGDEF": [)" + stringAt("inlet", flume.from, flume) + ", " +
         stringAt("middle", middle, flume) + ", " + stringAt("outlet", flume.to(), flume) + "]";
}

std::string frictionlessFlow(const GrassFlow& flow, const Flume& flume) {
  return R"("PARAMETER": {"cfl": 0.8, "gravity": )" + number(flow.gravity) + R"(}, "BOUNDARY": [
      {"string": "inlet", "type": "inflow_froude", "froude": 0.5, "discharge": )" +
         number(flow.discharge * flume.width()) +
         R"(}, {"string": "outlet", "type": "level", "level_file": "levels.txt"}])";
}

std::string levels(double end, double atStart, double atEnd) {
  return "0 " + number(atStart) + "\n" + number(end) + " " + number(atEnd) + "\n";
}

std::string grassBed(const GrassFlow& flow, const std::string& boundaries) {
  return R"("BEDMATERIAL": {"porosity": )" + number(flow.porosity) +
         R"(}, "BEDLOAD": {"FORMULA": {"type": "grass_1981", "coefficient": )" +
         number(flow.coefficient) + R"(}, "BOUNDARY": [)" + boundaries + "]}";
}

std::string knownRates(const Flume& flume, double in, double out) {
  return R"({"string": "inlet", "type": "inflow", "discharge": )" + number(in * flume.width()) +
         R"(}, {"string": "outlet", "type": "outflow", "discharge": )" +
         number(out * flume.width()) + "}";
}

double bedError(const BedRun& run, const std::function<double(double)>& exact) {
  double error = 0.0;
  double area = 0.0;
  for (std::size_t cell = 0; cell < run.cells(); ++cell) {
    error += run.area(cell) * std::abs(run.bed(cell) - exact(run.centroid(cell).x));
    area += run.area(cell);
  }
  return error / area;
}

double centreOfBed(const BedRun& run) {
  double moment = 0.0;
  for (std::size_t cell = 0; cell < run.cells(); ++cell) {
    moment += run.area(cell) * run.bed(cell) * run.centroid(cell).x;
  }
  return moment / run.sand();
}

}  // namespace verification
