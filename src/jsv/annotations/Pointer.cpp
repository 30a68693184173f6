#include "jsv/annotations/Pointer.h"

#include <algorithm>
#include <vector>

namespace jsv {
namespace {

std::vector<std::string> tokensOf(JsonPointer pointer) {
  std::vector<std::string> tokens;
  while (!pointer.empty()) {
    tokens.push_back(pointer.back());
    pointer.pop_back();
  }
  std::reverse(tokens.begin(), tokens.end());
  return tokens;
}

void appendEscaped(const std::string& token, std::string& text) {
  for (const char letter : token) {
    if (letter == '~') {
      text += "~0";
    } else if (letter == '/') {
      text += "~1";
    } else {
      text += letter;
    }
  }
}

}  // namespace

std::string toText(const JsonPointer& pointer) {
  if (pointer.empty()) return "/";
  std::string text;
  for (const auto& token : tokensOf(pointer)) {
    text += '/';
    appendEscaped(token, text);
  }
  return text;
}

}  // namespace jsv
