#include "setup/domain/Series.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include "common/console.h"
#include "setup/study/document/text_files.h"

namespace console = common::console;

namespace setup {

namespace {

template <class... Parts>
[[noreturn]] void refuse(const std::string& file, int line, const Parts&... parts) {
  if (line == 0) console::fail("series file <", file, ">: ", parts...);
  console::fail("series file <", file, ">, line ", line, ": ", parts...);
}

/// A comma stands for the blanks around it. Two in a row leave an empty column, which is a fault.
std::vector<std::string_view> columnsOf(std::string_view line) {
  line = line.substr(0, line.find('#'));
  std::vector<std::string_view> words;
  splitWords(line, words);
  if (words.empty()) return {};
  const auto comma = line.find(',');
  if (comma == std::string_view::npos) return words;
  std::vector<std::string_view> columns;
  for (std::size_t begin = 0; begin <= line.size();) {
    const std::size_t end = std::min(line.find(',', begin), line.size());
    splitWords(line.substr(begin, end - begin), words);
    if (words.empty()) words.emplace_back();
    columns.insert(columns.end(), words.begin(), words.end());
    begin = end + 1;
  }
  return columns;
}

std::array<double, 2> pointOf(const std::vector<std::string_view>& columns, const std::string& file,
                              int line) {
  if (columns.size() != 2) {
    refuse(file, line, "there must be two numbers, but there are ", columns.size(), " columns");
  }
  std::array<double, 2> point{};
  for (std::size_t k = 0; k < 2; ++k) {
    const std::optional<double> value = toNumber(columns[k]);
    if (!value) {
      refuse(file, line, "<", columns[k],
             "> is not a number; lines of text must begin with #, decimals with a point");
    }
    point[k] = *value;
  }
  if (point[0] == model::MISSING_VALUE) {
    refuse(file, line, columns[0], " is not possible in the first column");
  }
  return point;
}

}  // namespace

Series readSeries(const std::string& file) {
  const std::optional<std::string> text = readTextFile(file);
  if (!text) refuse(file, 0, "the file cannot be read");
  Series series;
  series.file = file;
  forEachLine(*text, [&series, &file](int number, std::string_view line) {
    const std::vector<std::string_view> columns = columnsOf(line);
    if (columns.empty()) return;
    const std::array<double, 2> point = pointOf(columns, file, number);
    if (!series.points.empty() && point[0] < series.points.back()[0]) {
      refuse(file, number, "the first column descends from ", series.points.back()[0], " to ",
             point[0], ", but it must ascend");
    }
    series.points.push_back(point);
  });
  if (series.points.empty()) refuse(file, 0, "there is no point in it");
  if (series.points.size() > MOST_SERIES_POINTS) {
    refuse(file, 0, "there are ", series.points.size(), " points, ",
           series.points.size() - MOST_SERIES_POINTS, " more than the ", MOST_SERIES_POINTS,
           " that are possible");
  }
  return series;
}

int SeriesList::add(const std::string& file, double factor) {
  const auto found = std::find_if(list.begin(), list.end(), [&](const Series& series) {
    return series.file == file && series.factor == factor;
  });
  const auto position = static_cast<int>(found - list.begin());
  if (found == list.end()) {
    list.push_back(readSeries(file));
    list.back().factor = factor;
  }
  return position;
}

}  // namespace setup
