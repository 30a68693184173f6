// Fuzzes the reading of HDF5 files: the input says which bytes of a small valid file are changed;
// see scripts/fuzz.
//
// Each change takes 12 bytes: a place of two, a width, a free one, and a value of up to eight, all
// with the lowest byte first. Whatever the file is then, reading comes back with values or throws.
#include <hdf5.h>
#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <exception>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "h5/DataSet.h"
#include "h5/File.h"
#include "h5/attributes/attribute.h"
#include "h5/group.h"

namespace {

const std::vector<std::string> NUMBERS = {"plain/ints", "plain/doubles", "packed", "small",
                                          "never/written"};
const std::string TEXTS = "plain/texts";

std::string fileName() {
  static const std::string name = "/dev/shm/file_fuzz." + std::to_string(::getpid()) + ".h5";
  return name;
}

void writePacked(const h5::Handle& file, const char* path, H5D_layout_t layout) {
  const h5::Shape extents = {6, 2};
  const h5::Handle space(H5Screate_simple(2, extents.data(), nullptr));
  const h5::Handle plan(H5Pcreate(H5P_DATASET_CREATE));
  H5Pset_layout(plan.id(), layout);
  if (layout == H5D_CHUNKED) {
    const h5::Shape chunk = {4, 2};
    H5Pset_chunk(plan.id(), 2, chunk.data());
    H5Pset_shuffle(plan.id());
    H5Pset_deflate(plan.id(), 6);
    H5Pset_fletcher32(plan.id());
  }
  const h5::DataSet dataset(h5::checked(H5Dcreate2(file.id(), path, H5T_NATIVE_DOUBLE, space.id(),
                                                   H5P_DEFAULT, plan.id(), H5P_DEFAULT),
                                        path));
  dataset.writeRows(std::vector<std::vector<double>>(6, {1.0, 2.0}));
}

std::string validFile() {
  {
    const h5::File file(fileName(), h5::File::CREATE);
    h5::createGroup(file.handle(), "plain");
    h5::createGroup(file.handle(), "never");
    h5::DataSet::create<int>(file.handle(), NUMBERS[0], {4, 1}).writeVector<int>({1, 2, 3, 4});
    const auto doubles = h5::DataSet::create<double>(file.handle(), NUMBERS[1], {2, 2});
    doubles.writeRows<double>({{1.0, 2.0}, {3.0, 4.0}});
    h5::attachAttribute(doubles.handle(), "t", 2.5);
    h5::DataSet::create<std::string>(file.handle(), TEXTS, {2})
        .writeVector<std::string>({"upstream", "downstream"});
    writePacked(file.handle(), NUMBERS[2].c_str(), H5D_CHUNKED);
    writePacked(file.handle(), NUMBERS[3].c_str(), H5D_COMPACT);
    h5::DataSet::create<double>(file.handle(), NUMBERS[4], {3, 2});
  }
  std::ifstream stream(fileName(), std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

template <class Work>
void attempt(Work work) {
  try {
    work();
  } catch (const std::exception&) {
    // A message is what a broken file deserves.
  }
}

void readAll() {
  const h5::File file(fileName(), h5::File::READ_ONLY);
  for (const std::string& path : NUMBERS) {
    attempt([&] { h5::DataSet::open(file.handle(), path).readRows<double>(); });
    attempt([&] { h5::DataSet::open(file.handle(), path).readRows<int>(); });
    attempt(
        [&] { h5::readAttribute<double>(h5::DataSet::open(file.handle(), path).handle(), "t"); });
  }
  attempt([&] { h5::DataSet::open(file.handle(), TEXTS).readVector<std::string>(); });
  attempt([&] { h5::countObjects(h5::openGroup(file.handle(), "plain")); });
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr std::size_t CHANGE = 12;
  static const std::string valid = [] {
    H5Eset_auto2(H5E_DEFAULT, nullptr, nullptr);
    return validFile();
  }();
  std::string bytes = valid;
  for (; size >= CHANGE; data += CHANGE, size -= CHANGE) {
    const std::size_t width = 1U << (data[2] % 4U);
    const std::size_t place = (data[0] + 256U * data[1]) % (bytes.size() - width);
    std::memcpy(&bytes[place], data + 4, width);
  }
  std::ofstream(fileName(), std::ios::binary)
      .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  attempt(readAll);
  return 0;
}
