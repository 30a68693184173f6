// Walks over bytes of a file, and never beyond them: what is said about lengths in a file need not
// be true.
//
//   Cursor cursor(bytes);
//   const std::uint64_t size = cursor.number(2);
//   Cursor name = cursor.take(size);      // throws Broken if that many bytes do not follow
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace h5 {

/// What is wrong with an object of a file, to stand behind its name.
class Broken : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

class Cursor {
 public:
  /// @param text stays longer than this
  explicit Cursor(std::string_view text) noexcept : bytes(text) {}

  std::string_view rest() const noexcept { return bytes; }

  /// The next bytes, for themselves.
  /// @throws Broken if fewer follow, as all below
  Cursor take(std::uint64_t count) {
    if (count > bytes.size()) throw Broken("has a header whose parts are larger than their room");
    const Cursor taken(bytes.substr(0, count));
    bytes.remove_prefix(count);
    return taken;
  }

  void skip(std::uint64_t count) { take(count); }

  /// @param width at most 8 [bytes], the lowest first
  std::uint64_t number(std::size_t width) {
    const std::string_view digits = take(width).bytes;
    std::uint64_t value = 0;
    for (std::size_t i = digits.size(); i-- > 0;) {
      value = value << 8U | static_cast<unsigned char>(digits[i]);
    }
    return value;
  }

  /// Up to a zero, which is gone, too.
  std::string text() {
    const std::size_t length = std::min(bytes.find('\0'), bytes.size());
    std::string found(take(length).bytes);
    skip(1);
    return found;
  }

 private:
  std::string_view bytes;
};

}  // namespace h5
