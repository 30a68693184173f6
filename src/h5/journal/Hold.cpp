#include "h5/journal/Hold.h"

#include "h5/journal/JournaledFile.h"

namespace h5 {

Hold::Hold(hid_t file) : id(file) {
  void* handle = nullptr;
  if (H5Fget_vfd_handle(file, H5P_DEFAULT, &handle) < 0) return;
  journaled = static_cast<JournaledFile*>(handle);
  journaled->hold();
}

Hold::~Hold() {
  if (journaled != nullptr) journaled->release();
}

herr_t Hold::commit() const {
  if (journaled == nullptr) return -1;
  journaled->release();
  const herr_t status = H5Fflush(id, H5F_SCOPE_GLOBAL);
  journaled->hold();
  return status;
}

std::string Hold::failure() const {
  const bool isKnown = journaled != nullptr && journaled->failure();
  return isKnown ? journaled->failure()->what() : "the HDF5 library refuses";
}

bool Hold::reserve(std::uint64_t appended, std::uint64_t overwritten) const {
  return journaled == nullptr || journaled->reserve(appended, overwritten);
}

}  // namespace h5
