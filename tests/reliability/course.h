// SPDX-License-Identifier: MIT
// What a script does to the files when nothing goes wrong, and the comparison with a run in which something
// did. Used by the tests of faults and kills.
#pragma once

#include <iosfwd>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "core/host_calls.h"
#include "support/game_home.h"

namespace kestrel::testing {

struct Course {
  std::string script;               // without the answers to message boxes, which are all OK
  std::string answered;             // with them, as the program can be given it
  std::vector<std::string> stocks;  // [k]: the stock's bytes after it was written k times
  std::map<std::string, std::set<std::string>> settings;  // "SECTION KEY": all values it was given
  int calls = 0;                                          // system calls in all
};

// Plays `script` in a new home, pressing OK in every message box that opens on the way.
Course Rehearse(std::string_view script);

// Plays `course.script` on other system calls, pressing OK as above; what the game says is printed on `out`
// at once. Returns the exit status.
int PlayOn(const GameHome& home, SystemCalls& calls, const Course& course, std::ostream& out);

// Looks at the home after a run of `course` that printed `output`, however it ended, and starts the program
// there again: the stock is the one that was written last, or wholly the next; settings that were stored are
// there; nothing else is left in the data folder; the game is ready to play.
void ExpectNothingLost(GameHome& home, const Course& course, const std::string& output);

// Whether the environment variable KESTREL_LONG asks for the long form of these tests.
bool LongForm();

// Lines that solve puzzles of level 2 from `first` on, number n in n + 10 seconds.
std::string SolveLines(int first, int count);

}  // namespace kestrel::testing
