// SPDX-License-Identifier: MIT
// Where the in-memory front end reports what the game does, line by line, and how values are written there.
// Used by the recording ports and the script front end.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "forms/asker.h"

namespace kestrel {

class Transcript {
 public:
  Transcript() = default;
  Transcript(const Transcript&) = delete;
  Transcript& operator=(const Transcript&) = delete;
  virtual ~Transcript() = default;
  virtual void Line(std::string_view line) = 0;
};

// "true" or "false".
std::string TruthValue(bool value);

// The buttons of a message box from the left, and the caption of each: "OK", "Cancel", "Yes", "No".
std::vector<Answer> AnswersOf(MessageButtons buttons);
std::string_view ButtonCaption(Answer answer);

// A number of points: no decimals when it is whole.
std::string Points(double points);

}  // namespace kestrel
