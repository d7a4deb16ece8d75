// SPDX-License-Identifier: MIT
// The files of the program as its logic sees them. Implemented by host/host_files.h.
//
// Paths are in the written form: the host's folder, then parts with backslashes between them; a folder ends
// in a backslash ("/users/ann/.local/share\KestrelSudoku\sudstock.kpz"). Only the implementation turns
// them into the host's form.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kestrel {

using Bytes = std::vector<std::uint8_t>;

// How a file operation ended: done, or not done for a reason in words ("Permission denied").
class [[nodiscard]] FileResult {
 public:
  static FileResult Done() { return FileResult(std::string()); }
  static FileResult Failed(std::string reason) { return FileResult(std::move(reason)); }

  explicit operator bool() const { return reason_.empty(); }
  // Empty when the operation was done.
  const std::string& Reason() const { return reason_; }

 private:
  explicit FileResult(std::string reason) : reason_(std::move(reason)) {}
  std::string reason_;
};

// Alters the bytes of a file.
using FileChange = std::function<FileResult(Bytes&)>;

class Files {
 public:
  Files() = default;
  Files(const Files&) = delete;
  Files& operator=(const Files&) = delete;
  virtual ~Files() = default;

  // True when the time of last modification can be read, be it of a file or a folder.
  virtual bool Exists(std::string_view path) = 0;

  // The length of a file in bytes; nothing when there is none, or when it cannot be told.
  virtual std::optional<std::uint64_t> Length(std::string_view path) = 0;

  // Reads a file from its start, `max_bytes` at most; what lies behind them is left alone. Fails for folders
  // and devices. After a failure `bytes` holds what was read before it.
  virtual FileResult Read(std::string_view path, std::size_t max_bytes, Bytes& bytes) = 0;

  // Makes `bytes` the whole content of a file. The file is at any moment wholly the old one or wholly the new
  // one, and is on the disk when this returns. Its permissions and a symbolic link in its place stay.
  // A file that is write-protected is not replaced.
  virtual FileResult Replace(std::string_view path, std::span<const std::uint8_t> bytes) = 0;

  // Reads a file (a missing one is empty), lets `change` alter the bytes, and replaces it as above; no other
  // copy of the program updates a file in the same folder in between. Fails, with the file as it was, when
  // `change` fails, and without calling it when the file cannot be read or is longer than `max_bytes`.
  virtual FileResult Update(std::string_view path, std::size_t max_bytes, const FileChange& change) = 0;

  // Copies a file to a place where there is none; an existing `to` is never overwritten and makes this fail.
  // The copy appears whole or not at all, and has the permissions of a new file.
  virtual FileResult Copy(std::string_view from, std::string_view to) = 0;

  // Makes a file where nothing has its name yet, not even a link that leads nowhere; fails otherwise. It appears
  // whole or not at all.
  virtual FileResult Create(std::string_view path, std::span<const std::uint8_t> bytes) = 0;

  // Copies a file beside itself under a name with today's date: PATH.damaged-2031-12-24, with "-2", "-3" and
  // so on behind it when there is one already.
  virtual FileResult KeepAside(std::string_view path) = 0;

  // Makes one folder; done, too, when it is there already. Sweeps out what killed writers left in it.
  virtual FileResult MakeFolder(std::string_view path) = 0;

  // Deletes a file.
  virtual FileResult Remove(std::string_view path) = 0;
};

}  // namespace kestrel
