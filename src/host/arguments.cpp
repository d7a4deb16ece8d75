// SPDX-License-Identifier: MIT
#include "host/arguments.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdint>
#include <ostream>
#include <utility>

#include "core/text.h"

namespace kestrel {
namespace {

constexpr std::size_t kHelpColumn = 26;

std::string Quoted(std::string_view option) {
  return "option '--" + std::string(option) + "'";
}

// Writes the lines of a text, each behind `indent` and what stands before all of them.
void PrintLines(std::ostream& out, std::string_view text, const std::string& before) {
  while (!text.empty()) {
    const std::string_view line = text.substr(0, text.find('\n'));
    out << before << line << '\n';
    text.remove_prefix(std::min(text.size(), line.size() + 1));
  }
}

// "  --name VALUE        help"; a long left side puts the help on the next line.
void PrintOption(std::ostream& out, const std::string& left, std::string_view help) {
  const std::string blanks(kHelpColumn, ' ');
  const std::size_t end = std::min(help.find('\n'), help.size());
  if (left.size() + 2 > kHelpColumn) {
    out << left << '\n' << blanks;
  } else {
    out << left << blanks.substr(left.size());
  }
  out << help.substr(0, end) << '\n';
  if (end < help.size()) PrintLines(out, help.substr(end + 1), blanks);
}

// What is wrong with "--name=VALUE", or nothing: the parser would take the next word for an empty value.
std::string ErrorOfJoined(const CommandSpec& spec, const std::string& word) {
  const std::size_t equals = word.find('=');
  if (!word.starts_with("--") || equals == std::string::npos) return {};
  const auto option = std::ranges::find(spec.options, word.substr(2, equals - 2), &OptionSpec::name);
  if (option == spec.options.end()) return {};
  if (option->value.empty()) return Quoted(option->name) + " takes no value";
  return equals + 1 == word.size() ? Quoted(option->name) + " needs a value" : "";
}

}  // namespace

Arguments::Arguments(const CommandSpec& spec, std::span<const std::string> words) {
  for (auto word = words.begin(); word != words.end() && *word != "--"; ++word) {
    Fail(ErrorOfJoined(spec, *word));
  }
  if (!error_.empty()) return;
  try {
    Parse(spec, words);
  } catch (const CLI::CallForHelp&) {
    help_wanted_ = true;
  } catch (const CLI::ArgumentMismatch& error) {
    const std::string_view text = error.what();  // "--format: 1 required TEXT missing"
    Fail("option '" + std::string(text.substr(0, text.find(':'))) + "' needs a value");
  } catch (const CLI::ParseError& error) {
    Fail(error.what());
  }
}

void Arguments::Parse(const CommandSpec& spec, std::span<const std::string> words) {
  CLI::App app;
  app.set_help_flag("-h,--help");
  app.allow_extras();
  std::vector<std::pair<const OptionSpec*, CLI::Option*>> known;
  for (const OptionSpec& option : spec.options) {
    const std::string name = "--" + std::string(option.name);
    CLI::Option* added = option.value.empty()
                             ? app.add_flag(name)->disable_flag_override()
                             : app.add_option(name)->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
    known.emplace_back(&option, added);
  }
  app.parse(std::vector<std::string>(words.rbegin(), words.rend()));
  for (const auto& [option, given] : known) {
    if (given->count() == 0) continue;
    const std::string value = option->value.empty() ? "" : given->results().back();
    if (value.empty() && !option->value.empty()) Fail(Quoted(option->name) + " needs a value");
    options_[std::string(option->name)] = value;
  }
  // Operands are what the parser leaves; as an option of its own it would split one in brackets at its commas.
  bool options_ended = false;
  for (const std::string& word : app.remaining()) {
    if (!options_ended && word == "--") {
      options_ended = true;
    } else if (!options_ended && word.size() > 1 && word.starts_with('-')) {
      Fail("unknown option '" + word.substr(0, word.find('=')) + "'");
    } else if (operands_.size() == static_cast<std::size_t>(spec.max_operands)) {
      Fail("unexpected argument '" + word + "'");
    } else {
      operands_.push_back(word);
    }
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
  const std::optional<std::uint64_t> value = ParseNumber<std::uint64_t>(found->second);
  if (value && *value >= lowest && *value <= highest) return *value;
  FailValue(option, "a whole number from " + std::to_string(lowest) + " to " + std::to_string(highest));
  return otherwise;
}

int Arguments::OneOf(std::string_view option, std::span<const std::string_view> words) {
  const auto found = options_.find(option);
  if (found == options_.end()) return 0;
  std::string list;
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (words[i] == found->second) return static_cast<int>(i);
    list += (i == 0 ? "'" : i + 1 == words.size() ? " or '" : ", '") + std::string(words[i]) + "'";
  }
  FailValue(option, list);
  return 0;
}

void Arguments::Fail(std::string error) {
  if (error_.empty()) error_ = std::move(error);
}

void Arguments::FailValue(std::string_view option, std::string_view needed) {
  Fail(Quoted(option) + " needs " + std::string(needed) + ", not '" + Text(option, "") + "'");
}

void PrintHelp(std::ostream& out, std::string_view program, const CommandSpec& spec) {
  out << "Usage: " << program << (spec.name.empty() ? "" : " ") << spec.name << " [OPTION...]";
  if (!spec.operands.empty()) out << ' ' << spec.operands;
  out << '\n' << spec.summary << ".\n";
  if (!spec.details.empty()) out << '\n' << spec.details << '\n';
  out << "\nOptions:\n";
  for (const OptionSpec& option : spec.options) {
    std::string left = "  --" + std::string(option.name);
    if (!option.value.empty()) left += " " + std::string(option.value);
    PrintOption(out, left, option.help);
  }
  PrintOption(out, "  -h, --help", "show this text and end");
  if (spec.examples.empty()) return;
  out << "\nExamples:\n";
  PrintLines(out, spec.examples, "  " + std::string(program) + " ");
}

}  // namespace kestrel
