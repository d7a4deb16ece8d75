// SPDX-License-Identifier: MIT
#include "host/program_folder.h"

#include <filesystem>
#include <system_error>

namespace kestrel {

std::string ProgramFolder() {
  std::error_code error;
  const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error).parent_path();
  const std::filesystem::path installed = program / KESTREL_SHARE_FROM_BIN;
  const bool is_installed = std::filesystem::is_directory(installed, error);
  return (is_installed ? installed : program / KESTREL_DATA_FROM_BUILD).lexically_normal().string();
}

}  // namespace kestrel
