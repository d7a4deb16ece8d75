// SPDX-License-Identifier: MIT
// System calls of which the n-th fails, or ends the process there. Used by all tests of what happens to
// files.
//
//     for (int n = 1;; ++n) {
//       FaultyCalls calls;
//       calls.FailAt(n);
//       ... use HostFiles(calls) ...
//       if (calls.Count() < n) break;  // got through without reaching the n-th call
//     }
#pragma once

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <string>
#include <vector>

#include "core/host_calls.h"

namespace kestrel {

class FaultyCalls final : public SystemCalls {
 public:
  // The n-th call from now (1, 2, ...) fails with `error`; with `for_good`, so do all after it.
  void FailAt(int n, bool for_good = false, int error = EIO) {
    count_ = 0;
    fail_at_ = n;
    for_good_ = for_good;
    error_ = error;
  }
  // The process ends at the n-th call from now; a write has half of its bytes written by then.
  void KillAt(int n) {
    count_ = 0;
    kill_at_ = n;
  }
  // No write takes more than this many bytes at once.
  void WriteAtMost(std::size_t bytes) { write_at_most_ = bytes; }

  // How many calls there were since FailAt or KillAt.
  int Count() const { return count_; }

  static constexpr int kKilled = 99;  // the exit status of a process that KillAt ended

  int Open(const std::string& path, int flags, mode_t mode) override {
    return Fails() ? -1 : SystemCalls::Open(path, flags, mode);
  }
  // A file that cannot be closed is closed all the same, as on Linux.
  int Close(int file) override {
    const bool fails = Fails();
    const int result = SystemCalls::Close(file);
    if (fails) errno = error_;
    return fails ? -1 : result;
  }
  ssize_t Read(int file, void* buffer, std::size_t size) override {
    return Fails() ? -1 : SystemCalls::Read(file, buffer, size);
  }
  ssize_t Write(int file, const void* buffer, std::size_t size) override {
    if (count_ + 1 == kill_at_) (void)SystemCalls::Write(file, buffer, size / 2);
    return Fails() ? -1 : SystemCalls::Write(file, buffer, std::min(size, write_at_most_));
  }
  int Fsync(int file) override { return Fails() ? -1 : SystemCalls::Fsync(file); }
  int Flock(int file, int operation) override { return Fails() ? -1 : SystemCalls::Flock(file, operation); }
  int Fstat(int file, struct stat& status) override {
    return Fails() ? -1 : SystemCalls::Fstat(file, status);
  }
  int Fchown(int file, uid_t owner, gid_t group) override {
    return Fails() ? -1 : SystemCalls::Fchown(file, owner, group);
  }
  int Fchmod(int file, mode_t mode) override { return Fails() ? -1 : SystemCalls::Fchmod(file, mode); }
  int Stat(const std::string& path, struct stat& status) override {
    return Fails() ? -1 : SystemCalls::Stat(path, status);
  }
  int Lstat(const std::string& path, struct stat& status) override {
    return Fails() ? -1 : SystemCalls::Lstat(path, status);
  }
  int WriteAccess(const std::string& path) override { return Fails() ? -1 : SystemCalls::WriteAccess(path); }
  int Readlink(const std::string& path, std::string& target) override {
    return Fails() ? -1 : SystemCalls::Readlink(path, target);
  }
  int Rename(const std::string& from, const std::string& to) override {
    return Fails() ? -1 : SystemCalls::Rename(from, to);
  }
  int Link(const std::string& from, const std::string& to) override {
    return Fails() ? -1 : SystemCalls::Link(from, to);
  }
  int Unlink(const std::string& path) override { return Fails() ? -1 : SystemCalls::Unlink(path); }
  int Mkdir(const std::string& path, mode_t mode) override {
    return Fails() ? -1 : SystemCalls::Mkdir(path, mode);
  }
  int ListFolder(const std::string& path, std::vector<std::string>& names) override {
    return Fails() ? -1 : SystemCalls::ListFolder(path, names);
  }
  void Sleep(int) override {}  // tests do not wait

 private:
  bool Fails() {
    ++count_;
    if (count_ == kill_at_) _exit(kKilled);
    const bool fails = fail_at_ > 0 && (for_good_ ? count_ >= fail_at_ : count_ == fail_at_);
    if (fails) errno = error_;
    return fails;
  }

  int count_ = 0;
  int fail_at_ = 0;
  bool for_good_ = false;
  int error_ = EIO;
  int kill_at_ = 0;
  std::size_t write_at_most_ = static_cast<std::size_t>(-1);
};

}  // namespace kestrel
