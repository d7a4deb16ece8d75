// SPDX-License-Identifier: MIT
// kestrel-sudoku-script: plays the game by a script.
#include <cerrno>
#include <fstream>
#include <iostream>
#include <string>
#include <system_error>
#include <vector>

#include "core/yield.h"
#include "host/host_files.h"
#include "host/program_folder.h"
#include "host/standard_streams.h"
#include "ui/script/command_line.h"
#include "ui/script/runner.h"

namespace {

using namespace kestrel;

constexpr const char* kProgram = "kestrel-sudoku-script";

// The status, unless the transcript could not be written.
int Finish(int status) {
  return FinishOutput(kProgram) ? status : kStatusUsage;
}

int PlayScript(const ScriptCommand& command) {
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
  for (const std::string* name :
       {&command.options.home, &command.options.settings, &command.options.program}) {
    files.KeepName(*name);
  }
  NeverStop yield;
  std::istream& script = file.is_open() ? file : std::cin;
  return ScriptRunner(command.options, files, yield, script, std::cout, std::cerr).Run();
}

}  // namespace

int main(int argc, char** argv) {
  PrepareStandardStreams();
  const std::vector<std::string> words(argv + (argc > 0 ? 1 : 0), argv + argc);
  std::string error;
  const auto command = ParseScriptArguments(words, ProgramFolder(), error);
  if (!command) {
    std::cerr << kProgram << ": " << error << '\n';
    return kStatusUsage;
  }
  if (command->help) {
    PrintHelp(std::cout, kProgram, kScriptSpec);
    return Finish(kStatusGood);
  }
  if (command->version) {
    std::cout << kProgram << " " KESTREL_VERSION "\n";
    return Finish(kStatusGood);
  }
  return Finish(PlayScript(*command));
}
