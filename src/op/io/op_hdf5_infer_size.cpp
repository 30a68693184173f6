#include <hdf5.h>

#include <cstdio>

#include "op/core/op_seq.h"
#include "op/core/op_util.h"
#include "op/io/op_hdf5.h"
#include "op/io/op_hdf5_dataset.h"

op_set op_decl_set_hdf5_infer_size(const char* file, const char* name, const char* dataset) {
  const H5Handle source(op_hdf5_open_source(file, "op_decl_set_hdf5_infer_size"), H5Fclose);
  H5Eset_auto2(H5E_DEFAULT, nullptr, nullptr);
  if (!op_hdf5_holds(source.get(), dataset)) {
    op_fail(2, "Dataset '%s' not found in file '%s'\n", dataset, file);
  }
  const H5Handle opened(op_hdf5_open_dataset(source.get(), dataset), H5Dclose);
  if (!opened) {
    std::printf("Could not open dataset '%s' in file '%s'\n", dataset, file);
    return nullptr;
  }
  op_hdf5_dataset_properties properties{};
  if (get_dataset_properties(opened.get(), &properties) != 0) {
    op_fail(2, "Could not access dataset '%s' in file '%s'\n", dataset, file);
  }
  return op_decl_set(properties.size, name);
}
