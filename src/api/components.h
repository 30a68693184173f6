// The components that a model is made of: what each of them can tell about itself.
//
//   IBase        all of them
//   IBaseSet     those on a set: kernels, maps, data, outputs
//   IBaseData    those that hold values: data, parameters, variables, outputs
#pragma once

#include <string>
#include <vector>

#include "catalogue/IDs.h"

namespace api {

/// What every component of a model can tell about itself.
class IBase {
 public:
  virtual ~IBase() = default;

  virtual std::string getName() const = 0;
  /// The characters of the name; valid as long as the component lives.
  virtual const char* getNameC() const = 0;
  /// Where the component stands in run and results files.
  virtual std::string getH5Path() const = 0;
  /// Values per set element; of a set: its number of elements.
  virtual int getSize() const = 0;
  /// True if the simulation creates the component, so that no run file holds it.
  virtual bool isSimulationOnly() const = 0;
  /// True if the component stands in the run file only for those who read the results.
  virtual bool isSetupOnly() const = 0;
  virtual std::string getDescription() const = 0;
  virtual void print() const = 0;
};

/// A numbered collection of mesh objects or records.
class ISet : public virtual IBase {
 public:
  virtual void setSize(const int& size) = 0;
  /// The group that holds all data of the set.
  virtual std::string getH5PathRoot() const = 0;
  virtual model::SetID getID() const = 0;
};

/// What all components that live on a set have in common.
class IBaseSet : public virtual IBase {
 public:
  virtual ISet* getSet() const = 0;
  /// {number of set elements, values per element}
  virtual std::vector<int> getDimension() const = 0;
};

/// What all components that hold values have in common.
class IBaseData : public virtual IBase {
 public:
  /// "int", "double" or "string".
  virtual std::string getType() const = 0;
  /// True for the state that a flux kernel of the model advances.
  virtual bool isSolution() const = 0;
  virtual bool isVariableInTime() const = 0;
};

/// A group of kernels that a user selects as one piece of physics.
class IAggregate : public virtual IBase {
 public:
  virtual model::AggregateID getID() const = 0;
};

/// A loop of the numerics over one set.
class IKernel : public IBaseSet {
 public:
  virtual model::KernelID getID() const = 0;
  /// Data that the kernel uses only where the model holds them.
  virtual void setOptionalData(const std::vector<model::DataID>& ids) = 0;
  virtual std::vector<model::DataID> getOptionalData() const = 0;
};

/// For each element of a set a fixed number of elements of another one.
class IMap : public IBaseSet {
 public:
  virtual model::MapID getID() const = 0;
  /// The set that the map points into; getSet() is the one it starts from.
  virtual ISet* getSetMapped() const = 0;
};

/// Values on every element of a set.
class IData : public IBaseData, public IBaseSet {
 public:
  virtual model::DataID getID() const = 0;
};

/// A global number of the model.
class IParameter : public IBaseData {
 public:
  virtual model::ParameterID getID() const = 0;
};

/// A global number that changes during a run.
class IVariable : public IBaseData {
 public:
  virtual model::VariableID getID() const = 0;
};

}  // namespace api
