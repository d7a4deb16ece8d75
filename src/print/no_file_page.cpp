// SPDX-License-Identifier: MIT
// Stands in for cairo_page.cpp where there is no cairo.
#include "print/file_page.h"

namespace kestrel {

std::unique_ptr<FilePage> MakeFilePage(PageFormat /*format*/, Paper /*paper*/) {
  return nullptr;
}

}  // namespace kestrel
