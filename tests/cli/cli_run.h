// SPDX-License-Identifier: MIT
// Runs a command on texts instead of the host's streams. Used by the tests of the commands.
#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "cli/run.h"
#include "host/host_files.h"

namespace kestrel {

struct CliResult {
  int status = 0;
  std::string out;
  std::string err;
};

inline std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

inline std::vector<std::string> Fields(const std::string& line, char separator = '\t') {
  std::vector<std::string> fields;
  std::istringstream stream(line);
  for (std::string field; std::getline(stream, field, separator);) fields.push_back(field);
  return fields;
}

inline CliResult RunWith(const std::vector<std::string>& words, const std::string& input,
                         const std::string& user_stock, const std::string& shipped_stock,
                         SystemCalls& calls) {
  std::istringstream in(input);
  std::ostringstream out;
  std::ostringstream err;
  HostFiles files(calls, PathForm::kHost);
  FixedSeeds seeds(7);
  CliPorts ports{in, out, err, false, files, seeds, user_stock, shipped_stock};
  CliResult result;
  result.status = static_cast<int>(RunCli(words, ports));
  result.out = out.str();
  result.err = err.str();
  return result;
}

inline CliResult RunWith(const std::vector<std::string>& words, const std::string& input = "",
                         const std::string& user_stock = "no-such-stock",
                         const std::string& shipped_stock = "") {
  SystemCalls calls;
  return RunWith(words, input, user_stock, shipped_stock, calls);
}

}  // namespace kestrel
