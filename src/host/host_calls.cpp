// SPDX-License-Identifier: MIT
// The system calls, handed on as they are when they are allowed.
#include "host/host_calls.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <climits>
#include <cstdint>
#include <cstdio>
#include <thread>

namespace kestrel {

int SystemCalls::Open(const std::string& path, int flags, mode_t mode) {
  return Allowed(Call::kOpen) ? ::open(path.c_str(), flags | O_CLOEXEC, mode) : -1;
}

int SystemCalls::Close(int file) {
  const bool allowed = Allowed(Call::kClose);
  const int reason = errno;
  const int result = ::close(file);
  if (allowed) return result;
  errno = reason;
  return -1;
}

ssize_t SystemCalls::Read(int file, void* buffer, std::size_t size) {
  return Allowed(Call::kRead) ? ::read(file, buffer, size) : -1;
}

ssize_t SystemCalls::Write(int file, const void* buffer, std::size_t size) {
  return Allowed(Call::kWrite) ? ::write(file, buffer, size) : -1;
}

int SystemCalls::Fsync(int file) {
  return Allowed(Call::kFsync) ? ::fsync(file) : -1;
}

int SystemCalls::Ftruncate(int file, std::uint64_t length) {
  return Allowed(Call::kFtruncate) ? ::ftruncate(file, static_cast<off_t>(length)) : -1;
}

int SystemCalls::Flock(int file, int operation) {
  return Allowed(Call::kFlock) ? ::flock(file, operation) : -1;
}

int SystemCalls::Fstat(int file, struct stat& status) {
  return Allowed(Call::kFstat) ? ::fstat(file, &status) : -1;
}

int SystemCalls::Fchown(int file, uid_t owner, gid_t group) {
  return Allowed(Call::kFchown) ? ::fchown(file, owner, group) : -1;
}

int SystemCalls::Fchmod(int file, mode_t mode) {
  return Allowed(Call::kFchmod) ? ::fchmod(file, mode) : -1;
}

int SystemCalls::Stat(const std::string& path, struct stat& status) {
  return Allowed(Call::kStat) ? ::stat(path.c_str(), &status) : -1;
}

int SystemCalls::Lstat(const std::string& path, struct stat& status) {
  return Allowed(Call::kLstat) ? ::lstat(path.c_str(), &status) : -1;
}

int SystemCalls::WriteAccess(const std::string& path) {
  return Allowed(Call::kWriteAccess) ? ::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) : -1;
}

int SystemCalls::Readlink(const std::string& path, std::string& target) {
  if (!Allowed(Call::kReadlink)) return -1;
  std::array<char, PATH_MAX> buffer{};
  const ssize_t length = ::readlink(path.c_str(), buffer.data(), buffer.size());
  if (length < 0) return -1;
  target.assign(buffer.data(), static_cast<std::size_t>(length));
  return 0;
}

int SystemCalls::Rename(const std::string& from, const std::string& to) {
  return Allowed(Call::kRename) ? std::rename(from.c_str(), to.c_str()) : -1;
}

int SystemCalls::Link(const std::string& from, const std::string& to) {
  return Allowed(Call::kLink) ? ::link(from.c_str(), to.c_str()) : -1;
}

int SystemCalls::Unlink(const std::string& path) {
  return Allowed(Call::kUnlink) ? ::unlink(path.c_str()) : -1;
}

int SystemCalls::Mkdir(const std::string& path, mode_t mode) {
  return Allowed(Call::kMkdir) ? ::mkdir(path.c_str(), mode) : -1;
}

int SystemCalls::ListFolder(const std::string& path, std::vector<std::string>& names) {
  names.clear();
  if (!Allowed(Call::kListFolder)) return -1;
  DIR* folder = ::opendir(path.c_str());
  if (folder == nullptr) return -1;
  while (const dirent* entry = ::readdir(folder)) names.emplace_back(entry->d_name);
  return ::closedir(folder);
}

void SystemCalls::Sleep(int milliseconds) {
  if (Allowed(Call::kSleep)) std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

}  // namespace kestrel
