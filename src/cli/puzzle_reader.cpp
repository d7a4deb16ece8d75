// SPDX-License-Identifier: MIT
#include "cli/puzzle_reader.h"

#include <cerrno>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <istream>
#include <system_error>
#include <utility>

namespace kestrel {

PuzzleReader::PuzzleReader(std::vector<std::string> files, std::istream& in)
    : files_(std::move(files)), standard_input_(in) {
  if (files_.empty()) files_.emplace_back("-");
}

// 0, which means unknown, as soon as one of the inputs is no plain file.
std::uint64_t PuzzleReader::TotalBytes() const {
  std::uint64_t total = 0;
  for (const std::string& file : files_) {
    std::error_code error;
    total += std::filesystem::file_size(file, error);
    if (file == "-" || error) return 0;
  }
  return total;
}

// Goes on to the next file. False after the last; a file that cannot be opened leaves its error in `line`.
bool PuzzleReader::OpenNext(InputLine& line) {
  if (next_file_ == files_.size()) return false;
  const std::string& file = files_[next_file_++];
  if (file == "-") {
    name_ = "<stdin>";
    current_ = &standard_input_;
  } else {
    name_ = file;
    file_ = std::ifstream(file, std::ios::binary);
    if (!file_) {
      line = {.file = name_, .error = std::strerror(errno), .bytes = bytes_before_};
      return true;
    }
    current_ = &file_;
  }
  stream_.emplace(*current_);
  errno = 0;  // a stream keeps no reason: what the last reading left in it counts
  return true;
}

// A file that cannot be opened or read on is one bad line, and the next file follows.
bool PuzzleReader::Next(InputLine& line) {
  FoundPuzzle found;
  while (true) {
    line = {};
    if (!stream_) {
      if (!OpenNext(line)) return false;
      if (!line.error.empty()) return true;
    }
    if (stream_->Next(found)) {
      line = {name_,
              found.line,
              found.puzzle.givens,
              found.puzzle.state,
              std::move(found.error),
              bytes_before_ + stream_->Bytes()};
      return true;
    }
    bytes_before_ += stream_->Bytes();
    stream_.reset();
    if (current_->bad()) {
      line = {.file = name_,
              .error = errno != 0 ? std::strerror(errno) : "cannot be read",
              .bytes = bytes_before_};
      return true;
    }
  }
}

}  // namespace kestrel
