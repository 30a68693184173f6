#include "export/formats/NcFile.h"

#include <fcntl.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <stdexcept>

#include "h5/journal/Descriptor.h"

namespace exporter {

namespace {

constexpr int COMPRESSION = 2;                  // of 9: more takes long and gains little
constexpr std::size_t MOST_IN_PIECE = 1000000;  // numbers
constexpr std::size_t OVERHEAD = 65536;         // of any write: what describes the pieces [bytes]
constexpr std::size_t HEADER = 4096;            // of a variable or attribute [bytes]

void require(int status) {
  if (status != NC_NOERR) throw std::runtime_error(nc_strerror(status));
}

void requireRoom(const std::string& file, std::size_t bytes) {
  if (h5::Descriptor(file, O_RDWR).reserve(bytes + bytes / 16 + OVERHEAD, 0)) return;
  throw std::runtime_error("the disk is full, or the size of files is limited");
}

/// Room on the disk is asked for the file itself, which must exist for that. The library creates it
/// only then.
void createEmpty(const std::string& file) {
  std::ofstream stream(file, std::ios::binary | std::ios::trunc);
  if (!stream) throw std::runtime_error("the folder is not yours, or on a disk that is read only");
}

}  // namespace

NcFile::NcFile(const std::string& fileName) : name(fileName) {
  createEmpty(name);
  requireRoom(name, 0);
  require(nc_create(name.c_str(), NC_NETCDF4 | NC_CLASSIC_MODEL | NC_CLOBBER, &id));
}

int NcFile::addDimension(const std::string& label, std::size_t length) {
  description += HEADER;
  int dimension = 0;
  require(nc_def_dim(id, label.c_str(), length, &dimension));
  return dimension;
}

std::vector<std::size_t> NcFile::lengthsOf(int variable) const {
  int rank = 0;
  require(nc_inq_varndims(id, variable, &rank));
  std::vector<int> dimensions(static_cast<std::size_t>(rank));
  require(nc_inq_vardimid(id, variable, dimensions.data()));
  std::vector<std::size_t> lengths(dimensions.size());
  for (std::size_t i = 0; i < dimensions.size(); ++i) {
    require(nc_inq_dimlen(id, dimensions[i], &lengths[i]));
  }
  return lengths;
}

int NcFile::addVariable(const std::string& label, nc_type type,
                        const std::vector<int>& dimensions) {
  description += 4 * HEADER;
  int variable = 0;
  require(nc_def_var(id, label.c_str(), type, static_cast<int>(dimensions.size()),
                     dimensions.data(), &variable));
  if (dimensions.empty()) return variable;
  require(nc_def_var_deflate(id, variable, NC_SHUFFLE, 1, COMPRESSION));
  require(nc_def_var_chunking(id, variable, NC_CHUNKED, lengthsOf(variable).data()));
  require(nc_set_var_chunk_cache(id, variable, 0, 1, 1.0F));  // no piece is written twice
  return variable;
}

void NcFile::expectEntries(int variable) {
  std::vector<std::size_t> piece = lengthsOf(variable);
  piece.front() = 1;
  require(nc_def_var_chunking(id, variable, NC_CHUNKED, piece.data()));
}

std::size_t NcFile::sizeOf(int variable) const {
  std::size_t size = 1;
  for (const std::size_t length : lengthsOf(variable)) size *= length;
  return size;
}

// The method of compression sees what repeats within 32 kB.
std::size_t NcFile::pieceWidth(int variable) const {
  const std::vector<std::size_t> lengths = lengthsOf(variable);
  return std::min(lengths.at(1), std::clamp<std::size_t>(MOST_IN_PIECE / lengths.at(0), 1, 1024));
}

void NcFile::expectEqualEntries(int variable) {
  const std::array<std::size_t, 2> piece = {lengthsOf(variable).at(0), pieceWidth(variable)};
  require(nc_def_var_chunking(id, variable, NC_CHUNKED, piece.data()));
}

void NcFile::attach(int variable, const std::string& label, const std::string& text) {
  description += HEADER + text.size();
  require(nc_put_att_text(id, variable, label.c_str(), text.size(), text.c_str()));
}

void NcFile::attach(int variable, const std::string& label, int value) {
  description += HEADER;
  require(nc_put_att_int(id, variable, label.c_str(), NC_INT, 1, &value));
}

void NcFile::attach(int variable, const std::string& label, double value) {
  description += HEADER;
  require(nc_put_att_double(id, variable, label.c_str(), NC_DOUBLE, 1, &value));
}

void NcFile::endDefinitions() {
  requireRoom(name, description);
  require(nc_enddef(id));
}

void NcFile::startWriting(std::size_t bytes) {
  require(nc_sync(id));
  requireRoom(name, bytes);
}

void NcFile::write(int variable, const double* values) {
  startWriting(sizeOf(variable) * sizeof(*values));
  require(nc_put_var_double(id, variable, values));
}

void NcFile::write(int variable, const int* values) {
  startWriting(sizeOf(variable) * sizeof(*values));
  require(nc_put_var_int(id, variable, values));
}

void NcFile::write(int variable, const char* values) {
  startWriting(sizeOf(variable));
  require(nc_put_var_text(id, variable, values));
}

void NcFile::writeEntry(int variable, std::size_t entry, const double* values) {
  std::vector<std::size_t> count = lengthsOf(variable);
  std::vector<std::size_t> start(count.size(), 0);
  start.front() = entry;
  count.front() = 1;
  startWriting(sizeOf(variable) / lengthsOf(variable).front() * sizeof(*values));
  require(nc_put_vara_double(id, variable, start.data(), count.data(), values));
}

void NcFile::writeEqualEntries(int variable, const double* values) {
  const std::size_t entries = lengthsOf(variable).at(0);
  const std::size_t width = lengthsOf(variable).at(1);
  const std::size_t step = pieceWidth(variable);
  for (std::size_t first = 0; first < width; first += step) {
    const std::array<std::size_t, 2> start = {0, first};
    const std::array<std::size_t, 2> count = {entries, std::min(step, width - first)};
    std::vector<double> piece;
    for (std::size_t entry = 0; entry < entries; ++entry) {
      piece.insert(piece.end(), values + first, values + first + count[1]);
    }
    startWriting(piece.size() * sizeof(*values));
    require(nc_put_vara_double(id, variable, start.data(), count.data(), piece.data()));
  }
}

void NcFile::finish() {
  startWriting(0);
  h5::Descriptor(name, O_RDWR).sync();
}

}  // namespace exporter
