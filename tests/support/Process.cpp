#include "support/Process.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

namespace support {

namespace {

void redirect(int descriptor, const char* file) {
  const int target = ::open(file, O_WRONLY | O_CREAT | O_TRUNC, 0644);
  if (target < 0 || ::dup2(target, descriptor) < 0) ::_exit(126);
}

}  // namespace

pid_t start(const std::string& folder, const std::string& program,
            const std::vector<std::string>& arguments) {
  std::vector<std::string> words{program};
  words.insert(words.end(), arguments.begin(), arguments.end());
  std::vector<char*> argv;
  argv.reserve(words.size() + 1);
  for (std::string& word : words) argv.push_back(word.data());
  argv.push_back(nullptr);

  const pid_t process = ::fork();
  if (process < 0) throw std::system_error(errno, std::generic_category(), "fork");
  if (process == 0) {
    if (::chdir(folder.c_str()) != 0) ::_exit(126);
    redirect(STDOUT_FILENO, "stdout.txt");
    redirect(STDERR_FILENO, "stderr.txt");
    ::execv(program.c_str(), argv.data());
    ::_exit(127);
  }
  return process;
}

Outcome finish(const std::string& folder, pid_t process) {
  int status = 0;
  while (::waitpid(process, &status, 0) < 0) {
    if (errno != EINTR) throw std::system_error(errno, std::generic_category(), "waitpid");
  }
  Outcome outcome;
  outcome.status = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
  outcome.out = readFile(folder + "/stdout.txt");
  outcome.err = readFile(folder + "/stderr.txt");
  return outcome;
}

Outcome runIn(const std::string& folder, const std::string& program,
              const std::vector<std::string>& arguments) {
  return finish(folder, start(folder, program, arguments));
}

std::string readFile(const std::string& name) {
  std::ifstream stream(name, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

void writeFile(const std::string& name, const std::string& text) {
  std::ofstream stream(name, std::ios::binary);
  stream << text;
}

void copySample(const std::string& name, const std::string& target) {
  std::filesystem::copy(std::string(SAMPLES_FOLDER) + "/" + name, target,
                        std::filesystem::copy_options::recursive);
}

}  // namespace support
