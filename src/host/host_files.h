// SPDX-License-Identifier: MIT
// Files on a POSIX host. Used by the programs' start; everything else sees core/files.h.
//
// A file is never written in place. Its new content goes into a temporary beside it (".kestrel-PID-N.tmp"),
// is flushed to the disk and renamed over it, and then the folder is flushed. The writer holds a lock on its
// temporary; one without a lock was left by a killed process and is swept out by the next writer.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/files.h"
#include "host/host_calls.h"

namespace kestrel {

// How the paths handed to HostFiles are spelled.
enum class PathForm {
  kWritten,  // every backslash separates two parts
  kHost,     // as the host has it, for paths that a user gave on a command line
};

class HostFiles final : public Files {
 public:
  // `calls` must outlive this object.
  explicit HostFiles(SystemCalls& calls, PathForm form = PathForm::kWritten) : calls_(calls), form_(form) {}

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

  // Paths of the written form that begin with this folder or file, given in the host's form, keep it as it is: the
  // backslashes in its own name separate nothing.
  void KeepName(std::string_view path);

  // Makes a folder and the folders above it that are missing, for this user alone.
  FileResult MakeFolders(std::string_view path);

 private:
  std::string HostPath(std::string_view path) const;

  SystemCalls& calls_;
  PathForm form_;
  std::vector<std::string> kept_names_;
};

// A path in the written form as the host spells it.
std::string ToHostPath(std::string_view written);

}  // namespace kestrel
