// Makes models, and the components they are made of. The caller owns what it gets.
//
//   std::unique_ptr<api::IModel> model(model::Factory::createModel("run.h5"));
#pragma once

#include <string>
#include <vector>

#include "api/IModel.h"

namespace model {

class Factory {
 public:
  /// A model with all its components. The definition is one of
  ///   ""            the full catalogue
  ///   "<file>.json" what the command file selects
  ///   "<file>.h5"   what the command file that is archived in the run file selects
  ///   "a.<n>"       the aggregate n alone, as "a.3"
  ///   "k.<n>"       the kernel n alone, as "k.17"
  /// and a file name must hold exactly one dot, but for dots at its start.
  /// @throws BaseException for any other definition, and if no aggregate is selected.
  static api::IModel* createModel(const std::string& definition);

  /// The following return a model with closed lists but without components: call create() on it.
  /// @param file a file name, or the text of a command document
  static api::IModel* getModelFromCommandFile(const std::string& file);
  static api::IModel* getModelFromH5File(const std::string& file);
  /// @throws BaseException for an empty list.
  static api::IModel* getModelFromAggregates(const std::vector<AggregateID>& aggregates,
                                             const bool& withSetup);
  static api::IModel* getModelFromKernels(const std::vector<KernelID>& kernels,
                                          const bool& withSetup);

  /// The following create one component from the tables. Sets are not owned by it.
  /// @throws BaseException for an ID that is not in the tables.
  static api::IAggregate* createAggregate(const AggregateID& id);
  static api::IKernel* createKernel(const KernelID& id, api::ISet* set);
  static api::ISet* createSet(const SetID& id);
  static api::IMap* createMap(const MapID& id, api::ISet* set, api::ISet* setMapped);
  static api::IData* createData(const DataID& id, api::ISet* set, const bool& isSolution);
  static api::IParameter* createParameter(const ParameterID& id);
  static api::IVariable* createVariable(const VariableID& id);
  static api::IOutput* createOutput(const OutputID& id, api::ISet* set);
};

}  // namespace model
