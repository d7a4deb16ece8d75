// SPDX-License-Identifier: MIT
// The system calls behind HostFiles, all in one place, so that a test can make any of them fail.
#pragma once

#include <sys/stat.h>
#include <sys/types.h>

#include <cerrno>
#include <cstddef>
#include <cstdint>
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

  int Open(const std::string& path, int flags, mode_t mode);
  int Close(int file);  // closes even when it is not allowed, as Linux does when it fails
  ssize_t Read(int file, void* buffer, std::size_t size);
  virtual ssize_t Write(int file, const void* buffer, std::size_t size);
  virtual int Fsync(int file);
  int Ftruncate(int file, std::uint64_t length);
  int Flock(int file, int operation);
  int Fstat(int file, struct stat& status);
  int Fchown(int file, uid_t owner, gid_t group);
  int Fchmod(int file, mode_t mode);
  int Stat(const std::string& path, struct stat& status);
  int Lstat(const std::string& path, struct stat& status);
  // 0 when this process may write the file.
  int WriteAccess(const std::string& path);
  // 0, with the place that a symbolic link names in `target`.
  int Readlink(const std::string& path, std::string& target);
  int Rename(const std::string& from, const std::string& to);
  int Link(const std::string& from, const std::string& to);
  int Unlink(const std::string& path);
  int Mkdir(const std::string& path, mode_t mode);
  // 0, with the names of a folder's entries in `names`.
  int ListFolder(const std::string& path, std::vector<std::string>& names);
  void Sleep(int milliseconds);

 protected:
  enum class Call {
    kOpen,
    kClose,
    kRead,
    kWrite,
    kFsync,
    kFtruncate,
    kFlock,
    kFstat,
    kFchown,
    kFchmod,
    kStat,
    kLstat,
    kWriteAccess,
    kReadlink,
    kRename,
    kLink,
    kUnlink,
    kMkdir,
    kListFolder,
    kSleep,
  };
  // Asked before every call. When false, the call is not made and fails with the errno that was set here.
  virtual bool Allowed(Call) { return true; }
};

// Makes a call again for as long as signals interrupt it.
template <class Call>
auto Uninterrupted(Call call) {
  auto result = call();
  while (result == -1 && errno == EINTR) result = call();
  return result;
}

}  // namespace kestrel
