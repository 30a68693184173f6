// A file that may not be used as it is: the user has to do something first.
#pragma once

#include <stdexcept>

namespace h5 {

/// Tells the user which file, why, and what to do.
class Refused : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace h5
