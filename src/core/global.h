// SPDX-License-Identifier: MIT
// Small helpers for texts, paths and folders that every part of the game uses.
#pragma once

#include <string>
#include <string_view>

#include "core/files.h"

namespace kestrel {

// The shell's number of the user's local application data folder.
inline constexpr int kLocalAppData = 28;

// Where the host keeps its special folders. Implemented by host/host_folders.h.
class SpecialFolders {
 public:
  SpecialFolders() = default;
  SpecialFolders(const SpecialFolders&) = delete;
  SpecialFolders& operator=(const SpecialFolders&) = delete;
  virtual ~SpecialFolders() = default;

  // Puts the path of a folder into `path`; false when the host has no such folder.
  virtual bool Find(int folder_id, std::string& path) = 0;
};

// The path of a special folder, without one trailing backslash; empty when there is none.
std::string GetSpecialFolder(SpecialFolders& folders, int folder_id);

// Takes the blanks (spaces only) off the end of `text`, and returns it.
std::string StripTrailingBlanks(std::string& text);

// The text with a backslash at its end, where it has none yet.
std::string AddBackslash(std::string_view text);

// True exactly when the time of last modification can be read; every error is a "no".
bool FileExists(Files& files, std::string_view path);

}  // namespace kestrel
