// SPDX-License-Identifier: MIT
// The composed message of printing.
#include "print/texts.h"

namespace kestrel::texts {

std::string BadRange(const PrintSettings& settings) {
  return "puzzles " + std::to_string(settings.first_number) + " to " + std::to_string(LastNumber(settings)) +
         " are not all there, a level has 1 to 100: the first number is from 1 to " +
         std::to_string(HighestFirstNumber(settings)) + " for this many";
}

}  // namespace kestrel::texts
