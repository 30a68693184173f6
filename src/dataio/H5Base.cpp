#include "dataio/H5Base.h"

#include "common/check.h"
#include "common/console.h"
#include "h5/attributes/attribute.h"
#include "h5/group.h"
#include "h5/journal/Refused.h"

namespace console = common::console;

namespace dataio {

unsigned getFileAccess(const std::string& access) {
  if (access == "w") return h5::File::READ_WRITE | h5::File::CREATE | h5::File::TRUNCATE;
  if (access == "rw") return h5::File::READ_WRITE;
  return h5::File::READ_ONLY;
}

namespace {

h5::File openFile(const std::string& file, const std::string& access) {
  try {
    return h5::File(file, getFileAccess(access));
  } catch (const h5::Refused& refusal) {
    console::fail(refusal.what());
  }
}

}  // namespace

H5Base::H5Base(const std::string& file, const std::string& access)
    : filename(file), f5(openFile(file, access)) {}

H5Base::~H5Base() {
  try {
    f5.flush();
  } catch (const h5::Error& error) {
    console::error(error.what());
  }
}

std::string H5Base::getGroup(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  return slash == std::string::npos ? std::string() : path.substr(0, slash);
}

std::string H5Base::getDataset(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  return slash == std::string::npos ? path : path.substr(slash + 1);
}

bool H5Base::existGroup(const std::string& path) const {
  const std::string group = getGroup(path);
  return group.empty() || f5.exist(group);
}

bool H5Base::existDataset(const std::string& path) const {
  if (!existGroup(path)) return false;
  // The library answers for one level at a time: the last element is asked for in its own group.
  const std::string group = getGroup(path);
  if (group.empty()) return f5.exist(getDataset(path));
  return h5::existLink(h5::openGroup(f5.handle(), group), getDataset(path));
}

void H5Base::createGroup(const std::string& path) {
  for (std::size_t slash = path.find('/'); slash != std::string::npos;
       slash = path.find('/', slash + 1)) {
    const std::string group = path.substr(0, slash);
    if (group.empty()) continue;
    if (!f5.exist(group)) h5::createGroup(f5.handle(), group);
  }
}

int H5Base::getNumberObjs(const std::string& path) const {
  return h5::countObjects(h5::openGroup(f5.handle(), path));
}

template <class T>
void H5Base::attachAttribute(const std::string& path, const std::string& name, const T& value) {
  CHECK_THAT(this->f5.exist(path),
             "cannot attach attribute to dataset <" << path << "> in file <" << filename << ">");
  h5::attachAttribute(h5::DataSet::open(f5.handle(), path).handle(), name, value);
}

template <class T>
T H5Base::readAttribute(const std::string& path, const std::string& name) const {
  CHECK_THAT(this->f5.exist(path),
             "cannot read attribute to dataset <" << path << "> in file <" << filename << ">");
  return h5::readAttribute<T>(h5::DataSet::open(f5.handle(), path).handle(), name);
}

void H5Base::attachAttributeInt(const std::string& path, const std::string& name,
                                const int& value) {
  attachAttribute(path, name, value);
}

void H5Base::attachAttributeDouble(const std::string& path, const std::string& name,
                                   const double& value) {
  attachAttribute(path, name, value);
}

int H5Base::readAttributeInt(const std::string& path, const std::string& name) const {
  return readAttribute<int>(path, name);
}

double H5Base::readAttributeDouble(const std::string& path, const std::string& name) const {
  return readAttribute<double>(path, name);
}

h5::DataSet H5Base::readDataset(const std::string& path, std::size_t& rows,
                                std::size_t& columns) const {
  h5::DataSet dataset = h5::DataSet::open(f5.handle(), path);
  const h5::Shape dims = dataset.dimensions();
  rows = dims.empty() ? 0 : dims[0];
  columns = dims.size() < 2 ? 0 : dims[1];
  return dataset;
}

}  // namespace dataio
