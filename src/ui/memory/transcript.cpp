// SPDX-License-Identifier: MIT
#include "ui/memory/transcript.h"

#include <array>
#include <charconv>

namespace kestrel {

std::string TruthValue(bool value) {
  return value ? "true" : "false";
}

std::vector<Answer> AnswersOf(MessageButtons buttons) {
  switch (buttons) {
    case MessageButtons::OkCancel:
      return {Answer::Ok, Answer::Cancel};
    case MessageButtons::YesNo:
      return {Answer::Yes, Answer::No};
    case MessageButtons::Ok:
      break;
  }
  return {Answer::Ok};
}

std::string_view ButtonCaption(Answer answer) {
  constexpr std::array<std::string_view, 5> kCaptions = {"", "OK", "Cancel", "Yes", "No"};
  return kCaptions[static_cast<std::size_t>(answer)];
}

std::string Points(double points) {
  std::array<char, 32> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), points).ptr;
  return {text.data(), end};
}

}  // namespace kestrel
