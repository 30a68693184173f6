#include "setup/study/document/text_files.h"

#include <charconv>
#include <cmath>
#include <fstream>
#include <iterator>

namespace setup {

namespace {

constexpr std::string_view BLANKS = " \t\v\f";
constexpr std::string_view BYTE_ORDER_MARK = "\xEF\xBB\xBF";

template <class T>
std::optional<T> convert(std::string_view word) {
  if (word.size() > 1 && word.front() == '+' && word[1] != '-') word.remove_prefix(1);
  T value{};
  const char* const end = word.data() + word.size();
  const auto [last, fault] = std::from_chars(word.data(), end, value);
  if (fault != std::errc() || last != end) return {};
  return value;
}

}  // namespace

std::optional<std::string> readTextFile(const std::string& file) {
  std::ifstream stream(file, std::ios::binary);
  if (!stream.is_open()) return {};
  stream.peek();  // a directory can be opened, but not read
  if (stream.bad()) return {};
  std::string text{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
  if (text.compare(0, BYTE_ORDER_MARK.size(), BYTE_ORDER_MARK) == 0) {
    text.erase(0, BYTE_ORDER_MARK.size());
  }
  return text;
}

void splitWords(std::string_view line, std::vector<std::string_view>& words) {
  words.clear();
  std::size_t begin = line.find_first_not_of(BLANKS);
  while (begin != std::string_view::npos) {
    const std::size_t end = line.find_first_of(BLANKS, begin);
    words.push_back(line.substr(begin, end - begin));
    begin = line.find_first_not_of(BLANKS, end);
  }
}

void forEachLine(std::string_view text,
                 const std::function<void(int number, std::string_view line)>& visit) {
  int number = 0;
  while (!text.empty()) {
    const std::size_t end = text.find_first_of("\r\n");
    visit(++number, text.substr(0, end));
    if (end == std::string_view::npos) break;
    const bool isPair = text.substr(end, 2) == "\r\n";
    text.remove_prefix(end + (isPair ? 2 : 1));
  }
}

std::optional<long> toInteger(std::string_view word) {
  return convert<long>(word);
}

std::optional<double> toNumber(std::string_view word) {
  const std::optional<double> value = convert<double>(word);
  if (value && !std::isfinite(*value)) return {};
  return value;
}

}  // namespace setup
