// SPDX-License-Identifier: MIT
// Writes the help pages and their pictures: make-help PROJECT_FOLDER [OUTPUT_FOLDER]
// Reads tools/help, data/examples.txt, data/exercises.txt and data/sudstock.kpz of the project; writes to its
// data/help unless told otherwise.
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <vector>

#include "help/site_files.h"

namespace fs = std::filesystem;

namespace {

// Deletes what an earlier run wrote and this one does not: pages and pictures of examples that are no more.
void RemoveOldFiles(const kestrel::help::Site& site, const fs::path& folder) {
  std::vector<fs::path> old;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    const std::string name = fs::relative(entry.path(), folder).generic_string();
    if (entry.is_regular_file() && !site.files.contains(name)) old.push_back(entry.path());
  }
  for (const fs::path& path : old) fs::remove(path);
}

}  // namespace

int main(int argc, char** argv) {
  using namespace kestrel::help;
  if (argc < 2 || argc > 3) {
    std::fputs("Usage: make-help PROJECT_FOLDER [OUTPUT_FOLDER]\n", stderr);
    return 2;
  }
  const fs::path project = argv[1];
  const fs::path output = argc == 3 ? fs::path(argv[2]) : project / "data/help";
  SiteSources sources = ReadSiteInput(project);
  const Site site = BuildSite(sources.Input());
  if (!site.error.empty()) {
    std::fprintf(stderr, "make-help: %s\n", site.error.c_str());
    return 1;
  }
  std::error_code error;
  fs::create_directories(output / "pictures", error);
  RemoveOldFiles(site, output);
  for (const auto& [name, content] : site.files) {
    if (FileText(output / name) == content) continue;
    std::ofstream out(output / name, std::ios::binary);
    out << content;
    out.close();
    if (!out) {
      std::fprintf(stderr, "make-help: %s cannot be written\n", (output / name).c_str());
      return 1;
    }
  }
  std::printf("%zu files\n", site.files.size());
  return 0;
}
