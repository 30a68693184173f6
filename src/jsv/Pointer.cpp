#include "jsv/Pointer.h"

#include <vector>

namespace jsv {
namespace {

std::vector<std::string> tokensFromLastToFirst(JsonPointer pointer) {
  std::vector<std::string> tokens;
  while (!pointer.empty()) {
    tokens.push_back(pointer.back());
    pointer.pop_back();
  }
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
  const auto tokens = tokensFromLastToFirst(pointer);
  std::string text;
  for (auto token = tokens.rbegin(); token != tokens.rend(); ++token) {
    text += '/';
    appendEscaped(*token, text);
  }
  return text;
}

}  // namespace jsv
