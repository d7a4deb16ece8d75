// SPDX-License-Identifier: MIT
// The small helpers for texts, paths and folders.
#include "core/global.h"

namespace kestrel {

std::string GetSpecialFolder(SpecialFolders& folders, int folder_id) {
  std::string path;
  if (!folders.Find(folder_id, path)) return {};
  path.resize(path.find('\0') == std::string::npos ? path.size() : path.find('\0'));
  if (path.ends_with('\\')) path.pop_back();
  return path;
}

std::string StripTrailingBlanks(std::string& text) {
  text.resize(text.find_last_not_of(' ') + 1);  // npos + 1 is 0: nothing but blanks
  return text;
}

std::string AddBackslash(std::string_view text) {
  std::string path(text);
  if (!path.ends_with('\\')) path += '\\';
  return path;
}

bool FileExists(Files& files, std::string_view path) {
  return files.Exists(path);
}

}  // namespace kestrel
