#include "op/op_util.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <system_error>

namespace {

// Hoare's scheme; `swap` exchanges two entries together with what belongs to them.
template <class Swap>
void sort_range(int const* keys, int left, int right, Swap swap) {
  while (left < right) {
    int const pivot = keys[left + (right - left) / 2];
    int i = left;
    int j = right;
    while (i <= j) {
      while (keys[i] < pivot) ++i;
      while (keys[j] > pivot) --j;
      if (i <= j) swap(i++, j--);
    }
    // The shorter part by recursion keeps the depth logarithmic.
    if (j - left < right - i) {
      sort_range(keys, left, j, swap);
      left = i;
    } else {
      sort_range(keys, i, right, swap);
      right = j;
    }
  }
}

template <class T>
void swap_rows(T* rows, int i, int j, int width) {
  T* const first = rows + static_cast<std::ptrdiff_t>(i) * width;
  T* const second = rows + static_cast<std::ptrdiff_t>(j) * width;
  if (first != second) std::swap_ranges(first, first + width, second);
}

int compare_ints(void const* a, void const* b) {
  int const first = *static_cast<int const*>(a);
  int const second = *static_cast<int const*>(b);
  return static_cast<int>(first > second) - static_cast<int>(first < second);
}

}  // namespace

void op_fail(int status, char const* format, ...) {
  va_list arguments;
  va_start(arguments, format);
  // NOLINTNEXTLINE(clang-analyzer-valist.Uninitialized): it is not, the line above fills it
  std::vprintf(format, arguments);
  va_end(arguments);
  std::fflush(stdout);
  std::exit(status);
}

void* op_malloc(std::size_t size) {
  return std::malloc(size);
}

void* op_calloc(std::size_t count, std::size_t size) {
  return std::calloc(count, size);
}

void* op_realloc(void* ptr, std::size_t size) {
  return std::realloc(ptr, size);
}

void op_free(void* ptr) {
  std::free(ptr);
}

void* xmalloc(std::size_t size) {
  if (size == 0) return nullptr;
  void* const memory = op_malloc(size);
  if (memory == nullptr) std::printf("Virtual memory exhausted at malloc");
  return memory;
}

void* xrealloc(void* ptr, std::size_t size) {
  if (size == 0) {
    op_free(ptr);
    return nullptr;
  }
  void* const memory = op_realloc(ptr, size);
  if (memory == nullptr) std::printf("Virtual memory exhausted at realloc");
  return memory;
}

void* xcalloc(std::size_t count, std::size_t size) {
  if (size == 0) return nullptr;
  void* const memory = op_calloc(count, size);
  if (memory == nullptr) std::printf("Virtual memory exhausted at malloc");
  return memory;
}

char* op_copy_text(char const* text) {
  std::size_t const bytes = std::strlen(text) + 1;
  auto* const copy = static_cast<char*>(xmalloc(bytes));
  if (copy == nullptr) op_fail(-1, "\n");
  std::memcpy(copy, text, bytes);
  return copy;
}

bool op_same_text(char const* a, char const* b) {
  return std::strcmp(a, b) == 0;
}

int compute_local_size(int global_size, int blocks, int rank) {
  int const remainder = global_size % blocks;
  return global_size / blocks + (remainder > rank ? 1 : 0);
}

int min(int const* array, int size) {
  int const limit = 99;
  int smallest = -1;
  for (int i = 0; i < size; ++i) {
    if (array[i] < (smallest < 0 ? limit : array[smallest])) smallest = i;
  }
  return smallest;
}

int binary_search(int const* array, int value, int low, int high) {
  if (low > high) return -1;
  int const* const end = array + high + 1;
  int const* const place = std::lower_bound(array + low, end, value);
  return place != end && *place == value ? static_cast<int>(place - array) : -1;
}

int linear_search(int const* array, int value, int low, int high) {
  for (int i = low; i <= high; ++i) {
    if (array[i] == value) return i;
  }
  return -1;
}

void quickSort(int* keys, int left, int right) {
  sort_range(keys, left, right, [=](int i, int j) { std::swap(keys[i], keys[j]); });
}

void quickSort_2(int* keys, int* other, int left, int right) {
  sort_range(keys, left, right, [=](int i, int j) {
    std::swap(keys[i], keys[j]);
    std::swap(other[i], other[j]);
  });
}

void quickSort_dat(int* keys, char* rows, int left, int right, int row_bytes) {
  sort_range(keys, left, right, [=](int i, int j) {
    std::swap(keys[i], keys[j]);
    swap_rows(rows, i, j, row_bytes);
  });
}

void quickSort_map(int* keys, int* map, int left, int right, int dim) {
  sort_range(keys, left, right, [=](int i, int j) {
    std::swap(keys[i], keys[j]);
    swap_rows(map, i, j, dim);
  });
}

int removeDups(int* array, int size) {
  return static_cast<int>(std::unique(array, array + size) - array);
}

int file_exist(char const* path) {
  std::error_code error;
  return std::filesystem::exists(path, error) ? 1 : 0;
}

int comp(void const* a, void const* b) {
  return compare_ints(a, b);
}

int comp2(void const* a, void const* b) {
  return compare_ints(a, b);
}
