#include "model/Factory.h"

#include <algorithm>
#include <charconv>
#include <memory>
#include <optional>

#include "api/ICommandFileReader.h"
#include "api/IH5Reader.h"
#include "catalogue/Aggregates.h"
#include "catalogue/Data.h"
#include "catalogue/Kernels.h"
#include "catalogue/Maps.h"
#include "catalogue/Outputs.h"
#include "catalogue/Parameters.h"
#include "catalogue/Sets.h"
#include "catalogue/Variables.h"
#include "common/check.h"
#include "common/console.h"
#include "dataio/Archive.h"
#include "dataio/Factory.h"
#include "model/Model.h"
#include "model/Output.h"
#include "model/components.h"
#include "model/vectors.h"

namespace console = common::console;

namespace model {

namespace {

std::vector<std::string> splitAtDots(const std::string& text) {
  std::vector<std::string> tokens;
  for (std::size_t begin = text.find_first_not_of('.'); begin != std::string::npos;) {
    const std::size_t end = std::min(text.find('.', begin), text.size());
    tokens.push_back(text.substr(begin, end - begin));
    begin = text.find_first_not_of('.', end);
  }
  return tokens;
}

/// The number, unless there is anything but digits or it is beyond what an ID can be.
std::optional<int> toNumber(const std::string& text) {
  if (text.empty() || text.find_first_not_of("0123456789") != std::string::npos) return {};
  int value = 0;
  const auto parsed = std::from_chars(text.data(), text.data() + text.size(), value);
  if (parsed.ec != std::errc()) return {};
  return value;
}

api::IModel* compose(const std::string& definition) {
  const std::vector<std::string> tokens = splitAtDots(definition);
  if (tokens.empty()) {
    console::info("composing the full model");
    return Factory::getModelFromAggregates(Model::getFullModel(), true);
  }
  if (tokens.size() == 2 && tokens[1] == "json") {
    console::info("composing the model from the input file");
    return Factory::getModelFromCommandFile(definition);
  }
  if (tokens.size() == 2 && tokens[1] == "h5") {
    console::info("composing the model from archive");
    return Factory::getModelFromH5File(definition);
  }
  const auto id = tokens.size() == 2 ? toNumber(tokens[1]) : std::nullopt;
  if (id && tokens[0] == "a") {
    console::info("composing the model for aggregate <", *id, ">");
    return Factory::getModelFromAggregates({static_cast<AggregateID>(*id)}, false);
  }
  if (id && tokens[0] == "k") {
    console::info("composing the model for kernel <", *id, ">");
    return Factory::getModelFromKernels({static_cast<KernelID>(*id)}, false);
  }
  console::fail("no model definition found");
}

}  // namespace

// -- models ---------------------------------------------------------------------------------------

api::IModel* Factory::createModel(const std::string& definition) {
  std::unique_ptr<api::IModel> composed(compose(definition));
  composed->create();
  return composed.release();
}

api::IModel* Factory::getModelFromCommandFile(const std::string& file) {
  std::vector<AggregateID> found;
  const std::unique_ptr<api::ICommandFileReader> reader(
      dataio::Factory::createCommandFileReader(file));
  for (const auto& [aid, paths] : Aggregate2CmdFilePaths) {
    if (!reader->checkPaths(paths)) continue;
    console::info("found aggregate <", AggregateProps.at(aid).name, ">");
    found.push_back(aid);
  }
  return getModelFromAggregates(found, true);
}

api::IModel* Factory::getModelFromH5File(const std::string& file) {
  std::unique_ptr<api::IH5Reader> reader(dataio::Factory::createH5Reader(file));
  const std::string document = dataio::Archive::getModel(reader.get());
  reader.reset();  // closes the file, which others may open for writing
  return getModelFromCommandFile(document);
}

api::IModel* Factory::getModelFromAggregates(const std::vector<AggregateID>& aggregates,
                                             const bool& withSetup) {
  CHECK_THAT(!aggregates.empty(),
             "no aggregates found...something went wrong with the model definition");
  return new Model(aggregates, withSetup);
}

api::IModel* Factory::getModelFromKernels(const std::vector<KernelID>& kernels,
                                          const bool& withSetup) {
  CHECK_THAT(!kernels.empty(), "no kernels found...something went wrong with the model definition");
  return new Model(kernels, withSetup);
}

// -- components -----------------------------------------------------------------------------------

api::IAggregate* Factory::createAggregate(const AggregateID& id) {
  CHECK_THAT(AggregateProps.count(id) == 1,
             "aggregate property definition not found (id = " << static_cast<int>(id) << ")");
  CHECK_THAT(AggregateDescription.count(id) == 1,
             "aggregate description not found (id = " << static_cast<int>(id) << ")");
  return new Aggregate(id, AggregateProps.at(id).name, AggregateDescription.at(id));
}

api::IKernel* Factory::createKernel(const KernelID& id, api::ISet* set) {
  CHECK_THAT(KernelProps.count(id) == 1, "kernel property definition not found");
  CHECK_THAT(KernelDescription.count(id) == 1,
             "kernel description not found (id = " << static_cast<int>(id) << ")");
  return new Kernel(id, KernelProps.at(id).name, KernelDescription.at(id), set);
}

api::ISet* Factory::createSet(const SetID& id) {
  CHECK_THAT(SetProps.count(id) == 1, "set property definition not found");
  CHECK_THAT(SetDescription.count(id) == 1,
             "set description not found (id = " << static_cast<int>(id) << ")");
  return new Set(id, SetProps.at(id).name, SetDescription.at(id));
}

api::IMap* Factory::createMap(const MapID& id, api::ISet* set, api::ISet* setMapped) {
  CHECK_THAT(MapProps.count(id) == 1, "map property definition not found");
  CHECK_THAT(MapDescription.count(id) == 1,
             "map description not found (id = " << static_cast<int>(id) << ")");
  const Property& property = MapProps.at(id);
  return new Map(id, property.name, MapDescription.at(id), set, setMapped, property.size);
}

api::IData* Factory::createData(const DataID& id, api::ISet* set, const bool& isSolution) {
  CHECK_THAT(DataProps.count(id) == 1, "data property definition not found");
  CHECK_THAT(DataDescription.count(id) == 1,
             "data description not found (id = " << static_cast<int>(id) << ")");
  const Property& property = DataProps.at(id);
  return new Data(id, property.name, DataDescription.at(id),
                  elementInVector(id, DataSimulation) >= 0, elementInVector(id, DataSetup) >= 0,
                  property.type, set, property.size, isSolution);
}

api::IParameter* Factory::createParameter(const ParameterID& id) {
  CHECK_THAT(ParameterProps.count(id) == 1, "parameter property definition not found");
  CHECK_THAT(ParameterDescription.count(id) == 1,
             "parameter description not found (id = " << static_cast<int>(id) << ")");
  const Property& property = ParameterProps.at(id);
  return new Parameter(id, property.name, ParameterDescription.at(id),
                       elementInVector(id, ParameterSimulation) >= 0,
                       elementInVector(id, ParameterSetup) >= 0, property.type, property.size);
}

api::IVariable* Factory::createVariable(const VariableID& id) {
  CHECK_THAT(VariableProps.count(id) == 1, "variable property definition not found");
  CHECK_THAT(VariableDescription.count(id) == 1,
             "variable description not found (id = " << static_cast<int>(id) << ")");
  const Property& property = VariableProps.at(id);
  return new Variable(id, property.name, VariableDescription.at(id),
                      elementInVector(id, VariableSimulation) >= 0, property.type, property.size);
}

api::IOutput* Factory::createOutput(const OutputID& id, api::ISet* set) {
  CHECK_THAT(OutputProps.count(id) == 1, "output property definition not found");
  CHECK_THAT(OutputDescription.count(id) == 1,
             "output description not found (id = " << static_cast<int>(id) << ")");
  const Property& property = OutputProps.at(id);
  return new Output(id, property.name, OutputDescription.at(id), property.type, set, property.size,
                    elementInVector(id, OutputTracking) >= 0);
}

}  // namespace model
