// Ownership of one identifier of the HDF5 library: file, group, dataset, dataspace, type, attribute
// or error stack. Everything in this folder holds its identifiers through it.
#pragma once

#include <hdf5.h>

#include <utility>

namespace h5 {

/// Gives its identifier back to the library when it goes out of scope. A negative identifier, which
/// is what a failed call returns, is no identifier.
class Handle {
 public:
  Handle() = default;
  /// Takes over an identifier that the caller has got from the library.
  explicit Handle(hid_t id) noexcept : identifier(id) {}
  ~Handle() { release(); }

  Handle(Handle&& other) noexcept : identifier(std::exchange(other.identifier, H5I_INVALID_HID)) {}
  Handle& operator=(Handle&& other) noexcept;
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;

  hid_t id() const noexcept { return identifier; }
  bool isValid() const noexcept { return identifier >= 0; }

 private:
  void release() noexcept;

  hid_t identifier = H5I_INVALID_HID;
};

}  // namespace h5
