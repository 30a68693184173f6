#include "simulation/LoopArguments.h"

#include <string>

#include "catalogue/Kernels.h"
#include "catalogue/Sets.h"
#include "common/console.h"
#include "simulation/names.h"

namespace simulation {

namespace {

[[noreturn]] void refuse(model::KernelID kernel, const char* kind, const std::string& path) {
  common::console::fail("kernel <", model::KernelProps.at(kernel).name, "> needs the ", kind, " <",
                        path, ">, which this run does not have: the run file must hold it");
}

}  // namespace

void requireDat(op_dat dat, model::DataID id, model::KernelID kernel) {
  if (dat == nullptr) refuse(kernel, "data", pathOf(id));
}

void requireDat(op_dat dat, model::SetID id, model::KernelID kernel) {
  if (dat == nullptr) refuse(kernel, "element numbers of", model::SetProps.at(id).name);
}

void requireMap(op_map map, model::MapID id, model::KernelID kernel) {
  if (map == nullptr) refuse(kernel, "map", pathOf(id));
}

}  // namespace simulation
