#include "op/core/op_arg.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>
#include <set>
#include <string>
#include <string_view>

#include "op/core/op_util.h"

namespace {

constexpr std::array<const char*, 4> SHARED_TYPES{"double", "float", "int", "bool"};

// The shared constant for a type string, or null.
const char* shared_type(const char* type) {
  const auto* const found = std::find_if(SHARED_TYPES.begin(), SHARED_TYPES.end(),
                                         [=](const char* t) { return op_same_text(t, type); });
  return found == SHARED_TYPES.end() ? nullptr : *found;
}

// A copy that lives as long as the process, one for each text: loops ask for the same ones again
// and again.
const char* kept_type(const char* type) {
  static std::set<std::string> types;
  return types.insert(type).first->c_str();
}

op_arg dat_argument(op_dat dat, int idx, op_map map, int dim, const char* type, op_access acc) {
  op_arg arg{};
  arg.index = -1;
  arg.dat = dat;
  arg.map = map;
  arg.dim = dim;
  arg.idx = idx;
  arg.size = dat == nullptr ? -1 : dat->size;
  arg.data = dat == nullptr ? nullptr : dat->data;
  arg.data_d = dat == nullptr ? nullptr : dat->data_d;
  const char* const shared = shared_type(type);
  arg.type = shared != nullptr ? shared : kept_type(type);
  arg.acc = acc;
  arg.argtype = 1;
  arg.opt = 1;
  return arg;
}

void take_table(op_arg& arg) {
  if (arg.map == nullptr) return;
  arg.map_data = arg.map->map;
  arg.map_data_d = arg.map->map_d;
}

void report(const char* message, int m, const char* name) {
  std::printf("error: arg %d in kernel \"%s\"\n", m, name);
  std::printf("%s \n", message);
}

bool starts_with(std::string_view text, std::string_view start) {
  return text.substr(0, start.size()) == start;
}

// Generated loops name the types in their short form.
bool is_short_form(std::string_view declared, std::string_view given) {
  if (declared == "double") {
    return starts_with(given, "r8") && (given.size() < 3 || given[2] != ':');
  }
  if (declared == "double:soa") return starts_with(given, "r8:");
  return declared == "int" && starts_with(given, "i4");
}

void check_dat_argument(op_set set, int m, const op_arg& arg, const char* name) {
  if (set == nullptr) return report("invalid set", m, name);
  if (arg.dat == nullptr) return report("invalid dat", m, name);
  if (arg.map != nullptr && (arg.map->from != set || arg.map->to != arg.dat->set)) {
    report("mapping error", m, name);
  }
  if (arg.map == nullptr && arg.dat->set != set) {
    report("dataset set does not match loop set", m, name);
  }
  const bool isColumn =
      arg.map == nullptr ? arg.idx == -1 : arg.idx >= -arg.map->dim && arg.idx < arg.map->dim;
  if (!isColumn) report("invalid index", m, name);
  if (arg.dat->dim != arg.dim) report("dataset dim does not match declared dim", m, name);
  if (!op_same_text(arg.dat->type, arg.type) && !is_short_form(arg.dat->type, arg.type)) {
    std::printf("%s %s %s (%s)\n", set->name, arg.dat->type, arg.type, arg.dat->name);
    report("dataset type does not match declared type", m, name);
  }
}

void check_global_argument(int m, const op_arg& arg, const char* name) {
  if (arg.type == nullptr || op_same_text(arg.type, "error")) {
    report("datatype does not match declared type", m, name);
  }
  if (arg.dim < 1) report("dimension should be strictly positive", m, name);
  if (arg.data == nullptr) report("NULL pointer for global data", m, name);
}

}  // namespace

op_arg op_arg_dat_core(op_dat dat, int idx, op_map map, int dim, const char* type, op_access acc) {
  op_arg arg = dat_argument(dat, idx, map, dim, type, acc);
  if (dat != nullptr && idx != -1) take_table(arg);
  return arg;
}

op_arg op_opt_arg_dat_core(int opt, op_dat dat, int idx, op_map map, int dim, const char* type,
                           op_access acc) {
  op_arg arg = dat_argument(dat, idx, map, dim, type, acc);
  arg.opt = opt;
  take_table(arg);
  return arg;
}

op_arg op_arg_gbl_core(char* data, int dim, const char* type, int size, op_access acc) {
  op_arg arg{};
  arg.index = -1;
  arg.dim = dim;
  arg.idx = -1;
  arg.size = dim * size;
  arg.data = data;
  arg.type = shared_type(type);
  arg.acc = acc;
  arg.opt = data == nullptr ? 0 : 1;
  return arg;
}

void op_arg_check(op_set set, int m, op_arg arg, int* ninds, const char* name) {
  if (arg.opt == 0) return;
  if (arg.argtype == 0) return check_global_argument(m, arg, name);
  check_dat_argument(set, m, arg, name);
  if (arg.idx >= 0) ++*ninds;
}

bool op_type_equivalence(const char* a, const char* b) {
  using Group = std::array<std::string_view, 4>;
  static constexpr std::array<Group, 3> GROUPS{{
      {"double", "double:soa", "real(8)", "double precision"},
      {"float", "float:soa", "real(4)", "real"},
      {"int", "int:soa", "integer(4)", "integer"},
  }};
  const auto holds = [](const Group& group, const char* type) {
    return std::find(group.begin(), group.end(), type) != group.end();
  };
  return std::any_of(GROUPS.begin(), GROUPS.end(),
                     [&](const Group& group) { return holds(group, a) && holds(group, b); });
}
