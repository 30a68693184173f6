// Validation of one JSON stream against another, with a report for users.
//
//   const int verdict = jsv::StreamValidator(&std::cout).validate(commandFile, schema);
#pragma once

#include <cstddef>
#include <istream>
#include <ostream>
#include <string>

namespace jsv {

/// Documents and schemas with more levels of objects and arrays are refused: the walk recurses, and
/// each level adds to the place that a message has to name.
inline constexpr std::size_t MAX_NESTING = 1024;

class StreamValidator {
 public:
  /// @param output receives the messages; may be null, and must outlive the validator.
  explicit StreamValidator(std::ostream* output) : output_(output) {}

  /// Reads both streams to their ends and reports each fault and warning in a line of its own.
  /// A faulty schema, or a stream that is no JSON document, is reported alone.
  /// @return 0 if there is nothing to report, 1 if there are only warnings, 2 otherwise
  int validate(std::istream& json, std::istream& schema) const;

  /// Writes `text` and a line end and flushes the stream; nothing at all if `text` is empty.
  void outputMessage(const std::string& text) const;

 private:
  std::ostream* output_;
};

}  // namespace jsv
