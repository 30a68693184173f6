// A new NetCDF file: dimensions, variables and attributes first, then the values.
//
//   exporter::NcFile file("out.nc");
//   const int faces = file.addDimension("face", 12);
//   const int depth = file.addVariable("depth", NC_DOUBLE, {faces});
//   file.attach(depth, "units", "m");
//   file.endDefinitions();
//   file.write(depth, values.data());
//   file.finish();
//
// Each operation throws std::runtime_error with the words of the library if it fails. Nothing is
// begun for which there is no room on the disk.
//
// A file stays open until the process ends by common::endWell() or endFailed(): the library falls
// over any failure while it closes one.
#pragma once

#include <netcdf.h>

#include <string>
#include <vector>

namespace exporter {

class NcFile {
 public:
  /// Replaces a file of this name. Its values are compressed, of any size, and read by programs
  /// that know the older data model only.
  explicit NcFile(const std::string& fileName);
  ~NcFile() = default;
  NcFile(const NcFile&) = delete;
  NcFile& operator=(const NcFile&) = delete;
  NcFile(NcFile&&) = delete;
  NcFile& operator=(NcFile&&) = delete;

  int addDimension(const std::string& label, std::size_t length);
  /// @param type NC_DOUBLE, NC_INT or NC_CHAR
  /// @param dimensions slowest first
  int addVariable(const std::string& label, nc_type type, const std::vector<int>& dimensions);

  /// Stores a variable so that the entries of its first dimension are written one by one.
  void expectEntries(int variable);
  /// Stores a variable of two dimensions so that equal entries of the first cost little.
  void expectEqualEntries(int variable);

  /// @param variable or NC_GLOBAL
  void attach(int variable, const std::string& label, const std::string& text);
  void attach(int variable, const std::string& label, int value);
  void attach(int variable, const std::string& label, double value);

  void endDefinitions();

  /// All values of a variable.
  void write(int variable, const double* values);
  void write(int variable, const int* values);
  void write(int variable, const char* values);
  /// One entry of its first dimension.
  void writeEntry(int variable, std::size_t entry, const double* values);

  /// The same for all entries of the first of two dimensions.
  void writeEqualEntries(int variable, const double* values);

  /// What has been written is complete, and on the disk, only after this.
  void finish();

 private:
  void startWriting(std::size_t bytes);
  std::vector<std::size_t> lengthsOf(int variable) const;
  std::size_t sizeOf(int variable) const;
  std::size_t pieceWidth(int variable) const;

  std::string name;
  int id = 0;
  std::size_t description = 0;  ///< size of what has been defined so far [bytes]
};

}  // namespace exporter
