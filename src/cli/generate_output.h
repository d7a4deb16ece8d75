// SPDX-License-Identifier: MIT
// Where `generate` writes: standard output, or a file that an interrupted run can go on with. Used by `generate`.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

#include "cli/command.h"
#include "host/growing_file.h"

namespace kestrel {

// How far a run has come.
struct GeneratePosition {
  std::uint64_t next = 0;     // the attempt that comes next
  std::uint64_t written = 0;  // puzzles
  std::uint64_t bytes = 0;    // of output
};

// A file FILE grows as FILE.part. FILE.resume beside it tells which run it is and how far it has surely come; what lies
// behind that is made again. At the end the part becomes FILE and FILE.resume goes.
class GenerateOutput {
 public:
  enum class Start { kGo, kFinished, kFailed };

  // `file` empty or "-": standard output. `run` says on one line all that the output depends on.
  GenerateOutput(CliPorts& ports, std::string file, std::string run);

  // Begins anew, or with `resume` where the same run stopped: then `position` is set. kFinished: FILE is there already.
  // Messages go to standard error.
  Start Open(bool resume, GeneratePosition& position);
  // Adds text, which ends at `position`. False when it cannot be written.
  bool Write(const std::string& text, GeneratePosition& position);
  bool Finish();

 private:
  bool Tell(const FileResult& result);
  std::optional<GeneratePosition> ReadNote();
  FileResult WriteNote(const GeneratePosition& position);

  CliPorts& ports_;
  std::string file_;
  std::string note_;  // path of FILE.resume
  std::string run_;
  SystemCalls calls_;
  std::optional<GrowingFile> growing_;
  std::chrono::steady_clock::time_point next_note_{};
};

}  // namespace kestrel
