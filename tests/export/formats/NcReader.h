// Reads NetCDF files back, for tests.
//
//   const samples::NcReader file("out.nc");
//   EXPECT_EQ(file.text("water_depth", "units"), "m");
#pragma once

#include <netcdf.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace samples {

class NcReader {
 public:
  explicit NcReader(const std::string& name) { require(nc_open(name.c_str(), NC_NOWRITE, &file)); }
  ~NcReader() { nc_close(file); }
  NcReader(const NcReader&) = delete;
  NcReader& operator=(const NcReader&) = delete;
  NcReader(NcReader&&) = delete;
  NcReader& operator=(NcReader&&) = delete;

  bool has(const std::string& variable) const {
    int id = 0;
    return nc_inq_varid(file, variable.c_str(), &id) == NC_NOERR;
  }

  bool has(const std::string& variable, const std::string& attribute) const {
    int id = 0;
    return nc_inq_attid(file, idOf(variable), attribute.c_str(), &id) == NC_NOERR;
  }

  /// Of the file, if the name of the variable is empty.
  std::string text(const std::string& variable, const std::string& attribute) const {
    const int id = idOf(variable);
    std::size_t length = 0;
    require(nc_inq_attlen(file, id, attribute.c_str(), &length));
    std::string value(length, '\0');
    require(nc_get_att_text(file, id, attribute.c_str(), value.data()));
    return value;
  }

  double number(const std::string& variable, const std::string& attribute) const {
    double value = 0.0;
    require(nc_get_att_double(file, idOf(variable), attribute.c_str(), &value));
    return value;
  }

  /// "time mesh2d_nFaces"
  std::string dimensions(const std::string& variable) const {
    std::string names;
    for (const int dimension : dimensionsOf(variable)) {
      std::string name(NC_MAX_NAME + 1, '\0');
      require(nc_inq_dimname(file, dimension, name.data()));
      names += (names.empty() ? "" : " ") + std::string(name.c_str());
    }
    return names;
  }

  std::vector<double> values(const std::string& variable) const {
    std::vector<double> numbers(sizeOf(variable));
    require(nc_get_var_double(file, idOf(variable), numbers.data()));
    return numbers;
  }

  std::string letters(const std::string& variable) const {
    std::string text(sizeOf(variable), ' ');
    require(nc_get_var_text(file, idOf(variable), text.data()));
    return text;
  }

 private:
  static void require(int status) {
    if (status != NC_NOERR) throw std::runtime_error(nc_strerror(status));
  }

  int idOf(const std::string& variable) const {
    int id = NC_GLOBAL;
    if (!variable.empty()) require(nc_inq_varid(file, variable.c_str(), &id));
    return id;
  }

  std::vector<int> dimensionsOf(const std::string& variable) const {
    int rank = 0;
    require(nc_inq_varndims(file, idOf(variable), &rank));
    std::vector<int> dimensions(static_cast<std::size_t>(rank));
    require(nc_inq_vardimid(file, idOf(variable), dimensions.data()));
    return dimensions;
  }

  std::size_t sizeOf(const std::string& variable) const {
    std::size_t size = 1;
    for (const int dimension : dimensionsOf(variable)) {
      std::size_t length = 0;
      require(nc_inq_dimlen(file, dimension, &length));
      size *= length;
    }
    return size;
  }

  int file = 0;
};

}  // namespace samples
