#include "support/H5Compare.h"

#include <hdf5.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <sstream>
#include <stdexcept>

namespace support {

namespace {

/// An open HDF5 object, closed by the function that fits it.
class Handle {
 public:
  Handle(hid_t identifier, herr_t (*closing)(hid_t), const std::string& what)
      : id(identifier), close(closing) {
    if (id < 0) throw std::runtime_error("cannot open " + what);
  }
  ~Handle() { close(id); }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  Handle(Handle&&) = delete;
  Handle& operator=(Handle&&) = delete;
  operator hid_t() const { return id; }  // NOLINT(google-explicit-constructor): as in the C calls

 private:
  hid_t id;
  herr_t (*close)(hid_t);
};

Handle openFile(const std::string& file, unsigned flags = H5F_ACC_RDONLY) {
  return {H5Fopen(file.c_str(), flags, H5P_DEFAULT), H5Fclose, file};
}

Handle openDataset(hid_t file, const std::string& path) {
  return {H5Dopen2(file, path.c_str(), H5P_DEFAULT), H5Dclose, path};
}

std::vector<hsize_t> shapeOf(hid_t dataset) {
  const Handle space(H5Dget_space(dataset), H5Sclose, "dataspace");
  std::vector<hsize_t> shape(static_cast<std::size_t>(H5Sget_simple_extent_ndims(space)));
  H5Sget_simple_extent_dims(space, shape.data(), nullptr);
  return shape;
}

std::size_t countOf(hid_t dataset) {
  std::size_t count = 1;
  for (const hsize_t extent : shapeOf(dataset)) count *= extent;
  return count;
}

bool isText(hid_t dataset) {
  const Handle type(H5Dget_type(dataset), H5Tclose, "type");
  return H5Tget_class(type) == H5T_STRING;
}

std::vector<double> numbersOf(hid_t dataset) {
  std::vector<double> values(countOf(dataset));
  if (H5Dread(dataset, H5T_NATIVE_DOUBLE, H5S_ALL, H5S_ALL, H5P_DEFAULT, values.data()) < 0) {
    throw std::runtime_error("cannot read numbers");
  }
  return values;
}

std::vector<std::string> lettersOf(hid_t dataset, const Handle& type) {
  std::string letters(countOf(dataset) * H5Tget_size(type), '\0');
  if (H5Dread(dataset, type, H5S_ALL, H5S_ALL, H5P_DEFAULT, letters.data()) < 0) {
    throw std::runtime_error("cannot read letters");
  }
  return {letters};
}

/// Texts of one length come as one text.
std::vector<std::string> textsOf(hid_t dataset) {
  const Handle type(H5Dget_type(dataset), H5Tclose, "type");
  if (H5Tis_variable_str(type) == 0) return lettersOf(dataset, type);
  const Handle space(H5Dget_space(dataset), H5Sclose, "dataspace");
  std::vector<char*> texts(countOf(dataset));
  if (H5Dread(dataset, type, H5S_ALL, H5S_ALL, H5P_DEFAULT, texts.data()) < 0) {
    throw std::runtime_error("cannot read texts");
  }
  std::vector<std::string> values;
  values.reserve(texts.size());
  for (const char* text : texts) values.emplace_back(text);
  H5Dvlen_reclaim(type, space, H5P_DEFAULT, texts.data());
  return values;
}

double timeOf(hid_t dataset) {
  double time = std::numeric_limits<double>::quiet_NaN();
  if (H5Aexists(dataset, "t") > 0) {
    const Handle attribute(H5Aopen(dataset, "t", H5P_DEFAULT), H5Aclose, "t");
    H5Aread(attribute, H5T_NATIVE_DOUBLE, &time);
  }
  return time;
}

bool sameNumber(double a, double b) {
  return a == b || (std::isnan(a) && std::isnan(b));
}

std::string compareNumbers(const std::vector<double>& expected, const std::vector<double>& actual) {
  for (std::size_t i = 0; i < expected.size(); ++i) {
    if (sameNumber(expected[i], actual[i])) continue;
    std::ostringstream text;
    text.precision(17);
    text << " differs at " << i << ": " << expected[i] << " expected, got " << actual[i];
    return text.str();
  }
  return "";
}

std::string compareDatasets(hid_t expected, hid_t actual) {
  if (shapeOf(expected) != shapeOf(actual)) return " has another shape";
  if (isText(expected) != isText(actual)) return " has another type";
  if (!sameNumber(timeOf(expected), timeOf(actual))) return " has another time";
  if (isText(expected)) return textsOf(expected) == textsOf(actual) ? "" : " has another text";
  return compareNumbers(numbersOf(expected), numbersOf(actual));
}

herr_t collect(hid_t /*root*/, const char* name, const H5O_info_t* info, void* target) {
  if (info->type == H5O_TYPE_DATASET) {
    static_cast<std::vector<std::string>*>(target)->emplace_back(name);
  }
  return 0;
}

}  // namespace

std::vector<std::string> datasetPaths(const std::string& file) {
  const Handle handle = openFile(file);
  std::vector<std::string> paths;
  H5Ovisit2(handle, H5_INDEX_NAME, H5_ITER_INC, collect, &paths, H5O_INFO_BASIC);
  std::sort(paths.begin(), paths.end());
  return paths;
}

std::vector<std::string> differences(const std::string& expectedFile,
                                     const std::string& actualFile) {
  const std::vector<std::string> expectedPaths = datasetPaths(expectedFile);
  const std::vector<std::string> actualPaths = datasetPaths(actualFile);
  const Handle expected = openFile(expectedFile);
  const Handle actual = openFile(actualFile);
  std::vector<std::string> found;
  for (const std::string& path : expectedPaths) {
    if (!std::binary_search(actualPaths.begin(), actualPaths.end(), path)) {
      found.push_back(path + " is missing");
      continue;
    }
    const std::string difference =
        compareDatasets(openDataset(expected, path), openDataset(actual, path));
    if (!difference.empty()) found.push_back(path + difference);
  }
  for (const std::string& path : actualPaths) {
    if (!std::binary_search(expectedPaths.begin(), expectedPaths.end(), path)) {
      found.push_back(path + " is not expected");
    }
  }
  return found;
}

std::vector<double> readNumbers(const std::string& file, const std::string& path) {
  const Handle handle = openFile(file);
  return numbersOf(openDataset(handle, path));
}

double readTime(const std::string& file, const std::string& path) {
  const Handle handle = openFile(file);
  return timeOf(openDataset(handle, path));
}

void overwrite(const std::string& file, const std::string& path, std::size_t position,
               double value) {
  const Handle handle = openFile(file, H5F_ACC_RDWR);
  const Handle dataset = openDataset(handle, path);
  std::vector<double> values = numbersOf(dataset);
  values.at(position) = value;
  H5Dwrite(dataset, H5T_NATIVE_DOUBLE, H5S_ALL, H5S_ALL, H5P_DEFAULT, values.data());
}

void removeLink(const std::string& file, const std::string& path) {
  const Handle handle = openFile(file, H5F_ACC_RDWR);
  if (H5Ldelete(handle, path.c_str(), H5P_DEFAULT) < 0) {
    throw std::runtime_error("cannot remove " + path);
  }
}

}  // namespace support
