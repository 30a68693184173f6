#include "common/check.h"

#include "common/console.h"
#include "common/version.h"

namespace common {

void failCheck(const std::string& condition, const std::string& message, const std::string& file,
               int line) {
  const std::size_t dot = file.find_last_of('.');
  console::fail(message.empty() ? condition : message, ", in file: ", file.substr(0, dot),
                " on line ", line, ", version ", VERSION);
}

}  // namespace common
