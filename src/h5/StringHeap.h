// The texts of strings of variable length. In a dataset stands only where each of them lies: its
// length, the address of a collection of texts in the file, and its number there.
//
//   StringHeap heap(file, 0);
//   const std::string fault = heap.fault(values);
//
// The library reads a text of the length that the collection says into memory of the length that
// the dataset says, and does not miss a number that the collection lacks.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "h5/journal/JournaledFile.h"

namespace h5 {

class StringHeap {
 public:
  /// Bytes of a string in its dataset, with addresses of eight bytes.
  static constexpr std::size_t REFERENCE_SIZE = 16;

  /// @param file stays open longer than this
  /// @param base what addresses in the file count from [bytes]
  StringHeap(const JournaledFile& source, std::uint64_t base) : file(source), origin(base) {}

  /// @param references values of a dataset, as they stand in the file
  /// @return what is wrong with them, to stand behind the name of the dataset; empty if nothing is
  std::string fault(const std::vector<char>& references);

 private:
  using Lengths = std::map<std::uint32_t, std::uint64_t>;  ///< of texts, by number

  std::optional<Lengths> readCollection(std::uint64_t address) const;

  const JournaledFile& file;
  std::uint64_t origin;
  std::map<std::uint64_t, std::optional<Lengths>> collections;  ///< by address; none if broken
};

}  // namespace h5
