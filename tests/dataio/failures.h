// What a failing operation says, for the tests of the data layer.
#pragma once

#include <gtest/gtest.h>
#include <hdf5.h>

#include <exception>
#include <string>

#include "common/BaseException.h"

namespace failures {

/// The text of the exception of type `E` that `action` throws; it is a failure to throw none.
template <class E, class Action>
std::string textOf(Action&& action) {
  try {
    action();
  } catch (const E& error) {
    return error.what();
  }
  ADD_FAILURE() << "nothing was thrown";
  return {};
}

/// What `action` writes to standard error before it throws BaseException.
template <class Action>
std::string reportOf(Action&& action) {
  ::testing::internal::CaptureStderr();
  bool thrown = false;
  try {
    action();
  } catch (const BaseException&) {
    thrown = true;
  }
  EXPECT_TRUE(thrown) << "BaseException was not thrown";
  return ::testing::internal::GetCapturedStderr();
}

/// What `action` writes to standard error.
template <class Action>
std::string standardErrorOf(Action&& action) {
  ::testing::internal::CaptureStderr();
  action();
  return ::testing::internal::GetCapturedStderr();
}

/// The cause as the HDF5 library words it, which differs between its versions.
inline std::string hdf5Words(hid_t major, hid_t minor) {
  const auto text = [](hid_t message) {
    std::string buffer(256, '\0');
    const auto length = H5Eget_msg(message, nullptr, buffer.data(), buffer.size());
    return buffer.substr(0, static_cast<std::size_t>(length));
  };
  return " (" + text(major) + ") " + text(minor);
}

}  // namespace failures
