// SPDX-License-Identifier: MIT
// Files on a POSIX host: reading with care, writing beside and renaming over.
#include "host/host_files.h"

#include <fcntl.h>
#include <sys/file.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <ctime>
#include <system_error>

#include "host/host_temporary.h"

namespace kestrel {

namespace {

constexpr std::size_t kChunk = 64U << 10U;
constexpr int kMostLinks = 40;
constexpr int kLockWait = 1000;  // milliseconds
constexpr int kLockPause = 1;
constexpr int kMostAside = 1000;  // damaged files kept from one day

FileResult Failure() {
  return FileResult::Failed(std::generic_category().message(errno));
}

// The local date as 2031-12-24.
std::string Today() {
  const std::time_t now = std::time(nullptr);
  std::tm date{};
  std::array<char, 16> text{};
  if (localtime_r(&now, &date) == nullptr) return "undated";
  return {text.data(), std::strftime(text.data(), text.size(), "%Y-%m-%d", &date)};
}

// Closes what was opened. What closing says is not asked for: all that was written has been flushed before.
class OpenFile {
 public:
  OpenFile(SystemCalls& calls, const std::string& path, int flags)
      : calls_(calls), file_(Uninterrupted([&] { return calls.Open(path, flags, 0); })) {}
  ~OpenFile() {
    if (file_ >= 0) calls_.Close(file_);
  }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  explicit operator bool() const { return file_ >= 0; }
  int Get() const { return file_; }

 private:
  SystemCalls& calls_;
  int file_;
};

// The folder part of a path in the host's form, with its slash.
std::string FolderOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  return slash == std::string::npos ? "./" : path.substr(0, slash + 1);
}

bool IsRegular(const struct stat& status) {
  if (S_ISREG(status.st_mode)) return true;
  errno = S_ISDIR(status.st_mode) ? EISDIR : ENOTSUP;
  return false;
}

// Opens a regular file for reading. Without O_NONBLOCK, opening a pipe would wait for its writer.
class Source {
 public:
  Source(SystemCalls& calls, const std::string& path)
      : calls_(calls), file_(calls, path, O_RDONLY | O_NONBLOCK) {
    struct stat status {};
    readable_ = file_ && calls.Fstat(file_.Get(), status) == 0 && IsRegular(status);
  }
  explicit operator bool() const { return readable_; }

  // Hands the content to `take(bytes)` piece by piece, up to `max_bytes`. False when reading or `take` fails.
  template <class Take>
  bool Read(std::size_t max_bytes, Take take) {
    std::vector<std::uint8_t> chunk(std::min(max_bytes, kChunk));
    while (max_bytes > 0) {
      const std::size_t wanted = std::min(max_bytes, chunk.size());
      const ssize_t got = Uninterrupted([&] { return calls_.Read(file_.Get(), chunk.data(), wanted); });
      if (got < 0) return false;
      if (got == 0) return true;
      if (!take(std::span<const std::uint8_t>(chunk).first(static_cast<std::size_t>(got)))) return false;
      max_bytes -= static_cast<std::size_t>(got);
    }
    return true;
  }

 private:
  SystemCalls& calls_;
  OpenFile file_;
  bool readable_ = false;
};

// The place where a file is to be written: behind all symbolic links, even where the last one leads nowhere.
struct Target {
  std::string path;
  bool exists = false;
  struct stat status {};  // of the file when it exists
};

bool FindTarget(SystemCalls& calls, std::string path, Target& target) {
  for (int links = 0; links < kMostLinks; ++links) {
    target.path = path;
    target.exists = calls.Lstat(path, target.status) == 0;
    if (!target.exists) return errno == ENOENT;
    if (!S_ISLNK(target.status.st_mode)) return true;
    std::string link;
    if (calls.Readlink(path, link) != 0) return false;
    path = link.starts_with('/') ? link : FolderOf(path) + link;
  }
  errno = ELOOP;
  return false;
}

// Makes a renaming last. A folder that may not be read cannot be flushed, and not every file system does it.
FileResult FlushFolder(SystemCalls& calls, const std::string& folder) {
  const OpenFile file(calls, folder, O_RDONLY | O_DIRECTORY);
  if (!file) return errno == EACCES ? FileResult::Done() : Failure();
  if (Uninterrupted([&] { return calls.Fsync(file.Get()); }) == 0) return FileResult::Done();
  return errno == EINVAL || errno == EBADF || errno == ENOTSUP ? FileResult::Done() : Failure();
}

FileResult ReplaceTarget(SystemCalls& calls, const Target& target, std::span<const std::uint8_t> bytes,
                         bool (HostTemporary::*put)(const std::string& target) = &HostTemporary::RenameTo) {
  // Renaming asks only for the folder's permissions; a file that was made read-only is to stay as it is.
  if (target.exists && (!IsRegular(target.status) || calls.WriteAccess(target.path) != 0)) return Failure();
  const std::string folder = FolderOf(target.path);
  SweepTemporaries(calls, folder);
  HostTemporary temporary(calls, folder);
  // 0600: nobody else may look into it before it has the permissions of the old file.
  const bool written = temporary.Create(target.exists ? 0600 : 0666) && temporary.Append(bytes) &&
                       (!target.exists || temporary.TakeOver(target.status)) && temporary.Flush() &&
                       (temporary.*put)(target.path);
  return written ? FlushFolder(calls, folder) : Failure();
}

// Waits a moment for the folder's other users, then goes on without the lock: it only keeps two copies of the
// program from dropping each other's change, and must not make one of them hang.
void LockFolder(SystemCalls& calls, const OpenFile& folder) {
  if (!folder) return;
  for (int waited = 0; waited < kLockWait; waited += kLockPause) {
    if (calls.Flock(folder.Get(), LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK) return;
    calls.Sleep(kLockPause);
  }
}

}  // namespace

std::string ToHostPath(std::string_view written) {
  std::string path(written);
  std::ranges::replace(path, '\\', '/');
  return path;
}

std::string HostFiles::HostPath(std::string_view path) const {
  if (form_ == PathForm::kHost) return std::string(path);
  std::size_t kept = 0;
  for (const std::string& name : kept_names_) {
    if (!path.starts_with(name)) continue;
    const std::string_view rest = path.substr(name.size());
    if (rest.empty() || rest[0] == '\\' || rest[0] == '/') kept = std::max(kept, name.size());
  }
  return std::string(path.substr(0, kept)) + ToHostPath(path.substr(kept));
}

void HostFiles::KeepName(std::string_view path) {
  if (path.find('\\') != std::string_view::npos) kept_names_.emplace_back(path);
}

bool HostFiles::Exists(std::string_view path) {
  struct stat status {};
  return calls_.Stat(HostPath(path), status) == 0;
}

std::optional<std::uint64_t> HostFiles::Length(std::string_view path) {
  struct stat status {};
  if (calls_.Stat(HostPath(path), status) != 0 || !IsRegular(status)) return std::nullopt;
  return static_cast<std::uint64_t>(status.st_size);
}

FileResult HostFiles::Read(std::string_view path, std::size_t max_bytes, Bytes& bytes) {
  bytes.clear();
  Source source(calls_, HostPath(path));
  const bool read = source && source.Read(max_bytes, [&bytes](std::span<const std::uint8_t> piece) {
    bytes.insert(bytes.end(), piece.begin(), piece.end());
    return true;
  });
  return read ? FileResult::Done() : Failure();
}

FileResult HostFiles::Replace(std::string_view path, std::span<const std::uint8_t> bytes) {
  Target target;
  if (!FindTarget(calls_, HostPath(path), target)) return Failure();
  return ReplaceTarget(calls_, target, bytes);
}

FileResult HostFiles::Update(std::string_view path, std::size_t max_bytes, const FileChange& change) {
  Target target;
  const std::string host_path = HostPath(path);
  if (!FindTarget(calls_, host_path, target)) return Failure();
  const OpenFile folder(calls_, FolderOf(target.path), O_RDONLY | O_DIRECTORY);
  LockFolder(calls_, folder);
  // Looked at again under the lock: another copy may have made the file meanwhile.
  if (!FindTarget(calls_, host_path, target)) return Failure();
  Bytes bytes;
  // What cannot be read whole must not be replaced: the change would be all that is left of the file.
  if (target.exists) {
    FileResult read = Read(path, max_bytes, bytes);
    if (!read) return read;
    if (Length(path).value_or(bytes.size()) > max_bytes) {
      errno = EFBIG;
      return Failure();
    }
  }
  const FileResult changed = change(bytes);
  if (!changed) return changed;
  // A file that was not there is not to be replaced either: nothing of it would be left.
  return ReplaceTarget(calls_, target, bytes,
                       target.exists ? &HostTemporary::RenameTo : &HostTemporary::AppearAs);
}

FileResult HostFiles::Copy(std::string_view from, std::string_view to) {
  Source source(calls_, HostPath(from));
  Target target;
  if (!source || !FindTarget(calls_, HostPath(to), target)) return Failure();
  if (target.exists) {
    errno = EEXIST;
    return Failure();
  }
  const std::string folder = FolderOf(target.path);
  SweepTemporaries(calls_, folder);
  // The permissions of a new file, not those of `from`: an installed file may be write-protected.
  HostTemporary temporary(calls_, folder);
  const auto append = [&temporary](std::span<const std::uint8_t> piece) { return temporary.Append(piece); };
  const bool copied = temporary.Create(0666) && source.Read(SIZE_MAX, append) && temporary.Flush() &&
                      temporary.AppearAs(target.path);
  return copied ? FlushFolder(calls_, folder) : Failure();
}

FileResult HostFiles::Create(std::string_view path, std::span<const std::uint8_t> bytes) {
  return ReplaceTarget(calls_, {HostPath(path), false, {}}, bytes, &HostTemporary::AppearAs);
}

FileResult HostFiles::KeepAside(std::string_view path) {
  const std::string dated = std::string(path) + ".damaged-" + Today();
  std::string aside = dated;
  for (int number = 2; Exists(aside) && number <= kMostAside; ++number) {
    aside = dated + "-" + std::to_string(number);
  }
  return Copy(path, aside);
}

FileResult HostFiles::MakeFolder(std::string_view path) {
  std::string folder = HostPath(path);
  while (folder.size() > 1 && folder.ends_with('/')) folder.pop_back();
  struct stat status {};
  if (calls_.Mkdir(folder, 0777) == 0) {
    (void)FlushFolder(calls_, FolderOf(folder));  // the folder is there, whatever comes of it
    return FileResult::Done();
  }
  // EEXIST says too little, and on a read-only file system the reason is another one although it is there.
  const int reason = errno;
  if (calls_.Stat(folder, status) != 0 || !S_ISDIR(status.st_mode)) {
    errno = reason;
    return Failure();
  }
  SweepTemporaries(calls_, folder + '/');
  return FileResult::Done();
}

FileResult HostFiles::MakeFolders(std::string_view path) {
  const std::string folder = HostPath(path);
  for (std::size_t slash = folder.find('/', 1); slash != std::string::npos;
       slash = folder.find('/', slash + 1)) {
    (void)calls_.Mkdir(folder.substr(0, slash), 0700);  // what fails here makes the last one fail
  }
  return MakeFolder(path);
}

FileResult HostFiles::Remove(std::string_view path) {
  return calls_.Unlink(HostPath(path)) == 0 ? FileResult::Done() : Failure();
}

}  // namespace kestrel
