#include "common/console.h"

#include "common/version.h"

namespace common::console {

void infoLine(const std::string& message) {
  std::cout << " -> " << message << std::endl;
}

void errorLine(const std::string& message) {
  std::cerr << " -> " << message << std::endl;
}

void printHeader(const char* build) {
  std::cout << "RHEOMARK " << VERSION << std::endl;
  std::cout << "RHEOplane " << build << " binary" << std::endl;
  std::cout << VERSION << std::endl;
  std::cout << "Results are computed without warranty; checking them is up to the user."
            << std::endl;
  std::cout << std::endl;
}

void printFooter() {
  std::cout << std::endl;
  std::cout << std::string(60, '-') << std::endl;
  std::cout << " RHEOMARK successfully processed all necessary jobs!" << std::endl;
  std::cout << std::endl;
}

}  // namespace common::console
