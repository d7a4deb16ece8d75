// SPDX-License-Identifier: MIT
#include "cli/generate_output.h"

#include "cli/output_file.h"

#include <cstdint>
#include <ostream>
#include <sstream>
#include <utility>

namespace kestrel {
namespace {

constexpr std::chrono::seconds kBetweenNotes{1};
constexpr std::size_t kMostNote = 4096;

}  // namespace

GenerateOutput::GenerateOutput(CliPorts& ports, std::string file, std::string run)
    : ports_(ports), file_(std::move(file)), note_(file_ + ".resume"), run_(std::move(run)) {
  if (!file_.empty() && file_ != "-") growing_.emplace(calls_, file_);
}

bool GenerateOutput::Tell(const FileResult& result) {
  if (!result) PrintError(ports_, file_ + ": " + result.Reason());
  return static_cast<bool>(result);
}

// Nothing when there is no note, or when it is of another run.
std::optional<GeneratePosition> GenerateOutput::ReadNote() {
  Bytes bytes;
  if (!ports_.files.Read(note_, kMostNote, bytes)) return std::nullopt;
  std::istringstream text(std::string(bytes.begin(), bytes.end()));
  std::string run;
  GeneratePosition position;
  std::getline(text, run);
  text >> position.next >> position.written >> position.bytes;
  return run == run_ && text ? std::optional(position) : std::nullopt;
}

FileResult GenerateOutput::WriteNote(const GeneratePosition& position) {
  std::ostringstream text;
  text << run_ << '\n' << position.next << ' ' << position.written << ' ' << position.bytes << '\n';
  const std::string bytes = text.str();
  return ports_.files.Replace(note_, Bytes(bytes.begin(), bytes.end()));
}

GenerateOutput::Start GenerateOutput::Open(bool resume, GeneratePosition& position) {
  if (!growing_) return Start::kGo;
  if (resume && ports_.files.Exists(file_)) {
    ports_.err << file_ << ": is complete, nothing to do\n";
    return Start::kFinished;
  }
  if (!MayWrite(file_, {}, ports_) || !Tell(growing_->Open())) return Start::kFailed;
  const std::uint64_t length = growing_->Length();
  const std::optional<GeneratePosition> note = resume ? ReadNote() : std::nullopt;
  if (resume && length != 0 && !note && ports_.files.Exists(note_)) {
    PrintError(ports_,
               note_ + ": is of a run with other options; remove it and " + file_ + ".part to begin anew");
    return Start::kFailed;
  }
  // A part shorter than its note has lost data with the machine's power: all of it is made again.
  if (note && note->bytes <= length) position = *note;
  if (!Tell(growing_->Shorten(position.bytes)) || !Tell(WriteNote(position))) return Start::kFailed;
  return Start::kGo;
}

bool GenerateOutput::Write(const std::string& text, GeneratePosition& position) {
  position.bytes += text.size();
  if (!growing_) {
    ports_.out << text;
    return ports_.out.good();
  }
  if (!Tell(growing_->Append(text))) return false;
  const auto now = std::chrono::steady_clock::now();
  if (now < next_note_) return true;
  next_note_ = now + kBetweenNotes;
  return Tell(growing_->Flush()) && Tell(WriteNote(position));
}

bool GenerateOutput::Finish() {
  return !growing_ || (Tell(growing_->Finish()) && Tell(ports_.files.Remove(note_)));
}

}  // namespace kestrel
