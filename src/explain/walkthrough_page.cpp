// SPDX-License-Identifier: MIT
#include "explain/walkthrough_page.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

#include "core/level_names.h"
#include "core/text.h"
#include "explain/explain.h"
#include "explain/names.h"
#include "explain/reasons.h"
#include "explain/svg.h"
#include "solver/technique_table.h"

namespace kestrel {
namespace {

bool IsSingle(const Example& step) {
  return step.finding.placed_cell >= 0;
}

std::string Counted(int number, std::string_view one, std::string_view several) {
  return std::to_string(number).append(" ").append(number == 1 ? one : several);
}

std::string AllTechniques() {
  return Counted(kTechniques, "technique", "techniques");
}

std::string Verdict(const Walkthrough& walk) {
  const std::string steps = Counted(static_cast<int>(walk.steps.size()), "step", "steps");
  if (walk.rating.level == kBeyondTechniques) {
    return "The " + AllTechniques() + " do not solve this puzzle. They come to an end after " + steps + '.';
  }
  const auto level = static_cast<std::size_t>(walk.rating.level - 1);
  return "Level " + std::to_string(walk.rating.level) + " (" + std::string(kLevelNames[level]) + "), score " +
         std::to_string(walk.rating.Score()) + ", solved in " + steps + '.';
}

// What differs between a page by itself and one of the help.
class PageKind {
 public:
  PageKind() = default;
  PageKind(const PageKind&) = delete;
  PageKind& operator=(const PageKind&) = delete;
  virtual ~PageKind() = default;

  // Words and a picture side by side; the name tells the picture from the others of the page.
  virtual std::string Beside(const std::string& words, const std::string& name,
                             const BoardPicture& picture) = 0;
  virtual std::string SignTable(const SignSet& signs) = 0;
  // The words of a technique in a heading.
  virtual std::string Technique(kestrel::Technique technique, const std::string& words) const = 0;
};

class WholePage final : public PageKind {
 public:
  std::string Beside(const std::string& words, const std::string& /*name*/,
                     const BoardPicture& picture) override {
    return "<div class=\"step\">\n" + picture.svg + "<div>\n" + words + "</div>\n</div>\n";
  }

  std::string SignTable(const SignSet& signs) override {
    std::string html = "<ul class=\"legend\">\n";
    for (const Sign sign : signs) {
      const SignWords words = WordsOf(sign);
      html.append("<li>").append(SignSample(sign)).append(words.look).append(": ").append(words.meaning);
      html += "</li>\n";
    }
    return html + "</ul>\n";
  }

  [[nodiscard]] std::string Technique(kestrel::Technique /*technique*/,
                                      const std::string& words) const override {
    return "<b>" + words + "</b>";
  }
};

class HelpPageKind final : public PageKind {
 public:
  explicit HelpPageKind(HelpFiles& files) : files_(files) {}

  std::string Beside(const std::string& words, const std::string& name,
                     const BoardPicture& picture) override {
    return BesidePicture(words, Image(files_, "solved-" + name, picture));
  }

  std::string SignTable(const SignSet& signs) override { return Legend(files_, signs); }

  [[nodiscard]] std::string Technique(kestrel::Technique technique, const std::string& words) const override {
    return Link(std::string(RowOf(technique).help_page), words);
  }

 private:
  HelpFiles& files_;
};

// One puzzle on a page.
class Telling {
 public:
  // `prefix` stands before the ids; steps have headings of that tag.
  Telling(const Walkthrough& walkthrough, Singles singles, PageKind& kind, std::string prefix = {},
          const char* heading = "h2")
      : walk_(walkthrough),
        steps_(walkthrough.steps),
        singles_(singles),
        kind_(kind),
        prefix_(std::move(prefix)),
        heading_(heading) {}

  // How often each technique was needed.
  [[nodiscard]] std::string Counts() const {
    if (steps_.empty()) return {};
    std::string html = "<table class=\"counts\">\n";
    for (const TechniqueRow& row : kTechniqueTable) {
      const int count = walk_.rating.counters[row.counter];
      if (count == 0) continue;
      html.append("<tr><td>").append(row.caption).append("</td><td class=\"count\">");
      html.append(std::to_string(count)).append("</td></tr>\n");
    }
    return html + "</table>\n";
  }

  // The steps and the end, in order. Adds the signs of the pictures to `signs`.
  std::string Steps(SignSet& signs) {
    signs_ = &signs;
    for (std::size_t i = 0; i < steps_.size();) {
      std::size_t end = i + 1;
      if (singles_ == Singles::Gathered && IsSingle(steps_[i])) {
        while (end < steps_.size() && IsSingle(steps_[end])) ++end;
      }
      if (end - i > 1) {
        RunOfSingles(i, end);
      } else {
        Step(i);
      }
      i = end;
    }
    End();
    return std::move(text_);
  }

 private:
  void Show(const std::string& words, std::size_t step, const BoardPicture& picture) {
    signs_->insert(picture.signs.begin(), picture.signs.end());
    text_ += kind_.Beside(words, std::to_string(step + 1), picture);
  }

  void Heading(const std::string& id, const std::string& words) {
    text_.append("<").append(heading_).append(id.empty() ? "" : " id=\"" + id + "\"");
    text_.append(">").append(words).append("</").append(heading_).append(">\n");
  }

  void Step(std::size_t i) {
    const Finding& finding = steps_[i].finding;
    const StepWords words = ExplainStep(finding);
    Heading(Id(i), kind_.Technique(finding.technique, words.technique) + " on " + words.digits + " (step " +
                       std::to_string(i + 1) + ')');
    std::string text = "<p>" + ReasonText(steps_[i]) + "</p>\n";
    if (!IsSingle(steps_[i])) text += "<p><b>" + RemovalText(finding) + "</b></p>\n";
    Show(text, i, DrawBoard(steps_[i]));
  }

  // Steps i to end - 1, with the position after them.
  void RunOfSingles(std::size_t i, std::size_t end) {
    std::vector<Placement> placements;
    std::string text = "<ol>\n";
    for (std::size_t k = i; k < end; ++k) {
      const Finding& finding = steps_[k].finding;
      const StepWords words = ExplainStep(finding);
      const bool naked = finding.technique == Technique::NakedSingle;
      text += "<li id=\"" + Id(k) + "\"><b>" + words.technique + "</b>: " + words.digits + " in " +
              CellName(finding.placed_cell) + ", " +
              (naked ? "which has no other candidate" : words.pattern) + ".</li>\n";
      placements.push_back({finding.placed_cell, finding.placed_digit});
    }
    Heading({}, "Singles (steps " + std::to_string(i + 1) + " to " + std::to_string(end) + ')');
    Show(text + "</ol>\n", i, DrawSingles(walk_.PositionAt(end), placements));
  }

  void End() {
    const bool solved = walk_.rating.state.Solved();
    Heading({}, solved ? "The solution" : "Where the " + AllTechniques() + " end");
    Show(solved ? "<p>Every cell has its digit.</p>\n"
                : "<p>None of the techniques finds anything in this position.</p>\n",
         steps_.size(), DrawBoard(walk_.PositionAt(steps_.size()), Frame::Plain));
  }

  [[nodiscard]] std::string Id(std::size_t i) const { return prefix_ + "step-" + std::to_string(i + 1); }

  const Walkthrough& walk_;
  const std::vector<Example>& steps_;
  Singles singles_;
  PageKind& kind_;
  std::string prefix_;
  const char* heading_;
  SignSet* signs_ = nullptr;
  std::string text_;
};

std::string SignsSection(PageKind& kind, const SignSet& signs) {
  if (signs.empty()) return {};
  return "<h2>The signs</h2>\n" + kind.SignTable(signs);
}

constexpr std::string_view kNaming =
    "<p>Rows are called A to H and J, columns 1 to 9: C7 is the seventh cell of the third row. Small digits "
    "are "
    "candidates, the digits that a cell can still be.</p>\n";

constexpr std::string_view kStyle = R"(body { font-family: sans-serif; line-height: 1.45; max-width: 60em;
  margin: 0 auto; padding: 0 1em; color: #20262d; background: #ffffff; }
h2 { margin-top: 2em; }
.step { display: flex; flex-wrap: wrap; gap: 1.5em; align-items: flex-start; }
.step > svg { flex: 0 1 30em; max-width: 100%; height: auto; }
.step > div { flex: 1 1 16em; }
.legend { list-style: none; padding: 0; }
.legend svg { vertical-align: middle; margin-right: .6em; }
.puzzle { font-family: monospace; overflow-wrap: anywhere; }
table { border-collapse: collapse; }
td { padding: .1em 1em .1em 0; }
td.count { text-align: right; }
)";

// The page itself in dark, and the pictures: rules of a style come before the colours that a picture carries.
std::string DarkStyle() {
  const std::array<std::pair<const char*, const char*>, 12> colours{{
      {kLightPalette.paper, kDarkPalette.paper},
      {kLightPalette.ink, kDarkPalette.ink},
      {kLightPalette.thin, kDarkPalette.thin},
      {kLightPalette.mark, kDarkPalette.mark},
      {kLightPalette.given, kDarkPalette.given},
      {kLightPalette.digit, kDarkPalette.digit},
      {kLightPalette.cause, kDarkPalette.cause},
      {kLightPalette.on_cause, kDarkPalette.on_cause},
      {kLightPalette.gone, kDarkPalette.gone},
      {kLightPalette.gone_ground, kDarkPalette.gone_ground},
      {kLightPalette.unit_wash, kDarkPalette.unit_wash},
      {kLightPalette.lose_wash, kDarkPalette.lose_wash},
  }};
  std::string style =
      "@media (prefers-color-scheme: dark) {\nbody { color: #e4e7eb; background: #1e2227; }\n";
  style += "a { color: #7db1f7; }\n";
  for (const char* property : {"fill", "stroke"}) {
    for (const auto& [light, dark] : colours) {
      style.append("[").append(property).append("=\"").append(light).append("\"] { ");
      style.append(property).append(": ").append(dark).append("; }\n");
    }
  }
  return style + "}\n";
}

std::string Head(std::string_view title) {
  std::string html = "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n<title>";
  html.append(title).append("</title>\n<meta name=\"viewport\" ");
  html.append("content=\"width=device-width, initial-scale=1\">\n<style>\n").append(kStyle);
  html.append(DarkStyle()).append("</style>\n</head>\n<body>\n<h1>").append(title).append("</h1>\n");
  return html;
}

// The puzzle's line, and how it went.
std::string Summary(const Walkthrough& walk) {
  std::string line = GridText(walk.givens);
  std::ranges::replace(line, '0', '.');
  return "<p class=\"puzzle\">" + line + "</p>\n<p>" + Verdict(walk) + "</p>\n";
}

std::string PageOfOne(const Walkthrough& walk, Singles singles) {
  WholePage kind;
  Telling telling(walk, singles, kind);
  SignSet signs;
  const std::string steps = telling.Steps(signs);
  std::string html = Head("How this sudoku is solved") + Summary(walk) + telling.Counts();
  html.append(SignsSection(kind, signs)).append(kNaming).append(steps);
  return html;
}

std::string PageOfSeveral(std::span<const Walkthrough> walks, Singles singles) {
  WholePage kind;
  SignSet signs;
  std::string list = "<ol>\n";
  std::string puzzles;
  for (std::size_t i = 0; i < walks.size(); ++i) {
    const std::string id = "puzzle-" + std::to_string(i + 1);
    const std::string name = "Puzzle " + std::to_string(i + 1);
    list += "<li>" + Link('#' + id, name) + ": " + Verdict(walks[i]) + "</li>\n";
    Telling telling(walks[i], singles, kind, id + '-', "h3");
    puzzles += "<h2 id=\"" + id + "\">" + name + "</h2>\n" + Summary(walks[i]) + telling.Counts();
    puzzles += telling.Steps(signs);
  }
  std::string html = Head("How these sudokus are solved") + list + "</ol>\n";
  html.append(SignsSection(kind, signs)).append(kNaming).append(puzzles);
  return html;
}

std::string SolvedHelpPage(const std::string& content) {
  constexpr const char* kTitle = "How this one is solved";
  return HelpPage(kSolvedPage, std::string(kTitle) + " - Kestrel Sudoku", kTitle, {}, content);
}

}  // namespace

std::string WalkthroughPage(std::span<const Walkthrough> walkthroughs, Singles singles) {
  const bool one = walkthroughs.size() == 1;
  return (one ? PageOfOne(walkthroughs.front(), singles) : PageOfSeveral(walkthroughs, singles)) +
         "</body>\n</html>\n";
}

std::string SolvedHelpToCome() {
  return SolvedHelpPage(
      "<p>When the puzzle on the board has ended, solved or shown, this page tells step by step how it is "
      "solved. "
      "While it is in play, <a href=\"hints.html\">Hint</a> names the technique that helps on, and the "
      "technique's "
      "page shows it in other positions.</p>\n");
}

HelpFiles SolvedHelp(const Walkthrough& walkthrough) {
  HelpFiles files;
  HelpPageKind kind(files);
  Telling telling(walkthrough, Singles::Gathered, kind);
  SignSet signs;
  const std::string steps = telling.Steps(signs);
  files[kSolvedPage] = SolvedHelpPage(
      "<p>This is the puzzle on the board, from its givens to the solution: the simplest "
      "technique that helps, at every step. There are other ways, and yours may have "
      "been one of them.</p>\n<p>" +
      Verdict(walkthrough) + "</p>\n" + telling.Counts() + SignsSection(kind, signs) + steps);
  return files;
}

}  // namespace kestrel
