// SPDX-License-Identifier: MIT
// A folder that lives as long as a test, and plain ways to look at files in it. Used by all tests with files.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <string_view>

namespace kestrel {

class TempFolder {
 public:
  TempFolder() {
    std::string pattern = ::testing::TempDir() + "kestrel-test-XXXXXX";
    path_ = mkdtemp(pattern.data());
  }
  ~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  // The folder in the host's form; of a name in it the path.
  const std::filesystem::path& Path() const { return path_; }
  std::filesystem::path Path(std::string_view name) const { return path_ / name; }
  // The same in the form that the program's logic uses.
  std::string Written() const { return path_.string() + "\\"; }
  std::string Written(std::string_view name) const { return Written() + std::string(name); }

  void Put(std::string_view name, std::string_view content) const {
    std::ofstream(Path(name), std::ios::binary) << content;
  }
  std::string Get(std::string_view name) const {
    std::ifstream file(Path(name), std::ios::binary);
    std::ostringstream content;
    content << file.rdbuf();
    return content.str();
  }
  // How many entries it has, hidden ones included.
  std::ptrdiff_t Count() const {
    return std::distance(std::filesystem::directory_iterator(path_), std::filesystem::directory_iterator());
  }

 private:
  std::filesystem::path path_;
};

}  // namespace kestrel
