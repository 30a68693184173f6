// Refuses run files whose values would lead the numerics out of their arrays.
//
// The kernels trust what they read: signs pick components, sizes bound loops, positions address
// records. These checks run once, before the first pass, and say what is wrong, where, and what
// would be right.
#pragma once

#include <map>
#include <string>

#include "api/IModel.h"
#include "op/op_lib_core.h"

namespace simulation {

using Dats = std::map<model::DataID, op_dat>;
using Maps = std::map<model::MapID, op_map>;

/// Makes sure that all data which records are made of are there. Comes before a results file is
/// created, so that a broken run file does not cost the results of an earlier run.
/// @throws BaseException if a datum is missing
void checkStateData(const api::IModel& model, const Dats& dats);

/// Checks the values of integer data that address memory, and the columns of nodestring maps that
/// are in use. Columns that are not in use may hold anything; they are set to 0.
/// @param endTime end of the run [s]: series must reach that far or be marked as ended
/// @throws BaseException if a value is out of its range
void checkInputData(const Dats& dats, const Maps& maps, double endTime);

/// @throws BaseException if a parameter does not hold the number of values that its slots expect
void checkParameterSize(const std::string& path, std::size_t found, int expected);

}  // namespace simulation
