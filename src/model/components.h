// The components of a model, each with the texts that it prints of itself. Outputs have a file of
// their own.
#pragma once

#include <string>
#include <vector>

#include "model/Base.h"

namespace model {

/// A piece of physics that a user selects; it stands for a group of kernels.
class Aggregate final : public Base<AggregateID> {
 public:
  Aggregate(const AggregateID& newId, const std::string& newName,
            const std::string& newDescription);

  void print() const override;
};

/// A loop of the numerics over one set. In the run file the dataset kernelPath lists the kernels of
/// the schedule, and kernelTimingPath holds their timing values, kernelTimingLength for each.
class Kernel final : public BaseSet<KernelID> {
 public:
  static constexpr const char* kernelPath = "kernels/ID";
  static constexpr const char* kernelTimingPath = "kernels/execution";
  static constexpr int kernelTimingLength = 3;

  Kernel(const KernelID& newId, const std::string& newName, const std::string& newDescription,
         api::ISet* newSet);

  void setOptionalData(const std::vector<DataID>& ids) override;
  std::vector<DataID> getOptionalData() const override;
  void print() const override;

 private:
  std::vector<DataID> optionalData;
};

/// A numbered collection of mesh objects or records. Its size is the number of elements: 0 until
/// the mesh has been read.
class Set final : public Base<SetID> {
 public:
  Set(const SetID& newId, const std::string& newName, const std::string& newDescription);

  void setSize(const int& elements) override;
  /// The group of the set, as "CellsAll".
  std::string getH5PathRoot() const override;
  /// The dataset with the number of elements, as "CellsAll/set".
  std::string getH5Path() const override;
  void print() const override;
};

/// For each element of a set (getSet) a fixed number of elements of another one (getSetMapped).
class Map final : public BaseSet<MapID> {
 public:
  /// The sets are not owned; `newSize` is the number of targets per element of `newSet`.
  Map(const MapID& newId, const std::string& newName, const std::string& newDescription,
      api::ISet* newSet, api::ISet* newSetMapped, const int& newSize);

  api::ISet* getSetMapped() const override;
  void print() const override;

 private:
  api::ISet* setMapped;
};

/// Values on every element of a set.
class Data final : public BaseData<DataID>, public BaseSet<DataID> {
 public:
  /// `newSet` is not owned; `newSize` is the number of values per element of it.
  Data(const DataID& newId, const std::string& newName, const std::string& newDescription,
       const bool& isSimulationOnly, const bool& isSetupOnly, const DataType& newType,
       api::ISet* newSet, const int& newSize, const bool& isSolution);

  void print() const override;
};

/// A global number, or a few, that stay as the run file gives them.
class Parameter final : public BaseData<ParameterID> {
 public:
  Parameter(const ParameterID& newId, const std::string& newName, const std::string& newDescription,
            const bool& isSimulationOnly, const bool& isSetupOnly, const DataType& newType,
            const int& newSize);

  /// As "Parameters/Gravity".
  std::string getH5Path() const override;
  void print() const override;
};

/// A global number, or a few, that change during a run.
class Variable final : public BaseData<VariableID> {
 public:
  Variable(const VariableID& newId, const std::string& newName, const std::string& newDescription,
           const bool& isSimulationOnly, const DataType& newType, const int& newSize);

  void print() const override;
};

// Lines that several kinds of components print.

/// "<family>: <path> (dtype=<type>)"
void printTyped(const char* family, const api::IBaseData& component);

/// " -> with dimension (<set elements>/<values per element>)"
void printDimension(const api::IBaseSet& component);

}  // namespace model
