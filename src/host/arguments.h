// SPDX-License-Identifier: MIT
// The command line of a program or of one of its commands: what may stand on it, its help, and its reading.
// Used by all programs, so that options are spelled the same everywhere.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kestrel {

struct OptionSpec {
  std::string_view name;   // without the two dashes
  std::string_view value;  // what its argument is called in the help; empty for a switch
  std::string_view help;   // may have several lines
};

struct CommandSpec {
  std::string_view name;      // "rate", "stock new"; empty for a program without commands
  std::string_view operands;  // as the usage line shows them: "[FILE...]"
  int max_operands;
  std::string_view summary;  // one line, for the list of commands
  std::string_view details;  // for the command's own help; may have several lines
  std::span<const OptionSpec> options;
  std::string_view
      examples;  // the last lines of the help, without the program's name; each can be run as it is
};

// What stood behind the name of a program or command. The first thing wrong with it is kept in words.
class Arguments {
 public:
  // Options are --name VALUE or --name=VALUE, in any place, the last of several counts; "--" ends them; "-" is an
  // operand. Every command also knows -h and --help.
  Arguments(const CommandSpec& spec, std::span<const std::string> words);

  const std::vector<std::string>& Operands() const { return operands_; }
  bool HelpWanted() const { return help_wanted_; }
  bool Has(std::string_view option) const { return options_.contains(option); }
  // The value of an option, never empty, or `otherwise` when it is not there.
  std::string Text(std::string_view option, std::string_view otherwise) const;
  // The same for whole numbers; a value outside lowest..highest is an error.
  std::uint64_t Number(std::string_view option, std::uint64_t otherwise, std::uint64_t lowest,
                       std::uint64_t highest);
  // The same for one of a few words; gives the word's index.
  int OneOf(std::string_view option, std::span<const std::string_view> words);

  // Notes that something is wrong, for checks beyond the above. Only the first error is kept.
  void Fail(std::string error);
  // The same for the value of an option that was given: "option '--time' needs HH:MM:SS, not '7'".
  void FailValue(std::string_view option, std::string_view needed);
  // Empty when nothing is wrong.
  const std::string& Error() const { return error_; }

 private:
  void Parse(const CommandSpec& spec, std::span<const std::string> words);

  std::vector<std::string> operands_;
  std::map<std::string, std::string, std::less<>> options_;
  bool help_wanted_ = false;
  std::string error_;
};

// The help of a program, or of one of its commands.
void PrintHelp(std::ostream& out, std::string_view program, const CommandSpec& spec);

}  // namespace kestrel
