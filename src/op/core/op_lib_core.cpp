#include "op/core/op_lib_core.h"

#include <algorithm>
#include <climits>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "op/core/op_util.h"

int OP_diags = 0;
int OP_part_size = 0;
int OP_block_size = 64;
int OP_cache_line_size = 128;
double OP_hybrid_balance = 1.0;
int OP_auto_soa = 0;
int OP_gpu_direct = 0;
int OP_hybrid_gpu = 0;
int OP_maps_base_index = 0;

op_set* OP_set_list = nullptr;
int OP_set_index = 0;
int OP_set_max = 0;
op_map* OP_map_list = nullptr;
int OP_map_index = 0;
int OP_map_max = 0;
op_dat_queue OP_dat_list{nullptr, &OP_dat_list.first};
int OP_dat_index = 0;
op_kernel* OP_kernels = nullptr;
int OP_kern_max = 0;
int OP_kern_curr = 0;
op_plan* OP_plans = nullptr;
int OP_plan_index = 0;
int OP_plan_max = 0;
double OP_plan_time = 0.0;

namespace {

constexpr int LIST_STEP = 10;  // entries by which a full list grows

std::size_t table_size(op_set from, int dim) {
  return static_cast<std::size_t>(from->size) * static_cast<std::size_t>(dim);
}

// Makes room for one more entry; `message` is the last word if there is none.
template <class T>
void grow_if_full(T*& list, int count, int& capacity, const char* message) {
  if (count < capacity) return;
  capacity += LIST_STEP;
  // NOLINTNEXTLINE(bugprone-sizeof-expression): the lists hold pointers
  list = static_cast<T*>(op_realloc(list, static_cast<std::size_t>(capacity) * sizeof(T)));
  if (list == nullptr) op_fail(-1, "%s", message);
}

// A zeroed record.
template <class T>
T* new_record(const char* message) {
  auto* const record = static_cast<T*>(op_calloc(1, sizeof(T)));
  if (record == nullptr) op_fail(-1, "%s", message);
  return record;
}

void free_text(const char* text) {
  op_free(const_cast<char*>(text));
}

void append_dat(op_dat dat) {
  auto* const entry = new_record<op_dat_entry>(
      " op_decl_dat error -- error allocating memory to double linked list entry");
  entry->dat = dat;
  entry->prev = OP_dat_list.last;
  *OP_dat_list.last = entry;
  OP_dat_list.last = &entry->next;
}

// Takes the entry out of the list and frees it with its dat.
void drop_dat(op_dat_entry* entry) {
  *entry->prev = entry->next;
  if (entry->next != nullptr) {
    entry->next->prev = entry->prev;
  } else {
    OP_dat_list.last = entry->prev;
  }
  const op_dat dat = entry->dat;
  if (dat->user_managed == 0) op_free(dat->data);
  free_text(dat->name);
  free_text(dat->type);
  op_free(dat);
  op_free(entry);
}

// The text behind `key` in `arg`, if the key occurs; `length` characters are taken from its start.
bool find_setting(const char* arg, const char* key, std::size_t length, std::string& value) {
  const char* const place = std::strstr(arg, key);
  if (place == nullptr) return false;
  value = std::string(place).substr(0, length).substr(std::strlen(key));
  return true;
}

void set_maps_base_index(int base) {
  const int previous = OP_maps_base_index;
  OP_maps_base_index = base;
  if (base < 0 || base > 1) {
    std::printf(
        "\n Unsupported OP_maps_base_index : %d --       reverting to C/C++ style (i.e. 0 besed) "
        "indexing \n",
        base);
  } else if (base != previous) {
    std::printf("\n OP_maps_base_index  = %d (Default value %d overridden)\n", base, previous);
  }
}

void enable_soa() {
  OP_auto_soa = 1;
  std::printf("\n Enabling Automatic AoS->SoA Conversion\n");
}

void set_hybrid_balance(const char* value) {
  OP_hybrid_balance = std::atof(value);
  std::printf("\n OP_hybrid_balance  = %g \n", OP_hybrid_balance);
}

}  // namespace

void op_init_core(int argc, char** argv, int diags) {
  std::printf("\n Initializing SKEILID\n");
  OP_diags = diags;
  if (const char* const balance = std::getenv("OP_HYBRID_BALANCE")) set_hybrid_balance(balance);
  if (std::getenv("OP_AUTO_SOA") != nullptr || OP_auto_soa == 1) enable_soa();
  if (OP_maps_base_index != 0) {
    std::printf(
        "\n Application written using Fortran API:     \n Default OP_maps_base_index = %d "
        "assumed\n",
        OP_maps_base_index);
  }
  for (int i = 1; i < argc; ++i) op_set_args(argc, argv[i]);
  OP_dat_list.first = nullptr;
  OP_dat_list.last = &OP_dat_list.first;
}

void op_set_args(int /*argc*/, const char* arg) {
  std::string value;
  if (find_setting(arg, "OP_BLOCK_SIZE=", 20, value)) {
    OP_block_size = std::atoi(value.c_str());
    std::printf("\n OP_block_size = %d \n", OP_block_size);
  }
  if (find_setting(arg, "OP_PART_SIZE=", 20, value)) {
    OP_part_size = std::atoi(value.c_str());
    std::printf("\n OP_part_size = %d \n", OP_part_size);
  }
  if (find_setting(arg, "OP_CACHE_LINE_SIZE=", 25, value)) {
    OP_cache_line_size = std::atoi(value.c_str());
    std::printf("\n OP_cache_line_size  = %d \n", OP_cache_line_size);
  }
  if (std::strstr(arg, "-gpudirect") != nullptr) {
    OP_gpu_direct = 1;
    std::printf("\n Enabling GPU Direct\n");
  }
  if (std::strstr(arg, "OP_AUTO_SOA") != nullptr) enable_soa();
  if (find_setting(arg, "OP_HYBRID_BALANCE=", 25, value)) set_hybrid_balance(value.c_str());
  if (find_setting(arg, "OP_MAPS_BASE_INDEX=", 25, value)) {
    set_maps_base_index(std::atoi(value.c_str()));
  }
}

op_set op_decl_set_core(int size, const char* name) {
  if (size < 0) op_fail(-1, " op_decl_set error -- negative/zero size for set: %s\n", name);
  const char* const exhausted = " op_decl_set error -- error reallocating memory";
  grow_if_full(OP_set_list, OP_set_index, OP_set_max, exhausted);
  auto* const set = new_record<op_set_core>(exhausted);
  set->index = OP_set_index;
  set->size = size;
  set->core_size = size;
  set->name = op_copy_text(name);
  OP_set_list[OP_set_index++] = set;
  return set;
}

void op_require_map(op_set from, op_set to, int dim, const char* name) {
  if (from == nullptr) op_fail(-1, " op_decl_map error -- invalid 'from' set for map %s\n", name);
  if (to == nullptr) op_fail(-1, "op_decl_map error -- invalid 'to' set for map %s\n", name);
  if (dim < 1) op_fail(-1, "op_decl_map error -- negative/zero dimension for map %s\n", name);
}

op_map op_decl_map_core(op_set from, op_set to, int dim, int* table, const char* name) {
  op_require_map(from, to, dim, name);
  const char* const exhausted = " op_decl_map error -- error reallocating memory";
  grow_if_full(OP_map_list, OP_map_index, OP_map_max, exhausted);
  if (OP_maps_base_index == 1) {
    // Unsigned, since a table from a file can hold anything.
    for (std::size_t i = 0; i < table_size(from, dim); ++i) {
      table[i] = static_cast<int>(static_cast<unsigned>(table[i]) - 1U);
    }
  }
  auto* const map = new_record<op_map_core>(exhausted);
  map->index = OP_map_index;
  map->from = from;
  map->to = to;
  map->dim = dim;
  map->map = table;
  map->name = op_copy_text(name);
  map->user_managed = 1;
  OP_map_list[OP_map_index++] = map;
  return map;
}

void check_map(const char* name, op_set from, op_set to, int dim, const int* table) {
  for (std::size_t i = 0; i < table_size(from, dim); ++i) {
    if (table[i] >= 0 && table[i] < to->size) continue;
    const auto width = static_cast<std::size_t>(dim);
    std::printf("op_decl_map error -- invalid data for map %s\n", name);
    op_fail(-1, "element = %d, dimension = %d, map = %d\n", static_cast<int>(i / width),
            static_cast<int>(i % width), table[i]);
  }
}

void op_check_map_entry(op_map map, int row, int column) {
  const int entry = map->map[static_cast<std::ptrdiff_t>(row) * map->dim + column];
  if (entry >= 0 && entry < map->to->size) return;
  const int base = OP_maps_base_index == 1 ? 1 : 0;  // shown as the file counts
  const long long shown = static_cast<long long>(entry) + base;
  if (map->to->size == 0) {
    op_fail(2, "map %s: row %d, column %d holds %lld, but the set %s has no elements\n", map->name,
            row, column, shown, map->to->name);
  }
  op_fail(2, "map %s: row %d, column %d holds %lld, which is not in the range %d to %d of set %s\n",
          map->name, row, column, shown, base, map->to->size - 1 + base, map->to->name);
}

void op_require_dat(op_set set, int dim, const char* name) {
  if (set == nullptr) op_fail(-1, "op_decl_dat error -- invalid set for data: %s\n", name);
  if (dim < 1) op_fail(-1, "op_decl_dat error -- negative/zero dimension for data: %s\n", name);
}

op_dat op_decl_dat_core(op_set set, int dim, const char* type, int size, char* data,
                        const char* name) {
  op_require_dat(set, dim, name);
  if (size > INT_MAX / dim) {
    op_fail(-1, "op_decl_dat error -- %d values of %d bytes are too many for one element: %s\n",
            dim, size, name);
  }
  auto* const dat = new_record<op_dat_core>(" op_decl_dat error -- error allocating memory");
  dat->index = OP_dat_index++;
  dat->set = set;
  dat->dim = dim;
  dat->size = dim * size;
  dat->data = data;
  dat->type = op_copy_text(type);
  dat->name = op_copy_text(name);
  dat->user_managed = 1;
  append_dat(dat);
  return dat;
}

op_dat op_decl_dat_temp_core(op_set set, int dim, const char* type, int size, const char* name) {
  op_require_dat(set, dim, name);
  if (search_dat(set, dim, size, type, name) != nullptr) {
    op_fail(2, "op_dat with name %s already exists, cannot create temporary op_dat\n ", name);
  }
  const op_dat dat = op_decl_dat_core(set, dim, type, size, nullptr, name);
  dat->user_managed = 0;
  const auto elements = static_cast<std::size_t>(set->size);
  dat->data = static_cast<char*>(xcalloc(elements, static_cast<std::size_t>(dat->size)));
  if (dat->data == nullptr && elements > 0 && dat->size > 0) {
    op_fail(-1, "\nop_decl_dat error -- no memory for the values of data: %s\n", name);
  }
  return dat;
}

int op_free_dat_temp_core(op_dat dat) {
  op_dat_entry* const entry =
      search_dat(dat->set, dat->dim, dat->size / dat->dim, dat->type, dat->name);
  if (entry == nullptr) return -1;
  drop_dat(entry);
  return 1;
}

bool compare_sets(op_set a, op_set b) {
  return a->index == b->index && op_same_text(a->name, b->name);
}

op_dat_entry* search_dat(op_set set, int dim, int size, const char* type, const char* name) {
  for (op_dat_entry* entry = OP_dat_list.first; entry != nullptr; entry = entry->next) {
    const op_dat dat = entry->dat;
    if (op_same_text(dat->name, name) && dat->dim == dim && dat->size == dim * size &&
        compare_sets(dat->set, set) && op_same_text(dat->type, type)) {
      return entry;
    }
  }
  return nullptr;
}

void op_exit_core() {
  for (int i = 0; i < OP_set_index; ++i) {
    free_text(OP_set_list[i]->name);
    op_free(OP_set_list[i]);
  }
  op_free(OP_set_list);
  OP_set_list = nullptr;

  for (int i = 0; i < OP_map_index; ++i) {
    const op_map map = OP_map_list[i];
    if (map->user_managed == 0) op_free(map->map);
    free_text(map->name);
    op_free(map);
  }
  op_free(OP_map_list);
  OP_map_list = nullptr;

  while (OP_dat_list.first != nullptr) drop_dat(OP_dat_list.first);

  for (int i = 0; i < OP_kern_max; ++i) op_free(OP_kernels[i].times);
  op_free(OP_kernels);
  OP_kernels = nullptr;

  OP_set_index = OP_set_max = 0;
  OP_map_index = OP_map_max = 0;
  OP_dat_index = 0;
  OP_kern_max = 0;
}
