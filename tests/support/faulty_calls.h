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

#include "host/host_calls.h"

namespace kestrel {

class FaultyCalls final : public SystemCalls {
 public:
  // The n-th call from now (1, 2, ...; 0 for none) fails with `error`; with `for_good`, so do all after it.
  // EINTR is given only by the calls that signals can interrupt.
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

  ssize_t Write(int file, const void* buffer, std::size_t size) override {
    if (count_ + 1 == kill_at_) (void)SystemCalls::Write(file, buffer, size / 2);
    return SystemCalls::Write(file, buffer, std::min(size, write_at_most_));
  }
  int Fsync(int) override { return Allowed(Call::kFsync) ? 0 : -1; }

 private:
  bool Allowed(Call call) override {
    if (call == Call::kSleep) return fail_at_ == 0;  // nobody waits for a lock that cannot be had
    ++count_;
    if (count_ == kill_at_) _exit(kKilled);
    const bool interruptible = call == Call::kOpen || call == Call::kRead || call == Call::kWrite ||
                               call == Call::kFsync || call == Call::kFlock;
    if (error_ == EINTR && !interruptible) return true;
    if (fail_at_ == 0 || count_ < fail_at_ || (count_ > fail_at_ && !for_good_)) return true;
    errno = error_;
    return false;
  }

  int count_ = 0;
  int fail_at_ = 0;
  bool for_good_ = false;
  int error_ = EIO;
  int kill_at_ = 0;
  std::size_t write_at_most_ = static_cast<std::size_t>(-1);
};

}  // namespace kestrel
