#include "h5/type.h"

#include <cstddef>

namespace h5 {

namespace {

constexpr std::size_t LARGEST = 16;           // bytes of a number
constexpr std::size_t LARGEST_EXPONENT = 63;  // bits, so that 64 hold its sum with the bias

bool lieWithin(std::size_t bits, std::size_t first, std::size_t count) {
  return count > 0 && first < bits && count <= bits - first;
}

bool isSoundInteger(hid_t type, std::size_t bits) {
  const int first = H5Tget_offset(type);
  return first >= 0 && lieWithin(bits, static_cast<std::size_t>(first), H5Tget_precision(type));
}

bool isSoundFloat(hid_t type, std::size_t bits) {
  std::size_t sign = 0;
  std::size_t exponent = 0;
  std::size_t exponentBits = 0;
  std::size_t mantissa = 0;
  std::size_t mantissaBits = 0;
  return isSoundInteger(type, bits) &&
         H5Tget_fields(type, &sign, &exponent, &exponentBits, &mantissa, &mantissaBits) >= 0 &&
         sign < bits && lieWithin(bits, exponent, exponentBits) &&
         lieWithin(bits, mantissa, mantissaBits) && exponentBits <= LARGEST_EXPONENT;
}

}  // namespace

template <>
Handle typeOf<int>() {
  return checked(H5Tcopy(H5T_NATIVE_INT), "Unable to copy datatype");
}

template <>
Handle typeOf<double>() {
  return checked(H5Tcopy(H5T_NATIVE_DOUBLE), "Unable to copy datatype");
}

template <>
Handle typeOf<std::string>() {
  Handle type = checked(H5Tcopy(H5T_C_S1), "Unable to copy datatype");
  check(H5Tset_size(type.id(), H5T_VARIABLE), "Unable to define datatype size to variable");
  check(H5Tset_cset(type.id(), H5T_CSET_UTF8), "Unable to set the character set of datatype");
  return type;
}

bool isNumber(hid_t type) {
  const H5T_class_t kind = H5Tget_class(type);
  return kind == H5T_INTEGER || kind == H5T_FLOAT || kind == H5T_ENUM;
}

bool isSoundNumber(hid_t type) {
  const std::size_t size = H5Tget_size(type);
  if (size > LARGEST) return false;
  switch (H5Tget_class(type)) {
    case H5T_FLOAT:
      return isSoundFloat(type, 8 * size);
    case H5T_ENUM: {
      const Handle base(H5Tget_super(type));
      return H5Tget_size(base.id()) == size && isSoundInteger(base.id(), 8 * size);
    }
    default:
      return isSoundInteger(type, 8 * size);
  }
}

}  // namespace h5
