// SPDX-License-Identifier: MIT
// The command line: lines of puzzles for `rate` and `solve`, and stocks for the commands that read one.
// Input: a byte that chooses the command, then what it reads.
#include <array>
#include <sstream>
#include <vector>

#include "cli/run.h"
#include "core/check.h"
#include "memory_files.h"

namespace kestrel::fuzz {
namespace {

using Words = std::vector<std::string>;

const std::array<Words, 12> kCommands{{{"rate", "--jobs", "1"},
                                       {"rate", "--jobs", "1", "--format", "json", "--solutions"},
                                       {"solve", "--jobs", "1"},
                                       {"solve", "--jobs", "1", "--steps"},
                                       {"solve", "--jobs", "1", "--steps", "--format", "json"},
                                       {"solve", "--jobs", "1", "--trace", "puzzles", "-"},
                                       {"stock", "verify", "--jobs", "1", "puzzles"},
                                       {"stock", "list", "--format", "json", "puzzles"},
                                       {"stock", "export", "--level", "1", "puzzles"},
                                       {"print", "--stock", "puzzles", "--per-page", "4", "--output", "pdf"},
                                       {"stock", "list"},
                                       {"convert", "--jobs", "1", "--to", "candidates"}}};

// The two commands that take ten times as long as the rest are run for one input in eight, else the one after them.
const Words& Choose(std::uint8_t choice, std::string_view input) {
  constexpr std::size_t kStepsAsJson = 4;
  constexpr std::size_t kVerify = 6;
  const std::size_t command = choice % kCommands.size();
  const bool is_slow = command == kStepsAsJson || command == kVerify;
  return kCommands[is_slow && !OneIn(8, input) ? command + 1 : command];
}

void TestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return;
  const std::string input(AsText(data + 1, size - 1));
  std::istringstream in(input);
  std::ostringstream out;
  std::ostringstream err;
  MemoryFiles files;
  files.Put("puzzles", input);
  FixedSeeds seeds(1);
  CliPorts ports{in, out, err, false, files, seeds, "puzzles", ""};
  const Words& words = Choose(data[0], input);
  const ExitStatus status = RunCli(words, ports);
  Require(status == ExitStatus::kGood || !err.str().empty() || words[1] == "verify");
  Require(files.Get("puzzles") == input);
}

}  // namespace
}  // namespace kestrel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  kestrel::fuzz::TestOneInput(data, size);
  return 0;
}
