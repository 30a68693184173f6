#include "op/io/op_dump.h"

#include <cstddef>
#include <cstdio>
#include <cstring>
#include <string_view>

#include "op/core/op_type.h"
#include "op/core/op_util.h"

namespace {

bool starts_with(const char* text, std::string_view start) {
  return std::string_view(text).substr(0, start.size()) == start;
}

std::size_t value_bytes(op_dat dat) {
  return static_cast<std::size_t>(dat->size / dat->dim);
}

[[noreturn]] void fail_width(op_dat dat) {
  op_fail(2, "dat %s has values of %zu bytes, which is not the size of its type %s\n", dat->name,
          value_bytes(dat), dat->type);
}

/// Prints all values, with `row_end` behind those of each element.
template <class T>
void print_values(std::FILE* file, op_dat dat, const char* format, const char* row_end) {
  const char* value = dat->data;
  for (int e = 0; e < dat->set->size; ++e) {
    for (int d = 0; d < dat->dim; ++d, value += sizeof(T)) {
      T number{};
      std::memcpy(&number, value, sizeof(T));
      std::fprintf(file, format, number);  // NOLINT(clang-diagnostic-format-nonliteral)
    }
    std::fputs(row_end, file);
  }
}

// One value a line. What is called real can be of four or of eight bytes.
void dump_values(op_dat dat) {
  const bool isReal = starts_with(dat->type, "real");
  const bool isInteger = starts_with(dat->type, "integer");
  const std::size_t bytes = value_bytes(dat);
  if (isReal && bytes == sizeof(double)) return print_values<double>(stdout, dat, "%lf\n", "");
  if (isReal && bytes == sizeof(float)) return print_values<float>(stdout, dat, "%f\n", "");
  if (isInteger && bytes == sizeof(int)) return print_values<int>(stdout, dat, "%d\n", "");
  if (isReal || isInteger) fail_width(dat);
  op_fail(0, "Unsupported type for dumping %s\n", dat->type);
}

void write_rows(std::FILE* file, op_dat dat) {
  const op_type type = op_type_of(dat->type);
  const std::size_t bytes = value_bytes(dat);
  if (type == op_type::Double) return print_values<double>(file, dat, "%lf ", "\n");
  if (type == op_type::Float) return print_values<float>(file, dat, "%f ", "\n");
  if (type == op_type::Long && bytes == sizeof(long)) {
    return print_values<long>(file, dat, "%ld ", "\n");
  }
  print_values<int>(file, dat, "%d ", "\n");
}

// Before the file is touched: one of that name would be lost.
void require_rows(op_dat dat, const char* path) {
  const op_type type = op_type_of(dat->type);
  if (type == op_type::Unknown || type == op_type::LongLong) {
    op_fail(2, "Unknown type %s, cannot be written to file %s\n", dat->type, path);
  }
  const std::size_t bytes = value_bytes(dat);
  // Dats of type "long" have four bytes when the runtime has read them.
  const bool isLong = type == op_type::Long && bytes == sizeof(long);
  if (!isLong && bytes != (type == op_type::Double ? sizeof(double) : sizeof(int))) {
    fail_width(dat);
  }
}

void require_dat(op_dat dat, const char* path) {
  if (dat == nullptr) op_fail(2, "There is no dat to write to file %s\n", path);
}

std::FILE* open_output(const char* path, const char* mode) {
  std::FILE* const file = std::fopen(path, mode);
  if (file == nullptr) op_fail(2, "can't open file %s\n", path);
  return file;
}

}  // namespace

void op_dump_dat(op_dat dat) {
  std::fflush(stdout);
  if (dat == nullptr) return;
  dump_values(dat);
  std::fflush(stdout);
}

void op_print_dat_to_binfile(op_dat dat, const char* path) {
  op_print_dat_to_binfile_core(dat, path);
}

void op_print_dat_to_binfile_core(op_dat dat, const char* path) {
  require_dat(dat, path);
  std::FILE* const file = open_output(path, "wb");
  // Without a buffer each write tells whether it succeeded.
  std::setvbuf(file, nullptr, _IONBF, 0);
  const auto rows = static_cast<std::size_t>(dat->set->size);
  const auto bytes = static_cast<std::size_t>(dat->size);
  if (std::fwrite(&dat->set->size, sizeof(int), 1, file) < 1) {
    op_fail(2, "error writing to %s", path);
  }
  const bool hasDim = std::fwrite(&dat->dim, sizeof(int), 1, file) == 1;
  const bool hasRows = rows == 0 || std::fwrite(dat->data, bytes, rows, file) == rows;
  if (std::fclose(file) != 0 || !hasDim || !hasRows) op_fail(2, "error writing to %s\n", path);
}

void op_print_dat_to_txtfile(op_dat dat, const char* path) {
  op_print_dat_to_txtfile_core(dat, path);
}

void op_print_dat_to_txtfile_core(op_dat dat, const char* path) {
  require_dat(dat, path);
  require_rows(dat, path);
  std::FILE* const file = open_output(path, "w");
  std::fprintf(file, "%d %d\n", dat->set->size, dat->dim);
  write_rows(file, dat);
  const bool isWritten = std::ferror(file) == 0;
  if (std::fclose(file) != 0 || !isWritten) op_fail(2, "error writing to %s\n", path);
}
