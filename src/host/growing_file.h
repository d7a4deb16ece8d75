// SPDX-License-Identifier: MIT
// A file that is written over hours and may be gone on with after an interruption. Used by `generate --output`.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/files.h"
#include "host/host_calls.h"

namespace kestrel {

// Grows as TARGET.part, locked against a second run, and becomes TARGET at the end. Paths are in the host's form.
class GrowingFile {
 public:
  GrowingFile(SystemCalls& calls, std::string target)
      : calls_(calls), target_(std::move(target)), part_(target_ + ".part") {}
  ~GrowingFile();
  GrowingFile(const GrowingFile&) = delete;
  GrowingFile& operator=(const GrowingFile&) = delete;

  // Opens the part, made if there is none.
  FileResult Open();
  // How long the part is.
  std::uint64_t Length();
  // Keeps the first `length` bytes.
  FileResult Shorten(std::uint64_t length);
  FileResult Append(std::string_view text);
  // Flushes the part to the disk.
  FileResult Flush();
  // Flushes it and puts it in the target's place.
  FileResult Finish();

 private:
  SystemCalls& calls_;
  std::string target_;
  std::string part_;
  int file_ = -1;
};

}  // namespace kestrel
