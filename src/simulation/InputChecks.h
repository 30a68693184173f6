// Refuses run files whose values would lead the numerics out of their arrays.
//
// The kernels trust what they read: signs pick components, sizes bound loops, positions address
// records, maps address everything. So the input of a kernel is checked before its first call, as
// far as its calls look at it. What no call looks at may hold anything.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "catalogue/IDs.h"
#include "op/core/op_lib_core.h"

namespace simulation {

using Dats = std::map<model::DataID, op_dat>;
using Maps = std::map<model::MapID, op_map>;

/// Makes sure that all data which records are made of are there.
/// @throws BaseException if a datum is missing
void checkRecordData(const std::vector<model::DataID>& records, const Dats& dats);

/// Checks the integers that a kernel takes for positions, sizes and signs, and the entries of its
/// maps. Entries that the kernel never follows are set to 0. Data and maps that are missing are
/// left to the call, which refuses them.
/// @throws BaseException if an integer is out of its range; ends the process if an entry is
void checkKernelInput(model::KernelID kernel, const Dats& dats, const Maps& maps);

/// @param slot where the values of the parameter begin; @param count their number
/// @throws BaseException if there are not so many slots
void checkParameterSize(const std::string& path, std::size_t slot, std::size_t count);

/// The datum or map of an ID, null if the run does not have it.
op_dat find(const Dats& dats, model::DataID id);
op_map find(const Maps& maps, model::MapID id);

}  // namespace simulation
