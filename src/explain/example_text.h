// SPDX-License-Identifier: MIT
// What a worked example shows, in plain sentences with cell names, made from the example's data alone. Used
// for the help pages.
#pragma once

#include <string>

#include "explain/example.h"

namespace kestrel::help {

// A paragraph of plain text: the pattern, why it works here, what follows.
std::string ExampleText(const Example& example);

}  // namespace kestrel::help
