// SPDX-License-Identifier: MIT
// The reading loop: lines, rounds, and the end.
#include "ui/script/runner.h"

#include <algorithm>
#include <array>
#include <istream>
#include <ostream>

#include "core/check.h"
#include "ui/script/parsing.h"
#include "ui/script/texts.h"

namespace kestrel {

void StreamTranscript::Line(std::string_view line) {
  out_ << line << '\n' << std::flush;
}

ScriptRunner::ScriptRunner(const ScriptOptions& options, Files& files, Yield& yield, std::istream& script,
                           std::ostream& out, std::ostream& errors, Stage* stage)
    : script_(script),
      errors_(errors),
      transcript_(out),
      program_{options.program},
      folders_(options.home),
      files_(files, transcript_),
      settings_file_(files, options.settings),
      settings_(settings_file_, transcript_),
      seeds_(options.seed),
      stage_(stage != nullptr ? *stage : desk_),
      windows_(stage_, transcript_),
      sound_(options.sound, files, transcript_),
      shell_(options.browser, true, transcript_),
      printer_(options.printer, transcript_),
      kept_lines_(yield, transcript_,
                  [this](const std::string& line, int number) { return CarryOut(line, number); }),
      game_({program_, folders_, files_, settings_, clock_, seeds_, kept_lines_, windows_, windows_, sound_,
             windows_, shell_, printer_}),
      user_(game_, stage_) {
  clock_.Set(options.time);
  stage_.Attach(game_, *this);
  windows_.Attach(game_.Controls());
}

int ScriptRunner::Run() {
  game_.Start();
  RunRounds();
  std::string line;
  while (!failed_ && game_.End() == EndReason::None && ReadLine(line)) {
    const LineKind kind = Execute(line);
    if (kind == LineKind::Event) RunRounds();
    if (kind == LineKind::Event || kind == LineKind::Question) kept_lines_.EndLine(depth_ + 1);
  }
  if (failed_) return kStatusUsage;
  kept_lines_.EndLine(0);
  const EndReason end = game_.End();
  if (end == EndReason::Quit || end == EndReason::Fatal) transcript_.Line("ended");
  return end == EndReason::Fatal ? kStatusFatal : kStatusGood;
}

// Inside a box or dialog the main loop stands still: no rounds. What follows when a line has closed the box
// is its work still: it ends when the next one is read.
bool ScriptRunner::NextAction() {
  std::string line;
  LineKind kind = LineKind::Kept;
  while (kind == LineKind::Kept) {
    kept_lines_.EndLine(depth_ + 1);
    if (failed_ || !ReadLine(line)) return false;
    kind = Execute(line);
  }
  return kind != LineKind::Error;
}

// Passes blank lines and comments over. False at the end of the script, and when nobody can read what it does.
bool ScriptRunner::ReadLine(std::string& line) {
  while (transcript_.Good() && std::getline(script_, line)) {
    line_number_ = ++lines_read_;
    if (line.ends_with('\r')) line.pop_back();
    line.erase(0, std::min(line.find_first_not_of(" \t"), line.size()));
    if (!line.empty() && line[0] != '#') return true;
  }
  return false;
}

void ScriptRunner::RunRounds() {
  (void)game_.Round();
  FinishWork();
}

void ScriptRunner::FinishWork() {
  while (game_.WorkLeft()) (void)game_.Round();
}

const ScriptRunner::Command* ScriptRunner::FindCommand(std::string_view word) const {
  using Runner = ScriptRunner;
  static constexpr std::array kCommands = std::to_array<Command>({{"press", &Runner::Press, true},
                                                                  {"release", &Runner::Release, true},
                                                                  {"mark", &Runner::Mark, true},
                                                                  {"row", &Runner::Row, true},
                                                                  {"column", &Runner::Column, true},
                                                                  {"select", &Runner::Select, true},
                                                                  {"doubleclick", &Runner::DoubleClick, true},
                                                                  {"type", &Runner::Type, true},
                                                                  {"clear", &Runner::Clear, true},
                                                                  {"key", &Runner::PressKey, true},
                                                                  {"leave", &Runner::Leave, true},
                                                                  {"answer", &Runner::Answer},
                                                                  {"cancel", &Runner::Cancel},
                                                                  {"window", &Runner::MainWindowState, true},
                                                                  {"dialog", &Runner::Dialog, true},
                                                                  {"clock", &Runner::SetClock, true},
                                                                  {"tick", &Runner::Tick, true},
                                                                  {"rounds", &Runner::Rounds},
                                                                  {"renew", &Runner::Renew},
                                                                  {"at", &Runner::At},
                                                                  {"get", &Runner::Get},
                                                                  {"var", &Runner::Var},
                                                                  {"board", &Runner::Board},
                                                                  {"givens", &Runner::Givens},
                                                                  {"solution", &Runner::Solution},
                                                                  {"pencil", &Runner::Pencil},
                                                                  {"steps", &Runner::Steps},
                                                                  {"record", &Runner::Record},
                                                                  {"echo", &Runner::Echo}});
  const auto command = std::ranges::find(kCommands, word, &Command::word);
  return command == kCommands.end() ? nullptr : &*command;
}

ScriptRunner::LineKind ScriptRunner::Execute(std::string_view line) {
  const CommandLine parts = SplitCommand(line);
  const Command* command = FindCommand(parts.word);
  if (command == nullptr) return Fail(std::string(texts::kNoCommand) + std::string(parts.word));
  if (command->handler == &ScriptRunner::At) return At(parts.rest);
  kept_lines_.BeginLine(++depth_);
  const LineKind kind = (this->*command->handler)(parts.rest);
  --depth_;
  return kind;
}

// Inside a yield of the line that is being worked off: neither a line of its own nor a round.
bool ScriptRunner::CarryOut(const std::string& line, int line_number) {
  line_number_ = line_number;
  const CommandLine parts = SplitCommand(line);
  const Command* command = FindCommand(parts.word);
  Require(command != nullptr);  // looked up when the line was kept
  (void)(this->*command->handler)(parts.rest);
  line_number_ = lines_read_;
  return !failed_;
}

ScriptRunner::LineKind ScriptRunner::Fail(const std::string& reason) {
  errors_ << "line " << line_number_ << ": " << reason << '\n';
  failed_ = true;
  return LineKind::Error;
}

// An action that was refused is an event all the same.
ScriptRunner::LineKind ScriptRunner::Report(std::string_view name, Reach reach) {
  constexpr std::array<std::string_view, 5> kReasons = {"", "modal", "hidden", "disabled", ""};
  if (reach == Reach::NoSuch) return Fail(std::string(texts::kNoControl) + std::string(name));
  if (reach != Reach::Done) {
    transcript_.Line("refused " + std::string(name) + " " +
                     std::string(kReasons[static_cast<std::size_t>(reach)]));
  }
  return LineKind::Event;
}

}  // namespace kestrel
