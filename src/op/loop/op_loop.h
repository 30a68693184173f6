// The description of a loop: a type whose rows are the argument table of a kernel.
//
// From the rows follow the parameter list of the kernel body (checked by the compiler), the loop
// arguments, the number of entries, whether the loop is direct or indirect, the map indices, the
// reductions and the transfer estimate. Data, maps, sets and flags are named by enumerators of the
// application; the runtime never looks at their meaning.
//
//   struct TimeStep : op::Loop<8, KernelID::TimeStepCalculation, SetID::EdgesAll, op::Order::any,
//       op::constants<Parameters>,                                                // no argument
//       op::read<DataID::NormVect, double[2]>,                                    // direct
//       op::read<DataID::IsWetted, int, op::at<MapID::EdgesAll_CellsAll, 0>>,     // one column
//       op::lowest<double>> {};                                                    // global
#pragma once

#include <array>
#include <cstddef>
#include <tuple>
#include <type_traits>
#include <utility>

#include "op/core/op_lib_core.h"

namespace op {

/// Whether elements may be visited in another order, or at the same time, without a change of the
/// result. Loops marked `ascending` rely on the set order; a parallel backend may not guess.
enum class Order { any, ascending };

/// How a row reaches its dat: by the number of the element itself.
struct direct {
  static constexpr bool mapped = false;
  static constexpr int columns = 1;
  static constexpr int idx = -1;
};

/// Through one column of a map.
template <auto Map, int Column>
struct at {
  static constexpr bool mapped = true;
  static constexpr auto map = Map;
  static constexpr int columns = 1;
  static constexpr int idx = Column;
};

/// Through the first `Columns` columns of a map: the body gets an array of pointers.
template <auto Map, int Columns>
struct all {
  static constexpr bool mapped = true;
  static constexpr auto map = Map;
  static constexpr int columns = Columns;
  static constexpr int idx = -Columns;
};

/// The flag of a row that is always in use.
struct always {};

/// The type string of the runtime for a value type.
template <class Value>
constexpr const char* typeText() {
  static_assert(std::is_same_v<Value, double> || std::is_same_v<Value, int>);
  return std::is_same_v<Value, double> ? "double" : "int";
}

/// One dat argument. `Values` is the value type with the number of values, as double[3].
template <op_access Access, auto Datum, class Values, class Reach, class Flag>
struct DatRow {
  using Value = std::remove_extent_t<Values>;
  using Route = Reach;
  static constexpr op_access access = Access;
  static constexpr auto datum = Datum;
  static constexpr int dim = std::is_array_v<Values> ? int{std::extent_v<Values>} : 1;
  static constexpr bool global = false;
  static constexpr bool takesNotices = false;
  static constexpr bool mapped = Reach::mapped;
  static constexpr bool vector = Reach::columns > 1;
  static constexpr bool optional = !std::is_same_v<Flag, always>;
  static constexpr int entries = Reach::columns;

  using Element = std::conditional_t<Access == OP_READ, const Value, Value>;
  using Parameter = std::conditional_t<vector, Element* const*, Element*>;

  static constexpr auto flag() { return Flag::value; }
};

/// One global argument: the same address for all elements.
template <op_access Access, class T>
struct GlobalRow {
  using Value = T;
  static constexpr op_access access = Access;
  static constexpr int dim = 1;
  static constexpr bool global = true;
  static constexpr bool takesNotices = false;
  static constexpr bool mapped = false;
  static constexpr bool vector = false;
  static constexpr bool optional = false;
  static constexpr int entries = 1;
  static constexpr bool reduction = Access == OP_INC || Access == OP_MIN || Access == OP_MAX;

  using Element = std::conditional_t<Access == OP_READ, const T, T>;
  using Parameter = Element*;
};

struct RowWithoutArgument {
  static constexpr bool mapped = false;
  static constexpr bool takesNotices = false;
  static constexpr int entries = 0;
};

/// Not an argument: a copy of the constants of a run. The backend makes it when the loop starts, so
/// that no store of a body can change it.
/// @tparam T has a static T::ofRun(), which returns what holds now
template <class T>
struct ConstantsRow : RowWithoutArgument {
  using Parameter = const T&;
};

/// Not an argument: what takes the notices of a body, one at most from each element. The backend
/// has them printed by the end of the loop, in the order of the elements.
/// @tparam D made from {Notice* notices, int* count, int element}
/// @tparam Print prints `count` notices
template <class D, void (*Print)(const typename D::Notice* notices, int count)>
struct NoticesRow : RowWithoutArgument {
  static constexpr bool takesNotices = true;
  using Parameter = const D&;
};

// The rows as a description writes them. Those without an argument come first.
template <class T>
using constants = ConstantsRow<T>;
template <class D, void (*Print)(const typename D::Notice* notices, int count)>
using notices = NoticesRow<D, Print>;
template <auto Datum, class Values, class Reach = direct>
using read = DatRow<OP_READ, Datum, Values, Reach, always>;
template <auto Datum, class Values, class Reach = direct>
using write = DatRow<OP_WRITE, Datum, Values, Reach, always>;
template <auto Datum, class Values, class Reach = direct>
using change = DatRow<OP_RW, Datum, Values, Reach, always>;
/// Read only while the application's flag is set; the dat may be absent otherwise.
template <auto Flag, auto Datum, class Values, class Reach = direct>
using read_if = DatRow<OP_READ, Datum, Values, Reach, std::integral_constant<decltype(Flag), Flag>>;
template <class T>
using given = GlobalRow<OP_READ, T>;
template <class T>
using lowest = GlobalRow<OP_MIN, T>;
template <class T>
using highest = GlobalRow<OP_MAX, T>;

namespace detail {

/// A function that takes N arguments of a loop by value.
template <class Indices>
struct FrameOfArguments;
template <std::size_t... I>
struct FrameOfArguments<std::index_sequence<I...>> {
  template <std::size_t>
  using Argument = op_arg;
  using Type = void(const char* name, op_set set, Argument<I>... args);
};

}  // namespace detail

/// A loop over `Set`; `Slot` is its place among the timing records.
template <int Slot, auto Kernel, auto Set, Order Visit, class... Rows>
struct Loop {
  static constexpr int slot = Slot;
  static constexpr auto kernel = Kernel;
  static constexpr auto set = Set;
  static constexpr Order order = Visit;
  static constexpr int entries = (Rows::entries + ...);
  static constexpr bool isDirect = !(Rows::mapped || ...);
  static constexpr bool takesNotices = (Rows::takesNotices || ...);

  /// Number of the rows without an argument, which come first, and of those with one.
  static constexpr std::size_t supplies = (std::size_t{Rows::entries == 0} + ...);
  static constexpr std::size_t rows = sizeof...(Rows) - supplies;

  using RowList = std::tuple<Rows...>;
  template <std::size_t I>
  using Supply = std::tuple_element_t<I, RowList>;
  template <std::size_t I>
  using Row = std::tuple_element_t<supplies + I, RowList>;
  static_assert(
      []<std::size_t... I>(std::index_sequence<I...> /*rows*/) {
        return ((Row<I>::entries > 0) && ...);
      }(std::make_index_sequence<rows>{}),
      "rows without an argument come first");

  /// The kernel body: a function of one parameter per row, raw pointers where it has an argument.
  using Body = void(typename Rows::Parameter...);
  /// One incoming argument per row.
  using Arguments = std::array<op_arg, rows>;
  /// The public function that runs the loop: its name in the timing table, its set, its arguments.
  using Frame = typename detail::FrameOfArguments<std::make_index_sequence<rows>>::Type;
};

namespace detail {

template <auto A, auto B>
constexpr bool same() {
  if constexpr (std::is_same_v<decltype(A), decltype(B)>) {
    return A == B;
  } else {
    return false;
  }
}

/// Whether rows I and J of loop L read indices from the same map.
template <class L, std::size_t I, std::size_t J>
constexpr bool shareMap() {
  if constexpr (L::template Row<I>::mapped && L::template Row<J>::mapped) {
    return same<L::template Row<I>::Route::map, L::template Row<J>::Route::map>();
  } else {
    return false;
  }
}

/// Whether rows I and J of loop L reach the same datum through the same map.
template <class L, std::size_t I, std::size_t J>
constexpr bool shareDatumAndMap() {
  if constexpr (shareMap<L, I, J>()) {
    return same<L::template Row<I>::datum, L::template Row<J>::datum>();
  } else {
    return false;
  }
}

/// The first row that uses the map of row I: it holds the map index for all of them.
template <class L, std::size_t I>
constexpr std::size_t mapLeader() {
  return []<std::size_t... J>(std::index_sequence<J...>) {
    std::size_t leader = I;
    ((shareMap<L, I, J>()&& J < leader ? leader = J : leader), ...);
    return leader;
  }
  (std::make_index_sequence<L::rows>{});
}

/// Whether an earlier row has reached the datum of row I through the same map.
template <class L, std::size_t I>
constexpr bool repeatsDatum() {
  return []<std::size_t... J>(std::index_sequence<J...>) {
    return ((J < I && shareDatumAndMap<L, I, J>()) || ...);
  }
  (std::make_index_sequence<L::rows>{});
}

}  // namespace detail
}  // namespace op
