// SPDX-License-Identifier: MIT
// The link to the maker's web site. Used by the main window.
#pragma once

#include <string_view>

#include "core/files.h"
#include "forms/asker.h"
#include "forms/shell.h"

namespace kestrel {

inline constexpr std::string_view kWebSite = "https://kestrel-sudoku.example/";

// Opens the address in the program that the desktop has for HTML files, and says so in a message when there
// is none or when it does not start. To ask for the program, a file is put into the program folder (with its
// backslash) for a moment; where that is not possible, or the name is taken, only the name is asked about.
void OpenWebSite(std::string_view address, std::string_view program_folder, Files& files, Shell& shell,
                 Asker& asker);

}  // namespace kestrel
