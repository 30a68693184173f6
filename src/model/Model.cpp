#include "model/Model.h"

#include <algorithm>
#include <utility>

#include "catalogue/Aggregates.h"
#include "catalogue/Data.h"
#include "catalogue/Kernels.h"
#include "catalogue/Outputs.h"
#include "catalogue/Parameters.h"
#include "catalogue/Relations.h"
#include "common/check.h"
#include "common/console.h"
#include "model/Factory.h"
#include "model/vectors.h"

namespace model {

namespace {

template <class ID>
int number(const ID& id) {
  return static_cast<int>(id);
}

/// Appends what `table` holds for each ID of `from`; an ID without a row adds nothing.
template <class From, class To>
void gatherComponents(const std::vector<From>& from, const std::map<From, std::vector<To>>& table,
                      std::vector<To>& to) {
  for (const From& id : from) {
    const auto row = table.find(id);
    if (row != table.end()) to.insert(to.end(), row->second.begin(), row->second.end());
  }
  sortVector(to);
}

template <class ID, class Interface>
Interface* lookUp(const std::map<ID, std::unique_ptr<Interface>>& components, const ID& id,
                  const char* family) {
  const auto entry = components.find(id);
  Interface* c = entry == components.end() ? nullptr : entry->second.get();
  CHECK_THAT(c != nullptr, family << " <" << number(id) << "> not found");
  return c;
}

}  // namespace

Model::Model(std::vector<AggregateID> ids, bool withSetup) : aggregates(std::move(ids)) {
  for (const AggregateID& aid : aggregates) {
    CHECK_THAT(AggregateDescription.contains(aid), "aggregate <" << number(aid) << "> not defined");
  }
  gatherComponents(aggregates, Aggregate2Kernels, kernels);
  init(withSetup);
}

Model::Model(std::vector<KernelID> ids, bool withSetup) : kernels(std::move(ids)) {
  for (const KernelID& kid : kernels) {
    CHECK_THAT(KernelDescription.contains(kid), "kernel <" << number(kid) << "> not defined");
  }
  sortVector(kernels);
  init(withSetup);
}

std::vector<AggregateID> Model::getFullModel() {
  std::vector<AggregateID> all;
  all.reserve(AggregateProps.size());
  for (const auto& [aid, property] : AggregateProps) all.push_back(aid);
  return all;
}

// -- closing the lists ----------------------------------------------------------------------------

void Model::init(bool withSetup) {
  gatherComponents(kernels, Kernel2Data, data);
  gatherComponents(kernels, Kernel2Maps, maps);
  gatherComponents(kernels, Kernel2Parameters, parameters);
  gatherComponents(kernels, Kernel2Variables, variables);
  for (const KernelID& kid : kernels) addSetsOfKernel(kid);
  if (withSetup) addSetup();
  sortVector(sets);
  sortVector(data);
  sortVector(parameters);
  addTrackingOutputs();
}

void Model::addSetsOfKernel(const KernelID& kid) {
  CHECK_THAT(Kernel2Set.count(kid) == 1, "no set defined for kernel <" << number(kid) << ">");
  sets.push_back(Kernel2Set.at(kid));

  const auto row = Kernel2Maps.find(kid);
  if (row != Kernel2Maps.end()) {
    for (const MapID& mid : row->second) {
      CHECK_THAT(Map2Sets.count(mid) == 1, "no set defined for map <" << number(mid) << ">");
      const auto& [from, to] = Map2Sets.at(mid);
      sets.push_back(from);
      sets.push_back(to);
    }
  }
  for (const DataID& did : Kernel2Data.at(kid)) addSetOfKernelData(kid, did);
}

void Model::addSetOfKernelData(const KernelID& kid, const DataID& did) {
  CHECK_THAT(Data2Set.count(did) == 1, "no set defined for data <" << number(did) << ">");
  const SetID from = Kernel2Set.at(kid);
  const SetID to = Data2Set.at(did);
  sets.push_back(to);
  if (from == to) return;

  const bool ok = std::any_of(Map2Sets.begin(), Map2Sets.end(), [&](const auto& row) {
    return row.second == std::make_pair(from, to);
  });
  CHECK_THAT(ok, "no indirection map defined from set <" << number(from) << "> to set <"
                                                         << number(to) << ">");
}

void Model::addSetup() {
  for (const DataID& did : DataSetup) {
    CHECK_THAT(Data2Set.count(did) == 1, "no set defined for data <" << number(did) << ">");
    sets.push_back(Data2Set.at(did));
    data.push_back(did);
  }
  parameters.insert(parameters.end(), ParameterSetup.begin(), ParameterSetup.end());
}

void Model::addTrackingOutputs() {
  for (const OutputID& oid : OutputTracking) {
    CHECK_THAT(Output2DataColumns.count(oid) == 1,
               "no data defined for output <" << number(oid) << ">");
    const auto& columns = Output2DataColumns.at(oid);
    const bool complete = std::all_of(columns.begin(), columns.end(), [&](const auto& column) {
      return elementInVector(column.first, data) >= 0;
    });
    if (complete) outputs.push_back(oid);
  }
}

// -- creating the objects -------------------------------------------------------------------------

void Model::create() {
  for (const AggregateID& id : aggregates) aMap[id].reset(Factory::createAggregate(id));
  for (const SetID& id : sets) sMap[id].reset(Factory::createSet(id));
  createKernels();
  createData();
  for (const MapID& id : maps) {
    const auto& [from, to] = Map2Sets.at(id);
    mMap[id].reset(Factory::createMap(id, sMap.at(from).get(), sMap.at(to).get()));
  }
  for (const ParameterID& id : parameters) pMap[id].reset(Factory::createParameter(id));
  for (const VariableID& id : variables) vMap[id].reset(Factory::createVariable(id));
  for (const OutputID& id : outputs) createOutput(id);
}

void Model::createKernels() {
  for (const KernelID& id : kernels) {
    auto& kernel = kMap[id];
    kernel.reset(Factory::createKernel(id, sMap.at(Kernel2Set.at(id)).get()));
    const auto optional = Kernel2OptionalData.find(id);
    if (optional != Kernel2OptionalData.end()) kernel->setOptionalData(optional->second);
  }
}

// A datum is part of the solution only if a kernel that advances it is in the model.
void Model::createData() {
  std::vector<DataID> solution;
  for (const KernelID& id : kernels) {
    const auto row = Kernel2SolutionData.find(id);
    if (row != Kernel2SolutionData.end()) solution.push_back(row->second);
  }
  sortVector(solution);
  for (const DataID& id : data) {
    const bool isSolution = elementInVector(id, solution) >= 0;
    dMap[id].reset(Factory::createData(id, sMap.at(Data2Set.at(id)).get(), isSolution));
  }
}

void Model::createOutput(const OutputID& oid) {
  oMap[oid].reset(Factory::createOutput(oid, sMap.at(Output2Set.at(oid)).get()));
  defineOutput(oid);
}

void Model::defineOutput(const OutputID& oid) {
  CHECK_THAT(oMap.contains(oid), "output <" << number(oid) << "> not existing");
  const auto row = Output2Operations.find(oid);
  oMap.at(oid)->define(Output2DataColumns.at(oid), row == Output2Operations.end()
                                                       ? std::vector<OutputOperation>{}
                                                       : row->second);
}

bool Model::isRequestable(const OutputID& oid) const {
  CHECK_THAT(Output2DataColumns.count(oid) == 1,
             "no data defined for output <" << number(oid) << ">");
  if (elementInVector(oid, OutputTracking) >= 0) return false;
  if (!sMap.contains(Output2Set.at(oid))) return false;
  const auto& columns = Output2DataColumns.at(oid);
  return std::all_of(columns.begin(), columns.end(),
                     [&](const auto& column) { return dMap.contains(column.first); });
}

void Model::addOutputs(const std::vector<std::string>& names) {
  std::map<std::string, OutputID> ids;
  for (const auto& [oid, property] : OutputProps) ids.emplace(property.name, oid);
  std::vector<std::string> valid;
  for (const auto& [oid, set] : Output2Set) {
    if (isRequestable(oid)) valid.push_back(OutputProps.at(oid).name);
  }

  for (const std::string& name : names) {
    if (!ids.contains(name) || elementInVector(name, valid) < 0) {
      common::console::error("output <", name,
                             "> cannot be defined within the this model setup, valid are:");
      for (const std::string& other : valid) common::console::error(other);
      common::console::fail("");
    }
    createOutput(ids.at(name));
    outputs.push_back(ids.at(name));
  }
}

// -- looking up -----------------------------------------------------------------------------------

// clang-format off
api::IAggregate* Model::getAggregate(const AggregateID& id) const { return lookUp(aMap, id, "aggregate"); }
api::IKernel*    Model::getKernel(const KernelID& id) const       { return lookUp(kMap, id, "kernel"); }
api::ISet*       Model::getSet(const SetID& id) const             { return lookUp(sMap, id, "set"); }
api::IData*      Model::getData(const DataID& id) const           { return lookUp(dMap, id, "data"); }
api::IMap*       Model::getMap(const MapID& id) const             { return lookUp(mMap, id, "map"); }
api::IParameter* Model::getParameter(const ParameterID& id) const { return lookUp(pMap, id, "parameter"); }
api::IVariable*  Model::getVariable(const VariableID& id) const   { return lookUp(vMap, id, "variable"); }
api::IOutput*    Model::getOutput(const OutputID& id) const       { return lookUp(oMap, id, "output"); }
// clang-format on

// -- components outside the closure ---------------------------------------------------------------

api::ISet* Model::provideSet(const SetID& id) {
  auto& set = sMap[id];
  if (!set) set.reset(Factory::createSet(id));
  return set.get();
}

api::IBase* Model::createTempComponent(const KernelID& id) {
  api::ISet* set = provideSet(Kernel2Set.at(id));
  auto& kernel = kMap[id];
  if (!kernel) kernel.reset(Factory::createKernel(id, set));
  return kernel.get();
}

api::IBase* Model::createTempComponent(const SetID& id) {
  return provideSet(id);
}

api::IBase* Model::createTempComponent(const DataID& id) {
  api::ISet* set = provideSet(Data2Set.at(id));
  auto& component = dMap[id];
  if (!component) component.reset(Factory::createData(id, set, false));
  return component.get();
}

api::IBase* Model::createTempComponent(const MapID& id) {
  const auto& [from, to] = Map2Sets.at(id);
  api::ISet* fromSet = provideSet(from);
  api::ISet* toSet = provideSet(to);
  auto& map = mMap[id];
  if (!map) map.reset(Factory::createMap(id, fromSet, toSet));
  return map.get();
}

api::IBase* Model::createTempComponent(const ParameterID& id) {
  auto& parameter = pMap[id];
  if (!parameter) parameter.reset(Factory::createParameter(id));
  return parameter.get();
}

}  // namespace model
