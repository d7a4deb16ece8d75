// SPDX-License-Identifier: MIT
// The help pages, put together.
#include "help/site.h"

#include <algorithm>
#include <array>
#include <optional>
#include <sstream>
#include <vector>

#include "core/level_names.h"
#include "explain/page_parts.h"
#include "explain/reasons.h"
#include "explain/svg.h"
#include "help/exercises.h"
#include "help/practice.h"
#include "help/walk.h"
#include "solver/technique_table.h"

namespace kestrel::help {
namespace {

constexpr std::array<const char*, 9> kGamePages{"index.html",    "first_steps.html", "playing.html",
                                                "hints.html",    "words.html",       "players.html",
                                                "printing.html", "renewal.html",     "practice.html"};

struct PageText {
  std::string file;
  std::string title;
  std::vector<std::string> lines;  // what follows the heading lines
};

// An example's place in a page.
struct ExamplePlace {
  const Example* example;
  std::string heading;
};

std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

// All pages in reading order: the game, then the techniques from the simplest.
std::vector<std::string> PageOrder() {
  std::vector<std::string> order(kGamePages.begin(), kGamePages.end());
  for (const TechniqueRow& row : kTechniqueTable) {
    const std::string page(row.help_page);
    if (std::find(order.begin(), order.end(), page) == order.end()) order.push_back(page);
  }
  return order;
}

class Builder {
 public:
  explicit Builder(const SiteInput& input) : input_(input) {}

  Site Build() {
    if (!input_.examples.error.empty()) return {{}, "examples: " + input_.examples.error};
    if (!input_.exercises.error.empty()) return {{}, "exercises: " + input_.exercises.error};
    const std::vector<std::string> order = PageOrder();
    for (const std::string& file : order) ReadText(file);
    for (const auto& entry : input_.texts) {
      if (std::find(order.begin(), order.end(), entry.first) == order.end()) {
        Fail(entry.first, "is no page of the help");
      }
    }
    for (const Technique technique : kAllTechniques) {
      if (summaries_[Slot(technique)].empty()) {
        Fail("summary " + std::to_string(StepOf(technique)), "is missing");
      }
    }
    if (input_.stock != nullptr) walk_.emplace(SafeDigits((*input_.stock)(1, 1).GivenCells));
    for (std::size_t i = 0; i < pages_.size() && site_.error.empty(); ++i) Write(i);
    for (const Example& example : input_.examples.examples) {
      if (!IsPicture(example.key)) Fail("example " + example.key, "is on no page");
    }
    for (const auto& [name, style] : input_.styles) {
      if (style.empty()) Fail(name, "is missing or empty");
    }
    site_.files.insert(input_.styles.begin(), input_.styles.end());
    return std::move(site_);
  }

 private:
  static std::size_t Slot(Technique technique) { return static_cast<std::size_t>(SlotOf(technique)); }
  static bool IsOn(const std::string& file, Technique technique) {
    return technique != Technique::None && RowOf(technique).help_page == file;
  }
  [[nodiscard]] bool IsPicture(const std::string& key) const {
    return site_.files.contains("pictures/" + key + ".svg");
  }

  void Fail(const std::string& where, const std::string& reason) {
    if (site_.error.empty()) site_.error = where + ": " + reason;
  }

  void ReadText(const std::string& file) {
    const auto found = input_.texts.find(file);
    if (found == input_.texts.end()) return Fail(file, "has no text");
    PageText page{file, {}, Lines(found->second)};
    std::size_t heading = 0;
    for (; heading < page.lines.size(); ++heading) {
      std::istringstream words(page.lines[heading]);
      std::string word;
      words >> word;
      if (word == "title") {
        std::getline(words >> std::ws, page.title);
      } else if (int step = 0; word == "summary" && words >> step && IsOn(file, TechniqueOfStep(step))) {
        std::getline(words >> std::ws, summaries_[Slot(TechniqueOfStep(step))]);
      } else {
        break;
      }
    }
    if (page.title.empty()) Fail(file, "has no title");
    page.lines.erase(page.lines.begin(), page.lines.begin() + static_cast<std::ptrdiff_t>(heading));
    pages_.push_back(std::move(page));
  }

  void Write(std::size_t index) {
    const PageText& page = pages_[index];
    ReadExamplePlaces(page);
    out_.str({});
    for (const std::string& line : page.lines) Line(page, line);
    const std::string neighbours = Neighbours(index);
    Finish(page.file, page.title, neighbours, out_.str());
    WriteExercises(page);
  }

  // The file of a page: head, links, heading, content, links.
  void Finish(const std::string& file, const std::string& title, const std::string& neighbours,
              const std::string& content) {
    const std::string name = file == "index.html" ? title : title + " - Kestrel Sudoku";
    site_.files[file] = HelpPage(file, name, title, neighbours, content);
  }

  std::string Neighbours(std::size_t index) const {
    std::string links;
    if (index > 1) links += Link(pages_[index - 1].file, "Previous: " + pages_[index - 1].title) + " &nbsp; ";
    if (index > 0 && index + 1 < pages_.size())
      links += Link(pages_[index + 1].file, "Next: " + pages_[index + 1].title);
    return links;
  }

  void Line(const PageText& page, const std::string& line) {
    if (line.empty() || line[0] != '@') {
      if (!line.empty()) out_ << line << '\n';
      return;
    }
    std::istringstream words(line);
    std::string word;
    words >> word;
    if (word == "@example") {
      ExampleAt(words);
    } else if (word == "@story") {
      Story(page, words);
    } else if (word == "@exercises") {
      ExerciseLinks(page);
    } else if (word == "@practice") {
      Practice(page, words);
    } else if (word == "@techniques") {
      Techniques();
    } else if (word == "@signs") {
      out_ << SignTable(site_.files);
    } else if (word == "@ladder") {
      Ladder();
    } else if (word == "@walk") {
      WalkPart(page, words);
    } else {
      Fail(page.file, "does not know " + word);
    }
  }

  // ---- worked examples ----

  void ReadExamplePlaces(const PageText& page) {
    places_.clear();
    shown_ = 0;
    for (const std::string& line : page.lines) {
      std::istringstream words(line);
      std::string word;
      std::string key;
      std::string bar;
      std::string heading;
      if (!(words >> word) || word != "@example") continue;
      words >> key >> bar;
      std::getline(words >> std::ws, heading);
      if (bar != "|" || heading.empty()) return Fail(page.file, "example without heading");
      const Example* example = input_.examples.Find(key);
      if (example == nullptr) continue;
      if (!IsOn(page.file, example->finding.technique)) {
        return Fail(page.file, "example of another page: " + key);
      }
      places_.push_back({example, heading});
    }
  }

  void ExampleAt(std::istringstream& words) {
    std::string key;
    words >> key;
    if (shown_ >= places_.size() || places_[shown_].example->key != key) return;  // there is none
    if (shown_ == 0 && places_.size() > 1) OnThisPage();
    if (shown_ == 1) out_ << "<h2>More examples</h2>\n";
    const auto& [example, heading] = places_[shown_++];
    const BoardPicture picture = DrawBoard(*example);
    out_ << BesidePicture("<h3 id=\"" + key + "\">" + Escaped(heading) + "</h3>\n<p>" +
                              Escaped(ExampleText(*example)) + "</p>\n" + Legend(site_.files, picture.signs),
                          Image(site_.files, key, picture));
  }

  // One of the page's examples in three pictures; the last of them is the example's own.
  void Story(const PageText& page, std::istringstream& words) {
    std::string key;
    std::string bar;
    std::string what;
    words >> key >> bar;
    std::getline(words >> std::ws, what);
    const Example* example = input_.examples.Find(key);
    if (example == nullptr) return;
    if (!IsOn(page.file, example->finding.technique) || bar != "|") {
      return Fail(page.file, "story of another page, or one that does not say what to spot: " + key);
    }
    const auto frames = DrawStory(*example);
    const std::array<std::string, 3> texts{what + ' ' + frames[0].text, frames[1].text, frames[2].text};
    const std::array<std::string, 3> names{key + "-spot", key + "-why", key};
    out_ << "<h2>Step by step</h2>\n";
    for (std::size_t i = 0; i < frames.size(); ++i) {
      const BoardPicture& picture = frames[i].picture;
      out_ << BesidePicture("<h3>" + std::to_string(i + 1) + ". " + Escaped(frames[i].heading) +
                                "</h3>\n<p>" + Escaped(texts[i]) + "</p>\n" +
                                Legend(site_.files, picture.signs),
                            Image(site_.files, names[i], picture));
    }
  }

  void OnThisPage() {
    out_ << "<p class=\"navigation\">On this page: ";
    for (std::size_t i = 0; i < places_.size(); ++i) {
      out_ << (i > 0 ? ", " : "") << Link('#' + places_[i].example->key, places_[i].heading);
    }
    out_ << "</p>\n";
  }

  // ---- exercises ----

  std::vector<const Example*> ExercisesOf(const std::string& file) const {
    std::vector<const Example*> exercises;
    for (const Example& exercise : input_.exercises.examples) {
      if (IsOn(file, exercise.finding.technique)) exercises.push_back(&exercise);
    }
    return exercises;
  }

  void ExerciseLinks(const PageText& page) {
    const std::vector<const Example*> exercises = ExercisesOf(page.file);
    if (exercises.empty()) return;
    const std::string file = ExerciseFile(page.file, ExercisePage::Question);
    out_ << "<h2>Try it yourself</h2>\n<p>" << Link(file, std::to_string(exercises.size()) + " exercises")
         << ", each with a hint and an answer.</p>\n";
  }

  void WriteExercises(const PageText& page) {
    const std::vector<const Example*> exercises = ExercisesOf(page.file);
    if (exercises.empty()) return;
    for (const auto& [kind, word] : {std::pair(ExercisePage::Question, "Exercises"),
                                     {ExercisePage::Hint, "Hints"},
                                     {ExercisePage::Answer, "Answers"}}) {
      std::string back = Link(page.file, "Back to: " + page.title);
      if (kind != ExercisePage::Question) {
        back += " &nbsp; " + Link(ExerciseFile(page.file, ExercisePage::Question), "Exercises");
      }
      Finish(ExerciseFile(page.file, kind), page.title + ": " + word, back,
             ExercisesHtml(site_.files, page.file, kind, exercises));
    }
  }

  // ---- practice ----

  void Practice(const PageText& page, std::istringstream& words) {
    std::vector<Technique> techniques;
    for (int step = 0; words >> step;) techniques.push_back(TechniqueOfStep(step));
    for (const Technique technique : techniques) {
      if (!IsOn(page.file, technique)) return Fail(page.file, "practice of another page's technique");
    }
    if (input_.stock == nullptr) return;
    out_ << "<h2>Practise</h2>\n";
    for (const Technique technique : techniques) {
      const Rung rung = RungOf(*input_.stock, technique);
      out_ << "<p>";
      if (techniques.size() > 1) out_ << "<b>" << Escaped(NameOf(technique)) << ":</b> ";
      out_ << PracticeSentence(rung) << ' ' << UseSentence(rung) << "</p>\n";
    }
    out_ << "<p class=\"note\">The puzzles are those that come with the game; a level that you have renewed "
            "holds others. "
         << Link("practice.html", "All techniques") << " in order, with their puzzles.</p>\n";
  }

  void Ladder() {
    if (input_.stock == nullptr) return;
    out_ << "<table class=\"techniques\">\n";
    for (const Technique technique : kAllTechniques) {
      const Rung rung = RungOf(*input_.stock, technique);
      out_ << "<tr><td class=\"tier" << rung.level << "\">" << StepOf(technique) << "</td><td>"
           << Link(TechniqueLink(technique), NameOf(technique)) << "</td><td>" << PracticeSentence(rung);
      out_ << "</td></tr>\n";
    }
    out_ << "</table>\n";
  }

  // ---- contents and first steps ----

  // The place where a technique is explained: where a page has several, the technique's first example.
  [[nodiscard]] std::string TechniqueLink(Technique technique) const {
    const std::string page(RowOf(technique).help_page);
    const auto of_page = [&](const TechniqueRow& row) { return row.help_page == page; };
    if (std::count_if(kTechniqueTable.begin(), kTechniqueTable.end(), of_page) == 1) return page;
    for (const Example& example : input_.examples.examples) {
      if (example.finding.technique == technique) return page + '#' + example.key;
    }
    return page;
  }

  void Techniques() {
    int tier = 0;
    out_ << "<table class=\"techniques\">\n";
    for (const TechniqueRow& row : kTechniqueTable) {
      if (row.tier != tier) {
        tier = row.tier;
        out_ << "<tr><th colspan=\"3\" class=\"tier" << tier << "\">" << LevelName(tier) << "</th></tr>\n";
      }
      out_ << "<tr><td>" << Link(TechniqueLink(row.technique), NameOf(row.technique))
           << "</td><td class=\"letters\">" << row.abbreviation << "</td><td>"
           << Escaped(summaries_[Slot(row.technique)]) << "</td></tr>\n";
    }
    out_ << "</table>\n";
  }

  void WalkPart(const PageText& page, std::istringstream& words) {
    if (!walk_) return;
    std::string part;
    words >> part;
    const std::string html = walk_->Part(site_.files, part);
    if (html.empty()) return Fail(page.file, "cannot walk " + part);
    out_ << html;
  }

  const SiteInput& input_;
  Site site_;
  std::vector<PageText> pages_;
  std::array<std::string, kTechniques> summaries_;
  std::optional<Walk> walk_;
  std::vector<ExamplePlace> places_;  // of the page at hand
  std::size_t shown_ = 0;             // how many of them were written
  std::ostringstream out_;
};

}  // namespace

Site BuildSite(const SiteInput& input) {
  return Builder(input).Build();
}

}  // namespace kestrel::help
