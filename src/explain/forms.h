// SPDX-License-Identifier: MIT
// The forms of the techniques that the help pages show an example of, and how clear an example is. Used by
// the program that looks for examples and by the tests.
#pragma once

#include <span>
#include <string_view>

#include "explain/example.h"

namespace kestrel::help {

struct Form {
  std::string_view key;                     // of the example, and of its place in a page
  int step;                                 // 1..22
  bool (*matches)(const Finding& finding);  // the step is checked already
};

// All forms, in the order of the steps. One that no puzzle was found for has no example and is left out of
// its page.
std::span<const Form> AllForms();

// True when the finding is of that form.
bool IsOfForm(const Finding& finding, const Form& form);

// How clear a position is as an example of the finding, larger is clearer: something to remove, the pattern
// close together, few other candidates of its digits to confuse it with, a board neither full of marks nor
// nearly done.
double Clarity(const SolverState& position, const Finding& finding);

}  // namespace kestrel::help
