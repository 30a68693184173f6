// Stands between the journal and the operating system: ends the process in the n-th call that
// changes a file, lets the call fail, refuses to open files for writing, pretends that the
// disk is small, or notes the calls.
//
//   const int status = systemCalls::killedInCall(7, [] { changeTheFile(); });
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace systemCalls {

/// How a process ended that ran `work` as a child.
enum class End { AfterWork, InCall, Failed };

/// Runs `work` in a child process, which is killed in its n-th call from 0. A write has then done
/// what the operating system does at least at once: the pages that it covers up to their end.
End killedInCall(int n, const std::function<void()>& work);

/// While it exists, all calls that change a file fail from the n-th on, from 0.
class Failure {
 public:
  explicit Failure(int n);
  ~Failure();
  Failure(const Failure&) = delete;
  Failure& operator=(const Failure&) = delete;
  Failure(Failure&&) = delete;
  Failure& operator=(Failure&&) = delete;

  /// Whether a call has failed.
  bool hasOccurred() const;
};

/// While it exists, files whose name ends so cannot be opened for writing, as without permission.
class Refusal {
 public:
  explicit Refusal(const std::string& nameEnd);
  ~Refusal();
  Refusal(const Refusal&) = delete;
  Refusal& operator=(const Refusal&) = delete;
  Refusal(Refusal&&) = delete;
  Refusal& operator=(Refusal&&) = delete;
};

/// While it exists, file systems refuse to make files without a name.
class NoUnnamedFiles {
 public:
  NoUnnamedFiles();
  ~NoUnnamedFiles();
  NoUnnamedFiles(const NoUnnamedFiles&) = delete;
  NoUnnamedFiles& operator=(const NoUnnamedFiles&) = delete;
  NoUnnamedFiles(NoUnnamedFiles&&) = delete;
  NoUnnamedFiles& operator=(NoUnnamedFiles&&) = delete;
};

/// While it exists, notes the calls that change files, equal ones in a row once: "write", "unlink",
/// "rename", "sync", "sync folder".
class Log {
 public:
  Log();
  ~Log();
  Log(const Log&) = delete;
  Log& operator=(const Log&) = delete;
  Log(Log&&) = delete;
  Log& operator=(Log&&) = delete;

  std::vector<std::string> calls;
};

/// While it exists, all disks tell that so many bytes are free, and set aside at most as many as
/// there are.
class SmallDisk {
 public:
  explicit SmallDisk(long bytes) : SmallDisk(bytes, bytes) {}
  SmallDisk(long bytesTold, long bytesThere);
  ~SmallDisk();
  SmallDisk(const SmallDisk&) = delete;
  SmallDisk& operator=(const SmallDisk&) = delete;
  SmallDisk(SmallDisk&&) = delete;
  SmallDisk& operator=(SmallDisk&&) = delete;
};

}  // namespace systemCalls
