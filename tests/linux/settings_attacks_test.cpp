// SPDX-License-Identifier: MIT
//
// Tests that a settings file is not lost or damaged by other processes, missing
// resources and symbolic links of other users.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <grp.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <filesystem>
#include <string>

#include "linux/plist_files.h"
#include "linux/temp_folder.h"
#include "platform/common/file_change.h"
#include "platform/common/pause.h"
#include "platform/common/replace_file.h"
#include "platform/property_list.h"

namespace {

namespace plist = ztk::platform::property_list;
using plist::ReadState;
using testing::ElementsAre;
using ztk::platform::FileChange;
using ztk::platform::LockExclusively;
using ztk::platform::MissingFolders;
using ztk::platform::ReplaceFile;
using ztk::test::ContentOf;
using ztk::test::ExitCodeOf;
using ztk::test::NamesIn;
using ztk::test::Put;
using ztk::test::TempFolder;
using ztk::test::Xml;

constexpr uid_t kUser = 1234;
constexpr gid_t kGroup = 4321;

// Sets "new" to 1 in the file as the core does. Returns 0 or the error number.
int Set(const std::string &path) {
  plist::Change *change = plist::BeginChange(path.c_str());
  plist::Dictionary *dictionary = plist::MakeDictionary();
  const plist::ReadResult read =
      plist::AddEntriesOfFile(dictionary, path.c_str());
  int error = read.error;
  if (read.state != ReadState::Unavailable) {
    plist::SetInteger(dictionary, "new", 1);
    plist::WriteAtomically(dictionary, path.c_str(), &error);
  }
  plist::Release(dictionary);
  plist::EndChange(change);
  return error;
}

plist::ReadResult Read(const std::string &path) {
  plist::Dictionary *dictionary = nullptr;
  const plist::ReadResult result = plist::Read(path.c_str(), &dictionary);
  EXPECT_EQ(dictionary != nullptr, result.state == ReadState::Read);
  plist::Release(dictionary);
  return result;
}

class Attack : public testing::Test {
 protected:
  bool FolderIsLocked(const std::string &folder) {
    const int descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY);
    const bool locked = !LockExclusively(descriptor, {});
    close(descriptor);
    return locked;
  }

  const std::string old_ = Xml("\t<key>old</key>\n\t<true/>\n");
  const std::string both_ =
      Xml("\t<key>old</key>\n\t<true/>\n"
          "\t<key>new</key>\n\t<integer>1</integer>\n");
  TempFolder folder_;
  std::string path_ = folder_ / "a.plist";
};

class Locking : public Attack {};
class Reading : public Attack {};
class Leftovers : public Attack {};

TEST_F(Locking, LocksTheFolderBetweenBeginAndEnd) {
  plist::Change *change = plist::BeginChange(path_.c_str());
  EXPECT_TRUE(FolderIsLocked(folder_.path()));
  plist::EndChange(change);
  EXPECT_FALSE(FolderIsLocked(folder_.path()));
  EXPECT_TRUE(NamesIn(folder_.path()).empty());
}

TEST_F(Locking, EndsEvenIfAChildProcessHasACopyOfTheDescriptor) {
  plist::Change *change = plist::BeginChange(path_.c_str());
  int end[2];
  ASSERT_EQ(pipe(end), 0);
  const pid_t child = fork();
  if (child == 0) {
    char byte = 0;
    close(end[1]);
    _exit(read(end[0], &byte, 1) == 0 ? 0 : 1);
  }
  plist::EndChange(change);
  EXPECT_FALSE(FolderIsLocked(folder_.path()));
  close(end[1]);
  int status = 0;
  waitpid(child, &status, 0);
  close(end[0]);
}

TEST_F(Locking, LocksTheFolderOfALinksTarget) {
  Put(folder_ / "real/b.plist", old_);
  std::filesystem::create_symlink("real/b.plist", path_);
  const FileChange change(path_, MissingFolders::Create);
  EXPECT_TRUE(change.locked());
  EXPECT_TRUE(FolderIsLocked(folder_ / "real"));
  EXPECT_FALSE(FolderIsLocked(folder_.path()));
}

TEST_F(Locking, CreatesTheFolderForTheFirstChange) {
  const FileChange change(folder_ / "maker/Preferences/a.plist",
                          MissingFolders::Create);
  EXPECT_TRUE(change.locked());
  EXPECT_TRUE(FolderIsLocked(folder_ / "maker/Preferences"));
}

TEST_F(Locking, DoesNotPreventAChangeIfAnotherProcessKeepsTheLock) {
  Put(path_, old_);
  const int other = open(folder_.path().c_str(), O_RDONLY | O_DIRECTORY);
  ASSERT_EQ(flock(other, LOCK_EX), 0);
  EXPECT_EQ(Set(path_), 0);
  EXPECT_EQ(ContentOf(path_), both_);
  EXPECT_TRUE(FolderIsLocked(folder_.path()))
      << "the other process unlocked it";
  close(other);
}

TEST_F(Locking, IsNotNeededToKeepTheChangeOfAnotherProcess) {
  Put(path_, old_);
  plist::Dictionary *dictionary = plist::MakeDictionary();
  plist::AddEntriesOfFile(dictionary, path_.c_str());
  EXPECT_EQ(Set(path_), 0);
  int error = 0;
  EXPECT_FALSE(plist::WriteAtomically(dictionary, path_.c_str(), &error));
  EXPECT_EQ(error, ESTALE);
  plist::Release(dictionary);
  EXPECT_EQ(ContentOf(path_), both_);
  EXPECT_THAT(NamesIn(folder_.path()), ElementsAre("a.plist"));
}

// `cp` overwrites a file in this way: the inode stays the same, and here the
// size too.
TEST_F(Reading, DetectsThatTheFileWasOverwrittenLater) {
  for (const std::string &before : {old_, std::string(old_.size(), 'x')}) {
    Put(path_, before);
    plist::Dictionary *dictionary = plist::MakeDictionary();
    plist::AddEntriesOfFile(dictionary, path_.c_str());
    // The clock of a file system may advance in steps of 10 ms.
    ztk::platform::Pause(std::chrono::milliseconds(20));
    Put(path_, old_);
    int error = 0;
    EXPECT_FALSE(plist::WriteAtomically(dictionary, path_.c_str(), &error));
    EXPECT_EQ(error, ESTALE);
    plist::Release(dictionary);
    EXPECT_EQ(ContentOf(path_), old_);
    EXPECT_THAT(NamesIn(folder_.path()), ElementsAre("a.plist"));
  }
}

TEST_F(Reading, DistinguishesAbsentUnavailableAndDamagedFiles) {
  using plist::ReadResult;
  EXPECT_EQ(Read(path_), (ReadResult{.state = ReadState::Absent}));
  EXPECT_EQ(Read(path_ + "/below"), (ReadResult{.state = ReadState::Absent}));
  Put(path_, old_);
  EXPECT_EQ(Read(path_), (ReadResult{.state = ReadState::Read}));
  for (const char *damage : {"", "broken", "<plist><array/></plist>"}) {
    Put(path_, damage);
    EXPECT_EQ(Read(path_), (ReadResult{.state = ReadState::Damaged})) << damage;
  }
  std::filesystem::create_directories(folder_ / "b.plist");
  EXPECT_EQ(Read(folder_ / "b.plist"),
            (ReadResult{.state = ReadState::Unavailable, .error = EINVAL}));
  std::filesystem::create_symlink("c.plist", folder_ / "c.plist");
  EXPECT_EQ(Read(folder_ / "c.plist"),
            (ReadResult{.state = ReadState::Unavailable, .error = ELOOP}));
}

TEST_F(Reading, DoesNotReplaceTheFileAtTheDescriptorLimit) {
  Put(path_, old_);
  const int code = ExitCodeOf([this] {
    const struct rlimit limit = {.rlim_cur = 3, .rlim_max = 3};
    setrlimit(RLIMIT_NOFILE, &limit);
    const plist::ReadResult read = Read(path_);
    if (read.state != ReadState::Unavailable || read.error != EMFILE) return 1;
    return Set(path_) == EMFILE ? 0 : 2;
  });
  EXPECT_EQ(code, 0);
  EXPECT_EQ(ContentOf(path_), old_);
  EXPECT_THAT(NamesIn(folder_.path()), ElementsAre("a.plist"));
}

// The last descriptor is used for the lock of the folder, so the file cannot be
// read.
TEST_F(Reading, DoesNotReplaceTheFileWithOneDescriptorLeft) {
  Put(path_, old_);
  const int code = ExitCodeOf([this] {
    const struct rlimit limit = {.rlim_cur = 4, .rlim_max = 4};
    setrlimit(RLIMIT_NOFILE, &limit);
    for (int i = 3; i < 20; ++i) close(i);
    return Set(path_) == EMFILE ? 0 : 1;
  });
  EXPECT_EQ(code, 0);
  EXPECT_EQ(ContentOf(path_), old_);
}

void MakeTwoDaysOld(const std::string &file) {
  const timeval twoDaysAgo = {.tv_sec = time(nullptr) - 172800, .tv_usec = 0};
  const timeval times[2] = {twoDaysAgo, twoDaysAgo};
  ASSERT_EQ(utimes(file.c_str(), times), 0);
}

TEST_F(Leftovers, AreRemovedAtTheNextWriteIfTheyAreOlderThanADay) {
  for (const char *name : {"a.plist.AbCd09", "a.plist.XXXXXX", "b.plist.AbCd09",
                           "a.plist.unreadable-1", "a.plist.backup"}) {
    Put(folder_ / name, "x");
    MakeTwoDaysOld(folder_ / name);
  }
  Put(folder_ / "a.plist.recent", "x");
  EXPECT_EQ(Set(path_), 0);
  EXPECT_THAT(NamesIn(folder_.path()),
              ElementsAre("a.plist", "a.plist.recent", "a.plist.unreadable-1",
                          "b.plist.AbCd09"));
}

// Root writes in the folder of another user.
class RootInAUsersFolder : public Attack {
 protected:
  void SetUp() override {
    if (getuid() != 0) GTEST_SKIP() << "needs root";
    ASSERT_EQ(chmod(folder_.path().c_str(), 0755), 0);
    std::filesystem::create_directory(home_);
    ASSERT_EQ(chown(home_.c_str(), kUser, kGroup), 0);
    std::filesystem::create_directory(folder_ / "roots");
    ASSERT_EQ(chmod((folder_ / "roots").c_str(), 0755), 0);
    Put(secret_, old_);
    ASSERT_EQ(chmod(secret_.c_str(), 0600), 0);
  }
  // Makes a link that belongs to the user.
  void Link(const std::string &to, const std::string &at) {
    std::filesystem::create_symlink(to, at);
    ASSERT_EQ(lchown(at.c_str(), kUser, kGroup), 0);
  }
  void ExpectOwnedByUser(const std::string &path) {
    struct stat status = {};
    ASSERT_EQ(lstat(path.c_str(), &status), 0) << path;
    EXPECT_EQ(status.st_uid, kUser) << path;
    EXPECT_EQ(status.st_gid, kGroup) << path;
  }

  const std::string home_ = folder_ / "home";
  const std::string secret_ = folder_ / "roots/a.plist";
  const std::string file_ = home_ + "/.config/maker/Preferences/a.plist";
};

TEST_F(RootInAUsersFolder, CreatesFilesAndFoldersThatBelongToTheUser) {
  EXPECT_EQ(Set(file_), 0);
  ExpectOwnedByUser(home_ + "/.config");
  ExpectOwnedByUser(home_ + "/.config/maker/Preferences");
  ExpectOwnedByUser(file_);
  EXPECT_EQ(Set(file_), 0);
  ExpectOwnedByUser(file_);
}

TEST_F(RootInAUsersFolder, DoesNotFollowALinkToAFileOfRoot) {
  std::filesystem::create_directories(
      std::filesystem::path(file_).parent_path());
  Link(secret_, file_);
  EXPECT_EQ(Set(file_), EACCES);
  EXPECT_EQ(ContentOf(secret_), old_);
  EXPECT_THAT(NamesIn(folder_ / "roots"), ElementsAre("a.plist"));
}

TEST_F(RootInAUsersFolder, DoesNotCreateTheTargetOfALink) {
  std::filesystem::create_directories(
      std::filesystem::path(file_).parent_path());
  Link(folder_ / "roots/new.plist", file_);
  EXPECT_EQ(Set(file_), EACCES);
  EXPECT_THAT(NamesIn(folder_ / "roots"), ElementsAre("a.plist"));
}

TEST_F(RootInAUsersFolder, DoesNotFollowALinkInPlaceOfAFolder) {
  Link(folder_ / "roots", home_ + "/.config");
  EXPECT_EQ(Set(home_ + "/.config/a.plist"), EACCES);
  EXPECT_EQ(ContentOf(secret_), old_);
  int error = 0;
  EXPECT_FALSE(ReplaceFile(home_ + "/.config/b", "x", false, &error));
  EXPECT_EQ(error, EACCES);
  EXPECT_THAT(NamesIn(folder_ / "roots"), ElementsAre("a.plist"));
}

TEST_F(RootInAUsersFolder, DoesNotUseTheGroupsOfRoot) {
  ASSERT_EQ(chmod((folder_ / "roots").c_str(), 0775), 0);  // group root
  Link(folder_ / "roots/new.plist", home_ + "/a.plist");
  const int code = ExitCodeOf([this] {
    const gid_t groups[] = {0};
    if (setgroups(1, groups) != 0) return 1;
    return Set(home_ + "/a.plist") == EACCES ? 0 : 2;
  });
  EXPECT_EQ(code, 0);
  EXPECT_THAT(NamesIn(folder_ / "roots"), ElementsAre("a.plist"));
}

TEST_F(RootInAUsersFolder, HasTheRightsOfRootAgainAfterwards) {
  EXPECT_EQ(Set(file_), 0);
  Put(secret_, "still root's");
  EXPECT_EQ(ContentOf(secret_), "still root's");
  EXPECT_EQ(Set(folder_ / "roots/c.plist"), 0);
  struct stat status = {};
  ASSERT_EQ(stat((folder_ / "roots/c.plist").c_str(), &status), 0);
  EXPECT_EQ(status.st_uid, 0U);
}

}  // namespace
