// SPDX-License-Identifier: MIT
#include "help/exercises.h"

#include "explain/names.h"
#include "explain/reasons.h"
#include "explain/svg.h"

namespace kestrel::help {
namespace {

std::string FileLink(const std::string& page, ExercisePage kind, const std::string& key, const char* words) {
  return "<a href=\"" + ExerciseFile(page, kind) + '#' + key + "\">" + words + "</a>";
}

// What the exercise's page says beside the picture.
std::string Words(const std::string& page, ExercisePage kind, const Example& exercise) {
  switch (kind) {
    case ExercisePage::Question:
      return "<p>" + Escaped(QuestionOf(exercise.finding)) + "</p>\n<p>" +
             FileLink(page, ExercisePage::Hint, exercise.key, "Hint") + " &nbsp; " +
             FileLink(page, ExercisePage::Answer, exercise.key, "Answer") + "</p>\n";
    case ExercisePage::Hint:
      return "<p>" + Escaped(QuestionOf(exercise.finding)) + "</p>\n<p><b>Hint:</b> " +
             Escaped(NarrowingHint(exercise.finding)) + "</p>\n<p>" +
             FileLink(page, ExercisePage::Answer, exercise.key, "Answer") + "</p>\n";
    case ExercisePage::Answer:
      break;
  }
  return "<p>" + Escaped(ExampleText(exercise)) + "</p>\n";
}

// The position as a player sees it who is to find a step: of a single without candidates.
BoardPicture Question(const Example& exercise) {
  Example position = exercise;
  if (exercise.finding.placed_cell >= 0) position.marks = {};
  return DrawBoard(position, Frame::Plain);
}

}  // namespace

std::string ExerciseFile(const std::string& page, ExercisePage kind) {
  const std::string stem = page.substr(0, page.rfind('.'));
  switch (kind) {
    case ExercisePage::Question:
      return stem + "_exercises.html";
    case ExercisePage::Hint:
      return stem + "_hints.html";
    case ExercisePage::Answer:
      break;
  }
  return stem + "_answers.html";
}

std::string QuestionOf(const Finding& finding) {
  switch (finding.technique) {
    case Technique::HiddenSingle:
      return "Which digit has just one place left in a row, a column or a box? There are several; the hint "
             "and the "
             "answer are about the one that the game finds first.";
    case Technique::NakedSingle:
      return "Which cell can hold just one digit, because its row, column and box have all others?";
    default:
      return "Where is the " + NameOf(finding.technique) + ", and what can be removed?";
  }
}

std::string NarrowingHint(const Finding& finding) {
  switch (finding.technique) {
    case Technique::NakedSingle:
      return "The cell is in row " + std::string(1, RowLetter(CellRow[finding.placed_cell])) + '.';
    case Technique::NakedPair:
    case Technique::NakedTriple:
    case Technique::NakedQuad:
    case Technique::NakedQuint:
    case Technique::HiddenPair:
    case Technique::HiddenTriple:
    case Technique::MultiXWing:
      return "Look at " + TheUnit(finding.units[0]) + '.';
    case Technique::XYWing:
    case Technique::XYZWing:
      return "The pivot is in " + TheUnit({UnitKind::Box, CellBox[finding.pattern[0].cell]}) + '.';
    case Technique::UniqueRectangle:
      return "The two digits are " +
             DigitNames(finding.form == 1 ? finding.digits : finding.pattern[0].digits) + '.';
    case Technique::AvoidableRectangle:
      return "The two digits are " +
             DigitNames(finding.pattern[0].digits | finding.pattern[finding.form == 1 ? 2 : 1].digits) + '.';
    case Technique::HiddenSingle:
    case Technique::PointingPair:
    case Technique::BoxLine:
    case Technique::XWing:
    case Technique::TwoStringKite:
    case Technique::Skyscraper:
    case Technique::Swordfish:
    case Technique::FinnedXWing:
    case Technique::EmptyRectangle:
    case Technique::Jellyfish:
      return "Look at the places of the digit " + DigitNames(finding.digits) + '.';
    case Technique::None:
    case Technique::End:
      break;
  }
  return {};
}

std::string ExercisesHtml(HelpFiles& files, const std::string& page, ExercisePage kind,
                          const std::vector<const Example*>& exercises) {
  std::string html;
  int number = 0;
  for (const Example* exercise : exercises) {
    const std::string heading =
        "<h2 id=\"" + exercise->key + "\">Exercise " + std::to_string(++number) + "</h2>\n";
    const std::string words = heading + Words(page, kind, *exercise);
    if (kind == ExercisePage::Answer) {
      const BoardPicture picture = DrawBoard(*exercise);
      html += BesidePicture(words + Legend(files, picture.signs),
                            Image(files, exercise->key + "-answer", picture));
    } else {
      html += BesidePicture(words, Image(files, exercise->key, Question(*exercise)));
    }
  }
  return html;
}

}  // namespace kestrel::help
