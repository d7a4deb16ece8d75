// SPDX-License-Identifier: MIT
// The system calls, handed on as they are.
#include "core/host_calls.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <climits>
#include <cstdio>
#include <thread>

namespace kestrel {

int SystemCalls::Open(const std::string& path, int flags, mode_t mode) {
  return ::open(path.c_str(), flags | O_CLOEXEC, mode);
}

int SystemCalls::Close(int file) {
  return ::close(file);
}

ssize_t SystemCalls::Read(int file, void* buffer, std::size_t size) {
  return ::read(file, buffer, size);
}

ssize_t SystemCalls::Write(int file, const void* buffer, std::size_t size) {
  return ::write(file, buffer, size);
}

int SystemCalls::Fsync(int file) {
  return ::fsync(file);
}

int SystemCalls::Flock(int file, int operation) {
  return ::flock(file, operation);
}

int SystemCalls::Fstat(int file, struct stat& status) {
  return ::fstat(file, &status);
}

int SystemCalls::Fchown(int file, uid_t owner, gid_t group) {
  return ::fchown(file, owner, group);
}

int SystemCalls::Fchmod(int file, mode_t mode) {
  return ::fchmod(file, mode);
}

int SystemCalls::Stat(const std::string& path, struct stat& status) {
  return ::stat(path.c_str(), &status);
}

int SystemCalls::Lstat(const std::string& path, struct stat& status) {
  return ::lstat(path.c_str(), &status);
}

int SystemCalls::WriteAccess(const std::string& path) {
  return ::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS);
}

int SystemCalls::Readlink(const std::string& path, std::string& target) {
  std::array<char, PATH_MAX> buffer{};
  const ssize_t length = ::readlink(path.c_str(), buffer.data(), buffer.size());
  if (length < 0) return -1;
  target.assign(buffer.data(), static_cast<std::size_t>(length));
  return 0;
}

int SystemCalls::Rename(const std::string& from, const std::string& to) {
  return std::rename(from.c_str(), to.c_str());
}

int SystemCalls::Link(const std::string& from, const std::string& to) {
  return ::link(from.c_str(), to.c_str());
}

int SystemCalls::Unlink(const std::string& path) {
  return ::unlink(path.c_str());
}

int SystemCalls::Mkdir(const std::string& path, mode_t mode) {
  return ::mkdir(path.c_str(), mode);
}

int SystemCalls::ListFolder(const std::string& path, std::vector<std::string>& names) {
  names.clear();
  DIR* folder = ::opendir(path.c_str());
  if (folder == nullptr) return -1;
  while (const dirent* entry = ::readdir(folder)) names.emplace_back(entry->d_name);
  return ::closedir(folder);
}

void SystemCalls::Sleep(int milliseconds) {
  std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

}  // namespace kestrel
