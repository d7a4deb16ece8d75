// SPDX-License-Identifier: MIT
// What a script does to the files when nothing goes wrong, and the look at what is left when something did.
// Used by all tests here.
#pragma once

#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "host/host_calls.h"
#include "support/game_home.h"

namespace kestrel::testing {

// Plays a script on other system calls, calling `look` before each line. OK is pressed in every message box
// that opens on the way, and lines "answer OK" without a box are left out.
Played PlayOn(const GameHome& home, SystemCalls& calls, std::string_view script,
              const std::function<void()>& look = nullptr);

struct Course {
  explicit Course(std::string_view played);

  std::string script;
  std::vector<std::string> stocks;  // [k]: the stock's bytes after it was written k times
  std::set<std::string> settings;   // all that were stored, as the script program prints them
  int calls = 0;                    // system calls in all
};

// Looks at the home after a run of `course` that printed `output`, however it ended, and starts the program
// there again. The stock is the one that was written last, or wholly a later one; settings that were stored
// are there; no temporary is left; the game is ready.
void ExpectNothingLost(GameHome& home, const Course& course, const std::string& output_of_run);

// What `run` returns in a child process, or the exit status that ended the child before.
int InAChild(const std::function<int()>& run);

// Lines that solve puzzles of level 2 from `first` on, number n in n + 10 seconds.
std::string SolveLines(int first, int count);

}  // namespace kestrel::testing
