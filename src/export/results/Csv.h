// A table as text: comma separated, one header, values that read back to the same bits.
//
//   exporter::Csv table("run_results.h5");
//   table.add("time [s]");
//   table.add(0.5);
//   table.endRow();
//
// Lines that begin with # stand before the header and tell where the table comes from.
#pragma once

#include <string>

namespace exporter {

class Csv {
 public:
  /// @param source the results file
  explicit Csv(const std::string& source);

  /// Commas, quotes and line ends in a text are quoted.
  void add(const std::string& text);
  void add(double value);
  /// A value that is not there.
  void addNothing();
  void endRow();

  const std::string& text() const { return lines; }

 private:
  void separate();

  std::string lines;
  bool inRow = false;
};

/// The shortest text that reads back to the same number.
std::string numberText(double value);

}  // namespace exporter
