// SPDX-License-Identifier: MIT
// The command line program as a function. Used by app/main_cli.cpp and the tests.
#pragma once

#include <span>
#include <string>

#include "cli/command.h"

namespace kestrel {

// Runs the command that `words` (without the program's name) ask for. Everything written is flushed, and
// output that could not be written makes the status kFailure.
ExitStatus RunCli(std::span<const std::string> words, CliPorts& ports);

}  // namespace kestrel
