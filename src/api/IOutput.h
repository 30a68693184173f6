// What a user calls a result: the stored data columns it is made of and the operations on them.
#pragma once

#include <utility>
#include <vector>

#include "api/components.h"
#include "catalogue/IDs.h"
#include "catalogue/OutputOperation.h"

namespace api {

class IOutput : public IBaseData, public IBaseSet {
 public:
  virtual model::OutputID getID() const = 0;
  /// Columns are pairs of a datum and a component of it. Without functions the output is a plain
  /// copy of its columns; with functions there must be one per value of the output.
  /// @throws BaseException if the numbers do not fit.
  virtual void define(const std::vector<std::pair<model::DataID, int>>& columns,
                      const std::vector<model::OutputOperation>& functions) = 0;
  /// The distinct data of the columns, sorted.
  virtual std::vector<model::DataID> getData() const = 0;
  virtual std::vector<std::pair<model::DataID, int>> getDataColumns() const = 0;
  virtual int getNrDataFunctions() const = 0;
  /// @throws std::out_of_range for an operation that does not exist.
  virtual model::OutputOperation getDataFunction(const int& i) const = 0;
  /// Positions of the columns that are to be read from the initial record, not the current one.
  virtual std::vector<int> getInitData() const = 0;
  /// True if the output is written once, at the end of a run.
  virtual bool isTracking() const = 0;
};

}  // namespace api
