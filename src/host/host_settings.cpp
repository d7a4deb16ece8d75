// SPDX-License-Identifier: MIT
#include "host/host_settings.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace kestrel {

namespace {

constexpr std::string_view kSettingsFolder = "Grendale";  // the application's name in the settings store
constexpr std::string_view kSettingsFile = "settings.ini";

}  // namespace

bool HomeFolders::Find(int folder_id, std::string& path) {
  if (home_.empty()) return own_.Find(folder_id, path);
  path = home_;
  return folder_id == kLocalAppData;
}

std::string SettingsInMemory::Read(std::string_view section, std::string_view key,
                                   std::string_view fallback) {
  for (const Setting& each : written_) {
    if (each.section == section && each.key == key) return each.value;
  }
  return inner_.Read(section, key, fallback);
}

bool SettingsInMemory::Write(std::string_view section, std::string_view key, std::string_view value) {
  std::erase_if(written_, [&](const Setting& each) { return each.section == section && each.key == key; });
  written_.push_back({std::string(section), std::string(key), std::string(value)});
  return true;
}

std::string SettingsPath(const GameOptions& options, const std::string& home, HostFiles& files) {
  // The game makes its own folder in this one, but not this one, which a new user may not have yet.
  std::string data;
  const bool found = HomeFolders(home).Find(kLocalAppData, data);
  files.KeepName(data);
  if (found) (void)files.MakeFolders(data);
  if (!options.settings.empty()) {
    std::error_code error;
    const std::string path = std::filesystem::absolute(options.settings, error).lexically_normal().string();
    files.KeepName(path);
    return path;
  }
  if (!home.empty()) return home + '\\' + std::string(kSettingsFile);
  files.KeepName(HostFolders::Settings());
  const std::string folder = HostFolders::Settings() + '\\' + std::string(kSettingsFolder);
  // Where it cannot be made, the settings last for this run.
  (void)files.MakeFolders(folder);
  return folder + '\\' + std::string(kSettingsFile);
}

}  // namespace kestrel
