// SPDX-License-Identifier: MIT
// What the help pages are made of, read from the project's folder. Used by make-help and by the tests.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "help/site.h"

namespace kestrel::help {

// The whole file; empty when it cannot be read.
std::string FileText(const std::filesystem::path& path);

struct SiteSources {
  SiteInput input;
  std::optional<StockTable> stock;
  // The input with its stock; valid as long as this object.
  const SiteInput& Input() {
    input.stock = stock ? &*stock : nullptr;
    return input;
  }
};

// Reads tools/help/pages, the style sheets beside it, data/examples.txt, data/exercises.txt and, if it is there,
// data/sudstock.kpz. What is missing is left empty, and BuildSite then says so.
SiteSources ReadSiteInput(const std::filesystem::path& project);

}  // namespace kestrel::help
