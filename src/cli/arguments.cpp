// SPDX-License-Identifier: MIT
#include "cli/arguments.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <ostream>
#include <utility>

namespace kestrel {
namespace {

constexpr std::size_t kHelpColumn = 26;

// "  --name VALUE        help"; a long left side puts the help on the next line.
void PrintOption(std::ostream& out, const OptionSpec& option) {
  std::string left = "  --" + std::string(option.name);
  if (!option.value.empty()) left += " " + std::string(option.value);
  if (left.size() + 2 > kHelpColumn) {
    out << left << '\n' << std::string(kHelpColumn, ' ');
  } else {
    out << left << std::string(kHelpColumn - left.size(), ' ');
  }
  out << option.help << '\n';
}

}  // namespace

std::optional<std::uint64_t> ParseNumber(std::string_view text) {
  std::uint64_t value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return value;
}

Arguments::Arguments(const CommandSpec& spec, std::span<const std::string> words) {
  bool options_ended = false;
  for (std::size_t i = 0; i < words.size(); ++i) {
    const std::string& word = words[i];
    if (options_ended || word == "-" || !word.starts_with('-')) {
      operands_.push_back(word);
      continue;
    }
    if (word == "--") {
      options_ended = true;
      continue;
    }
    const std::size_t equals = word.find('=');
    const std::string name = word.starts_with("--") ? word.substr(2, equals - 2) : std::string();
    const auto option = std::ranges::find(spec.options, name, &OptionSpec::name);
    if (option == spec.options.end()) {
      Fail("unknown option '" + word.substr(0, equals) + "'");
    } else if (option->value.empty()) {
      if (equals != std::string::npos) Fail("option '--" + name + "' takes no value");
      options_[name] = "";
    } else if (equals != std::string::npos) {
      options_[name] = word.substr(equals + 1);
    } else if (i + 1 < words.size()) {
      options_[name] = words[++i];
    } else {
      Fail("option '--" + name + "' needs a value");
    }
  }
  if (operands_.size() > static_cast<std::size_t>(spec.max_operands)) {
    Fail("unexpected argument '" + operands_[static_cast<std::size_t>(spec.max_operands)] + "'");
  }
}

std::string Arguments::Text(std::string_view option, std::string_view otherwise) const {
  const auto found = options_.find(option);
  return found == options_.end() ? std::string(otherwise) : found->second;
}

std::uint64_t Arguments::Number(std::string_view option, std::uint64_t otherwise, std::uint64_t lowest,
                                std::uint64_t highest) {
  const auto found = options_.find(option);
  if (found == options_.end()) return otherwise;
  const std::optional<std::uint64_t> value = ParseNumber(found->second);
  if (value && *value >= lowest && *value <= highest) return *value;
  Fail("option '--" + std::string(option) + "' needs a whole number from " + std::to_string(lowest) + " to " +
       std::to_string(highest) + ", not '" + found->second + "'");
  return otherwise;
}

int Arguments::OneOf(std::string_view option, std::span<const std::string_view> words) {
  const auto found = options_.find(option);
  if (found == options_.end()) return 0;
  std::string list;
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (words[i] == found->second) return static_cast<int>(i);
    list += (i == 0 ? "'" : " or '") + std::string(words[i]) + "'";
  }
  Fail("option '--" + std::string(option) + "' needs " + list + ", not '" + found->second + "'");
  return 0;
}

void Arguments::Fail(std::string error) {
  if (error_.empty()) error_ = std::move(error);
}

void PrintCommandHelp(std::ostream& out, const CommandSpec& spec) {
  out << "Usage: " << kProgramName << ' ' << spec.name << " [OPTION...]";
  if (!spec.operands.empty()) out << ' ' << spec.operands;
  out << '\n' << spec.summary << ".\n";
  if (!spec.details.empty()) out << '\n' << spec.details << '\n';
  out << "\nOptions:\n";
  for (const OptionSpec& option : spec.options) PrintOption(out, option);
  PrintOption(out, {"help", "", "show this text and end"});
}

}  // namespace kestrel
