// The one exception of the system. It carries no cause: whoever throws it has already told the
// user on standard error what went wrong, so the application shell only has to end the run.
#pragma once

#include <exception>

class BaseException : public std::exception {
 public:
  const char* what() const noexcept override { return "... unfortunately RHEOMARK is killed!"; }
};
