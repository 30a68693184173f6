#include "op/core/op_util.h"

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
void sort_range(const int* keys, int left, int right, Swap swap) {
  while (left < right) {
    const int pivot = keys[left + (right - left) / 2];
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

int compare_ints(const void* a, const void* b) {
  const int first = *static_cast<const int*>(a);
  const int second = *static_cast<const int*>(b);
  return static_cast<int>(first > second) - static_cast<int>(first < second);
}

}  // namespace

void op_fail(int status, const char* format, ...) {
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

char* op_copy_text(const char* text) {
  const std::size_t bytes = std::strlen(text) + 1;
  auto* const copy = static_cast<char*>(xmalloc(bytes));
  if (copy == nullptr) op_fail(-1, "\n");
  std::memcpy(copy, text, bytes);
  return copy;
}

bool op_same_text(const char* a, const char* b) {
  return std::strcmp(a, b) == 0;
}

int compute_local_size(int global_size, int blocks, int rank) {
  const int remainder = global_size % blocks;
  return global_size / blocks + (remainder > rank ? 1 : 0);
}

int min(const int* array, int size) {
  const int limit = 99;
  int smallest = -1;
  for (int i = 0; i < size; ++i) {
    if (array[i] < (smallest < 0 ? limit : array[smallest])) smallest = i;
  }
  return smallest;
}

int binary_search(const int* array, int value, int low, int high) {
  if (low > high) return -1;
  const int* const end = array + high + 1;
  const int* const place = std::lower_bound(array + low, end, value);
  return place != end && *place == value ? static_cast<int>(place - array) : -1;
}

int linear_search(const int* array, int value, int low, int high) {
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

int file_exist(const char* path) {
  std::error_code error;
  return std::filesystem::exists(path, error) ? 1 : 0;
}

int comp(const void* a, const void* b) {
  return compare_ints(a, b);
}

int comp2(const void* a, const void* b) {
  return compare_ints(a, b);
}
