// What a user calls a result. The results file stores the data columns that an output is made of;
// its operations turn them into the values when the results are looked at.
//
//   water_depth  columns HydState[0], BottomEl[0]   operation "$0-$1"
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "model/Base.h"

namespace model {

class Output final : public BaseData<OutputID>, public BaseSet<OutputID> {
 public:
  /// `newSet` is not owned; `newSize` is the number of values per element of it.
  Output(const OutputID& newId, const std::string& newName, const std::string& newDescription,
         const DataType& newType, api::ISet* newSet, const int& newSize, const bool& isTracking);

  void define(const std::vector<std::pair<DataID, int>>& columns,
              const std::vector<OutputOperation>& functions) override;
  std::vector<DataID> getData() const override;
  std::vector<std::pair<DataID, int>> getDataColumns() const override;
  int getNrDataFunctions() const override;
  OutputOperation getDataFunction(const int& i) const override;
  /// A repeated column compares a state with its initial value: of each such pair the position of
  /// the first, in ascending order.
  std::vector<int> getInitData() const override;
  bool isTracking() const override;

  /// An output is derived from stored data and never stored itself, so it is neither a state nor
  /// counted among what varies in time.
  bool isSolution() const override;
  bool isVariableInTime() const override;

  void print() const override;

 private:
  std::vector<std::pair<DataID, int>> dataColumns;
  std::vector<OutputOperation> dataFunctions;
  bool tracking;
};

}  // namespace model
