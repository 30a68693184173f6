#include "op/loop/op_frame.h"

#include <cstdio>

void op_frame_diagnostics(const char* kernel, bool isDirect) {
  if (OP_diags <= 2) return;
  if (isDirect) {
    std::printf(" kernel routine w/o indirection:  %s", kernel);
  } else {
    std::printf(" kernel routine with indirection: %s\n", kernel);
  }
}
