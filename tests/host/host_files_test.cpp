// SPDX-License-Identifier: MIT
// Files on the host: links, permissions, and that whatever fails or whoever is killed, a file is wholly the
// old one or wholly the new one.
#include "host/host_files.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "host/host_temporary.h"
#include "support/faulty_calls.h"
#include "support/temp_folder.h"

namespace kestrel {
namespace {

namespace fs = std::filesystem;

const std::string kOld(5000, 'o');
const std::string kNew(7000, 'n');

std::span<const std::uint8_t> AsBytes(const std::string& text) {
  return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

unsigned Mode(const TempFolder& folder, std::string_view file) {
  return static_cast<unsigned>(fs::status(folder.Path(file)).permissions());
}

FileResult ActReplace(Files& files, const TempFolder& folder, std::string_view file) {
  return files.Replace(folder.Written(file), AsBytes(kNew));
}

FileResult ActUpdate(Files& files, const TempFolder& folder, std::string_view file) {
  return files.Update(folder.Written(file), 10000, [](Bytes& bytes) {
    EXPECT_EQ(std::string(bytes.begin(), bytes.end()), kOld);
    bytes.assign(kNew.begin(), kNew.end());
    return FileResult::Done();
  });
}

FileResult ActCopy(Files& files, const TempFolder& folder, std::string_view file) {
  return files.Copy(folder.Written("source"), folder.Written(file));
}

// One way of giving the file "target" new content, directly or through two symbolic links.
struct Scenario {
  FileResult (*act)(Files& files, const TempFolder& folder, std::string_view file);
  const char* file;  // what the program is told to write
  bool had_old;      // whether there was content before
};

constexpr Scenario kScenarios[] = {{ActReplace, "target", true}, {ActReplace, "target", false},
                                   {ActReplace, "link", true},   {ActUpdate, "link", true},
                                   {ActCopy, "target", false},   {ActCopy, "link", false}};

void Prepare(const TempFolder& folder, const Scenario& scenario) {
  fs::create_symlink("link2", folder.Path("link"));
  fs::create_symlink(folder.Path("target"), folder.Path("link2"));
  folder.Put("source", kNew);
  if (scenario.had_old) folder.Put("target", kOld);
  chmod(folder.Path("target").c_str(), 0640);
}

// Old or new content, and nothing else of the file changed. True for the new one.
bool IsWhole(const TempFolder& folder, const Scenario& scenario) {
  EXPECT_TRUE(fs::is_symlink(folder.Path("link")) && fs::is_symlink(folder.Path("link2")));
  const bool exists = fs::exists(folder.Path("target"));
  const bool is_new = exists && folder.Get("target") == kNew;
  EXPECT_TRUE(is_new || (scenario.had_old ? folder.Get("target") == kOld : !exists));
  EXPECT_TRUE(!scenario.had_old || Mode(folder, "target") == 0640);
  return is_new;
}

std::ptrdiff_t Temporaries(const TempFolder& folder) {
  return folder.Count() - 3 - (fs::exists(folder.Path("target")) ? 1 : 0);
}

// The next start of the program leaves nothing of what happened before.
void ExpectSwept(const TempFolder& folder) {
  SystemCalls calls;
  EXPECT_TRUE(HostFiles(calls).MakeFolder(folder.Written()));
  EXPECT_EQ(Temporaries(folder), 0);
}

TEST(HostFiles, AnyCallMayFail) {
  for (const Scenario& scenario : kScenarios) {
    for (const auto& [error, for_good] :
         {std::pair{EIO, false}, {EIO, true}, {EACCES, false}, {EINTR, false}}) {
      int n = 1;
      for (bool through = false; !through && !HasFailure(); ++n) {
        SCOPED_TRACE(testing::Message() << &scenario - kScenarios << ' ' << n << ' ' << error << for_good);
        TempFolder folder;
        Prepare(folder, scenario);
        FaultyCalls calls;
        HostFiles files(calls);
        calls.WriteAtMost(3000);
        calls.FailAt(n, for_good, error);
        const FileResult result = scenario.act(files, folder, scenario.file);
        through = calls.Count() < n;
        EXPECT_TRUE(result || !(through || error == EINTR)) << result.Reason();
        EXPECT_TRUE(IsWhole(folder, scenario) || !result);
        EXPECT_TRUE(result || for_good || Temporaries(folder) == 0);
        ExpectSwept(folder);
      }
      EXPECT_GT(n, 10) << "the calls were not reached";
    }
  }
  // A device that takes nothing and says nothing is given up with a reason.
  const TempFolder folder;
  FaultyCalls calls;
  calls.WriteAtMost(0);
  errno = 0;
  EXPECT_EQ(HostFiles(calls).Replace(folder.Written("target"), AsBytes(kNew)).Reason(), std::strerror(EIO));
}

TEST(HostFiles, TheProcessMayBeKilledAtAnyCall) {
  for (const Scenario& scenario : kScenarios) {
    int n = 1;
    for (bool through = false; !through && !HasFailure(); ++n) {
      SCOPED_TRACE(testing::Message() << &scenario - kScenarios << ", killed at call " << n);
      TempFolder folder;
      Prepare(folder, scenario);
      const pid_t child = fork();
      if (child == 0) {
        FaultyCalls calls;
        HostFiles files(calls);
        calls.WriteAtMost(3000);
        calls.KillAt(n);
        _exit(scenario.act(files, folder, scenario.file) ? 0 : 1);
      }
      int status = 0;
      waitpid(child, &status, 0);
      through = status == 0;
      EXPECT_TRUE(through || WEXITSTATUS(status) == FaultyCalls::kKilled);
      const bool is_new = IsWhole(folder, scenario);
      EXPECT_TRUE(is_new || !through);
      ExpectSwept(folder);
      EXPECT_EQ(IsWhole(folder, scenario), is_new);
    }
    EXPECT_GT(n, 10);
  }
}

// A file system that knows neither hard links nor locks, and a note of the calls that matter in a power
// failure.
class PoorCalls final : public SystemCalls {
 public:
  bool Allowed(Call call) override {
    if (call == Call::kWrite) log += "write ";
    if (call == Call::kFsync) log += "flush ";
    if (call == Call::kRename) log += "rename ";
    errno = call == Call::kLink ? link_error : ENOLCK;
    return call != Call::kLink && call != Call::kFlock;
  }
  std::string log;
  int link_error = EPERM;
};

TEST(HostFiles, FlushesInTheRightOrderEvenWithoutHardLinksAndLocks) {
  TempFolder folder;
  PoorCalls calls;
  HostFiles files(calls);
  folder.Put("source", kNew);
  EXPECT_TRUE(ActCopy(files, folder, "target"));
  EXPECT_FALSE(ActCopy(files, folder, "target"));
  folder.Put("target", kOld);
  EXPECT_TRUE(ActUpdate(files, folder, "target"));
  EXPECT_EQ(folder.Get("target"), kNew);
  EXPECT_EQ(calls.log, "write flush rename flush write flush rename flush ");
  calls.link_error = EIO;  // nothing that could be done in another way
  EXPECT_FALSE(ActCopy(files, folder, "other"));
}

TEST(HostFiles, ManyWritersAndSweepersDoNoDamage) {
  TempFolder folder;
  FaultyCalls calls;
  HostFiles files(calls);
  folder.Put("target", kOld);
  for (int i = 0; i < 3; ++i) {
    if (fork() != 0) continue;
    bool all = true;
    for (int k = 0; k < 100; ++k)
      all = all && files.Replace(folder.Written("target"), AsBytes(i == 0 ? kNew : kOld));
    _exit(all ? 0 : 1);
  }
  for (int round = 0; round < 300; ++round) {
    const std::string content = folder.Get("target");
    EXPECT_TRUE(content == kOld || content == kNew);
    SweepTemporaries(calls, folder.Path().string() + "/");
  }
  for (int status = 0; wait(&status) > 0;) EXPECT_EQ(status, 0);
  EXPECT_EQ(folder.Count(), 1);
}

TEST(HostFiles, OnlyAbandonedTemporariesAreSwept) {
  TempFolder folder;
  SystemCalls calls;
  HostTemporary alive(calls, folder.Path().string() + "/");
  ASSERT_TRUE(alive.Create(0600));
  for (const char* name :
       {".kestrel-1-0.tmp", ".kestrel-1-.tmp", ".kestrel--1.tmp", ".kestrel-1a-2.tmp", "x.tmp"}) {
    folder.Put(name, "");
  }
  SweepTemporaries(calls, folder.Path().string() + "/");
  EXPECT_FALSE(fs::exists(folder.Path(".kestrel-1-0.tmp")));
  EXPECT_EQ(folder.Count(), 5);
  EXPECT_TRUE(alive.RenameTo(folder.Path("target")));
}

// Its owner finishes a temporary and makes the next of the same name between the sweeper's look and its lock.
TEST(HostFiles, SweepersLeaveTheNextTemporaryOfTheSameNameAlone) {
  struct BusyOwner final : SystemCalls {
    bool Allowed(Call call) override {
      if (call == Call::kFlock) {
        fs::rename(folder.Path(".kestrel-1-0.tmp"), folder.Path("target"));
        folder.Put(".kestrel-1-0.tmp", kNew);
      }
      return true;
    }
    TempFolder folder;
  } calls;
  calls.folder.Put(".kestrel-1-0.tmp", kOld);
  SweepTemporaries(calls, calls.folder.Path().string() + "/");
  EXPECT_EQ(calls.folder.Get(".kestrel-1-0.tmp"), kNew);
}

TEST(HostFiles, PermissionsAreKeptAndNewFilesAreTheUsersOwn) {
  TempFolder folder;
  SystemCalls calls;
  HostFiles files(calls);
  const mode_t mask = umask(027);
  folder.Put("source", kOld);
  chmod(folder.Path("source").c_str(), 0444);  // as an installed file may be
  EXPECT_TRUE(ActCopy(files, folder, "copy"));
  EXPECT_TRUE(ActReplace(files, folder, "new"));
  umask(mask);
  EXPECT_EQ(Mode(folder, "copy"), 0640U);
  EXPECT_EQ(Mode(folder, "new"), 0640U);
  EXPECT_FALSE(files.Copy(folder.Written("new"), folder.Written("copy")));
  EXPECT_EQ(folder.Get("copy"), kOld);
  if (geteuid() != 0) return;  // the rest needs several users
  fs::permissions(folder.Path(), fs::perms::all);
  if (fork() == 0) _exit(setuid(65534) == 0 && ActReplace(files, folder, "source") ? 1 : 0);
  int refused = -1;
  wait(&refused);
  EXPECT_EQ(refused, 0);  // write-protected, though the folder would let it be replaced
  ASSERT_EQ(chown(folder.Path("copy").c_str(), 1234, 4321), 0);
  EXPECT_TRUE(ActReplace(files, folder, "copy"));
  struct stat status {};
  stat(folder.Path("copy").c_str(), &status);
  EXPECT_TRUE(status.st_uid == 1234 && status.st_gid == 4321 && (status.st_mode & 07777U) == 0640);
}

// Killed at any call, the program leaves nothing of a private file that others could read.
TEST(HostFiles, PrivateFilesArePrivateWhileTheyAreWritten) {
  for (int n = 1, status = FaultyCalls::kKilled; status == FaultyCalls::kKilled; ++n) {
    TempFolder folder;
    folder.Put("file", kOld);
    chmod(folder.Path("file").c_str(), 0600);
    if (fork() == 0) {
      FaultyCalls calls;
      HostFiles files(calls);
      umask(0);
      calls.KillAt(n);
      _exit(ActReplace(files, folder, "file") ? 0 : 1);
    }
    wait(&status);
    status = WEXITSTATUS(status);
    for (const auto& entry : fs::directory_iterator(folder.Path())) {
      EXPECT_EQ(Mode(folder, entry.path().filename().string()) & 0077U, 0U) << "killed at call " << n;
    }
  }
}

TEST(HostFiles, OnlyPlainFilesAreReadAndReplaced) {
  TempFolder folder;
  SystemCalls calls;
  HostFiles files(calls);
  Bytes bytes;
  mkfifo(folder.Path("pipe").c_str(), 0600);  // must not wait for a writer
  fs::create_symlink("loop", folder.Path("loop"));
  for (const std::string& path : {folder.Written(), folder.Written("pipe"), folder.Written("loop"),
                                  folder.Written("missing\\file"), std::string("/dev/zero"), std::string()}) {
    EXPECT_FALSE(files.Read(path, 100, bytes)) << path;
    EXPECT_FALSE(files.Length(path)) << path;
    EXPECT_FALSE(files.Replace(path, AsBytes(kNew))) << path;
  }
  EXPECT_EQ(files.Read(folder.Written("missing"), 100, bytes).Reason(), "No such file or directory");
  folder.Put("target", kOld);
  EXPECT_TRUE(files.Read(folder.Written("target"), 4999, bytes));
  EXPECT_EQ(bytes.size(), 4999U);
  EXPECT_EQ(files.Length(folder.Written("target")), 5000U);
  EXPECT_FALSE(files.Update(folder.Written("target"), 4999, [](Bytes&) { return FileResult::Done(); }));
  EXPECT_EQ(folder.Get("target"), kOld);
  EXPECT_TRUE(files.Exists(folder.Written()) && !files.Exists(folder.Written("loop")));
  EXPECT_TRUE(files.Remove(folder.Written("target")) && !files.Remove(folder.Written("target")));
}

TEST(HostFiles, FoldersAndTheTwoFormsOfPaths) {
  TempFolder folder;
  SystemCalls calls;
  HostFiles files(calls);
  EXPECT_FALSE(files.MakeFolder(folder.Written("a\\b\\")));
  EXPECT_TRUE(files.MakeFolders(folder.Written("a\\b\\")));
  EXPECT_TRUE(files.MakeFolder(folder.Written("a\\b\\")));
  EXPECT_TRUE(ActReplace(files, folder, "a\\b\\c"));
  EXPECT_EQ(folder.Get("a/b/c"), kNew);
  EXPECT_FALSE(files.MakeFolder(folder.Written("a\\b\\c")));  // a file is in its place
  HostFiles as_on_host(calls, PathForm::kHost);
  EXPECT_TRUE(as_on_host.Replace(folder.Path("a\\b").string(), AsBytes(kOld)));
  EXPECT_EQ(folder.Get("a\\b"), kOld);
}

}  // namespace
}  // namespace kestrel
