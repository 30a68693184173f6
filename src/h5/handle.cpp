#include "h5/handle.h"

namespace h5 {

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

}  // namespace h5
