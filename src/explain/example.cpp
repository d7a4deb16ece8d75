// SPDX-License-Identifier: MIT
// Reading and writing worked examples.
#include "explain/example.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <sstream>
#include <tuple>

#include "core/cell_names.h"
#include "explain/technique_words.h"
#include "solver/technique_table.h"

namespace kestrel {
namespace {

constexpr std::array<std::pair<Role, std::string_view>, 7> kRoles{{{Role::Base, ""},
                                                                   {Role::Pivot, "pivot"},
                                                                   {Role::Wing, "wing"},
                                                                   {Role::Fin, "fin"},
                                                                   {Role::Floor, "floor"},
                                                                   {Role::Roof, "roof"},
                                                                   {Role::Link, "link"}}};

std::string DigitsText(CandidateMask digits) {
  std::string text;
  for (int digit = 1; digit <= 9; ++digit) {
    if (HasDigit(digits, digit)) text += static_cast<char>('0' + digit);
  }
  return text;
}

std::string UnitText(Unit unit) {
  switch (unit.kind) {
    case UnitKind::Row:
      return std::string("r") + RowLetter(unit.index);
    case UnitKind::Column:
      return "c" + std::to_string(unit.index + 1);
    case UnitKind::Box:
      break;
  }
  return "b" + std::to_string(unit.index + 1);
}

void WriteUnits(std::ostream& out, const char* name, const std::vector<Unit>& units) {
  if (units.empty()) return;
  out << name;
  for (const Unit& unit : units) out << ' ' << UnitText(unit);
  out << '\n';
}

using Words = std::vector<std::string>;

// Ascending digits 1..9, at least one.
std::optional<CandidateMask> ReadDigits(std::string_view text) {
  CandidateMask digits = 0;
  for (const char c : text) {
    if (c < '1' || c > '9' || digits >= DigitBit(c - '0')) return std::nullopt;
    digits |= DigitBit(c - '0');
  }
  if (digits == 0) return std::nullopt;
  return digits;
}

// "C7:48" into cell and digits.
bool ReadCell(std::string_view text, int& cell, CandidateMask& digits) {
  if (text.size() < 4 || text[2] != ':') return false;
  const auto read = ReadDigits(text.substr(3));
  cell = CellOfName(text.substr(0, 2));
  digits = read.value_or(CandidateMask{0});
  return cell >= 0 && read.has_value();
}

bool ReadUnit(std::string_view text, Unit& unit) {
  if (text.size() != 2) return false;
  switch (text[0]) {
    case 'r': {
      const int cell = CellOfName(std::string{text[1], '1'});
      unit = {UnitKind::Row, cell / 9};
      return cell >= 0;
    }
    case 'c':
      unit = {UnitKind::Column, text[1] - '1'};
      break;
    case 'b':
      unit = {UnitKind::Box, text[1] - '1'};
      break;
    default:
      return false;
  }
  return unit.index >= 0 && unit.index < 9;
}

// Gathers the lines of the block at hand and reports the first one that is wrong.
class Reader {
 public:
  ExampleFile Read(std::string_view text) {
    std::istringstream lines{std::string(text)};
    for (std::string line; file_.error.empty() && std::getline(lines, line);) {
      ++number_;
      if (line.empty() || line[0] == '#') continue;
      std::istringstream words(line);
      Words list;
      for (std::string word; words >> word;) list.push_back(word);
      if (list.empty() || !Line(list)) Fail("not understood");
    }
    Close();
    return std::move(file_);
  }

 private:
  void Fail(const char* reason) {
    if (file_.error.empty()) file_.error = "line " + std::to_string(number_) + ": " + reason;
  }

  bool Line(const Words& words) {
    const std::string& name = words[0];
    if (name == "example") {
      Close();
      current_.emplace();
      rows_ = 0;
      if (words.size() != 2 || file_.Find(words[1]) != nullptr) return false;
      current_->key = words[1];
      return true;
    }
    if (!current_) return false;
    if (name == "row") return Row(words);
    if (name == "givens") return words.size() == 2 && Givens(words[1]);
    if (name == "technique") return TechniqueLine(words);
    return FindingLine(words);
  }

  bool FindingLine(const Words& words) {
    const std::string& name = words[0];
    Finding& finding = current_->finding;
    if (name == "form" && words.size() == 2 && words[1].size() == 1) {
      finding.form = words[1][0] - '0';
      return finding.form >= 0 && finding.form <= 6;
    }
    if (name == "digits" && words.size() == 2) {
      finding.digits = ReadDigits(words[1]).value_or(CandidateMask{0});
      return finding.digits != 0;
    }
    const bool known =
        name == "pattern" || name == "units" || name == "covers" || name == "place" || name == "remove";
    return known && words.size() > 1 &&
           std::all_of(words.begin() + 1, words.end(), [&](const auto& word) { return Entry(name, word); });
  }

  bool Entry(const std::string& name, std::string_view word) {
    Finding& finding = current_->finding;
    int cell = -1;
    CandidateMask digits = 0;
    if (name == "units" || name == "covers") {
      Unit unit{};
      if (!ReadUnit(word, unit)) return false;
      (name == "units" ? finding.units : finding.covers).push_back(unit);
      return true;
    }
    const std::size_t slash = std::min(word.find('/'), word.size());
    if (!ReadCell(word.substr(0, slash), cell, digits)) return false;
    if (name == "pattern") {
      const std::string_view part = slash < word.size() ? word.substr(slash + 1) : std::string_view{};
      const auto role =
          std::find_if(kRoles.begin(), kRoles.end(), [&](const auto& r) { return r.second == part; });
      if (role == kRoles.end() || finding.technique == Technique::None ||
          !WordsOf(finding.technique).roles.Has(role->first)) {
        return false;
      }
      finding.pattern.push_back({cell, digits, role->first});
      return true;
    }
    if (slash < word.size()) return false;
    if (name == "place") {
      finding.placed_cell = cell;
      finding.placed_digit = LowestDigit(digits);
      return digits == DigitBit(finding.placed_digit);
    }
    finding.removals.push_back({cell, digits});
    return true;
  }

  bool Row(const Words& words) {
    if (words.size() != 11 || rows_ >= 9 || words[1] != std::string(1, RowLetter(rows_))) return false;
    for (int column = 0; column < 9; ++column) {
      const std::string& word = words[static_cast<std::size_t>(column) + 2];
      const int cell = RowCell[rows_][column];
      const bool placed = word[0] == '=';
      const auto digits = ReadDigits(placed ? std::string_view(word).substr(1) : std::string_view(word));
      if (!digits || (placed && BitCount[*digits] != 1)) return false;
      if (placed) {
        current_->digits[cell] = static_cast<std::uint8_t>(LowestDigit(*digits));
      } else {
        current_->marks[cell] = *digits;
      }
    }
    ++rows_;
    return true;
  }

  bool Givens(const std::string& text) {
    if (text.size() != kCells) return false;
    for (int cell = 0; cell < kCells; ++cell) {
      const char c = text[static_cast<std::size_t>(cell)];
      if (c != '.' && (c < '1' || c > '9')) return false;
      current_->givens[cell] = static_cast<std::uint8_t>(c == '.' ? 0 : c - '0');
    }
    return true;
  }

  bool TechniqueLine(const Words& words) {
    std::string caption;
    for (std::size_t i = 1; i < words.size(); ++i) caption += (i > 1 ? " " : "") + words[i];
    for (const Technique technique : kAllTechniques) {
      if (RowOf(technique).caption == caption) current_->finding.technique = technique;
    }
    return current_->finding.technique != Technique::None;
  }

  void Close() {
    if (!current_ || !file_.error.empty()) return;
    const Finding& finding = current_->finding;
    const bool single = finding.placed_cell >= 0;
    if (rows_ != 9 || finding.technique == Technique::None || finding.pattern.empty() ||
        single == !finding.removals.empty()) {
      Fail("the example before this line is not complete");
      return;
    }
    for (int cell = 0; cell < kCells; ++cell) {
      if (current_->givens[cell] != 0 && current_->givens[cell] != current_->digits[cell]) {
        Fail("the example before this line lacks one of its givens");
        return;
      }
    }
    file_.examples.push_back(std::move(*current_));
    current_.reset();
  }

  ExampleFile file_;
  std::optional<Example> current_;
  int rows_ = 0;
  int number_ = 0;
};

}  // namespace

bool SameFinding(const Finding& a, const Finding& b) {
  const auto parts = [](const Finding& f) {
    return std::tie(f.technique, f.digits, f.pattern, f.units, f.covers, f.form, f.placed_cell,
                    f.placed_digit, f.removals);
  };
  return parts(a) == parts(b);
}

std::string WriteExample(const Example& example) {
  std::ostringstream out;
  const Finding& finding = example.finding;
  out << "example " << example.key << "\ngivens ";
  for (const std::uint8_t digit : example.givens) out << static_cast<char>(digit == 0 ? '.' : '0' + digit);
  out << '\n';
  for (int row = 0; row < 9; ++row) {
    out << "row " << RowLetter(row);
    for (int column = 0; column < 9; ++column) {
      const int cell = RowCell[row][column];
      out << ' ';
      if (example.digits[cell] != 0) {
        out << '=' << static_cast<char>('0' + example.digits[cell]);
      } else {
        out << DigitsText(example.marks[cell]);
      }
    }
    out << '\n';
  }
  out << "technique " << RowOf(finding.technique).caption << "\nform " << finding.form << "\ndigits "
      << DigitsText(finding.digits) << "\npattern";
  for (const PatternCell& part : finding.pattern) {
    out << ' ' << CellName(part.cell) << ':' << DigitsText(part.digits);
    for (const auto& [role, name] : kRoles) {
      if (role == part.role && !name.empty()) out << '/' << name;
    }
  }
  out << '\n';
  WriteUnits(out, "units", finding.units);
  WriteUnits(out, "covers", finding.covers);
  if (finding.placed_cell >= 0) {
    out << "place " << CellName(finding.placed_cell) << ':' << finding.placed_digit << '\n';
  } else {
    out << "remove";
    for (const Removal& removal : finding.removals) {
      out << ' ' << CellName(removal.cell) << ':' << DigitsText(removal.digits);
    }
    out << '\n';
  }
  return out.str();
}

const Example* ExampleFile::Find(std::string_view key) const {
  const auto found = std::find_if(examples.begin(), examples.end(),
                                  [&](const Example& example) { return example.key == key; });
  return found == examples.end() ? nullptr : &*found;
}

ExampleFile ReadExamples(std::string_view text) {
  return Reader().Read(text);
}

}  // namespace kestrel
