#include "h5/attributes/attribute.h"

#include "h5/Handle.h"
#include "h5/attributes/attribute_storage.h"
#include "h5/type.h"

namespace h5 {

namespace {

std::string pathOf(const Handle& object) {
  const ssize_t length = H5Iget_name(object.id(), nullptr, 0);
  if (length <= 0) return {};
  std::string path(static_cast<std::size_t>(length), '\0');
  H5Iget_name(object.id(), path.data(), path.size() + 1);
  return path;
}

void requireSound(const Handle& object, const std::string& name) {
  const std::string fault = attributeFault(object.id(), name);
  if (fault.empty()) return;
  throw Error("Unable to open the attribute \"" + name + "\": \"" + pathOf(object) + "\" " + fault);
}

/// The library transfers as many values as the file says: more than one would not fit.
Handle openSingle(const Handle& object, const std::string& name) {
  Handle attribute = checked(H5Aopen(object.id(), name.c_str(), H5P_DEFAULT),
                             "Unable to open the attribute \"" + name + "\":");
  const Handle space =
      checked(H5Aget_space(attribute.id()), "Unable to get DataSpace out of Attribute");
  const hssize_t count = H5Sget_simple_extent_npoints(space.id());
  if (count != 1) {
    throw Error("Impossible to access the attribute \"" + name + "\" with " +
                std::to_string(count) + " values: exactly one is needed");
  }
  const Handle type(H5Aget_type(attribute.id()));
  if (isNumber(type.id()) && !isSoundNumber(type.id())) {
    throw Error("The attribute \"" + name + "\" has numbers with bits outside of their bytes");
  }
  return attribute;
}

Handle create(const Handle& object, const std::string& name, const Handle& type) {
  const hsize_t one = 1;
  const Handle space =
      checked(H5Screate_simple(1, &one, nullptr), "Unable to create simple dataspace");
  return checked(
      H5Acreate2(object.id(), name.c_str(), type.id(), space.id(), H5P_DEFAULT, H5P_DEFAULT),
      "Unable to create the attribute \"" + name + "\":");
}

bool exists(const Handle& object, const std::string& name) {
  const htri_t found = H5Aexists(object.id(), name.c_str());
  if (found < 0) fail("Unable to check for the attribute \"" + name + "\":");
  return found > 0;
}

}  // namespace

template <class T>
void attachAttribute(const Handle& object, const std::string& name, const T& value) {
  requireSound(object, name);
  const Handle type = typeOf<T>();
  const Handle attribute =
      exists(object, name) ? openSingle(object, name) : create(object, name, type);
  check(H5Awrite(attribute.id(), type.id(), &value), "Error during HDF5 Write: ");
}

template <class T>
T readAttribute(const Handle& object, const std::string& name) {
  requireSound(object, name);
  const Handle attribute = openSingle(object, name);
  const Handle type = typeOf<T>();
  T value{};
  check(H5Aread(attribute.id(), type.id(), &value), "Error during HDF5 Read: ");
  return value;
}

template void attachAttribute(const Handle&, const std::string&, const int&);
template void attachAttribute(const Handle&, const std::string&, const double&);
template int readAttribute(const Handle&, const std::string&);
template double readAttribute(const Handle&, const std::string&);

}  // namespace h5
