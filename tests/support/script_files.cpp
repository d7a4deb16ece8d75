// SPDX-License-Identifier: MIT
#include "support/script_files.h"

#include <algorithm>
#include <fstream>
#include <sstream>

#include "ui/script/parsing.h"

namespace kestrel::testing {

namespace {

namespace fs = std::filesystem;

const fs::path kScripts = fs::path(KESTREL_SOURCE_DIR) / "tests" / "scripts";

std::string ReadAll(const fs::path& path) {
  std::ostringstream text;
  text << std::ifstream(path, std::ios::binary).rdbuf();
  return text.str();
}

void SetOptions(ScriptOptions& options, std::string_view line) {
  std::vector<std::string> words{"--home", options.home, "--settings", options.settings};
  for (const std::string_view word : Words(line)) words.emplace_back(word);
  std::string error;
  const auto command = ParseScriptArguments(words, options.program, error);
  ASSERT_TRUE(command) << error;
  options = command->options;
}

std::string Report(const Played& played) {
  std::string report = played.output;
  if (!played.errors.empty()) report += "! " + played.errors;
  return report + "status " + std::to_string(played.status) + "\n";
}

}  // namespace

RecordedGame::RecordedGame(const std::string& name)
    : script_(kScripts / (name + ".script")), expected_(kScripts / (name + ".expected")) {
}

std::vector<std::string> RecordedGame::Names() {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(kScripts)) {
    if (entry.path().extension() == ".script") names.push_back(entry.path().stem().string());
  }
  std::ranges::sort(names);
  return names;
}

std::string RecordedGame::Play(const PlayRun& play) const {
  GameHome home;
  fs::path settings = script_;
  settings.replace_extension(".ini");
  if (fs::exists(settings)) home.home.Put("settings.ini", ReadAll(settings));
  std::istringstream lines(ReadAll(script_));
  std::string report;
  std::string run;
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with("#option ")) SetOptions(home.options, line.substr(8));
    if (line.starts_with("#without ")) fs::remove(home.program.Path(line.substr(9)));
    run += line + "\n";
    if (line.starts_with("#fill ")) run += FillIn(line[6] - '0', line[8] - '0');
    if (line != "#restart") continue;
    report += Report(play(home, run));
    run.clear();
  }
  return report + Report(play(home, run));
}

std::string RecordedGame::Expected() const {
  return ReadAll(expected_);
}

void RecordedGame::Store(const std::string& transcript) const {
  std::ofstream(expected_, std::ios::binary) << transcript;
}

}  // namespace kestrel::testing
