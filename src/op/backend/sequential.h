// The sequential backend: one thread visits the elements in set order.
//
// A backend is one function over trivially copyable cursors and the body. A cursor turns an
// element number into the pointer that the body gets for one row. Rows that name the same map
// share one index load: their cursors get the same row of the map's table.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>
#include <tuple>
#include <type_traits>
#include <utility>

#include "op/loop/op_loop.h"

namespace op::backend {

template <class Element>
struct GlobalCursor {
  Element* data;
  Element* resolve(std::ptrdiff_t /*n*/, const int* /*columns*/) const { return data; }
};

template <class Element, int Dim>
struct DirectCursor {
  Element* data;
  Element* resolve(std::ptrdiff_t n, const int* /*columns*/) const { return data + n * Dim; }
};

template <class Element, int Dim, int Column>
struct ColumnCursor {
  Element* data;
  Element* resolve(std::ptrdiff_t /*n*/, const int* columns) const {
    return data + std::ptrdiff_t{columns[Column]} * Dim;
  }
};

template <class Element, int Dim, int Columns>
struct VectorCursor {
  Element* data;
  std::array<Element*, std::size_t{Columns}> resolve(std::ptrdiff_t /*n*/,
                                                     const int* columns) const {
    std::array<Element*, std::size_t{Columns}> addresses;
    for (int k = 0; k < Columns; ++k) {
      addresses[static_cast<std::size_t>(k)] = data + std::ptrdiff_t{columns[k]} * Dim;
    }
    return addresses;
  }
};

/// An optional row: without data the body must not look at what it gets. Data that are there come
/// through whatever the flag says, since some bodies decide for themselves.
template <class Base>
struct OptionalCursor {
  Base cursor;
  bool present;
  auto resolve(std::ptrdiff_t n, const int* columns) const {
    using Resolved = decltype(cursor.resolve(n, columns));
    return present ? cursor.resolve(n, columns) : Resolved{};
  }
};

template <class Row>
constexpr auto makeCursor(const op_arg& arg) {
  using Element = typename Row::Element;
  auto* data = reinterpret_cast<Element*>(arg.data);
  if constexpr (Row::global) {
    return GlobalCursor<Element>{data};
  } else {
    const auto plain = [data] {
      if constexpr (!Row::mapped) {
        return DirectCursor<Element, Row::dim>{data};
      } else if constexpr (Row::vector) {
        return VectorCursor<Element, Row::dim, Row::Route::columns>{data};
      } else {
        return ColumnCursor<Element, Row::dim, Row::Route::idx>{data};
      }
    }();
    if constexpr (Row::optional) {
      const bool reachable = !Row::mapped || arg.map_data != nullptr;
      return OptionalCursor<decltype(plain)>{plain, data != nullptr && reachable};
    } else {
      return plain;
    }
  }
}

/// What the body gets for a vector row: the k addresses live as long as the call.
template <class Element, std::size_t N>
Element* const* bodyArgument(const std::array<Element*, N>& addresses) {
  return addresses.data();
}
template <class Element>
Element* bodyArgument(Element* address) {
  return address;
}

/// What a row without an argument gives the body: made when the loop starts, asked for each
/// element, told when a block of elements is done.
template <class Row>
struct Supply;

template <class T>
struct Supply<ConstantsRow<T>> {
  const T copy = T::ofRun();
  const T& of(std::ptrdiff_t /*n*/) const { return copy; }
  void endBlock() {}
};

/// Elements between two looks at what bodies have noted.
inline constexpr std::ptrdiff_t BLOCK = 256;

template <class D, auto Print>
struct Supply<NoticesRow<D, Print>> {
  std::array<typename D::Notice, std::size_t{BLOCK}> noted;  // filled from the front
  int count = 0;
  D of(std::ptrdiff_t n) { return D(noted.data(), &count, static_cast<int>(n)); }
  void endBlock() {
    if (count > 0) Print(noted.data(), count);
    count = 0;
  }
};

struct Sequential {
  /// Runs the body for the elements from `begin` to `end` - 1.
  /// @param args one argument per row
  template <class L, typename L::Body* Body>
  static void run(const typename L::Arguments& args, int begin, int end) {
    runRows<L, Body>(args, begin, end, std::make_index_sequence<L::supplies>{},
                     std::make_index_sequence<L::rows>{});
  }

 private:
  template <class L, typename L::Body* Body, std::size_t... S, std::size_t... I>
  static void runRows(const typename L::Arguments& args, std::ptrdiff_t begin, std::ptrdiff_t end,
                      std::index_sequence<S...> /*supplies*/, std::index_sequence<I...> /*rows*/) {
    std::tuple<Supply<typename L::template Supply<S>>...> supplies;
    const auto cursors = std::tuple{makeCursor<typename L::template Row<I>>(args[I])...};
    const std::array<const int*, L::rows> tables{args[I].map_data...};
    const std::array<std::ptrdiff_t, L::rows> widths{
        (args[I].map == nullptr ? 0 : args[I].map->dim)...};
    constexpr std::ptrdiff_t step = L::takesNotices ? BLOCK : std::numeric_limits<int>::max();
    for (std::ptrdiff_t first = begin; first < end; first += step) {
      const std::ptrdiff_t last = std::min(first + step, end);
      for (std::ptrdiff_t n = first; n < last; ++n) {
        Body(std::get<S>(supplies).of(n)...,
             bodyArgument(std::get<I>(cursors).resolve(n, columnsOf<L, I>(tables, widths, n)))...);
      }
      (std::get<S>(supplies).endBlock(), ...);
    }
  }

  /// The map row of element n, taken from the table of the first row that uses the same map.
  template <class L, std::size_t I>
  static const int* columnsOf(const std::array<const int*, L::rows>& tables,
                              const std::array<std::ptrdiff_t, L::rows>& widths, std::ptrdiff_t n) {
    if constexpr (L::template Row<I>::mapped) {
      constexpr std::size_t leader = detail::mapLeader<L, I>();
      return tables[leader] + n * widths[leader];
    } else {
      return nullptr;
    }
  }
};

}  // namespace op::backend
