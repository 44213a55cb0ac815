// SPDX-License-Identifier: MIT
//
// Tests how a file is replaced, and that a failure leaves no other file.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <signal.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/time.h>
#include <unistd.h>

#include <filesystem>
#include <string>
#include <string_view>

#include "linux/plist_files.h"
#include "linux/temp_folder.h"
#include "platform/property_list.h"

namespace {

namespace plist = ztk::platform::property_list;
using testing::ElementsAre;
using ztk::test::ContentOf;
using ztk::test::ExitCodeOf;
using ztk::test::ModeOf;
using ztk::test::NamesIn;
using ztk::test::Put;
using ztk::test::TempFolder;
using ztk::test::Xml;

constexpr uid_t kNobody = 65534;

// Adds "new" = 1 to the entries of the file.
bool Write(const std::string &path) {
  plist::Dictionary *dictionary = plist::MakeDictionary();
  plist::AddEntriesOfFile(dictionary, path.c_str());
  plist::SetInteger(dictionary, "new", 1);
  const bool written = plist::WriteAtomically(dictionary, path.c_str());
  plist::Release(dictionary);
  return written;
}

class WriteAtomically : public testing::Test {
 protected:
  const std::string old_ = Xml("\t<key>old</key>\n\t<true/>\n");
  const std::string fresh_ = Xml("\t<key>new</key>\n\t<integer>1</integer>\n");
  const std::string both_ =
      Xml("\t<key>old</key>\n\t<true/>\n"
          "\t<key>new</key>\n\t<integer>1</integer>\n");
  TempFolder folder_;
  std::string path_ = folder_ / "a.plist";
};

TEST_F(WriteAtomically, MakesANewFileThatOnlyTheOwnerCanAccess) {
  const mode_t mask = umask(0);
  EXPECT_TRUE(Write(path_));
  umask(mask);
  EXPECT_EQ(ContentOf(path_), fresh_);
  EXPECT_EQ(ModeOf(path_), 0600U);
  EXPECT_THAT(NamesIn(folder_.path()), ElementsAre("a.plist"));
}

TEST_F(WriteAtomically, KeepsTheModeOfTheOldFile) {
  for (const unsigned mode : {0644U, 0640U, 0400U, 0666U}) {
    SCOPED_TRACE(mode);
    Put(path_, old_);
    ASSERT_EQ(chmod(path_.c_str(), mode), 0);
    EXPECT_TRUE(Write(path_));
    EXPECT_EQ(ModeOf(path_), mode);
    EXPECT_EQ(ContentOf(path_), both_);
    std::filesystem::remove(path_);
  }
}

TEST_F(WriteAtomically, KeepsTheOwnerWhenRootWrites) {
  if (getuid() != 0) GTEST_SKIP() << "needs root";
  Put(path_, old_);
  ASSERT_EQ(chown(path_.c_str(), kNobody, 1234), 0);
  EXPECT_TRUE(Write(path_));
  struct stat status = {};
  ASSERT_EQ(stat(path_.c_str(), &status), 0);
  EXPECT_EQ(status.st_uid, kNobody);
  EXPECT_EQ(status.st_gid, 1234U);
}

TEST_F(WriteAtomically, DoesNotOverwriteTheOldFile) {
  Put(path_, old_);
  std::filesystem::create_hard_link(path_, folder_ / "second name");
  EXPECT_TRUE(Write(path_));
  EXPECT_EQ(ContentOf(path_), both_);
  EXPECT_EQ(ContentOf(folder_ / "second name"), old_);
}

TEST_F(WriteAtomically, MakesUpToThreeMissingFolders) {
  const std::string path = folder_ / ".config/maker/Preferences/a.plist";
  const mode_t mask = umask(0);
  EXPECT_TRUE(Write(path));
  umask(mask);
  EXPECT_EQ(ContentOf(path), fresh_);
  for (const char *made :
       {".config", ".config/maker", ".config/maker/Preferences"}) {
    SCOPED_TRACE(made);
    EXPECT_EQ(ModeOf(folder_ / made), 0700U);
  }
}

TEST_F(WriteAtomically, DoesNotMakeAHomeFolder) {
  EXPECT_FALSE(Write(folder_ / "home/.config/maker/Preferences/a.plist"));
  EXPECT_TRUE(NamesIn(folder_.path()).empty());
}

TEST_F(WriteAtomically, DoesNotChangeExistingFolders) {
  std::filesystem::create_directories(folder_ / "Preferences");
  ASSERT_EQ(chmod((folder_ / "Preferences").c_str(), 0755), 0);
  EXPECT_TRUE(Write(folder_ / "Preferences/a.plist"));
  EXPECT_EQ(ModeOf(folder_ / "Preferences"), 0755U);
}

TEST_F(WriteAtomically, FailsIfAFileHasTheNameOfTheFolder) {
  Put(folder_ / "Preferences", "a file");
  EXPECT_FALSE(Write(folder_ / "Preferences/a.plist"));
  EXPECT_EQ(ContentOf(folder_ / "Preferences"), "a file");
}

TEST_F(WriteAtomically, FollowsLinksAndKeepsThem) {
  Put(folder_ / "kept/real.plist", old_);
  std::filesystem::create_symlink("kept/middle.plist", path_);
  std::filesystem::create_symlink(folder_ / "kept/real.plist",
                                  folder_ / "kept/middle.plist");
  EXPECT_TRUE(Write(path_));
  EXPECT_EQ(std::filesystem::read_symlink(path_), "kept/middle.plist");
  EXPECT_TRUE(std::filesystem::is_symlink(folder_ / "kept/middle.plist"));
  EXPECT_EQ(ContentOf(folder_ / "kept/real.plist"), both_);
  EXPECT_THAT(NamesIn(folder_ / "kept"),
              ElementsAre("middle.plist", "real.plist"));
}

TEST_F(WriteAtomically, MakesTheTargetOfADanglingLink) {
  std::filesystem::create_directories(folder_ / "kept");
  std::filesystem::create_symlink("kept/real.plist", path_);
  EXPECT_TRUE(Write(path_));
  EXPECT_TRUE(std::filesystem::is_symlink(path_));
  EXPECT_EQ(ContentOf(folder_ / "kept/real.plist"), fresh_);
}

TEST_F(WriteAtomically, FailsForALoopOfLinksOrALinkIntoAMissingFolder) {
  std::filesystem::create_symlink("b.plist", path_);
  std::filesystem::create_symlink("a.plist", folder_ / "b.plist");
  EXPECT_FALSE(Write(path_));
  std::filesystem::create_symlink("no/folder/c.plist", folder_ / "c.plist");
  EXPECT_FALSE(Write(folder_ / "c.plist"));
  EXPECT_THAT(NamesIn(folder_.path()),
              ElementsAre("a.plist", "b.plist", "c.plist"));
}

TEST_F(WriteAtomically, DoesNotWriteAFileThatCouldNotBeReadAgain) {
  // In XML, each "&" takes five bytes.
  const std::string binary = ztk::test::BinaryWith(
      "\x5F\x12" + ztk::test::BigEndian(60000, 4) + std::string(60000, '&'));
  Put(path_, binary);
  EXPECT_FALSE(Write(path_));
  EXPECT_EQ(ContentOf(path_), binary);
  EXPECT_THAT(NamesIn(folder_.path()), ElementsAre("a.plist"));
}

TEST_F(WriteAtomically, FailsAtTheFileSizeLimitWithoutEndingTheProcess) {
  Put(path_, old_);
  const int code = ExitCodeOf([this] {
    const struct rlimit limit = {.rlim_cur = 100, .rlim_max = 100};
    setrlimit(RLIMIT_FSIZE, &limit);
    if (Write(path_)) return 1;
    sigset_t signals;
    sigpending(&signals);
    if (sigismember(&signals, SIGXFSZ) != 0) return 2;
    pthread_sigmask(SIG_SETMASK, nullptr, &signals);
    return sigismember(&signals, SIGXFSZ) != 0 ? 3 : 0;
  });
  EXPECT_EQ(code, 0);
  EXPECT_EQ(ContentOf(path_), old_);
  EXPECT_THAT(NamesIn(folder_.path()), ElementsAre("a.plist"));
}

TEST_F(WriteAtomically, KeepsASignalThatWasAlreadyPending) {
  const int code = ExitCodeOf([this] {
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGXFSZ);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    raise(SIGXFSZ);
    if (!Write(path_)) return 1;
    sigpending(&signals);
    if (sigismember(&signals, SIGXFSZ) != 1) return 2;
    pthread_sigmask(SIG_SETMASK, nullptr, &signals);
    return sigismember(&signals, SIGXFSZ) == 1 ? 0 : 3;
  });
  EXPECT_EQ(code, 0);
}

const char *theWatchedFolder = nullptr;
volatile sig_atomic_t theInterrupts = 0;

// The handler of SIGINT. No unfinished file may exist when it runs, because the
// signal normally ends the process. Calls only functions that are allowed in a
// signal handler.
void CheckForUnfinishedFile(int signal) {
  if (signal == SIGALRM) {
    raise(SIGINT);
    return;
  }
  theInterrupts = theInterrupts + 1;
  static char entries[4096];
  const int folder = open(theWatchedFolder, O_RDONLY | O_DIRECTORY);
  const long length = syscall(SYS_getdents64, folder, entries, sizeof entries);
  close(folder);
  const std::string_view names(
      entries, length > 0 ? static_cast<std::size_t>(length) : 0);
  if (names.find("a.plist.") != std::string_view::npos) _exit(3);
}

TEST_F(WriteAtomically, IsNotInterruptedWithAnUnfinishedFile) {
  Put(path_, old_);
  const std::string folder = folder_.path();
  theWatchedFolder = folder.c_str();
  const int code = ExitCodeOf([this] {
    struct sigaction action {};
    action.sa_handler = CheckForUnfinishedFile;
    action.sa_flags = SA_RESTART;
    sigaction(SIGINT, &action, nullptr);
    sigaction(SIGALRM, &action, nullptr);
    const itimerval often = {.it_interval = {.tv_sec = 0, .tv_usec = 200},
                             .it_value = {.tv_sec = 0, .tv_usec = 200}};
    setitimer(ITIMER_REAL, &often, nullptr);
    while (theInterrupts < 500) {
      if (!Write(path_)) return 1;
    }
    return 0;
  });
  EXPECT_EQ(code, 0);
}

TEST_F(WriteAtomically, KeepsNoCopyOfABadFileThatItCannotReplace) {
  Put(path_, "broken");
  const int code = ExitCodeOf([this] {
    const struct rlimit limit = {.rlim_cur = 100, .rlim_max = 100};
    setrlimit(RLIMIT_FSIZE, &limit);
    return Write(path_) ? 1 : 0;
  });
  EXPECT_EQ(code, 0);
  EXPECT_EQ(ContentOf(path_), "broken");
  EXPECT_THAT(NamesIn(folder_.path()), ElementsAre("a.plist"));
}

TEST_F(WriteAtomically, KeepsTheOldFileOnAFullFileSystem) {
  constexpr int kCannotMount = 77;
  const int code = ExitCodeOf([this] {
    if (unshare(CLONE_NEWNS) != 0 ||
        mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
        mount("tmpfs", folder_.path().c_str(), "tmpfs", 0, "size=64k") != 0) {
      return kCannotMount;
    }
    Put(path_, old_);
    Put(folder_ / "filler", std::string(65536, 'x'));
    if (Write(path_)) return 1;
    if (ContentOf(path_) != old_) return 2;
    if (NamesIn(folder_.path()).size() != 2) return 3;
    std::filesystem::remove(folder_ / "filler");
    return Write(path_) && ContentOf(path_) == both_ ? 0 : 4;
  });
  if (code == kCannotMount)
    GTEST_SKIP() << "this process may not mount a tmpfs";
  EXPECT_EQ(code, 0);
}

// Tests with an ordinary user who lacks rights. If the tests run as root, a
// child process becomes that user.
constexpr char kNeedsRoot[] = "needs root, to own the file";
class OfAnotherUser : public WriteAtomically {
 protected:
  void SetUp() override {
    if (asRoot_) GiveToUser(folder_.path());
  }
  void GiveToUser(const std::string &path) {
    ASSERT_EQ(chown(path.c_str(), kNobody, kNobody), 0);
  }
  // Returns whether the other user could read (1) and write (2) the file.
  int ReadAndWritten() {
    return ExitCodeOf([this] {
      if (asRoot_ && (setgid(kNobody) != 0 || setuid(kNobody) != 0)) return 4;
      plist::Dictionary *dictionary = plist::ReadFile(path_.c_str());
      const int read = dictionary == nullptr ? 0 : 1;
      plist::Release(dictionary);
      return read + (Write(path_) ? 2 : 0);
    });
  }

  const bool asRoot_ = getuid() == 0;
};

// This happens after sudo with the HOME of the user.
TEST_F(OfAnotherUser, AFileWithoutPermissionIsRenamedAndReplaced) {
  if (!asRoot_) GTEST_SKIP() << kNeedsRoot;
  Put(path_, old_);
  ASSERT_EQ(chmod(path_.c_str(), 0600), 0);
  const std::string protection = ContentOf("/proc/sys/fs/protected_hardlinks");
  if (protection != "1\n")
    GTEST_SKIP() << "this system lets any user link any file";
  EXPECT_EQ(ReadAndWritten(), 2);
  EXPECT_EQ(ContentOf(path_), fresh_);
  EXPECT_EQ(ContentOf(path_ + ".unreadable-1"), old_);
  EXPECT_EQ(ReadAndWritten(), 3);
  EXPECT_EQ(NamesIn(folder_.path()).size(), 2U);
}

TEST_F(OfAnotherUser, AFileThatCannotBeRenamedIsNotReplaced) {
  if (!asRoot_) GTEST_SKIP() << kNeedsRoot;
  Put(path_, old_);
  ASSERT_EQ(chmod(path_.c_str(), 0600), 0);
  // In a folder with the sticky bit, only the owner may replace a file.
  ASSERT_EQ(chown(folder_.path().c_str(), 0, 0), 0);
  ASSERT_EQ(chmod(folder_.path().c_str(), 01777), 0);
  EXPECT_EQ(ReadAndWritten(), 0);
  EXPECT_EQ(ContentOf(path_), old_);
  EXPECT_THAT(NamesIn(folder_.path()), ElementsAre("a.plist"));
}

TEST_F(OfAnotherUser, AFolderWithTheNameOfTheFileIsNotReplaced) {
  std::filesystem::create_directory(path_);
  EXPECT_EQ(ReadAndWritten(), 0);
  EXPECT_TRUE(std::filesystem::is_directory(path_));
  EXPECT_THAT(NamesIn(folder_.path()), ElementsAre("a.plist"));
}

TEST_F(OfAnotherUser, TheUsersOwnFileWithoutPermissionIsKept) {
  Put(path_, old_);
  if (asRoot_) GiveToUser(path_);
  ASSERT_EQ(chmod(path_.c_str(), 0), 0);
  EXPECT_EQ(ReadAndWritten(), 2);
  EXPECT_EQ(ContentOf(path_), fresh_);
  EXPECT_EQ(ModeOf(path_), 0600U) << "the next write would keep this file too";
  EXPECT_EQ(ModeOf(path_ + ".unreadable-1"), 0U);
  ASSERT_EQ(chmod((path_ + ".unreadable-1").c_str(), 0600), 0);
  EXPECT_EQ(ContentOf(path_ + ".unreadable-1"), old_);
  EXPECT_EQ(ReadAndWritten(), 3);
  EXPECT_EQ(NamesIn(folder_.path()).size(), 2U);
}

TEST_F(OfAnotherUser, AReadOnlyFolderKeepsItsFile) {
  Put(path_, old_);
  ASSERT_EQ(chmod(path_.c_str(), 0644), 0);
  ASSERT_EQ(chmod(folder_.path().c_str(), 0555), 0);
  EXPECT_EQ(ReadAndWritten(), 1);
  EXPECT_EQ(ContentOf(path_), old_);
  EXPECT_THAT(NamesIn(folder_.path()), ElementsAre("a.plist"));
}

TEST_F(OfAnotherUser, AFileThatCannotBeLinkedIsCopied) {
  if (!asRoot_) GTEST_SKIP() << kNeedsRoot;
  const std::string protection = ContentOf("/proc/sys/fs/protected_hardlinks");
  if (protection != "1\n")
    GTEST_SKIP() << "this system lets any user link any file";
  // Only users who may write a file may link it. This file belongs to root.
  Put(path_, "broken");
  ASSERT_EQ(chmod(path_.c_str(), 0644), 0);
  EXPECT_EQ(ReadAndWritten(), 2);
  EXPECT_EQ(ContentOf(path_), fresh_);
  EXPECT_EQ(ContentOf(path_ + ".unreadable-1"), "broken");
  EXPECT_EQ(ModeOf(path_ + ".unreadable-1"), 0600U);
}

}  // namespace
