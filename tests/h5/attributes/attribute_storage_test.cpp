#include "h5/attributes/attribute_storage.h"

#include <gmock/gmock.h>

#include <array>
#include <functional>
#include <string>

#include "dataio/failures.h"
#include "h5/File.h"
#include "h5/Handle.h"
#include "h5/attributes/attribute.h"
#include "h5/journal/driver.h"
#include "h5/type.h"
#include "support/Process.h"
#include "support/TempDir.h"

namespace {

using h5::Handle;
using ::testing::HasSubstr;

// Places in the message of an attribute "victim", from its name on.
constexpr std::ptrdiff_t NAME_SIZE = -6;
constexpr std::ptrdiff_t TYPE_SIZE = -4;
constexpr std::ptrdiff_t EXTENTS_SIZE = -2;
constexpr std::ptrdiff_t NAME_END = 6;
constexpr std::ptrdiff_t TYPE = 8;
constexpr std::ptrdiff_t EXTENTS = 32;  // behind a type of a number

struct Place {
  std::ptrdiff_t offset;
  char byte;
};

/// A file with datasets that have attributes, which are made and damaged through the C library.
class AttributeStorage : public ::testing::Test {
 protected:
  AttributeStorage() { H5Eset_auto2(H5E_DEFAULT, nullptr, nullptr); }

  /// Makes the file anew with a dataset "a", and attributes by `fill`.
  void make(const std::function<void(hid_t)>& fill, H5F_libver_t version = H5F_LIBVER_EARLIEST) {
    const Handle list(H5Pcopy(h5::accessList()));
    H5Pset_libver_bounds(list.id(), version, H5F_LIBVER_LATEST);
    const Handle file(H5Fcreate(name.c_str(), H5F_ACC_TRUNC, H5P_DEFAULT, list.id()));
    const Handle space(H5Screate(H5S_SCALAR));
    const Handle dataset(H5Dcreate2(file.id(), "a", H5T_NATIVE_INT, space.id(), H5P_DEFAULT,
                                    H5P_DEFAULT, H5P_DEFAULT));
    fill(dataset.id());
  }

  static Handle attach(hid_t object, const char* attribute, hid_t type, const Handle& space) {
    return h5::checked(H5Acreate2(object, attribute, type, space.id(), H5P_DEFAULT, H5P_DEFAULT),
                       attribute);
  }
  static Handle attach(hid_t object, const char* attribute, hid_t type) {
    return attach(object, attribute, type, Handle(H5Screate(H5S_SCALAR)));
  }
  static void attachNumber(hid_t object, const char* attribute, double value) {
    H5Awrite(attach(object, attribute, H5T_NATIVE_DOUBLE).id(), H5T_NATIVE_DOUBLE, &value);
  }
  static void attachVictim(hid_t object) { attachNumber(object, "victim", 0.5); }
  static void attachText(hid_t object, const char* value) {
    const Handle type = h5::typeOf<std::string>();
    H5Awrite(attach(object, "victim", type.id()).id(), type.id(), &value);
  }

  /// Puts a byte near a text of the file.
  void damage(const std::string& text, Place place) const {
    std::string bytes = support::readFile(name);
    const std::size_t found = bytes.find(text);
    ASSERT_NE(found, std::string::npos);
    bytes.begin()[static_cast<std::ptrdiff_t>(found) + place.offset] = place.byte;
    support::writeFile(name, bytes);
  }
  std::string faultWith(Place place) {
    make(attachVictim);
    damage("victim", place);
    return fault("victim");
  }

  std::string fault(const std::string& attribute) const {
    const h5::File file(name, h5::File::READ_ONLY);
    return h5::attributeFault(open(file).id(), attribute);
  }
  double read(const std::string& attribute) const {
    const h5::File file(name, h5::File::READ_ONLY);
    return h5::readAttribute<double>(open(file), attribute);
  }
  static Handle open(const h5::File& file) {
    return h5::checked(H5Dopen2(file.handle().id(), "a", H5P_DEFAULT), "a");
  }

  const support::TempDir dir;
  const std::string name = dir.file("a.h5");
};

constexpr std::array VERSIONS = {H5F_LIBVER_EARLIEST, H5F_LIBVER_V18, H5F_LIBVER_LATEST};

Handle pairOf(hid_t one, hid_t other) {
  Handle type(H5Tcreate(H5T_COMPOUND, H5Tget_size(one) + H5Tget_size(other)));
  H5Tinsert(type.id(), "one", 0, one);
  H5Tinsert(type.id(), "other of them", H5Tget_size(one), other);
  return type;
}

Handle choice() {
  Handle type(H5Tenum_create(H5T_NATIVE_SHORT));
  short value = 0;
  for (const char* member : {"no", "yes", "perhaps so"}) {
    H5Tenum_insert(type.id(), member, &value);
    ++value;
  }
  return type;
}

Handle marked(const char* tag) {
  Handle type(H5Tcreate(H5T_OPAQUE, 3));
  H5Tset_tag(type.id(), tag);
  return type;
}

TEST_F(AttributeStorage, TakesAllTypes) {
  const std::array<hsize_t, 2> extents = {2, 3};
  const Handle table(H5Tarray_create2(H5T_NATIVE_INT, 2, extents.data()));
  const Handle fixed(H5Tcopy(H5T_C_S1));
  H5Tset_size(fixed.id(), 5);
  const Handle list(H5Tvlen_create(H5T_NATIVE_INT));
  const Handle text = h5::typeOf<std::string>();
  const Handle pair = pairOf(table.id(), list.id());
  const Handle pairs = pairOf(pair.id(), text.id());
  const Handle yesOrNo = choice();
  const Handle opaque = marked("a mark of its own");
  for (const H5F_libver_t version : VERSIONS) {
    for (const hid_t type : {H5T_NATIVE_LLONG, H5T_IEEE_F32BE, H5T_UNIX_D32LE, H5T_NATIVE_B16,
                             H5T_STD_REF_OBJ, table.id(), fixed.id(), list.id(), text.id(),
                             pair.id(), pairs.id(), yesOrNo.id(), opaque.id()}) {
      make(
          [&](hid_t dataset) {
            attach(dataset, "first", type);
            attachVictim(dataset);
          },
          version);
      EXPECT_EQ(fault("victim"), "") << "version " << version << ", class " << H5Tget_class(type);
      EXPECT_EQ(read("victim"), 0.5);
    }
  }
}

TEST_F(AttributeStorage, TakesAllExtents) {
  const std::array<hsize_t, 3> extents = {2, 0, 3};
  const std::array<hsize_t, 3> limits = {4, H5S_UNLIMITED, 3};
  for (const H5F_libver_t version : VERSIONS) {
    make(
        [&](hid_t dataset) {
          attach(dataset, "none", H5T_NATIVE_INT, Handle(H5Screate(H5S_NULL)));
          attach(dataset, "empty", H5T_NATIVE_INT,
                 Handle(H5Screate_simple(3, extents.data(), limits.data())));
          attach(dataset, "many", H5T_NATIVE_INT,
                 Handle(H5Screate_simple(1, &limits.front(), nullptr)));
          attachVictim(dataset);
        },
        version);
    EXPECT_EQ(fault("victim"), "") << version;
    EXPECT_EQ(read("victim"), 0.5);
  }
}

TEST_F(AttributeStorage, FollowsAHeaderThatGoesOnSomewhereElse) {
  make([](hid_t dataset) {
    for (int i = 0; i < 30; ++i) attachNumber(dataset, ("t" + std::to_string(i)).c_str(), i);
    attachVictim(dataset);
  });
  EXPECT_EQ(read("t29"), 29.0);
  damage("victim", {TYPE_SIZE, 99});
  EXPECT_THAT(fault("t29"), HasSubstr("larger than their room"));
}

TEST_F(AttributeStorage, FindsItsWayBehindABlockOfTheUsers) {
  make(attachVictim);
  const std::string text = support::readFile(name);
  support::writeFile(name, std::string(512, 'u') + text);
  EXPECT_EQ(read("victim"), 0.5);
}

TEST_F(AttributeStorage, SeesWhatHasJustBeenMade) {
  const h5::File file(name, h5::File::CREATE);
  const Handle space(H5Screate(H5S_SCALAR));
  const Handle dataset(H5Dcreate2(file.handle().id(), "a", H5T_NATIVE_INT, space.id(), H5P_DEFAULT,
                                  H5P_DEFAULT, H5P_DEFAULT));
  EXPECT_EQ(h5::attributeFault(dataset.id(), "victim"), "");
  attachText(dataset.id(), "text");
  EXPECT_EQ(h5::attributeFault(dataset.id(), "victim"), "");
}

TEST_F(AttributeStorage, RefusesPartsThatAreLargerThanTheirRoom) {
  const std::string text = "has a header whose parts are larger than their room";
  EXPECT_EQ(faultWith({NAME_SIZE, 99}), text);
  EXPECT_EQ(faultWith({NAME_SIZE + 1, 1}), text);
  EXPECT_EQ(faultWith({TYPE_SIZE, 99}), text);
  EXPECT_EQ(faultWith({EXTENTS_SIZE, 99}), text);
}

TEST_F(AttributeStorage, RefusesPartsThatNeedMoreThanTheirRoom) {
  const std::string text = "has a header whose parts are larger than their room";
  // Without a zero at its end.
  make([](hid_t dataset) { attachNumber(dataset, "victims", 0.5); });
  damage("victims", {7, 's'});
  EXPECT_EQ(fault("victims"), text);
  EXPECT_EQ(faultWith({TYPE_SIZE, 8}), text);
  EXPECT_EQ(faultWith({TYPE, 0x18}), text);
  EXPECT_EQ(faultWith({TYPE, 0x15}), text);
  EXPECT_EQ(faultWith({EXTENTS + 1, 1}), text);
}

TEST_F(AttributeStorage, RefusesMoreValuesThanItsHeaderHas) {
  const std::string text = "has an attribute with more values than its header";
  make([](hid_t dataset) {
    const hsize_t one = 1;
    attach(dataset, "victim", H5T_NATIVE_DOUBLE, Handle(H5Screate_simple(1, &one, nullptr)));
  });
  damage("victim", {EXTENTS + 8, 100});
  EXPECT_EQ(fault("victim"), text);
  // A number of 100 bytes.
  EXPECT_THAT(faultWith({TYPE + 4, 100}), HasSubstr("larger than their room"));
}

TEST_F(AttributeStorage, RefusesAnArrayOfMoreExtentsThanTheLibraryTakes) {
  make([](hid_t dataset) {
    const hsize_t two = 2;
    attach(dataset, "victim", Handle(H5Tarray_create2(H5T_NATIVE_INT, 1, &two)).id());
  });
  damage("victim", {TYPE + 8, 33});
  EXPECT_EQ(fault("victim"), "has an attribute with an array of more than 32 extents");
}

TEST_F(AttributeStorage, RefusesTypesWithinTypesWithoutEnd) {
  const auto nested = [](int depth) {
    return [depth](hid_t dataset) {
      Handle type(H5Tcopy(H5T_NATIVE_INT));
      for (int i = 0; i < depth; ++i) type = Handle(H5Tvlen_create(type.id()));
      attach(dataset, "victim", type.id());
    };
  };
  make(nested(30));
  EXPECT_EQ(fault("victim"), "");
  make(nested(40));
  EXPECT_EQ(fault("victim"), "has an attribute with a type that is too deep");
}

TEST_F(AttributeStorage, RefusesAttributesThatStandElsewhere) {
  make([](hid_t dataset) {
    const Handle file(H5Iget_file_id(dataset));
    const Handle type(H5Tcopy(H5T_NATIVE_INT));
    H5Tcommit2(file.id(), "type", type.id(), H5P_DEFAULT, H5P_DEFAULT, H5P_DEFAULT);
    attach(dataset, "victim", type.id());
  });
  EXPECT_THAT(fault("victim"), HasSubstr("whose type or extents stand elsewhere"));
  for (const int count : {8, 9}) {
    make(
        [count](hid_t dataset) {
          for (int i = 0; i < count; ++i) attachNumber(dataset, std::to_string(i).c_str(), i);
        },
        H5F_LIBVER_LATEST);
    const std::string text = count == 8 ? "" : "has attributes outside of its header";
    EXPECT_THAT(fault("3"), HasSubstr(text));
    EXPECT_EQ(fault("3").empty(), count == 8);
  }
}

TEST_F(AttributeStorage, RefusesATextThatIsNotWhereItIsSaidToBe) {
  const auto fill = [](hid_t dataset) {
    attachText(dataset, "upstream");
    attachNumber(dataset, "t", 0.5);
  };
  make(fill);
  EXPECT_EQ(fault("victim"), "");
  damage("upstream", {-8, 7});
  EXPECT_THAT(fault("victim"), HasSubstr("has a string that is not where it is said to be"));
  EXPECT_EQ(read("t"), 0.5);
}

TEST_F(AttributeStorage, IsToldWithTheNameOfTheAttribute) {
  make(attachVictim);
  damage("victim", {TYPE_SIZE, 99});
  const std::string text =
      "Unable to open the attribute \"t\": \"/a\" has a header whose parts are larger than "
      "their room";
  EXPECT_EQ(failures::textOf<h5::Error>([&] { read("t"); }), text);
  const h5::File file(name, h5::File::READ_WRITE);
  EXPECT_EQ(failures::textOf<h5::Error>([&] { h5::attachAttribute(open(file), "t", 1.0); }), text);
}

TEST_F(AttributeStorage, RefusesNumbersWithBitsOutsideOfTheirBytes) {
  make([](hid_t dataset) {
    const Handle wide(H5Tcopy(H5T_NATIVE_INT));
    H5Tset_size(wide.id(), 2000);
    attach(dataset, "victim", wide.id());
  });
  EXPECT_EQ(failures::textOf<h5::Error>([&] { read("victim"); }),
            "The attribute \"victim\" has numbers with bits outside of their bytes");
}

}  // namespace
