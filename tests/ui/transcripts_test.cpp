// SPDX-License-Identifier: MIT
// Plays every script in tests/scripts and compares what it prints with the stored transcript. After a wanted
// change, KESTREL_COLLECT=1 writes the transcripts anew; look at the difference before committing it.
//
// Lines for this test in a script (comments to the script program):
//   #option --no-sound    options for the runs that follow
//   #without Assign.wav   that file is missing from the program folder
//   #fill 2 1             stands for the marks that solve puzzle 1 of level 2
//   #restart              ends the run; another one follows in the same home
// A file of the same name ending in .ini is the settings file at the start.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "support/game_home.h"
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

std::vector<std::string> ScriptNames() {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(kScripts)) {
    if (entry.path().extension() == ".script") names.push_back(entry.path().stem().string());
  }
  std::ranges::sort(names);
  return names;
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

// Plays the runs of a script one after the other.
std::string PlayAll(const fs::path& script) {
  GameHome home;
  fs::path settings = script;
  settings.replace_extension(".ini");
  if (fs::exists(settings)) home.home.Put("settings.ini", ReadAll(settings));
  std::istringstream lines(ReadAll(script));
  std::string report;
  std::string run;
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with("#option ")) SetOptions(home.options, line.substr(8));
    if (line.starts_with("#without ")) fs::remove(home.program.Path(line.substr(9)));
    run += line + "\n";
    if (line.starts_with("#fill ")) run += FillIn(line[6] - '0', line[8] - '0');
    if (line != "#restart") continue;
    report += Report(home.Play(run));
    run.clear();
  }
  return report + Report(home.Play(run));
}

class Transcripts : public ::testing::TestWithParam<std::string> {};

TEST_P(Transcripts, Agree) {
  const std::string report = PlayAll(kScripts / (GetParam() + ".script"));
  const fs::path expected = kScripts / (GetParam() + ".expected");
  if (std::getenv("KESTREL_COLLECT") != nullptr) std::ofstream(expected, std::ios::binary) << report;
  EXPECT_EQ(report, ReadAll(expected));
}

INSTANTIATE_TEST_SUITE_P(All, Transcripts, ::testing::ValuesIn(ScriptNames()),
                         [](const auto& test) { return test.param; });

}  // namespace
}  // namespace kestrel::testing
