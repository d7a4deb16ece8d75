// SPDX-License-Identifier: MIT
#include "cli/output_file.h"

#include <cerrno>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <ostream>
#include <system_error>

#include "stock/stock_doubt.h"

namespace kestrel {
namespace {

// Whether writing to it cannot replace anything: a device, a pipe, a socket.
bool IsStream(const std::string& path) {
  std::error_code error;
  const auto status = std::filesystem::status(path, error);
  return std::filesystem::exists(status) && std::filesystem::is_other(status);
}

std::ostream& Write(std::ostream& out, const Bytes& bytes) {
  for (const std::uint8_t byte : bytes) out.put(static_cast<char>(byte));
  return out.flush();
}

}  // namespace

bool MayWrite(const std::string& path, const std::vector<std::string>& sources, CliPorts& ports) {
  if (path == "-" || IsStream(path)) return true;
  for (const std::string& source : sources) {
    std::error_code error;
    if (!std::filesystem::equivalent(path, source, error)) continue;
    PrintError(ports, path + ": this is the file that is read; choose another one to write");
    return false;
  }
  Bytes bytes;
  if (!ports.files.Read(path, kStockBytes, bytes) || !LooksLikeStock(bytes)) return true;
  PrintError(ports, path + ": this is a stock of puzzles; choose another file to write");
  return false;
}

ExitStatus WriteOutput(const std::string& path, const Bytes& bytes, CliPorts& ports) {
  if (path == "-") {
    Write(ports.out, bytes);  // whether that went well is looked at when the command ends
    return ExitStatus::kGood;
  }
  if (IsStream(path)) {
    errno = 0;
    std::ofstream file(path, std::ios::binary);
    if (file && Write(file, bytes)) return ExitStatus::kGood;
    PrintError(ports, path + ": " + (errno != 0 ? std::strerror(errno) : "could not be written"));
    return ExitStatus::kFailure;
  }
  const FileResult result = ports.files.Replace(path, bytes);
  if (result) return ExitStatus::kGood;
  PrintError(ports, path + ": " + result.Reason());
  return ExitStatus::kFailure;
}

}  // namespace kestrel
