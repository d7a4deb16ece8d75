// SPDX-License-Identifier: MIT
#include "memory_files.h"

namespace kestrel::fuzz {

void MemoryFiles::Put(std::string_view path, std::string_view content) {
  // As bytes at once: characters are copied one by one, which takes longer than a game.
  const auto* first = reinterpret_cast<const std::uint8_t*>(content.data());
  files_[std::string(path)].assign(first, first + content.size());
}

std::string MemoryFiles::Get(std::string_view path) const {
  const auto file = files_.find(path);
  return file == files_.end() ? "" : std::string(file->second.begin(), file->second.end());
}

int MemoryFiles::Count(std::string_view start) const {
  int count = 0;
  for (const auto& [path, bytes] : files_) count += path.starts_with(start) ? 1 : 0;
  return count;
}

bool MemoryFiles::Exists(std::string_view path) {
  return files_.contains(path);
}

std::optional<std::uint64_t> MemoryFiles::Length(std::string_view path) {
  const auto file = files_.find(path);
  if (file == files_.end()) return std::nullopt;
  return file->second.size();
}

FileResult MemoryFiles::Read(std::string_view path, std::size_t max_bytes, Bytes& bytes) {
  const auto file = files_.find(path);
  if (file == files_.end()) return FileResult::Failed("No such file or directory");
  bytes = file->second;
  bytes.resize(std::min(bytes.size(), max_bytes));
  return FileResult::Done();
}

FileResult MemoryFiles::Replace(std::string_view path, std::span<const std::uint8_t> bytes) {
  files_[std::string(path)].assign(bytes.begin(), bytes.end());
  return FileResult::Done();
}

FileResult MemoryFiles::Update(std::string_view path, std::size_t max_bytes, const FileChange& change) {
  const auto file = files_.find(path);
  Bytes bytes = file == files_.end() ? Bytes() : file->second;
  if (bytes.size() > max_bytes) return FileResult::Failed("File too large");
  const FileResult changed = change(bytes);
  return changed ? Replace(path, bytes) : changed;
}

FileResult MemoryFiles::Copy(std::string_view from, std::string_view to) {
  const auto file = files_.find(from);
  if (file == files_.end() || Exists(to)) return FileResult::Failed("File exists, or does not");
  return Replace(to, Bytes(file->second));
}

FileResult MemoryFiles::Create(std::string_view path, std::span<const std::uint8_t> bytes) {
  return Exists(path) ? FileResult::Failed("File exists") : Replace(path, bytes);
}

FileResult MemoryFiles::KeepAside(std::string_view path) {
  const std::string aside = std::string(path) + ".damaged-";
  return Copy(path, aside + std::to_string(Count(aside)));
}

FileResult MemoryFiles::MakeFolder(std::string_view) {
  return FileResult::Done();
}

FileResult MemoryFiles::Remove(std::string_view path) {
  files_.erase(std::string(path));
  return FileResult::Done();
}

}  // namespace kestrel::fuzz
