// Text files of cards: lines that begin with a keyword, the rest being numbers and names. Lines
// end with LF, CR LF or CR.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace setup {

/// The whole file, without a byte order mark; nothing if it cannot be read.
std::optional<std::string> readTextFile(const std::string& file);

/// The words of a line, blanks and tabs being what separates them. The views end with `line`.
void splitWords(std::string_view line, std::vector<std::string_view>& words);

/// Calls `visit` for each line; lines are counted from 1.
void forEachLine(std::string_view text,
                 const std::function<void(int number, std::string_view line)>& visit);

/// The number that the whole word stands for; nothing for any other word, and for numbers that are
/// not finite or beyond the range of the type. A plus sign in front is allowed.
std::optional<long> toInteger(std::string_view word);
std::optional<double> toNumber(std::string_view word);

}  // namespace setup
