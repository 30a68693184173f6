#include "h5/type.h"

#include "h5/error.h"

namespace h5 {

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

}  // namespace h5
