// SPDX-License-Identifier: MIT
// How a failed check ends the program.
#include "core/check.h"

#include <cstdio>
#include <cstdlib>

namespace kestrel {

void FailCheck(const char* file, int line) {
  std::fprintf(stderr, "%s:%d: a check of the program itself failed\n", file, line);
  std::abort();
}

}  // namespace kestrel
