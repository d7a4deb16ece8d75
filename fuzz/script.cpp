// SPDX-License-Identifier: MIT
// Script lines: whatever a user may do in whatever order. Input: the script.
#include "played_game.h"

namespace kestrel::fuzz {
namespace {

// Numbers of rounds and ticks are cut to two digits: they make an input slow and show nothing new.
std::string WithSmallCounts(std::string_view input) {
  std::string script;
  std::istringstream lines{std::string(input)};
  for (std::string line; std::getline(lines, line);) {
    for (const std::string_view slow : {"tick ", "rounds ", "renew "}) {
      const std::size_t word = line.find(slow);
      if (word != std::string::npos) line.resize(std::min(line.size(), word + slow.size() + 2));
    }
    script += line + '\n';
  }
  return script;
}

void TestOneInput(std::string_view input) {
  MemoryFiles files;
  PutSoundStock(files);
  const PlayedGame played = PlayInMemory(files, WithSmallCounts(input), false);
  Require(played.status == 0 || played.status == 2);
  // The stock, and the older copy beside it.
  Require(files.Length(kStock) == kStockBytes && files.Count("/home\\") == 2);
}

}  // namespace
}  // namespace kestrel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  kestrel::fuzz::TestOneInput(kestrel::fuzz::AsText(data, size));
  return 0;
}
