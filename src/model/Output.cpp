#include "model/Output.h"

#include "common/check.h"
#include "model/components.h"
#include "model/vectors.h"

namespace model {

Output::Output(const OutputID& newId, const std::string& newName, const std::string& newDescription,
               const DataType& newType, api::ISet* newSet, const int& newSize,
               const bool& isTracking)
    : Base(newId, newName, newSize, newDescription, false, false),
      BaseData(newType, false),
      BaseSet(newSet),
      tracking(isTracking) {}

void Output::define(const std::vector<std::pair<DataID, int>>& columns,
                    const std::vector<OutputOperation>& functions) {
  if (functions.empty()) {
    CHECK_THAT(static_cast<int>(columns.size()) == getSize(),
               "number of data columns do not match the output size");
  } else {
    CHECK_THAT(static_cast<int>(functions.size()) == getSize(),
               "number of functions must match the output size");
  }
  dataColumns = columns;
  dataFunctions = functions;
}

std::vector<DataID> Output::getData() const {
  std::vector<DataID> ids;
  ids.reserve(dataColumns.size());
  for (const auto& column : dataColumns) ids.push_back(column.first);
  sortVector(ids);
  return ids;
}

std::vector<std::pair<DataID, int>> Output::getDataColumns() const {
  return dataColumns;
}

int Output::getNrDataFunctions() const {
  return static_cast<int>(dataFunctions.size());
}

OutputOperation Output::getDataFunction(const int& i) const {
  return dataFunctions.at(static_cast<std::size_t>(i));
}

std::vector<int> Output::getInitData() const {
  std::vector<int> positions;
  for (std::size_t i = 0; i < dataColumns.size(); ++i) {
    for (std::size_t j = i + 1; j < dataColumns.size(); ++j) {
      if (dataColumns[i] == dataColumns[j]) positions.push_back(static_cast<int>(i));
    }
  }
  return positions;
}

bool Output::isTracking() const {
  return tracking;
}

bool Output::isSolution() const {
  return false;
}

bool Output::isVariableInTime() const {
  return false;
}

void Output::print() const {
  printTyped("Output", *this);
  printDimension(*this);
}

}  // namespace model
