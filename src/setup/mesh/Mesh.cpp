#include "setup/mesh/Mesh.h"

#include "common/console.h"

namespace setup {

std::string place(const std::string& file, int line) {
  if (file.empty()) return "mesh: ";
  if (line == 0) return common::console::text("mesh file <", file, ">: ");
  return common::console::text("mesh file <", file, ">, line ", line, ": ");
}

}  // namespace setup
