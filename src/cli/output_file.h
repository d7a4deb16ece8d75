// SPDX-License-Identifier: MIT
// Writing what a command made into the file that the user named. Used by `print` and `report`.
#pragma once

#include <string>
#include <vector>

#include "cli/command.h"
#include "core/files.h"

namespace kestrel {

// Whether a file may be written over: it is none of the files in `sources`, under whatever name, and no stock,
// whose best times would be gone. If not, says why on standard error.
bool MayWrite(const std::string& path, const std::vector<std::string>& sources, CliPorts& ports);

// Writes a whole file; "-" is standard output, and devices and pipes are written to as they are. kFailure, and
// told on standard error, when that fails.
ExitStatus WriteOutput(const std::string& path, const Bytes& bytes, CliPorts& ports);

}  // namespace kestrel
