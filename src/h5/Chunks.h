// The chunks in which a dataset stands in its file, each for itself through filters, of which
// deflate compresses. The library takes for granted that a chunk has its full size in the end.
//
//   const Chunks chunks(dataset, plan, extents, sizeof(double), fileSize);
//   const std::string fault = chunks.firstFault(look);
#pragma once

#include <hdf5.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "h5/shape.h"

namespace h5 {

class Chunks {
 public:
  /// @param dataset open, with a chunked layout
  /// @param plan its property list
  /// @param extents of the dataset, none of them 0
  /// @param valueSize of a value in the file [bytes]
  /// @param fileSize [bytes]
  Chunks(hid_t dataset, hid_t plan, const Shape& extents, std::size_t valueSize,
         std::uint64_t fileSize);

  /// Takes the values of a chunk, as they were before any filter.
  using Look = std::function<std::string(const std::vector<char>&)>;

  /// Looks at all chunks that have been written, up to the first with which something is wrong.
  /// @return what is wrong, to stand behind the name of the dataset; empty if nothing is
  std::string firstFault(const Look& look) const;

 private:
  struct Filter {
    H5Z_filter_t id;
    unsigned parameter;  ///< the first one, 0 if there is none
  };

  void readFilters(hid_t plan);
  std::string planFault() const;
  std::string faultAt(const Shape& corner, const Look& look) const;
  bool undoFilters(std::vector<char>& values, unsigned skipped) const;

  hid_t chunked;
  Shape whole;
  Shape chunk;
  std::uint64_t fileBytes;
  std::vector<Filter> filters;   ///< in the order of writing
  std::uint64_t chunkBytes = 0;  ///< without filters; 0 if that is more than the file can hold
};

}  // namespace h5
