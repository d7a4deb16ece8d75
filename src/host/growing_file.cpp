// SPDX-License-Identifier: MIT
#include "host/growing_file.h"

#include <fcntl.h>
#include <sys/file.h>

#include <cerrno>
#include <cstdint>
#include <system_error>

namespace kestrel {
namespace {

FileResult ResultOf(bool good) {
  return good ? FileResult::Done() : FileResult::Failed(std::generic_category().message(errno));
}

}  // namespace

GrowingFile::~GrowingFile() {
  if (file_ >= 0) calls_.Close(file_);
}

FileResult GrowingFile::Open() {
  constexpr mode_t kForAll = 0666;
  file_ =
      Uninterrupted([&] { return calls_.Open(part_, O_RDWR | O_CREAT | O_APPEND | O_NOFOLLOW, kForAll); });
  if (file_ < 0) return ResultOf(false);
  if (calls_.Flock(file_, LOCK_EX | LOCK_NB) == 0) return FileResult::Done();
  return errno == EWOULDBLOCK ? FileResult::Failed("another run is writing it") : ResultOf(false);
}

std::uint64_t GrowingFile::Length() {
  struct stat status {};
  return calls_.Fstat(file_, status) == 0 ? static_cast<std::uint64_t>(status.st_size) : 0;
}

FileResult GrowingFile::Shorten(std::uint64_t length) {
  return ResultOf(Uninterrupted([&] { return calls_.Ftruncate(file_, length); }) == 0);
}

FileResult GrowingFile::Append(std::string_view text) {
  while (!text.empty()) {
    const ssize_t written = Uninterrupted([&] { return calls_.Write(file_, text.data(), text.size()); });
    if (written < 0) return ResultOf(false);
    text.remove_prefix(static_cast<std::size_t>(written));
  }
  return FileResult::Done();
}

FileResult GrowingFile::Flush() {
  return ResultOf(Uninterrupted([&] { return calls_.Fsync(file_); }) == 0);
}

FileResult GrowingFile::Finish() {
  const FileResult flushed = Flush();
  return flushed ? ResultOf(calls_.Rename(part_, target_) == 0) : flushed;
}

}  // namespace kestrel
