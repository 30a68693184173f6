#include "common/check.h"

#include <filesystem>

#include "common/console.h"
#include "common/version.h"

namespace common {

void failCheck(const std::string& condition, const std::string& message, const std::string& file,
               int line) {
  const std::string source = std::filesystem::path(file).replace_extension().string();
  console::fail(message.empty() ? condition : message, ", in file: ", source, " on line ", line,
                ", version ", VERSION);
}

}  // namespace common
