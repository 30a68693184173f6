// Runs the executables as a user would, and tells what they printed and how they ended.
//
//   const support::Outcome run = support::runIn(dir.path(), SIMULATION_EXE, {"-f",
//   "command.json"}); EXPECT_EQ(run.status, 0) << run.err;
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

namespace support {

struct Outcome {
  int status = -1;  ///< exit status; 128 + signal number if a signal ended the process
  std::string out;  ///< standard output
  std::string err;  ///< standard error
};

/// Starts a program in a folder; its output goes to the files stdout.txt and stderr.txt there.
pid_t start(const std::string& folder, const std::string& program,
            const std::vector<std::string>& arguments);

/// Waits for a started program.
Outcome finish(const std::string& folder, pid_t process);

/// Starts a program and waits for it.
Outcome runIn(const std::string& folder, const std::string& program,
              const std::vector<std::string>& arguments);

std::string readFile(const std::string& name);
void writeFile(const std::string& name, const std::string& text);

/// Copies a folder of tests/samples to `target`, which must exist.
void copySample(const std::string& name, const std::string& target);

}  // namespace support
