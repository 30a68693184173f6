#include "h5/Handle.h"

#include <cstddef>

namespace h5 {

namespace {

std::string messageText(hid_t message) {
  const ssize_t length = H5Eget_msg(message, nullptr, nullptr, 0);
  if (length <= 0) return {};
  // The library ends the text with a zero, for which it wants room.
  std::string text(static_cast<std::size_t>(length) + 1, '\0');
  H5Eget_msg(message, nullptr, text.data(), text.size());
  text.resize(static_cast<std::size_t>(length));
  return text;
}

herr_t takeFirst(unsigned /*position*/, const H5E_error2_t* entry, void* cause) {
  *static_cast<std::string*>(cause) =
      " (" + messageText(entry->maj_num) + ") " + messageText(entry->min_num);
  return 1;
}

}  // namespace

Handle& Handle::operator=(Handle&& other) noexcept {
  if (this != &other) {
    release();
    identifier = std::exchange(other.identifier, H5I_INVALID_HID);
  }
  return *this;
}

void Handle::release() noexcept {
  // Identifiers of all kinds are counted; the last reference closes what stands behind them.
  if (isValid()) H5Idec_ref(identifier);
  identifier = H5I_INVALID_HID;
}

void fail(const std::string& text) {
  const Handle stack(H5Eget_current_stack());
  std::string cause;
  // Upward from the innermost entry, which is where the failure arose.
  H5Ewalk2(stack.id(), H5E_WALK_UPWARD, takeFirst, &cause);
  throw Error(text + cause);
}

Handle checked(hid_t id, const std::string& text) {
  if (id < 0) fail(text);
  return Handle(id);
}

void check(herr_t status, const std::string& text) {
  if (status < 0) fail(text);
}

Silence::Silence() {
  H5Eget_auto2(H5E_DEFAULT, &reporter, &data);
  H5Eset_auto2(H5E_DEFAULT, nullptr, nullptr);
}

Silence::~Silence() {
  H5Eset_auto2(H5E_DEFAULT, reporter, data);
}

}  // namespace h5
