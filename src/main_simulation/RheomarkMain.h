// The shell that executables of the framework derive from: command line, check of the command
// file, hand-over to the domain object, and the one way of failing.
#pragma once

#include <string>

#include "main_simulation/RheomarkCmdLine.h"

class RheomarkMain : public RheomarkCmdLine {
 public:
  /// @param name of the executable, as --help shows it
  explicit RheomarkMain(const char* name);

  virtual void addArguments() = 0;
  virtual bool checkForValidation() = 0;
  virtual void executionContent() = 0;

  /// Declares the arguments of this executable and parses the command line. A bad one ends the
  /// process with status 1; --help and --version end it with 0.
  void parseCmdLine(int argc, char** argv);

  /// Runs the executable. A failure ends the process with status 1, without unwinding: the results
  /// file stays as far as it was flushed.
  /// @return 0
  int go();

  /// Checks a command file against a schema; the report goes to standard output.
  /// @throws BaseException if the file cannot be read or has errors
  static void validateJSONfile(const std::string& file, const char* schema);

 protected:
  const char* schema = nullptr;  ///< a static text
};
