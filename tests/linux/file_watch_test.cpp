// SPDX-License-Identifier: MIT
//
// Another program overwrites the settings file, as `cp` does, and stops in the
// middle for some time. Pause() is replaced: it does not wait, but continues
// the copy.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/time.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>

#include "linux/plist_files.h"
#include "linux/temp_folder.h"
#include "platform/common/pause.h"
#include "platform/property_list.h"

namespace {

namespace plist = ztk::platform::property_list;
using plist::ReadResult;
using plist::ReadState;
using std::chrono::milliseconds;
using testing::ElementsAre;
using ztk::test::ContentOf;
using ztk::test::NamesIn;
using ztk::test::TempFolder;
using ztk::test::Xml;

// Pause() calls this function with the sum of all pauses so far.
std::function<void(milliseconds)> duringPause;
milliseconds paused{0};

// Writes a file whose modification time is now. Put() of the other tests sets
// an earlier time.
void Put(const std::string &file, const std::string &content) {
  std::ofstream(file, std::ios::binary) << content;
}

class FileWatch : public testing::Test {
 protected:
  void SetUp() override {
    paused = milliseconds(0);
    duringPause = [](milliseconds) {};
  }

  void Append(std::size_t from, std::size_t count) {
    std::ofstream(path_, std::ios::app) << old_.substr(from, count);
  }

  // Sets "new" to 1 as the core does. Returns the result of reading the file.
  ReadResult Set() {
    plist::Dictionary *dictionary = plist::MakeDictionary();
    const ReadResult read = plist::AddEntriesOfFile(dictionary, path_.c_str());
    if (plist::MayBeReplaced(read)) {
      plist::SetInteger(dictionary, "new", 1);
      EXPECT_TRUE(plist::WriteAtomically(dictionary, path_.c_str()));
    }
    plist::Release(dictionary);
    return read;
  }

  // Sets the modification time of the file, relative to now.
  void MoveTime(std::time_t seconds) {
    const timeval then = {.tv_sec = std::time(nullptr) + seconds, .tv_usec = 0};
    const timeval times[2] = {then, then};
    ASSERT_EQ(utimes(path_.c_str(), times), 0);
  }

  const std::string old_ = Xml("\t<key>old</key>\n\t<true/>\n");
  const std::string both_ =
      Xml("\t<key>old</key>\n\t<true/>\n"
          "\t<key>new</key>\n\t<integer>1</integer>\n");
  TempFolder folder_;
  const std::string path_ = folder_ / "a.plist";
};

TEST_F(FileWatch, WaitsForACopyThatStops) {
  Put(path_, old_.substr(0, 100));
  duringPause = [this](milliseconds time) {
    if (time == milliseconds(200)) Append(100, old_.size());
  };
  EXPECT_EQ(Set(), (ReadResult{.state = ReadState::Read}));
  EXPECT_EQ(ContentOf(path_), both_);
  EXPECT_THAT(NamesIn(folder_.path()), ElementsAre("a.plist"));
}

TEST_F(FileWatch, WaitsAgainWhenTheCopyStopsTwice) {
  Put(path_, "");
  duringPause = [this](milliseconds time) {
    if (time == milliseconds(200)) Append(0, 100);
    if (time == milliseconds(400)) Append(100, old_.size());
  };
  EXPECT_EQ(Set(), (ReadResult{.state = ReadState::Read}));
  EXPECT_EQ(ContentOf(path_), both_);
  EXPECT_THAT(NamesIn(folder_.path()), ElementsAre("a.plist"));
}

TEST_F(FileWatch, DoesNotReplaceAFileThatChangesAllTheTime) {
  Put(path_, "");
  std::size_t length = 0;
  duringPause = [this, &length](milliseconds) { Append(length++, 1); };
  EXPECT_EQ(Set(),
            (ReadResult{.state = ReadState::Unavailable, .error = EBUSY}));
  EXPECT_EQ(ContentOf(path_), old_.substr(0, length));
  EXPECT_THAT(NamesIn(folder_.path()), ElementsAre("a.plist"));
  EXPECT_EQ(paused, milliseconds(500));
}

TEST_F(FileWatch, CallsAFileDamagedAfterAQuarterOfASecond) {
  Put(path_, "broken");
  MoveTime(3600);  // as if the clock of the file system were fast
  EXPECT_EQ(Set(), (ReadResult{.state = ReadState::Damaged}));
  EXPECT_THAT(NamesIn(folder_.path()),
              ElementsAre("a.plist", "a.plist.unreadable-1"));
  EXPECT_EQ(paused, milliseconds(260));
}

TEST_F(FileWatch, ReadsAnOldDamagedFileOnlyTwice) {
  Put(path_, "broken");
  MoveTime(-60);
  EXPECT_EQ(Set(), (ReadResult{.state = ReadState::Damaged}));
  EXPECT_EQ(ContentOf(path_ + ".unreadable-1"), "broken");
  EXPECT_EQ(paused, milliseconds(10));
}

// Two processes without the lock of the folder have read the same file. The
// other process has locked the file and found it unchanged, and now replaces
// it.
TEST_F(FileWatch, WaitsForAnotherProcessThatIsReplacingTheFile) {
  Put(path_, old_);
  const int other = open(path_.c_str(), O_RDONLY | O_CLOEXEC);
  ASSERT_EQ(flock(other, LOCK_EX), 0);
  plist::Dictionary *dictionary = plist::MakeDictionary();
  plist::AddEntriesOfFile(dictionary, path_.c_str());
  duringPause = [this, other](milliseconds) {
    Put(folder_ / "others", both_);
    std::filesystem::rename(folder_ / "others", path_);
    close(other);
    duringPause = [](milliseconds) {};
  };
  int error = 0;
  EXPECT_FALSE(plist::WriteAtomically(dictionary, path_.c_str(), &error));
  EXPECT_EQ(error, ESTALE);
  plist::Release(dictionary);
  EXPECT_EQ(ContentOf(path_), both_);
  EXPECT_THAT(NamesIn(folder_.path()), ElementsAre("a.plist"));
}

}  // namespace

void ztk::platform::Pause(std::chrono::microseconds time) {
  paused += std::chrono::duration_cast<milliseconds>(time);
  const auto hook = duringPause;  // a copy, because it may assign duringPause
  hook(paused);
}
