// SPDX-License-Identifier: MIT
// What the help pages are made of, read from the project's folder.
#include "help/site_files.h"

#include <fstream>
#include <sstream>
#include <vector>

#include "help/practice.h"

namespace kestrel::help {

std::string FileText(const std::filesystem::path& path) {
  std::ostringstream text;
  if (const std::ifstream in(path, std::ios::binary); in) text << in.rdbuf();
  return text.str();
}

SiteSources ReadSiteInput(const std::filesystem::path& project) {
  SiteSources sources;
  std::error_code error;
  for (const auto& entry : std::filesystem::directory_iterator(project / "tools/help/pages", error)) {
    sources.input.texts[entry.path().filename().string()] = FileText(entry.path());
  }
  for (const char* name : {"help.css", "help_dark.css", "help_contrast.css", "browser.css"}) {
    sources.input.styles[name] = FileText(project / "tools/help" / name);
  }
  sources.input.examples = ReadExamples(FileText(project / "data/examples.txt"));
  sources.input.exercises = ReadExamples(FileText(project / "data/exercises.txt"));
  const std::string stock = FileText(project / "data/sudstock.kpz");
  const std::vector<std::uint8_t> bytes(stock.begin(), stock.end());
  sources.stock = StockOfBytes(bytes);
  return sources;
}

}  // namespace kestrel::help
