// What the whole runtime leans on: ending the process with a message, memory, and small tools for
// int arrays and files.
//
//   op_fail(2, "File %s does not exist\n", path);    // message on standard output, exit status 2
//
// Include this inside the runtime only; applications need op_seq.h.
#pragma once

#include <cstddef>

/// Prints as printf does, flushes standard output and ends the process with `status`.
[[noreturn]] [[gnu::format(printf, 2, 3)]] void op_fail(int status, const char* format, ...);

/// The allocator of the runtime: what it hands out is given back with op_free.
void* op_malloc(std::size_t size);
void* op_calloc(std::size_t count, std::size_t size);
void* op_realloc(void* ptr, std::size_t size);
void op_free(void* ptr);

/// As the allocator, but null for a size of 0, and a message on standard output before the null of
/// an exhausted memory. xrealloc frees `ptr` when the size is 0.
void* xmalloc(std::size_t size);
void* xrealloc(void* ptr, std::size_t size);
void* xcalloc(std::size_t count, std::size_t size);

/// A private copy of a text, with its terminating zero. Ends the process if memory runs out.
char* op_copy_text(const char* text);

/// True if the two texts are the same.
bool op_same_text(const char* a, const char* b);

/// Number of elements of block `rank` when `global_size` elements are dealt out to `blocks` blocks.
int compute_local_size(int global_size, int blocks, int rank);

/// Index of the smallest entry among those below 99, or -1 if there is none.
int min(const int* array, int size);

/// Index of `value` in the entries `low` to `high` (both included), or -1. The binary search needs
/// them sorted ascending.
int binary_search(const int* array, int value, int low, int high);
int linear_search(const int* array, int value, int low, int high);

/// Sort the entries `left` to `right` (both included) of `keys` ascending, in place; what belongs
/// to a key moves along: an entry of `other`, a row of `row_bytes` bytes of `rows`, a row of `dim`
/// ints of `map`.
void quickSort(int* keys, int left, int right);
void quickSort_2(int* keys, int* other, int left, int right);
void quickSort_dat(int* keys, char* rows, int left, int right, int row_bytes);
void quickSort_map(int* keys, int* map, int left, int right, int dim);

/// Keeps one of each run of equal entries of a sorted array. @return the new length
int removeDups(int* array, int size);

/// 1 if there is something of that name in the file system, else 0.
int file_exist(const char* path);

/// Comparators for qsort: of ints, and of pairs of ints by the first one.
int comp(const void* a, const void* b);
int comp2(const void* a, const void* b);
