#include "export/formats/ugrid.h"

#include <algorithm>
#include <cmath>
#include <map>

#include "common/NewFile.h"
#include "common/console.h"
#include "export/formats/NcFile.h"
#include "export/formats/UgridMesh.h"
#include "export/results/origin.h"
#include "export/results/quantities.h"
#include "export/results/values.h"

namespace console = common::console;

namespace exporter {

namespace {

constexpr double NO_VALUE = NC_FILL_DOUBLE;

class UgridFile {
 public:
  UgridFile(const Results& newResults, const std::string& name)
      : results(newResults),
        file(name),
        mesh(results.mesh(), epsgOf(results)),
        strings(stringNamesOf(results)) {}

  void write() {
    describeFile();
    mesh.define(file);
    defineTime();
    if (!strings.empty()) defineStrings();
    for (const api::IOutput* output : results.outputs()) defineOutput(*output);
    file.endDefinitions();

    mesh.write(file);
    writeTimes();
    if (!strings.empty()) writeStrings();
    for (const api::IOutput* output : results.outputs()) writeOutput(*output);
    file.finish();
  }

 private:
  void describeFile() {
    file.attach(NC_GLOBAL, "Conventions", "CF-1.8 UGRID-1.0");
    file.attach(NC_GLOBAL, "title", titleOf(results));
    file.attach(NC_GLOBAL, "source", programName());
    file.attach(NC_GLOBAL, "history", historyOf(results.file()) + " --ugrid");
    file.attach(NC_GLOBAL, "study_document", results.study());
    file.attach(NC_GLOBAL, "command_file", results.command());
  }

  void defineTime() {
    moments = file.addDimension("time", results.steps().size());
    time = file.addVariable("time", NC_DOUBLE, {moments});
    file.attach(time, "standard_name", "time");
    file.attach(time, "long_name", "time of the model");
    file.attach(time, "units", "seconds since 1970-01-01 00:00:00");
    file.attach(time, "calendar", "standard");
    file.attach(time, "axis", "T");
  }

  void defineStrings() {
    for (const std::string& name : strings) longestName = std::max(longestName, name.size());
    stringDimension = file.addDimension("nodestring", strings.size());
    const int letters = file.addDimension("nodestring_name_length", longestName);
    stringName = file.addVariable("nodestring_name", NC_CHAR, {stringDimension, letters});
    file.attach(stringName, "cf_role", "timeseries_id");
    file.attach(stringName, "long_name", "name of the nodestring");
    file.attach(stringName, "_Encoding", "utf-8");
  }

  void defineOutput(const api::IOutput& output) {
    for (const Quantity& quantity : quantitiesOf(output.getID())) {
      variables[output.getID()].push_back(defineQuantity(output, quantity));
    }
  }

  int defineQuantity(const api::IOutput& output, const Quantity& quantity) {
    const bool onStrings = output.getSet()->getID() == model::SetID::NodeStrg;
    const int variable = file.addVariable(quantity.name, NC_DOUBLE,
                                          {moments, onStrings ? stringDimension : mesh.faces()});
    if (results.isConstant(output)) {
      file.expectEqualEntries(variable);
    } else {
      file.expectEntries(variable);
    }
    if (!quantity.standardName.empty())
      file.attach(variable, "standard_name", quantity.standardName);
    file.attach(variable, "long_name", quantity.meaning);
    file.attach(variable, "units", quantity.unit);
    file.attach(variable, "_FillValue", NO_VALUE);
    if (onStrings) {
      file.attach(variable, "coordinates", "nodestring_name");
    } else {
      mesh.putOnFaces(file, variable);
    }
    return variable;
  }

  void writeTimes() {
    std::vector<double> times;
    for (const Record& record : results.steps()) times.push_back(record.time);
    file.write(time, times.data());
  }

  void writeStrings() {
    std::string letters;
    for (std::string name : strings) {
      name.resize(longestName, '\0');
      letters += name;
    }
    file.write(stringName, letters.data());
  }

  void writeOutput(const api::IOutput& output) {
    std::size_t entry = 0;
    for (const Record& record : results.steps()) {
      if (results.holds(output, record)) writeRecord(output, record, entry);
      if (results.isConstant(output)) return;
      ++entry;
    }
  }

  void writeRecord(const api::IOutput& output, const Record& record, std::size_t entry) {
    const std::vector<double> all = definedValues(results, output, record);
    const std::vector<int>& own = variables.at(output.getID());
    for (std::size_t i = 0; i < own.size(); ++i) {
      std::vector<double> values;
      for (std::size_t k = i; k < all.size(); k += own.size()) {
        values.push_back(std::isnan(all[k]) ? NO_VALUE : all[k]);
      }
      if (results.isConstant(output)) {
        file.writeEqualEntries(own[i], values.data());
      } else {
        file.writeEntry(own[i], entry, values.data());
      }
    }
  }

  const Results& results;
  NcFile file;
  UgridMesh mesh;
  std::vector<std::string> strings;
  std::size_t longestName = 1;
  int moments = 0;  ///< the dimension of time
  int time = 0;
  int stringDimension = 0;
  int stringName = 0;
  std::map<model::OutputID, std::vector<int>> variables;  ///< one for each quantity
};

}  // namespace

void writeUgrid(const Results& results, const std::string& file) {
  common::NewFile target(file, results.sources());
  try {
    UgridFile(results, target.unfinished()).write();
  } catch (const BaseException&) {
    throw;
  } catch (const std::exception& fault) {
    console::fail("file <", file, "> cannot be written: ", fault.what());
  }
  target.finish();
}

}  // namespace exporter
