// SPDX-License-Identifier: MIT
// The system calls behind HostFiles, one function each, so that a test can make any of them fail.
#pragma once

#include <sys/stat.h>
#include <sys/types.h>

#include <cerrno>
#include <cstddef>
#include <string>
#include <vector>

namespace kestrel {

// Results and errno are those of the calls of the same name.
class SystemCalls {
 public:
  SystemCalls() = default;
  SystemCalls(const SystemCalls&) = delete;
  SystemCalls& operator=(const SystemCalls&) = delete;
  virtual ~SystemCalls() = default;

  virtual int Open(const std::string& path, int flags, mode_t mode);
  virtual int Close(int file);
  virtual ssize_t Read(int file, void* buffer, std::size_t size);
  virtual ssize_t Write(int file, const void* buffer, std::size_t size);
  virtual int Fsync(int file);
  virtual int Flock(int file, int operation);
  virtual int Fstat(int file, struct stat& status);
  virtual int Fchown(int file, uid_t owner, gid_t group);
  virtual int Fchmod(int file, mode_t mode);
  virtual int Stat(const std::string& path, struct stat& status);
  virtual int Lstat(const std::string& path, struct stat& status);
  // 0 when this process may write the file.
  virtual int WriteAccess(const std::string& path);
  // 0, with the place that a symbolic link names in `target`.
  virtual int Readlink(const std::string& path, std::string& target);
  virtual int Rename(const std::string& from, const std::string& to);
  virtual int Link(const std::string& from, const std::string& to);
  virtual int Unlink(const std::string& path);
  virtual int Mkdir(const std::string& path, mode_t mode);
  // 0, with the names of a folder's entries in `names`.
  virtual int ListFolder(const std::string& path, std::vector<std::string>& names);
  virtual void Sleep(int milliseconds);
};

// Makes a call again for as long as signals interrupt it.
template <class Call>
auto Uninterrupted(Call call) {
  auto result = call();
  while (result == -1 && errno == EINTR) result = call();
  return result;
}

}  // namespace kestrel
