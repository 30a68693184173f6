#include "h5/storage.h"

#include <algorithm>
#include <vector>

#include "h5/Chunks.h"
#include "h5/Handle.h"
#include "h5/StringHeap.h"
#include "h5/journal/JournaledFile.h"
#include "h5/journal/driver.h"
#include "h5/shape.h"
#include "h5/type.h"

namespace h5 {

namespace {

// Values of a file that stand for themselves take at least these parts of a byte, however well
// they are compressed; a dataset that declares more was never written, and fills the memory.
constexpr std::uint64_t MOST_NUMBERS = 128;  // per byte of the file
constexpr std::uint64_t MOST_TEXTS = 1;

constexpr const char* NO_ROOM = "does not have room for its values in the file";

// A dataset as its header describes it.
struct Description {
  hid_t dataset;
  hid_t plan;
  hid_t file;
  std::uint64_t fileSize;
  bool isText;
  std::size_t valueSize;  // in the file [bytes]
  Shape extents;
  std::uint64_t bytes;  // of all values
};

Shape extentsOf(hid_t dataset) {
  const Handle space(H5Dget_space(dataset));
  const int rank = H5Sget_simple_extent_ndims(space.id());
  if (rank < 0 || H5Sget_simple_extent_type(space.id()) == H5S_NULL) return {0};
  Shape extents(static_cast<std::size_t>(rank));
  H5Sget_simple_extent_dims(space.id(), extents.data(), nullptr);
  return extents;
}

// 0 for no values or for more than `most`.
std::uint64_t countUpTo(std::uint64_t most, const Shape& extents) {
  std::uint64_t count = 1;
  for (const hsize_t extent : extents) {
    if (extent == 0 || count > most / extent) return 0;
    count *= extent;
  }
  return count;
}

const JournaledFile& sourceOf(hid_t file) {
  // Texts that have just been written are to be found in the file.
  H5Fflush(file, H5F_SCOPE_LOCAL);
  const JournaledFile* source = journaledOf(file);
  if (source == nullptr) throw Error("Unable to look into the file");
  return *source;
}

StringHeap heapOf(hid_t file) {
  return {sourceOf(file), baseOf(file)};
}

std::string contiguousFault(const Description& described) {
  const haddr_t place = H5Dget_offset(described.dataset);
  if (place == HADDR_UNDEF) return {};  // never written
  if (H5Dget_storage_size(described.dataset) != described.bytes || place > described.fileSize ||
      described.bytes > described.fileSize - place) {
    return NO_ROOM;
  }
  if (!described.isText) return {};
  std::vector<char> references(described.bytes);
  sourceOf(described.file).read(place, references.data(), references.size());
  return heapOf(described.file).fault(references);
}

std::string chunkedFault(const Description& described) {
  const Chunks chunks(described.dataset, described.plan, described.extents, described.valueSize,
                      described.fileSize);
  if (!described.isText) return chunks.firstFault([](const auto&) { return std::string(); });
  StringHeap heap = heapOf(described.file);
  return chunks.firstFault([&](const std::vector<char>& values) { return heap.fault(values); });
}

std::string compactFault(const Description& described) {
  // What stands in the header of the dataset cannot be looked at from outside.
  if (described.isText) return "has strings in its header, which are not read: use another layout";
  return H5Dget_storage_size(described.dataset) == described.bytes ? "" : NO_ROOM;
}

std::string layoutFault(const Description& described) {
  switch (H5Pget_layout(described.plan)) {
    case H5D_CONTIGUOUS:
      return contiguousFault(described);
    case H5D_CHUNKED:
      return chunkedFault(described);
    case H5D_COMPACT:
      return compactFault(described);
    default:
      return "has a layout that is not known";
  }
}

}  // namespace

std::string foreignFault(hid_t dataset) {
  const Handle plan(H5Dget_create_plist(dataset));
  if (H5Pget_layout(plan.id()) == H5D_VIRTUAL) {
    return "is a virtual one, which is not read: copy its values into the file";
  }
  if (H5Pget_external_count(plan.id()) != 0) {
    return "has its values in another file, which is not read: copy them into the file";
  }
  return {};
}

std::string storageFault(hid_t dataset) {
  if (std::string fault = foreignFault(dataset); !fault.empty()) return fault;
  const Handle plan(H5Dget_create_plist(dataset));
  const Handle type(H5Dget_type(dataset));
  const bool isText = H5Tis_variable_str(type.id()) > 0;
  if (H5Tget_class(type.id()) == H5T_VLEN) return "has lists of numbers, which are not read";
  if (!isText && !isNumber(type.id())) return {};  // not converted by the library, so not read
  if (!isText && !isSoundNumber(type.id())) return "has numbers with bits outside of their bytes";

  const Handle file(H5Iget_file_id(dataset));
  hsize_t fileSize = 0;
  check(H5Fget_filesize(file.id(), &fileSize), "Unable to get the size of the file");
  const std::size_t valueSize = isText ? StringHeap::REFERENCE_SIZE : H5Tget_size(type.id());
  const Shape extents = extentsOf(dataset);
  if (std::find(extents.begin(), extents.end(), 0) != extents.end()) return {};
  const std::uint64_t values = countUpTo(fileSize * (isText ? MOST_TEXTS : MOST_NUMBERS), extents);
  if (values == 0) return "declares more values than a file of this size can hold";
  return layoutFault(
      {dataset, plan.id(), file.id(), fileSize, isText, valueSize, extents, values * valueSize});
}

}  // namespace h5
