// SPDX-License-Identifier: MIT
// kestrel-sudoku-script: plays the game by a script.
#include <cerrno>
#include <csignal>
#include <fstream>
#include <iostream>
#include <span>
#include <string>
#include <system_error>

#include "core/yield.h"
#include "host/host_files.h"
#include "host/program_folder.h"
#include "ui/script/command_line.h"
#include "ui/script/runner.h"

namespace {

using namespace kestrel;

int Play(const ScriptCommand& command) {
  std::ifstream file;
  if (!command.script.empty() && command.script != "-") {
    file.open(command.script);
    if (!file) {
      std::cerr << command.script << ": " << std::generic_category().message(errno) << '\n';
      return kStatusUsage;
    }
  }
  SystemCalls calls;
  HostFiles files(calls);
  NeverStop yield;
  std::istream& script = file.is_open() ? file : std::cin;
  return ScriptRunner(command.options, files, yield, script, std::cout, std::cerr).Run();
}

}  // namespace

int main(int argc, char** argv) {
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);
  const std::span<const char* const> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
  std::string error;
  const auto command = ParseScriptArguments(arguments, ProgramFolder(), error);
  if (!command) {
    std::cerr << "kestrel-sudoku-script: " << error << '\n';
    return kStatusUsage;
  }
  if (command->help) {
    std::cout << ScriptHelp();
    return kStatusGood;
  }
  if (command->version) {
    std::cout << "kestrel-sudoku-script " KESTREL_VERSION "\n";
    return kStatusGood;
  }
  return Play(*command);
}
