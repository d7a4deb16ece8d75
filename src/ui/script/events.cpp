// SPDX-License-Identifier: MIT
// The script's lines that are events: what a user does, or the clock. Words are checked here, whether the control can
// be reached is asked of the user (ui/memory). A wrong line ends the script; a refusal is a line of the transcript.
#include <array>
#include <optional>
#include <string>

#include "ui/script/parsing.h"
#include "ui/script/runner.h"
#include "ui/script/texts.h"

namespace kestrel {

namespace {

std::optional<MouseButton> ParseButton(std::string_view text) {
  if (text == "left") return MouseButton::Left;
  if (text == "right") return MouseButton::Right;
  if (text == "middle") return MouseButton::Middle;
  return std::nullopt;
}

std::string BadArguments(std::string_view rest) {
  return std::string(texts::kBadArguments) + std::string(rest);
}

}  // namespace

ScriptRunner::LineKind ScriptRunner::Press(std::string_view rest) {
  const auto words = Words(rest);
  if (words.size() != 1) return Fail(BadArguments(rest));
  return Report(words[0], user_.Press(words[0]));
}

ScriptRunner::LineKind ScriptRunner::Release(std::string_view rest) {
  const auto words = Words(rest);
  if (words.size() != 4) return Fail(BadArguments(rest));
  const auto button = ParseButton(words[1]);
  const auto x = ParseNumber<int>(words[2]);
  const auto y = ParseNumber<int>(words[3]);
  if (!button || !x || !y) return Fail(BadArguments(rest));
  return Report(words[0], user_.Release(words[0], *button, *x, *y));
}

ScriptRunner::LineKind ScriptRunner::Mark(std::string_view rest) {
  const auto words = Words(rest);
  if (words.size() != 2 && words.size() != 3) return Fail(BadArguments(rest));
  const auto cell = ParseNumber<unsigned>(words[0]);
  const auto digit = ParseNumber<unsigned>(words[1]);
  const auto button = words.size() == 3 ? ParseButton(words[2]) : MouseButton::Left;
  if (!cell || !digit || !button) return Fail(BadArguments(rest));
  // By name, as everything else: a cell or digit that does not exist is a control that does not exist.
  const std::string name = "Mark" + std::to_string(*digit) + "(" + std::to_string(*cell) + ")";
  return Report(name, user_.Release(name, *button, 120, 120));
}

ScriptRunner::LineKind ScriptRunner::Row(std::string_view rest) {
  return Header("LabelRow", rest);
}

ScriptRunner::LineKind ScriptRunner::Column(std::string_view rest) {
  return Header("LabelColumn", rest);
}

ScriptRunner::LineKind ScriptRunner::Header(std::string_view array, std::string_view rest) {
  const auto words = Words(rest);
  const auto index = words.size() == 1 ? ParseNumber<int>(words[0]) : std::nullopt;
  if (!index) return Fail(BadArguments(rest));
  const std::string name = FullName({array, *index});
  return Report(name, user_.Release(name, MouseButton::Left, kHeaderSize / 2, kHeaderSize / 2));
}

ScriptRunner::LineKind ScriptRunner::Select(std::string_view rest) {
  return PickLine(rest, &User::Select);
}

ScriptRunner::LineKind ScriptRunner::DoubleClick(std::string_view rest) {
  return PickLine(rest, &User::DoubleClick);
}

ScriptRunner::LineKind ScriptRunner::PickLine(std::string_view rest,
                                              Reach (User::*pick)(std::string_view, int)) {
  const auto words = Words(rest);
  const auto index = words.size() == 2 ? ParseNumber<int>(words[1]) : std::nullopt;
  if (!index) return Fail(BadArguments(rest));
  return Report(words[0], (user_.*pick)(words[0], *index));
}

// Blanks belong to what is typed, so the rest of the line is no list of words.
ScriptRunner::LineKind ScriptRunner::Type(std::string_view rest) {
  const CommandLine parts = SplitCommand(rest);
  return Report(parts.word, user_.Type(parts.word, parts.rest));
}

ScriptRunner::LineKind ScriptRunner::Clear(std::string_view rest) {
  const auto words = Words(rest);
  if (words.size() != 1) return Fail(BadArguments(rest));
  return Report(words[0], user_.Clear(words[0]));
}

ScriptRunner::LineKind ScriptRunner::PressKey(std::string_view rest) {
  const auto words = Words(rest);
  if (words.size() != 2 || (words[1] != "enter" && words[1] != "escape")) return Fail(BadArguments(rest));
  return Report(words[0], user_.PressKey(words[0], words[1] == "enter" ? Key::Enter : Key::Escape));
}

ScriptRunner::LineKind ScriptRunner::Leave(std::string_view rest) {
  const auto words = Words(rest);
  if (words.size() != 1) return Fail(BadArguments(rest));
  return Report(words[0], user_.Leave(words[0]));
}

ScriptRunner::LineKind ScriptRunner::Answer(std::string_view rest) {
  if (!stage_.GiveAnswer(rest)) return Fail(std::string(texts::kNoButton) + std::string(rest));
  return LineKind::Event;
}

ScriptRunner::LineKind ScriptRunner::Cancel(std::string_view rest) {
  if (!Words(rest).empty()) return Fail(BadArguments(rest));
  if (!stage_.GiveCancel()) return Fail(std::string(texts::kNoButton) + "cancel");
  return LineKind::Event;
}

ScriptRunner::LineKind ScriptRunner::MainWindowState(std::string_view rest) {
  const auto words = Words(rest);
  const std::string_view what = words.size() == 1 ? words[0] : std::string_view();
  if (what == "minimize") return Report("window", user_.SetWindowState(WindowState::Minimized));
  if (what == "restore") return Report("window", user_.SetWindowState(WindowState::Normal));
  if (what == "maximize") return Report("window", user_.SetWindowState(WindowState::Maximized));
  if (what == "close") return Report("window", user_.CloseMain());
  return Fail(BadArguments(rest));
}

ScriptRunner::LineKind ScriptRunner::Dialog(std::string_view rest) {
  const auto words = Words(rest);
  if (words.size() != 1 || words[0] != "close") return Fail(BadArguments(rest));
  const Reach reach = user_.CloseDialog();
  if (reach == Reach::NoSuch) return Fail(std::string(texts::kNoDialog));
  return Report("dialog", reach);
}

ScriptRunner::LineKind ScriptRunner::SetClock(std::string_view rest) {
  const auto words = Words(rest);
  const auto time = words.size() == 1 ? ParseTime(words[0]) : std::nullopt;
  if (!time) return Fail(BadArguments(rest));
  clock_.Set(*time);
  return LineKind::Event;
}

ScriptRunner::LineKind ScriptRunner::Tick(std::string_view rest) {
  const auto words = Words(rest);
  const auto count = words.empty() ? std::optional<unsigned>(1) : ParseNumber<unsigned>(words[0]);
  if (!count || words.size() > 1) return Fail(BadArguments(rest));
  for (unsigned i = 0; i < *count; ++i) user_.Tick();
  return LineKind::Event;
}

// A question, not an event: an event has one round of its own behind it, and these are counted.
ScriptRunner::LineKind ScriptRunner::Rounds(std::string_view rest) {
  const auto words = Words(rest);
  const auto count = words.size() == 1 ? ParseNumber<unsigned>(words[0]) : std::nullopt;
  if (!count) return Fail(BadArguments(rest));
  if (user_.MainBlocked()) return Report("rounds", Reach::Modal);
  for (unsigned i = 0; i < *count && game_.End() == EndReason::None; ++i) (void)game_.Round();
  FinishWork();
  return LineKind::Question;
}

// Rounds until the renewal is through, at most so many.
ScriptRunner::LineKind ScriptRunner::Renew(std::string_view rest) {
  const auto words = Words(rest);
  const auto most = words.size() == 1 ? ParseNumber<unsigned>(words[0]) : std::nullopt;
  if (!most) return Fail(BadArguments(rest));
  if (user_.MainBlocked()) return Report("renew", Reach::Modal);
  unsigned rounds = 0;
  while (rounds < *most && game_.State().stockroom.RenewingLevel != 0 && game_.End() == EndReason::None) {
    (void)game_.Round();
    ++rounds;
  }
  if (game_.End() != EndReason::None) return LineKind::Question;
  FinishWork();
  transcript_.Line("rounds " + std::to_string(rounds));
  return LineKind::Question;
}

// A line for later: for the n-th yield of the line that follows.
ScriptRunner::LineKind ScriptRunner::At(std::string_view rest) {
  const CommandLine parts = SplitCommand(rest);
  const auto yield = ParseNumber<unsigned>(parts.word);
  const Command* command = FindCommand(SplitCommand(parts.rest).word);
  if (!yield || *yield == 0 || command == nullptr || !command->keepable) return Fail(BadArguments(rest));
  kept_lines_.Keep(*yield, parts.rest, line_number_);
  return LineKind::Kept;
}

}  // namespace kestrel
