// SPDX-License-Identifier: MIT
// Worked examples: positions from real puzzles with what the solver finds in them. One data set,
// data/examples.txt, makes the pictures and the texts of the help pages and is checked by the tests.
//
// The file is text, one block per example, blank lines between blocks, lines that start with # are comments:
//
//   example x_wing-rows           the key: which picture, and which place in which page
//   givens ..7...               81 characters by cell: which digits the puzzle came with
//   row A 3 47 . ...            nine rows A..H, J of nine cells: "=3" a digit in place, else the candidates
//   technique X-Wing            its caption in the technique table
//   form 1                      as finding.h numbers them
//   digits 4
//   pattern C2:4 C8:4 G2:4 ...  cell, its digits, and its part when it has a special one: "C2:47/pivot"
//   units rC rG                 r row, c column, b box (1..9)
//   covers c2 c8
//   place C7:4                  a single only
//   remove A2:4 D8:4            all other techniques
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/grid.h"
#include "solver/finding.h"
#include "solver/solver_state.h"

namespace kestrel {

struct Example {
  std::string key;
  DigitGrid givens{};
  DigitGrid digits{};  // what stands on the board, givens included
  MarkGrid marks{};    // the candidates of the other cells
  Finding finding;

  // The position as the solver sees it.
  [[nodiscard]] SolverState Position() const { return {digits, marks}; }
};

// The parts of a finding that an example states; two findings of one position are the same when these are.
bool SameFinding(const Finding& a, const Finding& b);

// One block of the file, with a line end after each line and no blank line.
std::string WriteExample(const Example& example);

struct ExampleFile {
  std::vector<Example> examples;
  std::string error;  // empty, or "line 12: ..."; then `examples` is what came before
  // The example of that key; null when there is none.
  [[nodiscard]] const Example* Find(std::string_view key) const;
};

// Reads the text of a whole file. Refuses unknown or missing lines, cells with both digit and candidates,
// keys that occur twice, anything out of range.
ExampleFile ReadExamples(std::string_view text);

}  // namespace kestrel
