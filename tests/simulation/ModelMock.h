// A model whose lists a test sets by hand; all that it does not set is empty.
#pragma once

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "api/IModel.h"

namespace support {

// clang-format off
class ModelMock : public api::IModel {
 public:
  MOCK_METHOD(void, create, (), (override));
  MOCK_METHOD(void, addOutputs, (const std::vector<std::string>&), (override));
  MOCK_METHOD(std::vector<model::AggregateID>, getAggregates, (), (const, override));
  MOCK_METHOD(std::vector<model::KernelID>,    getKernels,    (), (const, override));
  MOCK_METHOD(std::vector<model::SetID>,       getSets,       (), (const, override));
  MOCK_METHOD(std::vector<model::MapID>,       getMaps,       (), (const, override));
  MOCK_METHOD(std::vector<model::DataID>,      getDats,       (), (const, override));
  MOCK_METHOD(std::vector<model::ParameterID>, getPars,       (), (const, override));
  MOCK_METHOD(std::vector<model::VariableID>,  getVars,       (), (const, override));
  MOCK_METHOD(std::vector<model::OutputID>,    getOuts,       (), (const, override));
  MOCK_METHOD(api::IAggregate*, getAggregate, (const model::AggregateID&), (const, override));
  MOCK_METHOD(api::IKernel*,    getKernel,    (const model::KernelID&),    (const, override));
  MOCK_METHOD(api::ISet*,       getSet,       (const model::SetID&),       (const, override));
  MOCK_METHOD(api::IData*,      getData,      (const model::DataID&),      (const, override));
  MOCK_METHOD(api::IMap*,       getMap,       (const model::MapID&),       (const, override));
  MOCK_METHOD(api::IParameter*, getParameter, (const model::ParameterID&), (const, override));
  MOCK_METHOD(api::IVariable*,  getVariable,  (const model::VariableID&),  (const, override));
  MOCK_METHOD(api::IOutput*,    getOutput,    (const model::OutputID&),    (const, override));
  MOCK_METHOD(api::IBase*, getComponent, (const model::AggregateID&), (const, override));
  MOCK_METHOD(api::IBase*, getComponent, (const model::KernelID&),    (const, override));
  MOCK_METHOD(api::IBase*, getComponent, (const model::SetID&),       (const, override));
  MOCK_METHOD(api::IBase*, getComponent, (const model::DataID&),      (const, override));
  MOCK_METHOD(api::IBase*, getComponent, (const model::MapID&),       (const, override));
  MOCK_METHOD(api::IBase*, getComponent, (const model::ParameterID&), (const, override));
  MOCK_METHOD(api::IBase*, getComponent, (const model::VariableID&),  (const, override));
  MOCK_METHOD(api::IBase*, getComponent, (const model::OutputID&),    (const, override));
  MOCK_METHOD(api::IBase*, createTempComponent, (const model::KernelID&),    (override));
  MOCK_METHOD(api::IBase*, createTempComponent, (const model::SetID&),       (override));
  MOCK_METHOD(api::IBase*, createTempComponent, (const model::DataID&),      (override));
  MOCK_METHOD(api::IBase*, createTempComponent, (const model::MapID&),       (override));
  MOCK_METHOD(api::IBase*, createTempComponent, (const model::ParameterID&), (override));
};
// clang-format on

}  // namespace support
