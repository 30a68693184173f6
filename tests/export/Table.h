// A CSV file as rows of texts, without the lines of comment.
#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "support/Process.h"

namespace samples {

inline std::vector<std::vector<std::string>> readTable(const std::string& file) {
  std::vector<std::vector<std::string>> rows;
  std::istringstream lines(support::readFile(file));
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with("#")) continue;
    rows.emplace_back();
    std::size_t begin = 0;
    for (std::size_t end = 0; end != std::string::npos; begin = end + 1) {
      end = line.find(',', begin);
      rows.back().push_back(line.substr(begin, end - begin));
    }
  }
  return rows;
}

}  // namespace samples
