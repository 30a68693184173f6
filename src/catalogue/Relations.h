// What belongs together: the one place that tells which kernels an aggregate needs and which sets,
// maps, data and parameters a kernel needs. A model is closed over these tables, so changing the
// physics of the system means changing them and adding a kernel.
#pragma once

#include <map>
#include <utility>
#include <vector>

#include "catalogue/IDs.h"

namespace model {

/// Kernels of each aggregate; a kernel may stand in several rows.
extern const std::map<AggregateID, std::vector<KernelID>> Aggregate2Kernels;

/// Kernels that go well with an aggregate. They join a model only through an aggregate of their
/// own.
extern const std::map<AggregateID, std::vector<KernelID>> Aggregate2OptionalKernels;

/// The set that the kernel loops over.
extern const std::map<KernelID, SetID> Kernel2Set;

/// Everything that the kernel reads or writes in every configuration.
extern const std::map<KernelID, std::vector<DataID>> Kernel2Data;

/// Data that the kernel uses only where the model holds them for another reason.
extern const std::map<KernelID, std::vector<DataID>> Kernel2OptionalData;

/// The state that the kernel's fluxes advance.
extern const std::map<KernelID, DataID> Kernel2SolutionData;

/// A kernel without a row uses no map.
extern const std::map<KernelID, std::vector<MapID>> Kernel2Maps;

/// A kernel without a row reads no parameter.
extern const std::map<KernelID, std::vector<ParameterID>> Kernel2Parameters;

/// No kernel uses a variable so far.
extern const std::map<KernelID, std::vector<VariableID>> Kernel2Variables;

/// From set and to set.
extern const std::map<MapID, std::pair<SetID, SetID>> Map2Sets;

extern const std::map<DataID, SetID> Data2Set;
extern const std::map<OutputID, SetID> Output2Set;

/// A datum and a component of it.
using DataColumn = std::pair<DataID, int>;

/// The columns that an output is made of, in the order of the arguments of its operations. A
/// repeated column compares a state with its initial value, which is the first of the two.
extern const std::map<OutputID, std::vector<DataColumn>> Output2DataColumns;

}  // namespace model
