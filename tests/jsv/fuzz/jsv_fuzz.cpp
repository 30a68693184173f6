// Fuzzes the validator with a document and a schema in one input; see scripts/fuzz.
//
// The two are separated by the first line that reads "====". Whatever they are, validation must
// come back with a verdict.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>

#include "jsv/StreamValidator.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string separator = "\n====\n";
  const std::string input(data, data + size);
  const auto split = input.find(separator);
  std::istringstream document(input.substr(0, split));
  std::istringstream schema(split == std::string::npos ? "{}"
                                                       : input.substr(split + separator.size()));
  std::ostringstream output;
  const int verdict = jsv::StreamValidator(&output).validate(document, schema);
  if (verdict < 0 || verdict > 2) std::abort();
  if ((verdict == 0) != output.str().empty()) std::abort();
  return 0;
}
