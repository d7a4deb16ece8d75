// SPDX-License-Identifier: MIT
// The help pages, put together.
#include "help/site.h"

#include <algorithm>
#include <array>
#include <optional>
#include <sstream>
#include <vector>

#include "explain/board_picture.h"
#include "explain/names.h"
#include "explain/reasons.h"
#include "help/stock_use.h"
#include "solver/technique_table.h"

namespace kestrel::help {
namespace {

constexpr std::array<const char*, 6> kGamePages{"index.html",   "playing.html",  "hints.html",
                                                "players.html", "printing.html", "renewal.html"};

struct PageText {
  std::string file;
  std::string title;
  std::vector<std::string> lines;  // what follows the heading lines
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

// "18,459"; up to 999,999.
std::string WithComma(int number) {
  std::string digits = std::to_string(number);
  return digits.size() <= 3 ? digits : digits.insert(digits.size() - 3, ",");
}

class Builder {
 public:
  explicit Builder(const SiteInput& input) : input_(input) {}

  Site Build() {
    if (!input_.examples.error.empty()) return {{}, "examples: " + input_.examples.error};
    const std::vector<std::string> order = PageOrder();
    for (const std::string& file : order) ReadText(file);
    for (const auto& entry : input_.texts) {
      if (std::find(order.begin(), order.end(), entry.first) == order.end()) {
        Fail(entry.first, "is no page of the help");
      }
    }
    for (const Technique technique : kAllTechniques) {
      if (summaries_[Slot(technique)].empty())
        Fail("summary " + std::to_string(StepOf(technique)), "is missing");
    }
    for (std::size_t i = 0; i < pages_.size(); ++i) Write(i);
    for (const Example& example : input_.examples.examples) {
      if (site_.files.count(PictureFile(example)) == 0) Fail("example " + example.key, "is on no page");
    }
    site_.files["help.css"] = input_.style;
    return std::move(site_);
  }

 private:
  static std::size_t Slot(Technique technique) { return static_cast<std::size_t>(SlotOf(technique)); }
  static bool IsOn(const std::string& file, Technique technique) {
    return technique != Technique::None && RowOf(technique).help_page == file;
  }
  static std::string PictureFile(const Example& example) { return "pictures/" + example.key + ".svg"; }

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
    const std::string title = page.file == "index.html" ? page.title : page.title + " - Kestrel Sudoku";
    out_.str({});
    shown_.clear();
    out_ << "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
            "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n<title>"
         << Escaped(title)
         << "</title>\n<link rel=\"stylesheet\" type=\"text/css\" href=\"help.css\">\n</head>\n<body>\n";
    Navigation(index);
    out_ << "<h1>" << Escaped(page.title) << "</h1>\n";
    for (const std::string& line : page.lines) Line(page, line);
    Navigation(index);
    out_ << "</body>\n</html>\n";
    site_.files[page.file] = out_.str();
  }

  void Navigation(std::size_t index) {
    if (index == 0) return;
    const auto link = [&](std::size_t to, const char* word) {
      out_ << "<a href=\"" << pages_[to].file << "\">" << word << ": " << Escaped(pages_[to].title) << "</a>";
    };
    out_ << "<p class=\"navigation\"><a href=\"index.html\">Contents</a>";
    if (index > 1) {
      out_ << " &nbsp; ";
      link(index - 1, "Previous");
    }
    if (index + 1 < pages_.size()) {
      out_ << " &nbsp; ";
      link(index + 1, "Next");
    }
    out_ << "</p>\n";
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
      ExampleAt(page, words);
    } else if (word == "@occurrence") {
      Occurrence(page, words);
    } else if (word == "@techniques") {
      Techniques();
    } else {
      Fail(page.file, "does not know " + word);
    }
  }

  void ExampleAt(const PageText& page, std::istringstream& words) {
    std::string key;
    std::string bar;
    std::string heading;
    words >> key >> bar;
    std::getline(words >> std::ws, heading);
    if (bar != "|" || heading.empty()) return Fail(page.file, "example without heading");
    const Example* example = input_.examples.Find(key);
    if (example == nullptr) return;
    if (RowOf(example->finding.technique).help_page != page.file) {
      return Fail(page.file, "example of another page: " + key);
    }
    if (shown_.empty()) {
      const auto more = std::count_if(page.lines.begin(), page.lines.end(), [&](const std::string& line) {
        std::istringstream in(line);
        std::string name;
        std::string other;
        return in >> name >> other && name == "@example" && input_.examples.Find(other) != nullptr;
      });
      out_ << (more > 1 ? "<h2>Worked examples</h2>\n" : "<h2>Worked example</h2>\n");
      Legend(page, more > 1);
    }
    shown_.push_back(example);
    Picture(*example, heading);
  }

  void Picture(const Example& example, const std::string& heading) {
    const std::string base = "pictures/" + example.key;
    const ::kestrel::Picture picture = DrawBoard(example);
    site_.files[PictureFile(example)] = picture.svg;
    out_ << "<h3>" << Escaped(heading) << "</h3>\n<p class=\"board\"><picture><source srcset=\"" << base
         << ".svg\" type=\"image/svg+xml\"><img src=\"" << base << ".png\" srcset=\"" << base
         << "@2x.png 2x\" width=\"" << kPictureWidth << "\" height=\"" << kPictureHeight << "\" alt=\""
         << Escaped(picture.words) << "\"></picture></p>\n<p class=\"example\">"
         << Escaped(ExampleText(example)) << "</p>\n";
  }

  // What the signs in the page's pictures mean; only those that occur.
  void Legend(const PageText& page, bool several) {
    const char* const in = several ? "In the pictures, " : "In the picture, ";
    SignSet signs;
    for (const Example& example : input_.examples.examples) {
      if (RowOf(example.finding.technique).help_page == page.file) signs.merge(DrawBoard(example).signs);
    }
    out_ << "<p class=\"legend\">" << in << "the signs mean: " << Escaped(LegendText(signs));
    out_ << "</p>\n";
  }

  void Occurrence(const PageText& page, std::istringstream& words) {
    std::vector<Technique> techniques;
    for (int step = 0; words >> step;) techniques.push_back(TechniqueOfStep(step));
    for (const Technique technique : techniques) {
      if (!IsOn(page.file, technique)) {
        return Fail(page.file, "occurrence of another page's technique");
      }
    }
    if (input_.stock == nullptr) return;
    out_ << "<h2>How often</h2>\n";
    for (const Technique technique : techniques) OccurrenceOf(technique);
    out_ << "<p class=\"note\">These are the puzzles that come with the game; a level that you have renewed "
            "holds "
            "others. Within a level, the lower the number, the easier the puzzle.</p>\n";
  }

  void OccurrenceOf(Technique technique) {
    const TechniqueUse use = UseOf(*input_.stock, technique);
    std::size_t puzzles = 0;
    int times = 0;
    for (int level = 0; level < kLevels; ++level) {
      puzzles += use.puzzles[level].size();
      times += use.times[level];
    }
    const std::string name = Escaped(RowOf(technique).caption);
    out_ << "<p><b>" << name << ":</b> ";
    if (puzzles == 0) {
      out_ << "none of the 500 puzzles needs it.</p>\n";
      return;
    }
    out_ << (puzzles == 500 ? "needed in all 500 puzzles, "
                            : "needed in " + std::to_string(puzzles) + " of the 500 puzzles, ")
         << WithComma(times) << (times == 1 ? " time" : " times") << " in all.</p>\n<table class=\"use\">\n";
    for (int level = 1; level <= kLevels; ++level) {
      const std::vector<int>& numbers = use.puzzles[level - 1];
      if (numbers.empty()) continue;
      out_ << "<tr><th scope=\"row\">" << LevelName(level) << "</th><td class=\"count\">" << numbers.size()
           << "</td><td>" << NumberList(numbers) << "</td></tr>\n";
    }
    out_ << "</table>\n";
  }

  void Techniques() {
    int tier = 0;
    out_ << "<table class=\"techniques\">\n";
    for (const TechniqueRow& row : kTechniqueTable) {
      if (row.tier != tier) {
        tier = row.tier;
        out_ << "<tr><th colspan=\"3\" class=\"tier" << tier << "\">" << LevelName(tier) << "</th></tr>\n";
      }
      out_ << "<tr><td><a href=\"" << row.help_page << "\">" << Escaped(row.caption)
           << "</a></td><td class=\"letters\">" << row.abbreviation << "</td><td>"
           << Escaped(summaries_[Slot(row.technique)]) << "</td></tr>\n";
    }
    out_ << "</table>\n";
  }

  const SiteInput& input_;
  Site site_;
  std::vector<PageText> pages_;
  std::array<std::string, kTechniques> summaries_;
  std::vector<const Example*> shown_;  // on the page at hand
  std::ostringstream out_;
};

}  // namespace

Site BuildSite(const SiteInput& input) {
  return Builder(input).Build();
}

std::string Escaped(std::string_view text) {
  std::string html;
  for (const char c : text) {
    switch (c) {
      case '&':
        html += "&amp;";
        break;
      case '<':
        html += "&lt;";
        break;
      case '>':
        html += "&gt;";
        break;
      case '"':
        html += "&quot;";
        break;
      default:
        html += c;
    }
  }
  return html;
}

}  // namespace kestrel::help
