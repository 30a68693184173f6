#include "simulation/SetupOutput.h"

#include <string>
#include <vector>

#include "common/console.h"
#include "h5/DataSet.h"
#include "h5/File.h"

namespace simulation {

namespace console = common::console;

namespace {

// The copy goes through memory, for which the set is the measure. Texts have their own length.
void requireRows(const api::IData& data, int most, const std::string& runFile) {
  if (data.getType() == "string") return;
  const std::string path = data.getH5Path();
  const h5::File file(runFile, h5::File::READ_ONLY);
  const h5::Shape shape = h5::DataSet::open(file.handle(), path).dimensions();
  if (shape.empty() || shape.front() <= static_cast<hsize_t>(most)) return;
  console::fail("data <", path, "> has ", shape.front(), " rows, but its set has ", most,
                " elements");
}

template <class T>
void copySetupOutput(const T& item, const int& rows, const int& columns,
                     api::IH5Reader* const& from, api::IH5Writer* const& to, int logLevel) {
  const std::string path = item->getH5Path();
  const std::string type = item->getType();
  const bool scalar = rows < 2 && columns < 2;
  if (logLevel > 1) {
    console::info("reading data <", path, "> from runfile and writing to result file.");
  }
  if (type == "int") {
    if (scalar) {
      to->writeIntScalar(path, from->readIntScalar(path));
    } else {
      to->writeIntVecVec(path, from->readIntVecVec(path));
    }
  } else if (type == "double") {
    if (scalar) {
      to->writeDoubleScalar(path, from->readDoubleScalar(path));
    } else {
      to->writeDoubleVecVec(path, from->readDoubleVecVec(path));
    }
  } else if (type == "string") {
    if (rows < 1 || columns != 1) {
      console::fail("writing data of type string is only possible for vector of strings");
    }
    const std::vector<std::string> values = from->readStrVec(path);
    to->writeStringVec(path, static_cast<int>(values.size()), values);
  }
}

}  // namespace

void writeSetupOutput(api::IData* const& data, api::IH5Reader* const& from,
                      api::IH5Writer* const& to, int logLevel) {
  const std::vector<int> size = data->getDimension();
  if (size.at(0) == 0) {
    if (logLevel > 2) console::info("data <", data->getH5Path(), "> not found in runfile...");
    return;
  }
  requireRows(*data, size.at(0), from->getFilename());
  copySetupOutput(data, size.at(0), size.at(1), from, to, logLevel);
}

void writeSetupOutput(api::IParameter* const& parameter, api::IH5Reader* const& from,
                      api::IH5Writer* const& to, int logLevel) {
  const int size = parameter->getSize();
  if (size == 0) {
    if (logLevel > 2) {
      console::info("parameter <", parameter->getH5Path(), "> not found in runfile...");
    }
    return;
  }
  copySetupOutput(parameter, size, 1, from, to, logLevel);
}

}  // namespace simulation
