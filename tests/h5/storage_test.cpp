#include "h5/storage.h"

#include <gmock/gmock.h>

#include <functional>

#include "dataio/failures.h"
#include "h5/DataSet.h"
#include "h5/File.h"
#include "h5/Handle.h"
#include "h5/type.h"
#include "support/Process.h"
#include "support/TempDir.h"

namespace {

using h5::DataSet;
using h5::Handle;
using h5::Shape;
using ::testing::HasSubstr;
using Plan = std::function<void(hid_t)>;

/// A file with one dataset "a", which is made and damaged through the C library.
class Storage : public ::testing::Test {
 protected:
  Storage() { H5Eset_auto2(H5E_DEFAULT, nullptr, nullptr); }

  static Handle planOf(const Plan& change) {
    Handle plan(H5Pcreate(H5P_DATASET_CREATE));
    if (change) change(plan.id());
    return plan;
  }

  /// @return the open dataset, without values
  Handle make(const Shape& extents, hid_t type, const Plan& change = nullptr) {
    const h5::File file(name, h5::File::CREATE);
    const Handle space(H5Screate_simple(static_cast<int>(extents.size()), extents.data(), nullptr));
    const Handle plan = planOf(change);
    return h5::checked(
        H5Dcreate2(file.handle().id(), "a", type, space.id(), H5P_DEFAULT, plan.id(), H5P_DEFAULT),
        "dataset");
  }

  void makeInts(const Shape& extents, const Plan& change = nullptr) {
    std::vector<int> values(h5::elementCount(extents));
    for (std::size_t i = 0; i < values.size(); ++i) values[i] = static_cast<int>(i);
    const Handle dataset = make(extents, H5T_NATIVE_INT, change);
    h5::check(H5Dwrite(dataset.id(), H5T_NATIVE_INT, H5S_ALL, H5S_ALL, H5P_DEFAULT, values.data()),
              "write");
  }

  void makeTexts(const Plan& change = nullptr) {
    const Handle dataset = make({2}, h5::typeOf<std::string>().id(), change);
    const std::vector<const char*> texts = {"upstream", "downstream"};
    h5::check(H5Dwrite(dataset.id(), h5::typeOf<std::string>().id(), H5S_ALL, H5S_ALL, H5P_DEFAULT,
                       texts.data()),
              "write");
  }

  /// Writes the one chunk of a dataset as it is to stand in the file.
  void writeChunk(const Handle& dataset, std::size_t bytes) {
    const std::vector<char> values(bytes, 'x');
    const Shape corner = {0, 0};
    h5::check(H5Dwrite_chunk(dataset.id(), H5P_DEFAULT, 0, corner.data(), bytes, values.data()),
              "chunk");
  }

  /// Puts a byte near a text of the file.
  void damage(const std::string& text, std::ptrdiff_t offset, char byte) const {
    std::string bytes = support::readFile(name);
    const std::size_t place = bytes.find(text);
    ASSERT_NE(place, std::string::npos);
    bytes.begin()[static_cast<std::ptrdiff_t>(place) + offset] = byte;
    support::writeFile(name, bytes);
  }

  DataSet open() const {
    const h5::File file(name, h5::File::READ_ONLY);
    return DataSet::open(file.handle(), "a");
  }
  std::string fault() const {
    return failures::textOf<h5::Error>([this] { open(); });
  }

  const support::TempDir dir;
  const std::string name = dir.file("a.h5");
};

void inChunks(hid_t plan) {
  const Shape chunk = {8, 2};
  H5Pset_chunk(plan, 2, chunk.data());
}

void packed(hid_t plan) {
  inChunks(plan);
  H5Pset_shuffle(plan);
  H5Pset_fletcher32(plan);
  H5Pset_deflate(plan, 6);
}

const std::vector<std::string> TEXTS = {"upstream", "downstream"};

TEST_F(Storage, TakesAllLayoutsWithinTheFile) {
  const std::vector<Plan> plans = {nullptr, inChunks, packed,
                                   [](hid_t plan) { H5Pset_layout(plan, H5D_COMPACT); },
                                   [](hid_t plan) {
                                     packed(plan);
                                     H5Pset_fletcher32(plan);
                                   }};
  for (const Plan& plan : plans) {
    makeInts({20, 3}, plan);
    EXPECT_EQ(open().readRows<int>().at(19), (std::vector<int>{57, 58, 59}));
  }
}

TEST_F(Storage, TakesTextsInAllLayoutsButCompact) {
  makeTexts();
  EXPECT_EQ(open().readVector<std::string>(), TEXTS);
  makeTexts([](hid_t plan) {
    const hsize_t one = 1;
    H5Pset_chunk(plan, 1, &one);
    H5Pset_deflate(plan, 6);
  });
  EXPECT_EQ(open().readVector<std::string>(), TEXTS);
  makeTexts([](hid_t plan) { H5Pset_layout(plan, H5D_COMPACT); });
  EXPECT_THAT(fault(), HasSubstr("has strings in its header"));
}

TEST_F(Storage, TakesDatasetsThatWereNeverWritten) {
  make({20, 3}, H5T_NATIVE_INT);
  EXPECT_EQ(open().readRows<int>().size(), 20U);
  make({20, 3}, H5T_NATIVE_INT, packed);
  EXPECT_EQ(open().readRows<int>().size(), 20U);
  make({2}, h5::typeOf<std::string>().id());
  EXPECT_EQ(open().readVector<std::string>(), (std::vector<std::string>{"", ""}));
}

TEST_F(Storage, FindsTextsBehindABlockOfTheUsers) {
  makeTexts();
  const std::string text = support::readFile(name);
  support::writeFile(name, std::string(512, 'u') + text);
  EXPECT_EQ(open().readVector<std::string>(), TEXTS);
}

TEST_F(Storage, FindsTextsThatHaveJustBeenWritten) {
  const h5::File file(name, h5::File::CREATE);
  DataSet::create<std::string>(file.handle(), "a", {2}).writeVector(TEXTS);
  EXPECT_EQ(DataSet::open(file.handle(), "a").readVector<std::string>(), TEXTS);
}

TEST_F(Storage, RefusesValuesThatStandSomewhereElse) {
  make({4, 1}, H5T_NATIVE_INT, [](hid_t plan) {
    const Shape extents = {4, 1};
    const Handle space(H5Screate_simple(2, extents.data(), nullptr));
    H5Pset_virtual(plan, space.id(), ".", "a", space.id());
  });
  EXPECT_EQ(fault(),
            "The dataset \"a\" is a virtual one, which is not read: copy its values into "
            "the file");
  make({4, 1}, H5T_NATIVE_INT, [](hid_t plan) { H5Pset_external(plan, "other", 0, 16); });
  EXPECT_THAT(fault(), HasSubstr("has its values in another file"));
}

TEST_F(Storage, RefusesLinksToOtherFiles) {
  makeInts({4, 1});
  const std::string other = dir.file("other.h5");
  const h5::File file(other, h5::File::CREATE);
  // The library refuses to make one, too, as the kind of link is not known any more.
  EXPECT_LT(
      H5Lcreate_external(name.c_str(), "a", file.handle().id(), "b", H5P_DEFAULT, H5P_DEFAULT), 0);
}

TEST_F(Storage, RefusesMoreValuesThanTheFileCanHold) {
  make({100000000, 3}, H5T_NATIVE_INT);
  EXPECT_THAT(fault(), HasSubstr("declares more values than a file of this size can hold"));
  make({1UL << 40, 1UL << 40}, H5T_NATIVE_INT);
  EXPECT_THAT(fault(), HasSubstr("declares more values than a file of this size can hold"));
  make({10000}, h5::typeOf<std::string>().id());
  EXPECT_THAT(fault(), HasSubstr("declares more values than a file of this size can hold"));
}

TEST_F(Storage, RefusesChunksThatTheFileCannotHold) {
  make({20000, 2}, H5T_NATIVE_INT, inChunks);
  EXPECT_THAT(fault(), HasSubstr("has more chunks than its file has room for"));
}

TEST_F(Storage, RefusesChunksOfAnotherSize) {
  for (const std::size_t bytes : {16U, 60000U}) {
    writeChunk(make({8, 2}, H5T_NATIVE_INT, inChunks), bytes);
    EXPECT_THAT(fault(), HasSubstr("has a chunk that does not hold its values"));
    writeChunk(make({8, 2}, H5T_NATIVE_INT, packed), bytes);
    EXPECT_THAT(fault(), HasSubstr("has a chunk that does not hold its values"));
  }
  writeChunk(make({8, 2}, H5T_NATIVE_INT, inChunks), 64);
  EXPECT_EQ(open().readRows<int>().size(), 8U);
}

TEST_F(Storage, RefusesOtherFilters) {
  makeInts({20, 3}, [](hid_t plan) {
    inChunks(plan);
    H5Pset_scaleoffset(plan, H5Z_SO_INT, 0);
  });
  EXPECT_THAT(fault(), HasSubstr("is packed by filters that are not read"));
}

TEST_F(Storage, RefusesTextsThatAreNotWhereTheyAreSaidToBe) {
  // Before a text stand its number in 2 bytes, a count in 2, 4 free ones and its length in 8.
  makeTexts();
  damage("upstream", -8, 7);
  EXPECT_THAT(fault(), HasSubstr("has a string that is not where it is said to be in the file"));
  makeTexts();
  damage("upstream", -16, 7);
  EXPECT_THAT(fault(), HasSubstr("has a string that is not where it is said to be in the file"));
}

TEST_F(Storage, RefusesBrokenCollectionsOfTexts) {
  // It starts with a mark, a version and, from byte 8 on, its size.
  for (const std::ptrdiff_t place : {0, 4, 9, 12}) {
    makeTexts();
    damage("GCOL", place, 9);
    EXPECT_THAT(fault(), HasSubstr("has strings in a broken place of the file")) << place;
  }
}

TEST_F(Storage, RefusesListsAndOddNumbers) {
  make({3}, Handle(H5Tvlen_create(H5T_NATIVE_INT)).id());
  EXPECT_THAT(fault(), HasSubstr("has lists of numbers"));
  const Handle wide(H5Tcopy(H5T_NATIVE_INT));
  H5Tset_size(wide.id(), 2000);
  make({1}, wide.id());
  EXPECT_THAT(fault(), HasSubstr("has numbers with bits outside of their bytes"));
}

}  // namespace
