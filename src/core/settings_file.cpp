// SPDX-License-Identifier: MIT
// The settings file: its lines, and how two copies of the program share it.
#include "core/settings_file.h"

#include <algorithm>
#include <utility>

namespace kestrel {

namespace {

constexpr std::size_t kLongestFile = 1U << 20U;
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";  // some editors put it first
constexpr std::size_t kNowhere = std::string::npos;

std::string_view Trimmed(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r";  // a file edited elsewhere may have carriage returns
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::string Quoted(std::string_view value) {
  std::string text = "\"";
  for (const char c : value) {
    if (c == '"' || c == '\\') text += '\\';
    text += c == '\n' ? std::string("\\n") : std::string(1, c);
  }
  return text + '"';
}

// The value between the quotes; nothing when `text` is not one well-formed quoted value.
std::optional<std::string> Unquoted(std::string_view text) {
  if (text.size() < 2 || !text.starts_with('"')) return std::nullopt;
  std::string value;
  for (std::size_t i = 1; i < text.size(); ++i) {
    if (text[i] == '"') return i + 1 == text.size() ? std::optional(value) : std::nullopt;
    if (text[i] != '\\') {
      value += text[i];
      continue;
    }
    if (++i == text.size()) return std::nullopt;
    if (text[i] != '"' && text[i] != '\\' && text[i] != 'n') return std::nullopt;
    value += text[i] == 'n' ? '\n' : text[i];
  }
  return std::nullopt;
}

// What one line says: a section, a key with what stands behind it, or neither. A value is taken out of its quotes only
// where it is wanted: every question reads all lines.
struct Line {
  std::optional<std::string_view> section;
  std::string_view key;
  std::string_view quoted;
};

Line ParseLine(std::string_view text) {
  Line line;
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
  text = Trimmed(text);
  if (text.starts_with('[') && text.ends_with(']')) {
    line.section = text.substr(1, text.size() - 2);
  } else if (const std::size_t equals = text.find('='); equals != kNowhere) {
    line.key = Trimmed(text.substr(0, equals));
    line.quoted = Trimmed(text.substr(equals + 1));
  }
  return line;
}

// Where a key stands in the lines, or where it would be added. The file is small and is searched anew for
// each question; there is no index that could disagree with the text.
struct Place {
  std::size_t line = kNowhere;         // the key's line
  std::size_t section_end = kNowhere;  // the line behind the section's last one that is not blank
  std::string value;
};

Place FindPlace(const std::vector<std::string>& lines, std::string_view section, std::string_view key) {
  Place place;
  bool inside = section.empty();
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const Line line = ParseLine(lines[i]);
    if (line.section) inside = *line.section == section;
    if (!inside) continue;
    if (!Trimmed(lines[i]).empty()) place.section_end = i + 1;
    if (line.section || line.key != key) continue;
    if (std::optional<std::string> value = Unquoted(line.quoted)) {
      place.line = i;
      place.value = std::move(*value);
    }
  }
  return place;
}

}  // namespace

SettingsText::SettingsText(std::string_view text) {
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    lines_.emplace_back(text.substr(0, end));
    text.remove_prefix(end == kNowhere ? text.size() : end + 1);
  }
}

std::optional<std::string> SettingsText::Find(std::string_view section, std::string_view key) const {
  Place place = FindPlace(lines_, section, key);
  return place.line == kNowhere ? std::nullopt : std::optional(std::move(place.value));
}

void SettingsText::Set(std::string_view section, std::string_view key, std::string_view value) {
  const Place place = FindPlace(lines_, section, key);
  std::string line = std::string(key) + '=' + Quoted(value);
  if (place.line != kNowhere) {
    lines_[place.line] = std::move(line);
  } else if (place.section_end != kNowhere) {
    lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(place.section_end), std::move(line));
  } else {
    lines_.push_back('[' + std::string(section) + ']');
    lines_.push_back(std::move(line));
  }
}

std::string SettingsText::Text() const {
  std::string text;
  for (const std::string& line : lines_) text += line + '\n';  // also behind a last line that had none
  return text;
}

SettingsFile::SettingsFile(Files& files, std::string path) : files_(files), path_(std::move(path)) {
}

bool SettingsFile::Load() {
  Bytes bytes;
  // One byte more than allowed shows a file that is too long.
  if (!files_.Read(path_, kLongestFile + 1, bytes) || bytes.size() > kLongestFile) return false;
  text_ = SettingsText(std::string(bytes.begin(), bytes.end()));
  return true;
}

std::string SettingsFile::Read(std::string_view section, std::string_view key, std::string_view fallback) {
  const auto unsaved = std::ranges::find_if(
      unsaved_, [&](const Setting& setting) { return setting.section == section && setting.key == key; });
  if (unsaved != unsaved_.end()) return unsaved->value;
  (void)Load();
  return text_.Find(section, key).value_or(std::string(fallback));
}

bool SettingsFile::Write(std::string_view section, std::string_view key, std::string_view value) {
  std::erase_if(unsaved_,
                [&](const Setting& setting) { return setting.section == section && setting.key == key; });
  // The callers write whole groups of settings at every change; most of them are in the file already.
  if (Load() && text_.Find(section, key) == value && unsaved_.empty()) return true;
  unsaved_.push_back({std::string(section), std::string(key), std::string(value)});
  const FileResult saved = files_.Update(path_, kLongestFile, [this](Bytes& bytes) {
    text_ = SettingsText(std::string(bytes.begin(), bytes.end()));
    for (const Setting& setting : unsaved_) text_.Set(setting.section, setting.key, setting.value);
    const std::string text = text_.Text();
    bytes.assign(text.begin(), text.end());
    return FileResult::Done();
  });
  if (saved) unsaved_.clear();
  return static_cast<bool>(saved);
}

}  // namespace kestrel
