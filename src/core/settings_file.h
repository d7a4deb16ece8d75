// SPDX-License-Identifier: MIT
// The settings in a text file, one format for every front end. Used by the programs' start.
//
//     [Options]
//     Sounds="True"
//     [Players]
//     Player01="Ann             "
//
// UTF-8; inside the quotes \" \\ and \n stand for a quote, a backslash and a line feed. Lines that are none
// of these two kinds are passed over, and kept where they are when the file is written again.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/files.h"
#include "core/settings.h"

namespace kestrel {

// The text of a settings file, line by line.
class SettingsText {
 public:
  SettingsText() = default;
  explicit SettingsText(std::string_view text);

  // The value of a key; of several lines with the same key the last one counts.
  std::optional<std::string> Find(std::string_view section, std::string_view key) const;

  // Changes the line of a key, or adds one at the end of its section. `section` must hold no "]" or line
  // feed, `key` no "=" or line feed.
  void Set(std::string_view section, std::string_view key, std::string_view value);

  // The whole text; lines that were not set are byte for byte those that were read.
  std::string Text() const;

 private:
  std::vector<std::string> lines_;  // without their line feeds
};

// The settings file itself. It is read anew at every call, so that two running copies of the program see and
// keep each other's settings. A file that cannot be read gives the values read last, or the fallbacks, and is
// never overwritten.
class SettingsFile final : public Settings {
 public:
  // Both must outlive this object. `path` in the written form.
  SettingsFile(Files& files, std::string path);

  std::string Read(std::string_view section, std::string_view key, std::string_view fallback) override;
  bool Write(std::string_view section, std::string_view key, std::string_view value) override;

 private:
  struct Setting {
    std::string section, key, value;
  };

  bool Load();  // false when the file cannot be read; what was read before stays

  Files& files_;
  std::string path_;
  SettingsText text_;             // as last read or written
  std::vector<Setting> unsaved_;  // written here, not yet in the file
};

}  // namespace kestrel
