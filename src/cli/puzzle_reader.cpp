// SPDX-License-Identifier: MIT
#include "cli/puzzle_reader.h"

#include <array>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <istream>
#include <limits>
#include <system_error>
#include <utility>

namespace kestrel {
namespace {

// A line is read no further than this into memory: enough for a puzzle, and to tell that text follows it.
constexpr std::size_t kKeptCharacters = 128;
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

bool IsBlank(char c) {
  return c == ' ' || c == '\t' || c == '\r' || c == '\f' || c == '\v';
}

// A character for a message: as it is, or as its code when it would not show.
std::string Shown(char c) {
  if (c > ' ' && c <= '~') return {'\'', c, '\''};
  if (c == ' ') return "a blank";
  constexpr std::string_view kHex = "0123456789abcdef";
  const auto code = static_cast<unsigned char>(c);
  return {'0', 'x', kHex[code / 16U], kHex[code % 16U]};
}

}  // namespace

std::string ParsePuzzle(std::string_view text, DigitGrid& givens) {
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  for (std::size_t i = 0; i < text.size() && i < kCells; ++i) {
    const char c = text[i];
    if (c != '.' && (c < '0' || c > '9')) {
      return "character " + std::to_string(i + 1) + " is " + Shown(c) + ", not a digit or '.'";
    }
    givens[i] = static_cast<std::uint8_t>(c == '.' ? 0 : c - '0');
  }
  if (text.size() < kCells) return "only " + std::to_string(text.size()) + " of 81 characters";
  return {};
}

PuzzleReader::PuzzleReader(std::vector<std::string> files, std::istream& in)
    : files_(std::move(files)), standard_input_(in) {
  if (files_.empty()) files_.emplace_back("-");
}

std::uint64_t PuzzleReader::TotalBytes() const {
  std::uint64_t total = 0;
  for (const std::string& file : files_) {
    std::error_code error;
    if (file == "-" || !std::filesystem::is_regular_file(file, error)) return 0;
    total += std::filesystem::file_size(file, error);
    if (error) return 0;
  }
  return total;
}

// Goes on to the next file. False after the last; a file that cannot be opened leaves its error in `line`.
bool PuzzleReader::OpenNext(InputLine& line) {
  if (next_file_ == files_.size()) return false;
  const std::string& file = files_[next_file_++];
  line_number_ = 0;
  if (file == "-") {
    name_ = "<stdin>";
    current_ = &standard_input_;
    return true;
  }
  name_ = file;
  file_ = std::ifstream(file, std::ios::binary);
  if (file_) {
    current_ = &file_;
  } else {
    line = {name_, 0, {}, std::strerror(errno), bytes_};
  }
  return true;
}

// Reads the start of the next line of the current file into text_. False at the end of the file, and when it
// cannot be read any further.
bool PuzzleReader::ReadLine() {
  std::array<char, kKeptCharacters> start{};
  current_->getline(start.data(), start.size());
  const std::streamsize taken = current_->gcount();
  bytes_ += static_cast<std::uint64_t>(taken);
  if (current_->bad() || (taken == 0 && current_->eof())) return false;
  text_ = start.data();
  if (current_->fail()) {  // a long line: its rest is passed over without being kept
    current_->clear(current_->rdstate() & ~std::ios::failbit);
    current_->ignore(std::numeric_limits<std::streamsize>::max(), '\n');
    bytes_ += static_cast<std::uint64_t>(current_->gcount());
  }
  if (++line_number_ == 1 && text_.starts_with(kByteOrderMark)) text_.erase(0, kByteOrderMark.size());
  return true;
}

bool PuzzleReader::Next(InputLine& line) {
  while (true) {
    line = {};
    if (current_ == nullptr) {
      if (!OpenNext(line)) return false;
      if (!line.error.empty()) return true;
    }
    errno = 0;
    if (!ReadLine()) {
      const bool broken = current_->bad();
      current_ = nullptr;
      if (!broken) continue;
      line = {name_, 0, {}, errno != 0 ? std::strerror(errno) : "cannot be read", bytes_};
      return true;
    }
    std::size_t first = 0;
    while (first < text_.size() && IsBlank(text_[first])) ++first;
    if (first == text_.size() || text_[0] == '#') continue;
    line = {name_, line_number_, {}, {}, bytes_};
    line.error = ParsePuzzle(text_, line.givens);
    return true;
  }
}

}  // namespace kestrel
