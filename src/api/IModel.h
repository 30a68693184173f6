// The closed list of everything that one run is made of. The model owns its components.
#pragma once

#include <string>
#include <vector>

#include "api/IOutput.h"
#include "api/components.h"
#include "catalogue/IDs.h"

namespace api {

class IModel {
 public:
  virtual ~IModel() = default;

  /// Creates the component objects; the lists are closed before.
  virtual void create() = 0;
  /// Adds the outputs that the user asks for by name.
  /// @throws BaseException if a name is not valid in this model.
  virtual void addOutputs(const std::vector<std::string>& names) = 0;

  virtual std::vector<model::AggregateID> getAggregates() const = 0;
  virtual std::vector<model::KernelID> getKernels() const = 0;
  virtual std::vector<model::SetID> getSets() const = 0;
  virtual std::vector<model::MapID> getMaps() const = 0;
  virtual std::vector<model::DataID> getDats() const = 0;
  virtual std::vector<model::ParameterID> getPars() const = 0;
  virtual std::vector<model::VariableID> getVars() const = 0;
  virtual std::vector<model::OutputID> getOuts() const = 0;

  /// @throws BaseException if the model does not hold the component; so do all below.
  virtual IAggregate* getAggregate(const model::AggregateID& id) const = 0;
  virtual IKernel* getKernel(const model::KernelID& id) const = 0;
  virtual ISet* getSet(const model::SetID& id) const = 0;
  virtual IData* getData(const model::DataID& id) const = 0;
  virtual IMap* getMap(const model::MapID& id) const = 0;
  virtual IParameter* getParameter(const model::ParameterID& id) const = 0;
  virtual IVariable* getVariable(const model::VariableID& id) const = 0;
  virtual IOutput* getOutput(const model::OutputID& id) const = 0;

  virtual IBase* getComponent(const model::AggregateID& id) const = 0;
  virtual IBase* getComponent(const model::KernelID& id) const = 0;
  virtual IBase* getComponent(const model::SetID& id) const = 0;
  virtual IBase* getComponent(const model::DataID& id) const = 0;
  virtual IBase* getComponent(const model::MapID& id) const = 0;
  virtual IBase* getComponent(const model::ParameterID& id) const = 0;
  virtual IBase* getComponent(const model::VariableID& id) const = 0;
  virtual IBase* getComponent(const model::OutputID& id) const = 0;

  /// Creates a component outside the closure, for tools that need one object only.
  virtual IBase* createTempComponent(const model::KernelID& id) = 0;
  virtual IBase* createTempComponent(const model::SetID& id) = 0;
  virtual IBase* createTempComponent(const model::DataID& id) = 0;
  virtual IBase* createTempComponent(const model::MapID& id) = 0;
  virtual IBase* createTempComponent(const model::ParameterID& id) = 0;
};

}  // namespace api
