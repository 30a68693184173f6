// What the tests of the runtime share: a fixture that starts and ends the runtime around each test,
// output to a stream that death tests can match, temporary files, and datasets to read.
#pragma once

#include <gtest/gtest.h>
#include <hdf5.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "op/core/op_lib_core.h"
#include "op/core/op_seq.h"

namespace op_test {

/// Sends standard output to standard error, which is the stream that EXPECT_EXIT matches.
inline void outputToStderr() {
  std::fflush(stdout);
  dup2(STDERR_FILENO, STDOUT_FILENO);
}

/// What `run` prints on standard output.
template <class Run>
std::string outputOf(Run run) {
  testing::internal::CaptureStdout();
  run();
  std::fflush(stdout);
  return testing::internal::GetCapturedStdout();
}

/// A text as a regular expression that matches just this text.
inline std::string literally(const std::string& text) {
  std::string pattern;
  for (const char c : text) {
    if (std::string("\\^$.|?*+()[]{}").find(c) != std::string::npos) pattern += '\\';
    pattern += c;
  }
  return pattern;
}

/// A limit on the size of files stands for a full disk: the same calls fail. It holds for captured
/// output too, which has room for a message but not for the HDF5 library's own report.
inline void limitFiles(rlim_t bytes) {
  H5Eset_auto2(H5E_DEFAULT, nullptr, nullptr);
  std::signal(SIGXFSZ, SIG_IGN);
  rlimit limit{};
  getrlimit(RLIMIT_FSIZE, &limit);
  limit.rlim_cur = bytes;
  setrlimit(RLIMIT_FSIZE, &limit);
}

/// Brings the settings of the runtime back to what they are at the start of a process.
inline void resetSettings() {
  OP_diags = 0;
  OP_part_size = 0;
  OP_block_size = 64;
  OP_cache_line_size = 128;
  OP_hybrid_balance = 1.0;
  OP_auto_soa = 0;
  OP_gpu_direct = 0;
  OP_maps_base_index = 0;
}

/// A started runtime, in which nothing is declared.
class RuntimeTest : public testing::Test {
 protected:
  void SetUp() override {
    resetSettings();
    outputOf([] { op_init(0, nullptr, 0); });
  }
  void TearDown() override {
    op_exit();
    resetSettings();
  }
};

/// The same with a directory of its own.
class FileTest : public RuntimeTest {
 protected:
  void SetUp() override {
    RuntimeTest::SetUp();
    const auto* const test = testing::UnitTest::GetInstance()->current_test_info();
    directory_ =
        std::filesystem::path(testing::TempDir()) / (std::string(test->test_suite_name()) + "_" +
                                                     test->name() + "_" + std::to_string(getpid()));
    std::filesystem::create_directories(directory_);
  }
  void TearDown() override {
    RuntimeTest::TearDown();
    std::filesystem::remove_all(directory_);
  }

  std::string path(const std::string& name) const { return (directory_ / name).string(); }

 private:
  std::filesystem::path directory_;
};

/// Creates or opens a file and adds datasets to it.
class FileWriter {
 public:
  explicit FileWriter(const std::string& file)
      : file_(std::filesystem::exists(file)
                  ? H5Fopen(file.c_str(), H5F_ACC_RDWR, H5P_DEFAULT)
                  : H5Fcreate(file.c_str(), H5F_ACC_TRUNC, H5P_DEFAULT, H5P_DEFAULT)) {}
  FileWriter(const FileWriter&) = delete;
  FileWriter& operator=(const FileWriter&) = delete;
  ~FileWriter() { H5Fclose(file_); }

  /// Writes values of `memoryType` to a new dataset of `fileType`; groups on the way are made.
  template <class T>
  void write(const std::string& name, const std::vector<hsize_t>& extents, hid_t fileType,
             hid_t memoryType, const std::vector<T>& values) {
    const hid_t dataset = create(name, extents, fileType);
    H5Dwrite(dataset, memoryType, H5S_ALL, H5S_ALL, H5P_DEFAULT, values.data());
    H5Dclose(dataset);
  }
  void ints(const std::string& name, const std::vector<hsize_t>& extents,
            const std::vector<int>& values) {
    write(name, extents, H5T_NATIVE_INT, H5T_NATIVE_INT, values);
  }
  void longs(const std::string& name, const std::vector<hsize_t>& extents,
             const std::vector<long>& values) {
    write(name, extents, H5T_NATIVE_LONG, H5T_NATIVE_LONG, values);
  }
  void doubles(const std::string& name, const std::vector<hsize_t>& extents,
               const std::vector<double>& values) {
    write(name, extents, H5T_NATIVE_DOUBLE, H5T_NATIVE_DOUBLE, values);
  }
  /// A dataset that claims its extents without taking space in the file.
  void hollow(const std::string& name, const std::vector<hsize_t>& extents, hid_t type) {
    const hid_t plan = H5Pcreate(H5P_DATASET_CREATE);
    const std::vector<hsize_t> chunk(extents.size(), 1);
    H5Pset_chunk(plan, static_cast<int>(chunk.size()), chunk.data());
    H5Dclose(create(name, extents, type, plan));
    H5Pclose(plan);
  }
  /// A dataset whose values are said to stand in another file.
  void external(const std::string& name, const std::vector<hsize_t>& extents, hid_t type) {
    const hid_t plan = H5Pcreate(H5P_DATASET_CREATE);
    H5Pset_external(plan, "elsewhere", 0, H5F_UNLIMITED);
    H5Dclose(create(name, extents, type, plan));
    H5Pclose(plan);
  }

 private:
  hid_t create(const std::string& name, const std::vector<hsize_t>& extents, hid_t type,
               hid_t plan = H5P_DEFAULT) {
    const hid_t space = H5Screate_simple(static_cast<int>(extents.size()), extents.data(), nullptr);
    const hid_t links = H5Pcreate(H5P_LINK_CREATE);
    H5Pset_create_intermediate_group(links, 1);
    const hid_t dataset = H5Dcreate2(file_, name.c_str(), type, space, links, plan, H5P_DEFAULT);
    H5Pclose(links);
    H5Sclose(space);
    return dataset;
  }

  hid_t file_;
};

}  // namespace op_test
