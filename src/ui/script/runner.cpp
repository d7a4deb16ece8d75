// SPDX-License-Identifier: MIT
// The reading loop: lines, rounds, and the end.
#include "ui/script/runner.h"

#include <algorithm>
#include <array>
#include <istream>
#include <ostream>

#include "ui/script/parsing.h"
#include "ui/script/texts.h"

namespace kestrel {

void StreamTranscript::Line(std::string_view line) {
  out_ << line << '\n' << std::flush;
}

ScriptRunner::ScriptRunner(const ScriptOptions& options, Files& files, Yield& yield, std::istream& script,
                           std::ostream& out, std::ostream& errors)
    : script_(script),
      errors_(errors),
      transcript_(out),
      program_{options.program},
      folders_(options.home),
      files_(files, transcript_),
      settings_file_(files, options.settings),
      settings_(settings_file_, transcript_),
      seeds_(options.seed),
      desk_(*this, transcript_),
      sound_(options.sound, files, transcript_),
      help_(transcript_),
      shell_(options.browser, true, transcript_),
      printer_(options.printer, transcript_),
      game_({program_, folders_, files_, settings_, clock_, seeds_, yield, desk_, desk_, sound_, help_,
             shell_, printer_}),
      user_(game_, desk_) {
  clock_.Set(options.time);
  desk_.Attach(game_.Controls());
}

int ScriptRunner::Run() {
  game_.Start();
  RunRounds();
  std::string line;
  while (!failed_ && game_.End() == EndReason::None && ReadLine(line)) {
    if (Execute(line) == LineKind::Event) RunRounds();
  }
  if (failed_) return kStatusUsage;
  const EndReason end = game_.End();
  if (end == EndReason::Quit || end == EndReason::Fatal) transcript_.Line("ended");
  return end == EndReason::Fatal ? kStatusFatal : kStatusGood;
}

// Inside a box or dialog the main loop stands still: no rounds.
bool ScriptRunner::NextAction() {
  std::string line;
  if (failed_ || !ReadLine(line)) return false;
  return Execute(line) != LineKind::Error;
}

// Passes blank lines and comments over. False at the end of the script.
bool ScriptRunner::ReadLine(std::string& line) {
  while (std::getline(script_, line)) {
    ++line_number_;
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

ScriptRunner::LineKind ScriptRunner::Execute(std::string_view line) {
  using Runner = ScriptRunner;
  static constexpr std::array<Command, 28> kCommands{{{"press", &Runner::Press},
                                                      {"release", &Runner::Release},
                                                      {"mark", &Runner::Mark},
                                                      {"row", &Runner::Row},
                                                      {"column", &Runner::Column},
                                                      {"select", &Runner::Select},
                                                      {"doubleclick", &Runner::DoubleClick},
                                                      {"type", &Runner::Type},
                                                      {"clear", &Runner::Clear},
                                                      {"key", &Runner::PressKey},
                                                      {"leave", &Runner::Leave},
                                                      {"answer", &Runner::Answer},
                                                      {"cancel", &Runner::Cancel},
                                                      {"window", &Runner::MainWindowState},
                                                      {"dialog", &Runner::Dialog},
                                                      {"clock", &Runner::SetClock},
                                                      {"tick", &Runner::Tick},
                                                      {"rounds", &Runner::Rounds},
                                                      {"renew", &Runner::Renew},
                                                      {"get", &Runner::Get},
                                                      {"var", &Runner::Var},
                                                      {"board", &Runner::Board},
                                                      {"givens", &Runner::Givens},
                                                      {"solution", &Runner::Solution},
                                                      {"pencil", &Runner::Pencil},
                                                      {"steps", &Runner::Steps},
                                                      {"record", &Runner::Record},
                                                      {"echo", &Runner::Echo}}};
  const CommandLine parts = SplitCommand(line);
  const auto command = std::ranges::find(kCommands, parts.word, &Command::word);
  if (command == kCommands.end()) return Fail(std::string(texts::kNoCommand) + std::string(parts.word));
  return (this->*command->handler)(parts.rest);
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
