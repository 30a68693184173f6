#include "bench/support/ChildProcess.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <fstream>
#include <stdexcept>
#include <system_error>

namespace bench {

namespace {

constexpr int POLL_MILLISECONDS = 5;

void require(int error, const std::string& what) {
  if (error != 0) throw std::system_error(error, std::generic_category(), what);
}

/// The high-water mark of the resident memory, or 0 when the process has given its memory back.
std::size_t residentPeak(pid_t process) {
  std::ifstream status("/proc/" + std::to_string(process) + "/status");
  for (std::string word; status >> word;) {
    if (word != "VmHWM:") continue;
    std::size_t kibibytes = 0;
    status >> kibibytes;
    return kibibytes * 1024;
  }
  return 0;
}

/// @param out where the process writes to
pid_t start(const std::filesystem::path& folder, std::vector<std::string>& command, int out) {
  std::vector<char*> arguments;
  arguments.reserve(command.size() + 1);
  for (std::string& argument : command) arguments.push_back(argument.data());
  arguments.push_back(nullptr);

  posix_spawn_file_actions_t actions;
  require(posix_spawn_file_actions_init(&actions), command[0]);
  posix_spawn_file_actions_addchdir_np(&actions, folder.c_str());
  posix_spawn_file_actions_adddup2(&actions, out, STDOUT_FILENO);
  posix_spawn_file_actions_adddup2(&actions, out, STDERR_FILENO);
  pid_t process = 0;
  const int error =
      posix_spawn(&process, arguments[0], &actions, nullptr, arguments.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  require(error, "cannot start " + command[0]);
  return process;
}

/// Reads until the process closes its side.
ChildReport listen(pid_t process, int in) {
  ChildReport report;
  std::array<char, 4096> buffer{};
  pollfd ready{in, POLLIN, 0};
  while (true) {
    const int events = poll(&ready, 1, POLL_MILLISECONDS);
    // The last value counts: before it starts the program, a new process shows the memory of this
    // one.
    if (const auto peak = residentPeak(process); peak > 0) report.peakBytes = peak;
    if (events <= 0) continue;
    const ssize_t count = read(in, buffer.data(), buffer.size());
    if (count <= 0) return report;
    report.output.append(buffer.data(), static_cast<std::size_t>(count));
  }
}

}  // namespace

ChildReport runChild(const std::filesystem::path& folder, std::vector<std::string> command) {
  std::array<int, 2> ends{};
  if (pipe2(ends.data(), O_CLOEXEC) != 0) require(errno, "no pipe");
  pid_t process = 0;
  try {
    process = start(folder, command, ends[1]);
  } catch (...) {
    close(ends[0]);
    close(ends[1]);
    throw;
  }
  close(ends[1]);
  ChildReport report = listen(process, ends[0]);
  close(ends[0]);
  int status = 0;
  waitpid(process, &status, 0);
  if (status != 0) throw std::runtime_error(command[0] + " failed:\n" + report.output);
  return report;
}

}  // namespace bench
