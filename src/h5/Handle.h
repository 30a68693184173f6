// Identifiers of the HDF5 library and its failures. Everything in this folder holds its identifiers
// by Handle: file, group, dataset, dataspace, type, attribute or error stack.
//
//   const h5::Handle group =
//       h5::checked(H5Gopen2(file, "CellsAll", H5P_DEFAULT), "Unable to open the group ...");
//
// The library prints its own report on standard error before; that is left on, as it tells in
// detail what this text only names. Where failures are expected, Silence turns it off.
#pragma once

#include <hdf5.h>

#include <stdexcept>
#include <string>
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

/// What went wrong, where, and in the library's words why.
class Error : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Reports the library call that has just failed; no other call may come in between.
/// @param text what could not be done; the cause is appended as " (major text) minor text"
/// @throws Error always.
[[noreturn]] void fail(const std::string& text);

/// @return the owner of `id`
/// @throws Error if `id` is what a failed call returns.
Handle checked(hid_t id, const std::string& text);

/// @throws Error if `status` is negative.
void check(herr_t status, const std::string& text);

/// While it lives, the library prints no reports.
class Silence {
 public:
  Silence();
  ~Silence();
  Silence(const Silence&) = delete;
  Silence& operator=(const Silence&) = delete;
  Silence(Silence&&) = delete;
  Silence& operator=(Silence&&) = delete;

 private:
  H5E_auto2_t reporter = nullptr;
  void* data = nullptr;
};

}  // namespace h5
