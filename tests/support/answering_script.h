// SPDX-License-Identifier: MIT
// A script that presses OK in message boxes by itself. Used by the tests of faults and by the fuzzers, where
// nobody can say beforehand which boxes will open.
#pragma once

#include <functional>
#include <sstream>
#include <streambuf>
#include <string>
#include <string_view>

namespace kestrel::testing {

// Hands a script over line by line, calling `look` before each. When the line that the game printed last
// tells of a message box, it gives the answer OK; lines "answer OK" without a box are left out.
class AnsweringScript final : public std::streambuf {
 public:
  // `script` and `output`, where the game prints, must outlive this object.
  AnsweringScript(std::string_view script, const std::ostringstream& output, std::function<void()> look = {})
      : script_(script), output_(output), look_(std::move(look)) {}

 protected:
  int_type underflow() override {
    if (look_) look_();
    const std::string_view printed = output_.view().substr(seen_);
    seen_ += printed.size();
    const std::size_t last = printed.rfind('\n', printed.size() - 2) + 1;  // 0 when there is no other line
    const bool in_box = !printed.empty() && printed.substr(last).starts_with("message ");
    line_ = kAnswer;
    while (!in_box && line_ == kAnswer) {
      line_ = script_.substr(0, script_.find('\n') + 1);
      script_.remove_prefix(line_.size());
    }
    setg(line_.data(), line_.data(), line_.data() + line_.size());
    return line_.empty() ? traits_type::eof() : traits_type::to_int_type(line_[0]);
  }

 private:
  static constexpr std::string_view kAnswer = "answer OK\n";

  std::string_view script_;
  const std::ostringstream& output_;
  std::function<void()> look_;
  std::size_t seen_ = 0;
  std::string line_;
};

}  // namespace kestrel::testing
