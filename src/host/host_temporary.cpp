// SPDX-License-Identifier: MIT
// Temporaries: their names, their locks, and what happens to those left behind.
#include "host/host_temporary.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

namespace kestrel {

namespace {

constexpr std::string_view kPrefix = ".kestrel-";
constexpr std::string_view kSuffix = ".tmp";
constexpr int kMostNames = 1000;

std::string TemporaryName(int number) {
  return std::string(kPrefix) + std::to_string(getpid()) + "-" + std::to_string(number) +
         std::string(kSuffix);
}

// Strict, so that no file of somebody else is ever taken for one of these.
bool IsTemporaryName(std::string_view name) {
  if (!name.starts_with(kPrefix) || !name.ends_with(kSuffix)) return false;
  if (name.size() < kPrefix.size() + kSuffix.size()) return false;
  name.remove_prefix(kPrefix.size());
  name.remove_suffix(kSuffix.size());
  const std::size_t dash = name.find('-');
  if (dash == std::string_view::npos || dash == 0 || dash + 1 == name.size()) return false;
  return name.find_first_not_of("0123456789", dash + 1) == std::string_view::npos &&
         name.find_first_not_of("0123456789") == dash;
}

// Some file systems know no hard links.
bool LinksAreUnknown() {
  return errno == EPERM || errno == EOPNOTSUPP || errno == ENOSYS || errno == EMLINK;
}

bool IsNameOf(SystemCalls& calls, const std::string& path, int file) {
  struct stat named {};
  struct stat open {};
  return calls.Lstat(path, named) == 0 && calls.Fstat(file, open) == 0 && named.st_dev == open.st_dev &&
         named.st_ino == open.st_ino;
}

}  // namespace

HostTemporary::~HostTemporary() {
  Discard();
}

void HostTemporary::Discard() {
  if (!path_.empty()) calls_.Unlink(std::exchange(path_, {}));
  // After the unlinking: the lock keeps sweepers away until then.
  if (file_ >= 0) calls_.Close(std::exchange(file_, -1));
}

bool HostTemporary::Create(mode_t mode) {
  // A name may be taken by this process's other writers, and by a killed one that had the same number.
  for (int number = 0; number < kMostNames; ++number) {
    const std::string path = folder_ + TemporaryName(number);
    file_ = Uninterrupted([&] { return calls_.Open(path, O_WRONLY | O_CREAT | O_EXCL, mode); });
    if (file_ < 0 && errno == EEXIST) continue;
    if (file_ < 0) return false;
    if (Lock()) {
      path_ = path;
      return true;
    }
    // Whoever has the lock deletes the name. Done here, it could come in the way of the next file of that
    // name.
    calls_.Close(file_);
    file_ = -1;
  }
  errno = EEXIST;
  return false;
}

// Between the making and the locking a sweeper may have taken the file for an abandoned one: false then. A
// file system without locks is no obstacle, for there no sweeper gets a lock either.
bool HostTemporary::Lock() {
  struct stat status {};
  const int locked = Uninterrupted([&] { return calls_.Flock(file_, LOCK_EX | LOCK_NB); });
  if (locked != 0 && errno == EWOULDBLOCK) return false;
  return calls_.Fstat(file_, status) != 0 || status.st_nlink > 0;
}

bool HostTemporary::Append(std::span<const std::uint8_t> bytes) {
  while (!bytes.empty()) {
    const ssize_t written = Uninterrupted([&] { return calls_.Write(file_, bytes.data(), bytes.size()); });
    if (written < 0) return false;
    if (written == 0) {  // no progress and no reason given: do not try for ever
      errno = EIO;
      return false;
    }
    bytes = bytes.subspan(static_cast<std::size_t>(written));
  }
  return true;
}

bool HostTemporary::TakeOver(const struct stat& old_file) {
  struct stat status {};
  if (calls_.Fstat(file_, status) != 0) return false;
  if (status.st_uid != old_file.st_uid || status.st_gid != old_file.st_gid) {
    // Only the superuser may give files away; a group that the user belongs to can be kept by everybody.
    if (calls_.Fchown(file_, old_file.st_uid, old_file.st_gid) != 0) {
      (void)calls_.Fchown(file_, static_cast<uid_t>(-1), old_file.st_gid);
    }
  }
  // Last, because a change of owner clears bits. Where the file system gives all files the same permissions
  // there is nothing to change, and it is not asked to.
  constexpr mode_t kPermissions = 07777;
  if ((status.st_mode & kPermissions) == (old_file.st_mode & kPermissions)) return true;
  return calls_.Fchmod(file_, old_file.st_mode & kPermissions) == 0;
}

bool HostTemporary::Flush() {
  return Uninterrupted([&] { return calls_.Fsync(file_); }) == 0;
}

bool HostTemporary::RenameTo(const std::string& target) {
  if (calls_.Rename(path_, target) != 0) return false;
  path_.clear();
  return true;
}

bool HostTemporary::AppearAs(const std::string& target) {
  // Unlike renaming, linking fails where a file is already; the temporary name goes with this object.
  if (calls_.Link(path_, target) == 0) return true;
  if (!LinksAreUnknown()) return false;
  struct stat status {};
  if (calls_.Lstat(target, status) == 0) {
    errno = EEXIST;
    return false;
  }
  return errno == ENOENT && RenameTo(target);
}

void SweepTemporaries(SystemCalls& calls, const std::string& folder) {
  std::vector<std::string> names;
  if (calls.ListFolder(folder, names) != 0) return;
  for (const std::string& name : names) {
    if (!IsTemporaryName(name)) continue;
    const int file = calls.Open(folder + name, O_RDWR | O_NOFOLLOW | O_NONBLOCK, 0);
    if (file < 0) continue;
    // Its owner may have renamed it and made the next one of that name meanwhile.
    const bool abandoned = calls.Flock(file, LOCK_EX | LOCK_NB) == 0 && IsNameOf(calls, folder + name, file);
    if (abandoned) calls.Unlink(folder + name);
    calls.Close(file);
  }
}

}  // namespace kestrel
