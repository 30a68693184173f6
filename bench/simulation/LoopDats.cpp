#include "bench/simulation/LoopDats.h"

#include <algorithm>
#include <type_traits>
#include <variant>

#include "catalogue/Data.h"
#include "catalogue/Relations.h"
#include "op/core/op_seq.h"
#include "op/loop/op_loop.h"

namespace bench {

LoopDats::~LoopDats() {
  for (const auto& entry : dats) op_free_dat_temp_char(entry.second);
}

op_dat LoopDats::get(model::DataID id) {
  op_dat& declared = dats[id];
  if (declared != nullptr) return declared;
  const model::Property& property = model::DataProps.at(id);
  const op_set set = mesh.set(model::Data2Set.at(id));
  const auto declare = [&](const auto& values) {
    using Value = typename std::decay_t<decltype(values)>::value_type;
    const op_dat dat = op_decl_dat_temp_char(set, property.size, op::typeText<Value>(),
                                             sizeof(Value), property.name.c_str());
    std::copy(values.begin(), values.end(), reinterpret_cast<Value*>(dat->data));
    return dat;
  };
  declared = std::visit(declare, mesh.values(id));
  return declared;
}

}  // namespace bench
