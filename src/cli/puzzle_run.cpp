// SPDX-License-Identifier: MIT
// Lines in, results out, in the order of the lines, however many threads work on them.
#include "cli/puzzle_run.h"

#include <algorithm>
#include <cstdint>
#include <ostream>
#include <utility>

#include "cli/json.h"
#include "cli/progress.h"
#include "cli/puzzle_reader.h"
#include "stock/ordered_work.h"

namespace kestrel {
namespace {

// Lines are handed to the threads in bundles: enough work to outweigh the handing over, few enough that the
// threads end together.
constexpr std::size_t kBundle = 32;

using Bundle = std::vector<InputLine>;

struct BundleResult {
  std::string out;
  std::string err;
  ExitStatus status = ExitStatus::kGood;
  std::uint64_t puzzles = 0;
  std::uint64_t bytes = 0;  // of the input, up to the end of this bundle
};

// What is told of a line that is no puzzle.
std::string BadLineText(const InputLine& line) {
  const std::string place = line.line == 0 ? std::string(kProgramName) + ": " + line.file
                                           : line.file + ":" + std::to_string(line.line);
  return place + ": " + line.error + "\n";
}

// Line 0 stands for the file itself, which could not be read.
ExitStatus BadLineStatus(const InputLine& line) {
  return line.line == 0 ? ExitStatus::kFailure : ExitStatus::kBadInput;
}

void ReportBadLine(const InputLine& line, bool json, BundleResult& result) {
  const bool whole_file = line.line == 0;
  result.status = std::max(result.status, BadLineStatus(line));
  result.err += BadLineText(line);
  if (!json) return;
  Json object = JsonLine();
  object["file"] = line.file;
  if (!whole_file) object["line"] = line.line;
  object["error"] = line.error;
  result.out += JsonText(object);
}

}  // namespace

ExitStatus RunOnPuzzles(const PuzzleRun& run, CliPorts& ports) {
  PuzzleReader reader(run.files, ports.in);
  const std::uint64_t total = reader.TotalBytes();
  if (!run.shard.IsWhole() && total == 0) {
    PrintError(ports, "'--shard' needs files, whose length is known beforehand");
    return ExitStatus::kFailure;
  }
  Progress progress(ports.err, ports.err_is_terminal, run.label, total);
  ExitStatus status = ExitStatus::kGood;
  std::uint64_t puzzles = 0;
  if (run.shard.number == 1) ports.out << run.header;

  const auto read = [&](Bundle& bundle) {
    InputLine line;
    while (bundle.size() < kBundle && reader.Next(line)) {
      // A line belongs to the part in which it ends: every line to exactly one.
      if (!run.shard.IsWhole() && line.bytes <= run.shard.Begin(total)) continue;
      if (!run.shard.IsWhole() && line.bytes > run.shard.End(total)) break;
      bundle.push_back(std::move(line));
    }
    return !bundle.empty();
  };
  const auto make_worker = [&] {
    return [&run, write = run.make_writer()](const Bundle& bundle) {
      BundleResult result;
      for (const InputLine& line : bundle) {
        if (line.error.empty()) {
          write(line, result.out);
          ++result.puzzles;
        } else {
          ReportBadLine(line, run.json, result);
        }
      }
      result.bytes = bundle.back().bytes;
      return result;
    };
  };
  const auto write = [&](const BundleResult& result) {
    // Output and bar may share the terminal.
    progress.Hide();
    ports.err << result.err << std::flush;
    ports.out << result.out;
    status = std::max(status, result.status);
    puzzles += result.puzzles;
    progress.Show(result.bytes, std::to_string(puzzles) + " puzzles");
    return ports.out.good();
  };
  RunOrdered<Bundle>(run.jobs, read, make_worker, write);
  if (run.shard.number == run.shard.of) ports.out << run.footer;
  return status;
}

ExitStatus TellBadLine(const InputLine& line, CliPorts& ports) {
  ports.err << BadLineText(line);
  return BadLineStatus(line);
}

}  // namespace kestrel
