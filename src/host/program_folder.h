// SPDX-License-Identifier: MIT
// Where the data that belongs to the running program is: stock, sounds, previews and help pages. Used by the
// programs' start.
#pragma once

#include <string>

namespace kestrel {

// The folder of the program's data, in the host's form and without a trailing slash: where it was installed,
// relative to the program, or else the data folder of the tree that it was built from. Whether it exists is
// for the caller to find out.
std::string ProgramFolder();

}  // namespace kestrel
