#include "h5/handle.h"

#include <gtest/gtest.h>

#include <utility>

namespace {

using h5::Handle;

hid_t newType() {
  return H5Tcopy(H5T_NATIVE_INT);
}

TEST(Handle, ReleasesItsIdentifier) {
  const hid_t id = newType();
  {
    const Handle handle(id);
    EXPECT_TRUE(handle.isValid());
    EXPECT_EQ(handle.id(), id);
    EXPECT_GT(H5Iis_valid(id), 0);
  }
  EXPECT_EQ(H5Iis_valid(id), 0);
}

TEST(Handle, WithoutIdentifierIsNotValid) {
  EXPECT_FALSE(Handle().isValid());
  EXPECT_FALSE(Handle(H5I_INVALID_HID).isValid());
}

TEST(Handle, MovesItsIdentifier) {
  const hid_t id = newType();
  Handle first(id);
  const Handle second(std::move(first));
  EXPECT_FALSE(first.isValid());  // NOLINT(bugprone-use-after-move): a moved handle is empty
  EXPECT_EQ(second.id(), id);
  EXPECT_GT(H5Iis_valid(id), 0);
}

TEST(Handle, AssignmentReleasesTheOldIdentifier) {
  const hid_t old = newType();
  const hid_t id = newType();
  Handle handle(old);
  handle = Handle(id);
  EXPECT_EQ(H5Iis_valid(old), 0);
  EXPECT_EQ(handle.id(), id);
  EXPECT_GT(H5Iis_valid(id), 0);
}

}  // namespace
