// SPDX-License-Identifier: MIT
// Questions to the user. Every caller tests for "the program is ending" first: a box that was cut short is
// neither a yes nor a no.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace kestrel {

enum class MessageIcon : std::uint8_t { None, Critical, Exclamation, Information, Question };
enum class MessageButtons : std::uint8_t { Ok, OkCancel, YesNo };
enum class Answer : std::uint8_t { Ended, Ok, Cancel, Yes, No };

struct MessageBox {
  std::string title;
  std::string text;
  MessageIcon icon = MessageIcon::None;
  MessageButtons buttons = MessageButtons::Ok;
  bool cancel_is_default = false;  // Enter means the last button: what the first one does cannot be undone
};

struct InputBox {
  std::string title;
  std::string prompt;
  std::string proposal;  // stands in the box, selected, when it opens
  int level = 0;         // 1..5: what is asked for is the number of a puzzle of this level
};

class Asker {
 public:
  Asker() = default;
  Asker(const Asker&) = delete;
  Asker& operator=(const Asker&) = delete;
  virtual ~Asker() = default;

  // Shows a message over all open windows and waits for one of its buttons. Escape and the box's close button
  // mean Cancel, or No, or Ok when that is the only button. Ended: the program is ending.
  [[nodiscard]] virtual Answer Message(const MessageBox& box) = 0;

  // Asks for a text. Cancel gives an empty text; nothing: the program is ending.
  [[nodiscard]] virtual std::optional<std::string> Input(const InputBox& box) = 0;
};

}  // namespace kestrel
