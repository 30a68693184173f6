// A backend that visits the elements from the last to the first, where a loop allows any order.
// Results must not depend on that: whoever adds a parallel backend relies on it.
#pragma once

#include "op/backend/sequential.h"

namespace support {

struct Reversed {
  template <class L, typename L::Body* Body>
  static void run(const typename L::Arguments& args, int begin, int end) {
    using op::backend::Sequential;
    if constexpr (L::order == op::Order::ascending) {
      Sequential::run<L, Body>(args, begin, end);
    } else {
      for (int n = end; n-- > begin;) Sequential::run<L, Body>(args, n, n + 1);
    }
  }
};

}  // namespace support
