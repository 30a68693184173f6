#include "common/sources.h"

#include <filesystem>
#include <system_error>

#include "common/console.h"

namespace common {

void requireNoSource(const std::string& name, const Sources& sources) {
  for (const Source& source : sources) {
    std::error_code ignored;
    if (std::filesystem::equivalent(source.name, name, ignored)) {
      console::fail("file <", name, "> is the ", source.kind, " itself: give another name");
    }
  }
}

}  // namespace common
