// SPDX-License-Identifier: MIT
// Where the game keeps settings and data on this host, after the command line. Used by the game's start.
#pragma once

#include <string>
#include <vector>

#include "core/global.h"
#include "core/settings.h"
#include "host/command_line.h"
#include "host/host_files.h"
#include "host/host_folders.h"

namespace kestrel {

// The user's folders, or one folder that stands for them.
class HomeFolders final : public SpecialFolders {
 public:
  // `home` is a host path without a trailing slash; empty: the user's own folders.
  explicit HomeFolders(std::string home) : home_(std::move(home)) {}
  bool Find(int folder_id, std::string& path) override;

 private:
  std::string home_;
  HostFolders own_;
};

// Reads through to other settings; what is written is kept for this run only.
class SettingsInMemory final : public Settings {
 public:
  // `inner` must outlive this object.
  explicit SettingsInMemory(Settings& inner) : inner_(inner) {}
  std::string Read(std::string_view section, std::string_view key, std::string_view fallback) override;
  bool Write(std::string_view section, std::string_view key, std::string_view value) override;

 private:
  struct Setting {
    std::string section, key, value;
  };
  Settings& inner_;
  std::vector<Setting> written_;
};

// The settings file in the written form: the one of the command line, the one in `home`, or the one in the
// user's configuration folder. Makes that folder and the one of the user's data where they are missing.
std::string SettingsPath(const GameOptions& options, const std::string& home, HostFiles& files);

}  // namespace kestrel
