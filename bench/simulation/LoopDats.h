// The data of one loop, fresh from the mesh: what another loop has written is not seen.
#pragma once

#include <map>

#include "bench/simulation/KernelMesh.h"
#include "catalogue/IDs.h"
#include "op/core/op_lib_core.h"

namespace bench {

class LoopDats {
 public:
  explicit LoopDats(KernelMesh& kernelMesh) : mesh(kernelMesh) {}
  ~LoopDats();
  LoopDats(const LoopDats&) = delete;
  LoopDats& operator=(const LoopDats&) = delete;
  LoopDats(LoopDats&&) = delete;
  LoopDats& operator=(LoopDats&&) = delete;

  /// Declared on first use, removed with this object.
  op_dat get(model::DataID id);

 private:
  KernelMesh& mesh;
  std::map<model::DataID, op_dat> dats;
};

}  // namespace bench
