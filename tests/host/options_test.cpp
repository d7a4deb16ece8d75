// SPDX-License-Identifier: MIT
// The command line of the window's program.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <sstream>

#include "host/command_line.h"
#include "support/approved.h"

namespace kestrel {
namespace {

// Its help, and what it makes of the lines of tests/host/options.txt that begin with "$ ".
TEST(GameOptions, AreReadAsApproved) {
  std::ifstream file(KESTREL_SOURCE_DIR "/tests/host/options.txt");
  std::ostringstream report;
  PrintHelp(report, "kestrel-sudoku", kGameSpec);
  for (std::string line; std::getline(file, line);) {
    if (!line.starts_with("$ ")) continue;
    std::istringstream typed(line.substr(2));
    const std::vector<std::string> words{std::istream_iterator<std::string>(typed), {}};
    std::string error;
    const auto read = ParseGameArguments(words, error);
    report << line << '\n' << error;
    if (read) {
      report << read->program << '|' << read->home << '|' << read->settings << '|' << read->screenshot << '|'
             << read->help << read->version << ' ' << read->scale.value_or(0);
    }
    report << '\n';
  }
  ExpectApproved("host/options.txt", report.str());
}

}  // namespace
}  // namespace kestrel
