// SPDX-License-Identifier: MIT
#include "platform/common/replace_file.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <string>

#include "linux/failing_calls.h"
#include "linux/temp_folder.h"
#include "platform/common/file_access.h"
#include "platform/common/new_file.h"

namespace {

using testing::ElementsAre;
using testing::MatchesRegex;
using ztk::platform::ReadRegularFile;
using ztk::platform::ReplaceFile;
using ztk::test::ContentOf;
using ztk::test::fsyncCalls;
using ztk::test::linkatCalls;
using ztk::test::linkCalls;
using ztk::test::NamesIn;
using ztk::test::Put;
using ztk::test::readCalls;
using ztk::test::renameCalls;

class Files : public ztk::test::WithFailingCalls {
 protected:
  // Replaces the file and keeps the old one. Returns 0 or the error number.
  int Replace() {
    int error = -1;
    const bool replaced = ReplaceFile(path_, "new", true, &error, nullptr);
    EXPECT_EQ(replaced, error == 0);
    return error;
  }
  static ino_t NumberOf(const std::string &file) {
    struct stat status = {};
    EXPECT_EQ(lstat(file.c_str(), &status), 0);
    return status.st_ino;
  }

  ztk::test::TempFolder folder_;
  std::string path_ = folder_ / "a.plist";
  std::string kept_ = folder_ / "a.plist.unreadable-1";
};
class ReadingAFile : public Files {};
class NewFile : public Files {
 protected:
  void SetUp() override {
    Files::SetUp();
    const int file =
        open(folder_.path().c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, 0600);
    if (file < 0) GTEST_SKIP() << "the file system has no unnamed files";
    close(file);
  }
  // Writes a new file. Returns 0 or the error number.
  int Write() { return ztk::platform::WriteNewFile(path_, "new", {}, &name_); }
  void ExpectWritten() {
    EXPECT_EQ(ContentOf(name_), "new");
    EXPECT_THAT(NamesIn(folder_.path()),
                ElementsAre(MatchesRegex("a\\.plist\\.[A-Za-z0-9]{6}")));
  }

  std::string name_;
};
class KeepingTheOldFile : public Files {};

TEST_F(ReadingAFile, ContinuesAfterASignal) {
  Put(path_, "old");
  readCalls = {.failing = 2, .error = EINTR};
  std::string content;
  EXPECT_EQ(ReadRegularFile(path_.c_str(), 100, &content), 0);
  EXPECT_EQ(content, "old");
}

TEST_F(ReadingAFile, EndsIfErrnoIsSetBefore) {
  Put(path_, "old");
  alarm(20);  // ends a test that hangs
  errno = EINTR;
  std::string content;
  EXPECT_EQ(ReadRegularFile(path_.c_str(), 100, &content), 0);
  alarm(0);
  EXPECT_EQ(content, "old");
}

TEST_F(ReadingAFile, ReturnsTheErrorOfTheDisk) {
  Put(path_, "old");
  readCalls = {.failing = 1, .error = EIO};
  std::string content;
  EXPECT_EQ(ReadRegularFile(path_.c_str(), 100, &content), EIO);
}

TEST_F(NewFile, HasNoNameBeforeItIsComplete) {
  EXPECT_EQ(Write(), 0);
  EXPECT_EQ(linkatCalls.count, 1);
  ExpectWritten();
}

TEST_F(NewFile, GetsAnotherNameIfTheFirstOnesAreTaken) {
  linkatCalls = {.failing = 99, .error = EEXIST};
  EXPECT_EQ(Write(), 0);
  EXPECT_EQ(linkatCalls.count, 100);
  ExpectWritten();
}

TEST_F(NewFile, HasANameFromTheBeginningIfAllNamesAreTaken) {
  linkatCalls = {.failing = 1000, .error = EEXIST};
  EXPECT_EQ(Write(), 0);
  EXPECT_EQ(linkatCalls.count, 100);
  ExpectWritten();
}

TEST_F(NewFile, HasANameFromTheBeginningWithoutProc) {
  linkatCalls = {.failing = 1000, .error = ENOENT};
  EXPECT_EQ(Write(), 0);
  EXPECT_EQ(linkatCalls.count, 1);
  ExpectWritten();
}

// A user may link the own file without the permission to read it.
TEST_F(KeepingTheOldFile, DoesNotReplaceAFileThatHasTheFirstName) {
  constexpr uid_t kOtherOwner = 65534;
  Put(path_, "old");
  Put(kept_, "of another time");
  ASSERT_EQ(chmod(path_.c_str(), 0), 0);
  const bool asRoot = getuid() == 0;
  if (asRoot) {
    ASSERT_EQ(chown(folder_.path().c_str(), kOtherOwner, kOtherOwner), 0);
    ASSERT_EQ(chown(path_.c_str(), kOtherOwner, kOtherOwner), 0);
  }
  const int code = ztk::test::ExitCodeOf([this, asRoot] {
    if (asRoot && (setgid(kOtherOwner) != 0 || setuid(kOtherOwner) != 0))
      return -1;
    return Replace();
  });
  EXPECT_EQ(code, 0);
  EXPECT_EQ(ContentOf(path_), "new");
  EXPECT_EQ(ContentOf(kept_), "of another time");
  const std::string second = folder_ / "a.plist.unreadable-2";
  ASSERT_EQ(chmod(second.c_str(), 0600), 0);
  EXPECT_EQ(ContentOf(second), "old");
}

TEST_F(KeepingTheOldFile, TriesAThousandNames) {
  for (int number = 1; number <= 999; ++number) {
    Put(folder_ / "a.plist.unreadable-" + std::to_string(number), "taken");
  }
  Put(path_, "old");
  EXPECT_EQ(Replace(), 0);
  EXPECT_EQ(ContentOf(folder_ / "a.plist.unreadable-1000"), "old");

  EXPECT_EQ(Replace(), EEXIST);
  EXPECT_EQ(ContentOf(path_), "new");
  EXPECT_EQ(NamesIn(folder_.path()).size(), 1001U);
}

TEST_F(KeepingTheOldFile, CopiesItOnAFileSystemWithoutHardLinks) {
  // The copy is written in parts of 65,536 bytes; the last one has one byte.
  const std::string old(196'609, 'x');
  Put(path_, old);
  const ino_t number = NumberOf(path_);
  linkCalls = {.failing = 1, .error = EPERM};
  readCalls = {.failing = 1, .error = EINTR};
  EXPECT_EQ(Replace(), 0);
  EXPECT_EQ(readCalls.failing, 0);
  EXPECT_EQ(ContentOf(path_), "new");
  EXPECT_EQ(ContentOf(kept_), old);
  EXPECT_NE(NumberOf(kept_), number);
  EXPECT_EQ(ztk::test::ModeOf(kept_), 0600U);
  EXPECT_THAT(NamesIn(folder_.path()),
              ElementsAre("a.plist", "a.plist.unreadable-1"));
}

TEST_F(KeepingTheOldFile, CopiesItToTheNextNameIfTheFirstIsTakenMeanwhile) {
  Put(path_, "old");
  linkCalls = {
      .failing = 1, .error = EPERM, .action = [this] { Put(kept_, "other"); }};
  EXPECT_EQ(Replace(), 0);
  EXPECT_EQ(ContentOf(path_), "new");
  EXPECT_EQ(ContentOf(kept_), "other");
  EXPECT_EQ(ContentOf(folder_ / "a.plist.unreadable-2"), "old");
}

TEST_F(KeepingTheOldFile, DoesNotCopyAPipeThatReplacesTheFileMeanwhile) {
  Put(path_, "old");
  linkCalls = {.failing = 1, .error = EPERM, .action = [this] {
                 std::filesystem::remove(path_);
                 EXPECT_EQ(mkfifo(path_.c_str(), 0600), 0);
               }};
  EXPECT_EQ(Replace(), 0);
  EXPECT_EQ(ContentOf(path_), "new");
  EXPECT_TRUE(std::filesystem::is_fifo(kept_));
}

TEST_F(KeepingTheOldFile, RenamesItIfItCannotBeCopied) {
  Put(path_, "old");
  const ino_t number = NumberOf(path_);
  linkCalls = {.failing = 1, .error = EPERM};
  readCalls = {.failing = 1, .error = EIO};
  EXPECT_EQ(Replace(), 0);
  EXPECT_EQ(ContentOf(path_), "new");
  EXPECT_EQ(NumberOf(kept_), number);
}

TEST_F(KeepingTheOldFile, RenamesItIfTheCopyDoesNotReachTheDisk) {
  Put(path_, "old");
  const ino_t number = NumberOf(path_);
  linkCalls = {.failing = 1, .error = EPERM, .action = [] {
                 fsyncCalls = {.failing = 1, .error = EIO};
               }};
  EXPECT_EQ(Replace(), 0);
  EXPECT_EQ(NumberOf(kept_), number);
}

TEST_F(KeepingTheOldFile, LeavesNoPartOfACopyIfItFails) {
  Put(path_, "old");
  linkCalls = {.failing = 1, .error = EPERM};
  readCalls = {.failing = 1, .error = EIO};
  renameCalls = {.failing = 1, .error = EACCES};
  EXPECT_EQ(Replace(), EACCES);
  EXPECT_EQ(ContentOf(path_), "old");
  EXPECT_THAT(NamesIn(folder_.path()), ElementsAre("a.plist"));
}

TEST_F(KeepingTheOldFile, RenamesItBackIfTheFileIsNotReplaced) {
  Put(path_, "old");
  const ino_t number = NumberOf(path_);
  linkCalls = {.failing = 1, .error = EPERM};
  readCalls = {.failing = 1, .error = EIO};
  renameCalls = {.passing = 1, .failing = 1, .error = EACCES};
  EXPECT_EQ(Replace(), EACCES);
  EXPECT_EQ(NumberOf(path_), number);
  EXPECT_THAT(NamesIn(folder_.path()), ElementsAre("a.plist"));
}

TEST_F(KeepingTheOldFile, LeavesNoSecondNameIfTheFileIsNotReplaced) {
  Put(path_, "old");
  renameCalls = {.failing = 1, .error = EACCES};
  EXPECT_EQ(Replace(), EACCES);
  EXPECT_EQ(ContentOf(path_), "old");
  EXPECT_THAT(NamesIn(folder_.path()), ElementsAre("a.plist"));
}

}  // namespace
