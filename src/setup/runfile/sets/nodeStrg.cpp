#include "setup/runfile/sets/sets.h"

namespace setup {

namespace {

int size(const Domain& domain) {
  return static_cast<int>(domain.strings.size());
}

/// Rows of the greatest number of edges; what is behind the last edge of a string is 0.
std::vector<int> rows(const Domain& domain, std::vector<int> EdgeString::*list) {
  std::vector<int> values;
  for (const EdgeString& string : domain.strings) {
    const std::size_t end = values.size() + MOST_STRING_EDGES;
    values.insert(values.end(), (string.*list).begin(), (string.*list).end());
    values.resize(end, 0);
  }
  return values;
}

std::vector<int> edges(const Domain& domain) {
  return rows(domain, &EdgeString::edges);
}

std::vector<int> upstreamCells(const Domain& domain) {
  return rows(domain, &EdgeString::cells);
}

std::vector<int> signs(const Domain& domain) {
  return rows(domain, &EdgeString::signs);
}

std::vector<int> edgeCounts(const Domain& domain) {
  std::vector<int> counts;
  for (const EdgeString& string : domain.strings) {
    counts.push_back(static_cast<int>(string.edges.size()));
  }
  return counts;
}

std::vector<double> lengths(const Domain& domain) {
  std::vector<double> values;
  for (const EdgeString& string : domain.strings) values.push_back(string.length);
  return values;
}

std::vector<std::string> names(const Domain& domain) {
  std::vector<std::string> values;
  for (const EdgeString& string : domain.strings) values.push_back(string.name);
  return values;
}

}  // namespace

SetContent nodeStrg() {
  using enum model::MapID;
  using enum model::DataID;
  // clang-format off
  return {&size,
          {
            {NodeStrg_EdgesAll, &edges},
            {NodeStrg_CellsAll, &upstreamCells},
          },
          {
            {NodeStrg_ListSize, &edgeCounts},
            {NodeStrg_EdgeSign, &signs},
            {TotalLen,          &lengths},
            {StrNames,          &names},
          }};
  // clang-format on
}

}  // namespace setup
