// SPDX-License-Identifier: MIT
#include "core/check.h"

#include <cstdio>
#include <cstdlib>

namespace kestrel {

void FailCheck(const std::source_location& where) {
  std::fprintf(stderr, "%s:%u: a check in %s failed\n", where.file_name(),
               static_cast<unsigned>(where.line()), where.function_name());
  std::abort();
}

}  // namespace kestrel
