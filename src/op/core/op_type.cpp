#include "op/core/op_type.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

op_type op_type_of(const char* name) {
  using Entry = std::pair<std::string_view, op_type>;
  static constexpr std::array<Entry, 17> NAMES{{
      {"double", op_type::Double},
      {"double:soa", op_type::Double},
      {"double precision", op_type::Double},
      {"real(8)", op_type::Double},
      {"float", op_type::Float},
      {"float:soa", op_type::Float},
      {"real(4)", op_type::Float},
      {"real", op_type::Float},
      {"int", op_type::Int},
      {"int:soa", op_type::Int},
      {"int(4)", op_type::Int},
      {"integer", op_type::Int},
      {"integer(4)", op_type::Int},
      {"long", op_type::Long},
      {"long:soa", op_type::Long},
      {"long long", op_type::LongLong},
      {"long long:soa", op_type::LongLong},
  }};
  const auto* const found = std::find_if(NAMES.begin(), NAMES.end(),
                                         [=](const Entry& entry) { return entry.first == name; });
  return found == NAMES.end() ? op_type::Unknown : found->second;
}

bool op_type_is_stored(const char* name) {
  static constexpr std::string_view SUFFIX = ":soa";
  static constexpr std::array<std::string_view, 5> NAMES{"double", "float", "int", "long",
                                                         "long long"};
  std::string_view type(name);
  if (type.ends_with(SUFFIX)) type.remove_suffix(SUFFIX.size());
  return std::find(NAMES.begin(), NAMES.end(), type) != NAMES.end();
}
