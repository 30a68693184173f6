#include "export/results/Csv.h"

#include <array>
#include <charconv>

#include "export/results/origin.h"

namespace exporter {

std::string numberText(double value) {
  std::array<char, 32> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
  return {digits.data(), end};
}

Csv::Csv(const std::string& source)
    : lines("# " + programName() + "\n# " + historyOf(source) + "\n") {}

void Csv::separate() {
  if (inRow) lines += ',';
  inRow = true;
}

void Csv::add(const std::string& text) {
  separate();
  if (text.find_first_of(",\"\n\r") == std::string::npos) {
    lines += text;
    return;
  }
  lines += '"';
  for (const char c : text) lines += c == '"' ? "\"\"" : std::string(1, c);
  lines += '"';
}

void Csv::add(double value) {
  separate();
  lines += numberText(value);
}

void Csv::addNothing() {
  separate();
}

void Csv::endRow() {
  lines += '\n';
  inRow = false;
}

}  // namespace exporter
