// SPDX-License-Identifier: MIT
// Texts that were looked at once and stored. KESTREL_RENEW=1 stores the present ones: look at the difference before
// committing it.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>

namespace kestrel {

// Compares a text, line by line, with the file `name` below tests.
inline void ExpectApproved(const std::string& name, const std::string& text) {
  const std::string path = KESTREL_SOURCE_DIR "/tests/" + name;
  if (std::getenv("KESTREL_RENEW") != nullptr) std::ofstream(path, std::ios::binary) << text;
  std::ifstream approved(path);
  std::istringstream lines(text);
  std::string line, old_line;
  for (int number = 1; std::getline(approved, old_line); ++number) {
    std::getline(lines, line);
    ASSERT_EQ(line, old_line) << name << ':' << number;
  }
  EXPECT_FALSE(std::getline(lines, line)) << "more than in " << name << ": " << line;
}

}  // namespace kestrel
