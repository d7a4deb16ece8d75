// SPDX-License-Identifier: MIT
// The script's lines that are questions: they change nothing, and no round of the game follows.
#include <string>

#include "core/text.h"
#include "ui/script/parsing.h"
#include "ui/script/properties.h"
#include "ui/script/runner.h"
#include "ui/script/texts.h"
#include "ui/script/values.h"

namespace kestrel {

ScriptRunner::LineKind ScriptRunner::Get(std::string_view rest) {
  const auto words = Words(rest);
  // Names have no blanks; with more than one word the error tells the line as it stands.
  const std::string_view what = words.size() == 1 ? words[0] : rest;
  const std::size_t dot = std::min(what.find('.'), what.size());
  const std::string_view property = what.substr(std::min(dot + 1, what.size()));
  const auto text = PropertyText(game_.State().forms, what.substr(0, dot), property);
  if (!text) return Fail(std::string(texts::kNoProperty) + std::string(what));
  transcript_.Line(std::string(what) + " = " + *text);
  return LineKind::Question;
}

ScriptRunner::LineKind ScriptRunner::Var(std::string_view rest) {
  const auto words = Words(rest);
  const std::string_view name = words.size() == 1 ? words[0] : rest;
  const auto text = ValueText(game_.State(), name);
  if (!text) return Fail(std::string(texts::kNoValue) + std::string(name));
  transcript_.Line(std::string(name) + " = " + *text);
  return LineKind::Question;
}

ScriptRunner::LineKind ScriptRunner::Board(std::string_view) {
  transcript_.Line("board = " + GridText(game_.State().play.puzzle.CurrentDigits));
  return LineKind::Question;
}

ScriptRunner::LineKind ScriptRunner::Givens(std::string_view) {
  transcript_.Line("givens = " + GridText(game_.State().play.puzzle.GivenDigits));
  return LineKind::Question;
}

ScriptRunner::LineKind ScriptRunner::Solution(std::string_view) {
  transcript_.Line("solution = " + GridText(game_.State().play.puzzle.SolutionDigits));
  return LineKind::Question;
}

ScriptRunner::LineKind ScriptRunner::Pencil(std::string_view) {
  transcript_.Line("pencil = " + PencilText(game_.State().play.puzzle));
  return LineKind::Question;
}

ScriptRunner::LineKind ScriptRunner::Steps(std::string_view) {
  const auto texts = StepTexts(game_.State().play.history);
  transcript_.Line("steps = " + texts[0]);
  for (std::size_t k = 1; k < texts.size(); ++k) {
    transcript_.Line("step " + std::to_string(k) + " = " + texts[k]);
  }
  return LineKind::Question;
}

ScriptRunner::LineKind ScriptRunner::Record(std::string_view rest) {
  const auto words = Words(rest);
  const auto level = words.size() == 2 ? ParseNumber<int>(words[0]) : std::nullopt;
  const auto number = words.size() == 2 ? ParseNumber<int>(words[1]) : std::nullopt;
  if (!level || !number || *level < 1 || *level > kLevels || *number < 1 || *number > kPuzzlesPerLevel) {
    return Fail(std::string(texts::kBadArguments) + std::string(rest));
  }
  transcript_.Line("record = " + RecordText((*game_.State().stockroom.stock)(*level, *number)));
  return LineKind::Question;
}

ScriptRunner::LineKind ScriptRunner::Echo(std::string_view rest) {
  transcript_.Line("echo " + std::string(rest));
  return LineKind::Question;
}

}  // namespace kestrel
