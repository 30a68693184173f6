#include "h5/attributes/attribute.h"

#include <gtest/gtest.h>

#include "dataio/failures.h"
#include "h5/DataSet.h"
#include "h5/File.h"
#include "h5/Handle.h"
#include "h5/type.h"
#include "support/TempDir.h"

namespace {

using failures::hdf5Words;
using failures::textOf;
using h5::DataSet;
using h5::Error;
using h5::File;
using h5::Handle;
namespace h5 = h5;

class AttributeTest : public ::testing::Test {
 protected:
  /// An attribute without values in the shape that a test wants.
  void make(const std::string& attribute, const h5::Shape& shape, const Handle& type) const {
    const Handle space(H5Screate_simple(static_cast<int>(shape.size()), shape.data(), nullptr));
    const Handle made(H5Acreate2(object.id(), attribute.c_str(), type.id(), space.id(), H5P_DEFAULT,
                                 H5P_DEFAULT));
    ASSERT_TRUE(made.isValid());
  }

  const support::TempDir dir;
  const File file{dir.file("a.h5"), File::READ_WRITE | File::CREATE};
  const DataSet dataset = DataSet::create<int>(file.handle(), "dat", {2});
  const Handle& object = dataset.handle();
};

TEST_F(AttributeTest, ValuesComeBack) {
  h5::attachAttribute(object, "i", 3);
  h5::attachAttribute(object, "t", 0.1);
  EXPECT_EQ(h5::readAttribute<int>(object, "i"), 3);
  EXPECT_EQ(h5::readAttribute<double>(object, "t"), 0.1);
}

TEST_F(AttributeTest, IsASimpleDataspaceOfOneNativeValue) {
  h5::attachAttribute(object, "t", 0.1);
  const Handle attribute(H5Aopen(object.id(), "t", H5P_DEFAULT));
  const Handle type(H5Aget_type(attribute.id()));
  const Handle space(H5Aget_space(attribute.id()));
  EXPECT_GT(H5Tequal(type.id(), H5T_NATIVE_DOUBLE), 0);
  hsize_t extent = 0;
  EXPECT_EQ(H5Sget_simple_extent_dims(space.id(), &extent, nullptr), 1);
  EXPECT_EQ(extent, 1U);
}

TEST_F(AttributeTest, IsOverwrittenIfItExists) {
  h5::attachAttribute(object, "t", 0.1);
  h5::attachAttribute(object, "t", 0.2);
  EXPECT_EQ(h5::readAttribute<double>(object, "t"), 0.2);
}

TEST_F(AttributeTest, NumbersAreConverted) {
  h5::attachAttribute(object, "t", 2.5);
  EXPECT_EQ(h5::readAttribute<int>(object, "t"), 2);
}

TEST_F(AttributeTest, ValueWithoutDimensionIsRead) {
  make("dim", {}, h5::typeOf<int>());
  h5::attachAttribute(object, "dim", 3);
  EXPECT_EQ(h5::readAttribute<int>(object, "dim"), 3);
}

TEST_F(AttributeTest, MissingAttributeIsReported) {
  EXPECT_EQ(textOf<Error>([&] { h5::readAttribute<int>(object, "nope"); }),
            "Unable to open the attribute \"nope\":" + hdf5Words(H5E_ATTR, H5E_NOTFOUND));
}

TEST_F(AttributeTest, MoreThanOneValueIsRefused) {
  make("t", {3}, h5::typeOf<double>());
  const std::string text =
      "Impossible to access the attribute \"t\" with 3 values: exactly one is needed";
  EXPECT_EQ(textOf<Error>([&] { h5::readAttribute<double>(object, "t"); }), text);
  EXPECT_EQ(textOf<Error>([&] { h5::attachAttribute(object, "t", 0.5); }), text);
}

TEST_F(AttributeTest, NoValueIsRefused) {
  make("t", {0}, h5::typeOf<double>());
  EXPECT_EQ(textOf<Error>([&] { h5::readAttribute<double>(object, "t"); }),
            "Impossible to access the attribute \"t\" with 0 values: exactly one is needed");
}

TEST_F(AttributeTest, StringIsNoNumber) {
  make("t", {1}, h5::typeOf<std::string>());
  const Handle attribute(H5Aopen(object.id(), "t", H5P_DEFAULT));
  const char* const value = "0.5";
  ASSERT_GE(H5Awrite(attribute.id(), h5::typeOf<std::string>().id(), &value), 0);
  const std::string text = textOf<Error>([&] { h5::readAttribute<double>(object, "t"); });
  EXPECT_EQ(text.rfind("Error during HDF5 Read:  (", 0), 0U) << text;
}

}  // namespace
