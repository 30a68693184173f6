#include "support/FailingCalls.h"

#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <stdexcept>

namespace support {

namespace {

Outcome runBehind(std::vector<std::string> environment, const std::string& folder,
                  const std::string& program, const std::vector<std::string>& arguments) {
  environment.emplace_back("LD_PRELOAD=" FAILING_CALLS_LIBRARY);
  // The sanitizer wants to be the first library.
  const char* const options = std::getenv("ASAN_OPTIONS");
  environment.push_back(std::string("ASAN_OPTIONS=") + (options == nullptr ? "" : options) +
                        ":verify_asan_link_order=0");
  environment.push_back(program);
  environment.insert(environment.end(), arguments.begin(), arguments.end());
  return runIn(folder, "/usr/bin/env", environment);
}

}  // namespace

std::vector<std::string> callsOf(const std::string& folder, const std::string& program,
                                 const std::vector<std::string>& arguments) {
  const std::string file = folder + "/calls.txt";
  const Outcome run = runBehind({"FAILING_LOG=" + file}, folder, program, arguments);
  if (run.status != 0) throw std::runtime_error(run.out + run.err);
  std::istringstream log(readFile(file));
  std::filesystem::remove(file);
  std::vector<std::string> calls;
  for (std::string line; std::getline(log, line);) calls.push_back(line);
  return calls;
}

Outcome runWithFailure(const std::string& folder, const std::string& program,
                       const std::vector<std::string>& arguments, const FailingCall& failing) {
  return runBehind({"FAILING_CALL=" + std::to_string(failing.call),
                    "FAILING_ERROR=" + std::to_string(failing.error),
                    std::string("FAILING_KIND=") + (failing.lasts ? "lasting" : "once")},
                   folder, program, arguments);
}

}  // namespace support
