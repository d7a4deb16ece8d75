// SPDX-License-Identifier: MIT
// Files in memory, for the fuzzers.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>

#include "core/files.h"

namespace kestrel::fuzz {

// Every path is a name; there are no folders. Writing never fails.
class MemoryFiles final : public Files {
 public:
  void Put(std::string_view path, std::string_view content);
  // The content of a file, empty when there is none.
  std::string Get(std::string_view path) const;
  // How many files have a name that begins with `start`.
  int Count(std::string_view start) const;

  bool Exists(std::string_view path) override;
  std::optional<std::uint64_t> Length(std::string_view path) override;
  FileResult Read(std::string_view path, std::size_t max_bytes, Bytes& bytes) override;
  FileResult Replace(std::string_view path, std::span<const std::uint8_t> bytes) override;
  FileResult Update(std::string_view path, std::size_t max_bytes, const FileChange& change) override;
  FileResult Copy(std::string_view from, std::string_view to) override;
  FileResult Create(std::string_view path, std::span<const std::uint8_t> bytes) override;
  FileResult KeepAside(std::string_view path) override;
  FileResult MakeFolder(std::string_view path) override;
  FileResult Remove(std::string_view path) override;

 private:
  std::map<std::string, Bytes, std::less<>> files_;
};

// The fuzzers' view of their input.
inline std::string_view AsText(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

// True for one input in `n`, drawn from its bytes: for what takes far longer than the rest. A choice that the input makes
// itself would soon be made by all inputs that the fuzzer keeps.
inline bool OneIn(std::size_t n, std::string_view input) {
  return std::hash<std::string_view>()(input) % n == 0;
}

}  // namespace kestrel::fuzz
