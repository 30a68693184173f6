// The closed list of everything that one run is made of, and the objects that stand for it.
//
// The constructors close the tables of the catalogue over the given aggregates or kernels and check
// that the closure is sound. create() then makes the objects, addOutputs() adds what the user asks
// for. Use Factory to get a model from a file or a model definition.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "api/IModel.h"

namespace model {

class Model final : public api::IModel {
 public:
  /// @param withSetup whether to add what a run file holds for the readers of results only
  /// @throws BaseException for an ID that is not in the catalogue.
  Model(std::vector<AggregateID> ids, bool withSetup);
  Model(std::vector<KernelID> ids, bool withSetup);

  void create() override;
  void addOutputs(const std::vector<std::string>& names) override;

  std::vector<AggregateID> getAggregates() const override { return aggregates; }
  std::vector<KernelID> getKernels() const override { return kernels; }
  std::vector<SetID> getSets() const override { return sets; }
  std::vector<MapID> getMaps() const override { return maps; }
  std::vector<DataID> getDats() const override { return data; }
  std::vector<ParameterID> getPars() const override { return parameters; }
  std::vector<VariableID> getVars() const override { return variables; }
  std::vector<OutputID> getOuts() const override { return outputs; }

  api::IAggregate* getAggregate(const AggregateID& id) const override;
  api::IKernel* getKernel(const KernelID& id) const override;
  api::ISet* getSet(const SetID& id) const override;
  api::IData* getData(const DataID& id) const override;
  api::IMap* getMap(const MapID& id) const override;
  api::IParameter* getParameter(const ParameterID& id) const override;
  api::IVariable* getVariable(const VariableID& id) const override;
  api::IOutput* getOutput(const OutputID& id) const override;

  api::IBase* getComponent(const AggregateID& id) const override { return getAggregate(id); }
  api::IBase* getComponent(const KernelID& id) const override { return getKernel(id); }
  api::IBase* getComponent(const SetID& id) const override { return getSet(id); }
  api::IBase* getComponent(const DataID& id) const override { return getData(id); }
  api::IBase* getComponent(const MapID& id) const override { return getMap(id); }
  api::IBase* getComponent(const ParameterID& id) const override { return getParameter(id); }
  api::IBase* getComponent(const VariableID& id) const override { return getVariable(id); }
  api::IBase* getComponent(const OutputID& id) const override { return getOutput(id); }

  /// A component that the model already holds is returned as it is, since others may point to it.
  api::IBase* createTempComponent(const KernelID& id) override;
  api::IBase* createTempComponent(const SetID& id) override;
  api::IBase* createTempComponent(const DataID& id) override;
  api::IBase* createTempComponent(const MapID& id) override;
  api::IBase* createTempComponent(const ParameterID& id) override;

  /// All aggregates of the catalogue, in order.
  static std::vector<AggregateID> getFullModel();

 private:
  void init(bool withSetup);
  void addSetsOfKernel(const KernelID& kid);
  void addSetOfKernelData(const KernelID& kid, const DataID& did);
  void addSetup();
  void addTrackingOutputs();
  void createKernels();
  void createData();
  void createOutput(const OutputID& oid);
  void defineOutput(const OutputID& oid);
  bool isRequestable(const OutputID& oid) const;
  api::ISet* provideSet(const SetID& id);

  std::vector<AggregateID> aggregates;
  // Sorted, each entry once.
  std::vector<KernelID> kernels;
  std::vector<SetID> sets;
  std::vector<MapID> maps;
  std::vector<DataID> data;
  std::vector<ParameterID> parameters;
  std::vector<VariableID> variables;
  // The tracking outputs, then the others in the order in which they were asked for.
  std::vector<OutputID> outputs;

  std::map<AggregateID, std::unique_ptr<api::IAggregate>> aMap;
  std::map<KernelID, std::unique_ptr<api::IKernel>> kMap;
  std::map<SetID, std::unique_ptr<api::ISet>> sMap;
  std::map<DataID, std::unique_ptr<api::IData>> dMap;
  std::map<MapID, std::unique_ptr<api::IMap>> mMap;
  std::map<ParameterID, std::unique_ptr<api::IParameter>> pMap;
  std::map<VariableID, std::unique_ptr<api::IVariable>> vMap;
  std::map<OutputID, std::unique_ptr<api::IOutput>> oMap;
};

}  // namespace model
