#include "h5/transfer.h"

#include <cstddef>

#include "h5/Handle.h"
#include "h5/type.h"

namespace h5 {

namespace {

void read(const Handle& dataset, const Handle& type, hid_t memory, hid_t part, void* buffer) {
  check(H5Dread(dataset.id(), type.id(), memory, part, H5P_DEFAULT, buffer),
        "Error during HDF5 Read: ");
}

void write(const Handle& dataset, const Handle& type, const void* buffer) {
  check(H5Dwrite(dataset.id(), type.id(), H5S_ALL, H5S_ALL, H5P_DEFAULT, buffer),
        "Error during HDF5 Write: ");
}

/// The strings of one read; the library allocates them and takes them back.
class StringBuffer {
 public:
  StringBuffer(const Handle& dataset, std::size_t size)
      : space(checked(H5Dget_space(dataset.id()), "Unable to get DataSpace out of DataSet")),
        pointers(size, nullptr) {}
  ~StringBuffer() { H5Dvlen_reclaim(memoryType.id(), space.id(), H5P_DEFAULT, pointers.data()); }
  StringBuffer(const StringBuffer&) = delete;
  StringBuffer& operator=(const StringBuffer&) = delete;
  StringBuffer(StringBuffer&&) = delete;
  StringBuffer& operator=(StringBuffer&&) = delete;

  const Handle& type() const { return memoryType; }
  std::vector<char*>& texts() { return pointers; }

 private:
  Handle memoryType = typeOf<std::string>();
  Handle space;
  std::vector<char*> pointers;
};

}  // namespace

// The library takes no null pointer for a buffer, not even for a dataset without values.

template <class T>
void readValues(const Handle& dataset, std::vector<T>& values) {
  if (!values.empty()) read(dataset, typeOf<T>(), H5S_ALL, H5S_ALL, values.data());
}

template <>
void readValues(const Handle& dataset, std::vector<std::string>& values) {
  if (values.empty()) return;
  StringBuffer buffer(dataset, values.size());
  read(dataset, buffer.type(), H5S_ALL, H5S_ALL, buffer.texts().data());
  for (std::size_t ii = 0; ii < values.size(); ++ii) {
    const char* const text = buffer.texts()[ii];
    values[ii] = text == nullptr ? "" : text;
  }
}

template <class T>
void readSelected(const Handle& dataset, const Handle& part, const Handle& memory,
                  std::vector<T>& values) {
  if (!values.empty()) read(dataset, typeOf<T>(), memory.id(), part.id(), values.data());
}

template <class T>
void writeValues(const Handle& dataset, const std::vector<T>& values) {
  if (!values.empty()) write(dataset, typeOf<T>(), values.data());
}

template <>
void writeValues(const Handle& dataset, const std::vector<std::string>& values) {
  if (values.empty()) return;
  std::vector<const char*> texts;
  texts.reserve(values.size());
  for (const std::string& value : values) texts.push_back(value.c_str());
  write(dataset, typeOf<std::string>(), texts.data());
}

template void readValues(const Handle&, std::vector<int>&);
template void readValues(const Handle&, std::vector<double>&);
template void readSelected(const Handle&, const Handle&, const Handle&, std::vector<int>&);
template void readSelected(const Handle&, const Handle&, const Handle&, std::vector<double>&);
template void writeValues(const Handle&, const std::vector<int>&);
template void writeValues(const Handle&, const std::vector<double>&);

}  // namespace h5
