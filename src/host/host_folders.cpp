// SPDX-License-Identifier: MIT
// The user's folders by the XDG base directory rules.
#include "host/host_folders.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>

namespace kestrel {

namespace {

// The value of an environment variable that names a folder; the rules say that a relative one is ignored.
std::string FolderFromEnvironment(const char* name) {
  const char* value = std::getenv(name);
  return value != nullptr && value[0] == '/' ? value : "";
}

std::string HomeFolder() {
  std::string home = FolderFromEnvironment("HOME");
  if (home.empty()) {
    const passwd* user = getpwuid(getuid());
    if (user != nullptr && user->pw_dir != nullptr) home = user->pw_dir;
  }
  return home;
}

std::string Folder(const char* variable, const char* place_in_home) {
  std::string folder = FolderFromEnvironment(variable);
  if (folder.empty()) {
    folder = HomeFolder();
    if (!folder.empty()) folder += place_in_home;
  }
  while (folder.size() > 1 && folder.ends_with('/')) folder.pop_back();
  return folder;
}

}  // namespace

bool HostFolders::Find(int folder_id, std::string& path) {
  if (folder_id != kLocalAppData) return false;
  path = Folder("XDG_DATA_HOME", "/.local/share");
  return !path.empty();
}

std::string HostFolders::Settings() {
  return Folder("XDG_CONFIG_HOME", "/.config");
}

}  // namespace kestrel
