#include <cstdio>

#include "op/core/op_type.h"
#include "op/core/op_util.h"
#include "op/io/op_hdf5.h"
#include "op/io/op_hdf5_dataset.h"

namespace {

// Values would be lost if a later dat of the same name took the place of an earlier one.
void require_names_differ() {
  for (const op_dat_entry* entry = OP_dat_list.first; entry != nullptr; entry = entry->next) {
    for (const op_dat_entry* later = entry->next; later != nullptr; later = later->next) {
      if (!op_same_text(entry->dat->name, later->dat->name)) continue;
      op_fail(2, "There are two dats of the name %s, which cannot both be written\n",
              entry->dat->name);
    }
  }
}

}  // namespace

void op_fetch_data_hdf5_file(op_dat dat, const char* file) {
  op_fetch_data_hdf5(dat, file, dat == nullptr ? "" : dat->name);
}

void op_dump_to_hdf5(const char* file) {
  std::printf("Writing to %s\n", file);
  require_names_differ();
  for (const op_dat_entry* entry = OP_dat_list.first; entry != nullptr; entry = entry->next) {
    const op_dat dat = entry->dat;
    if (!op_type_is_stored(dat->type)) {
      op_fail(2, "Unknown type for data elements %s\n", dat->type);
    }
    op_hdf5_write_dat(dat, file, dat->name);
  }
}
