// SPDX-License-Identifier: MIT
// Where this host keeps the user's data and settings. Used by the programs' start.
#pragma once

#include <string>

#include "core/global.h"

namespace kestrel {

// The folders of the XDG base directory rules, in the host's form and without a trailing slash.
class HostFolders final : public SpecialFolders {
 public:
  // Knows kLocalAppData only: $XDG_DATA_HOME, or .local/share in the home folder.
  bool Find(int folder_id, std::string& path) override;

  // The folder of the user's settings files: $XDG_CONFIG_HOME, or .config in the home folder; empty when
  // there is no home.
  static std::string Settings();
};

}  // namespace kestrel
