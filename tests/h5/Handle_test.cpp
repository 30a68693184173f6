#include "h5/Handle.h"

#include <gtest/gtest.h>

#include <utility>

#include "dataio/failures.h"

namespace {

using failures::hdf5Words;
using failures::textOf;
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

TEST(H5Error, TextEndsWithTheInnermostCauseInTheLibrarysWords) {
  const std::string text = textOf<h5::Error>([] {
    h5::checked(H5Fopen("/no/such/file.h5", H5F_ACC_RDONLY, H5P_DEFAULT), "Unable to open");
  });
  EXPECT_EQ(text, "Unable to open" + hdf5Words(H5E_FILE, H5E_CANTOPENFILE));
}

TEST(H5Error, BlankAtTheEndOfATextIsKept) {
  const std::string text = textOf<h5::Error>([] { h5::check(H5Gget_num_objs(-1, nullptr), "a "); });
  EXPECT_EQ(text.rfind("a  (", 0), 0U) << text;
}

TEST(H5Error, TextStandsAloneIfTheLibraryGivesNoCause) {
  H5Eclear2(H5E_DEFAULT);
  EXPECT_EQ(textOf<h5::Error>([] { h5::fail("nothing known"); }), "nothing known");
}

TEST(H5Error, SuccessIsHandedOn) {
  const hid_t id = H5Tcopy(H5T_NATIVE_INT);
  EXPECT_EQ(h5::checked(id, "unused").id(), id);
  EXPECT_NO_THROW(h5::check(0, "unused"));
}

TEST(H5Error, LibrarysOwnReportIsLeftOn) {
  const std::string report = failures::standardErrorOf(
      [] { textOf<h5::Error>([] { h5::check(H5Gget_num_objs(-1, nullptr), "a"); }); });
  EXPECT_EQ(report.rfind("HDF5-DIAG: ", 0), 0U) << report;
}

TEST(H5Error, SilenceTurnsTheReportOffForAWhile) {
  const auto provoke = [] {
    textOf<h5::Error>([] { h5::check(H5Gget_num_objs(-1, nullptr), "a"); });
  };
  EXPECT_EQ(failures::standardErrorOf([&] {
              const h5::Silence silence;
              provoke();
            }),
            "");
  EXPECT_NE(failures::standardErrorOf(provoke), "");
}

}  // namespace
