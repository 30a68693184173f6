// Compares two HDF5 files dataset by dataset, bit for bit; status 1 if they differ.
//   h5compare EXPECTED ACTUAL
#include <iostream>

#include "support/H5Compare.h"

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: h5compare EXPECTED ACTUAL\n";
    return 2;
  }
  int status = 0;
  for (const std::string& difference : support::differences(argv[1], argv[2])) {
    std::cout << difference << '\n';
    status = 1;
  }
  return status;
}
