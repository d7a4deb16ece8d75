// SPDX-License-Identifier: MIT
// The file beside a file, in which its new content grows. Used by HostFiles alone.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

#include "host/host_calls.h"

namespace kestrel {

// A temporary ".kestrel-PID-N.tmp" in a folder; gone again with this object unless it was renamed. Its lock
// is held for as long as this process lives and needs it, which tells it from one that a killed process left.
//
// The functions return false with the reason in errno.
class HostTemporary {
 public:
  // `folder` in the host's form, with a slash at its end. Nothing is made yet.
  HostTemporary(SystemCalls& calls, std::string folder) : calls_(calls), folder_(std::move(folder)) {}
  ~HostTemporary();
  HostTemporary(const HostTemporary&) = delete;
  HostTemporary& operator=(const HostTemporary&) = delete;

  // Makes the empty file, with these permissions less the process's mask, and locks it.
  bool Create(mode_t mode);
  // Adds all of `bytes`.
  bool Append(std::span<const std::uint8_t> bytes);
  // Gives it the permissions of the file that it will replace, and the owner and group where that is allowed.
  bool TakeOver(const struct stat& old_file);
  // Flushes it to the disk.
  bool Flush();
  // Puts it in the place of `target`, whether there is a file or not.
  bool RenameTo(const std::string& target);
  // Puts it in the place of `target`, where there must be no file.
  bool AppearAs(const std::string& target);

 private:
  bool Lock();
  void Discard();

  SystemCalls& calls_;
  std::string folder_;
  std::string path_;  // empty while there is no file
  int file_ = -1;
};

// Deletes the temporaries that killed processes left in a folder. What cannot be deleted stays.
void SweepTemporaries(SystemCalls& calls, const std::string& folder);

}  // namespace kestrel
