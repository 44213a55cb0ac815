// SPDX-License-Identifier: MIT
//
// Makes single allocations of C++ fail. Allocations of libplist do not fail
// here.
#include <gtest/gtest.h>

#include <cerrno>
#include <string>

#include "linux/failing_new.h"
#include "linux/plist_files.h"
#include "linux/temp_folder.h"
#include "platform/property_list.h"
#include "platform/usb.h"

namespace {

namespace plist = ztk::platform::property_list;
using plist::ReadState;
using ztk::test::ContentOf;
using ztk::test::RunFailing;

class OutOfMemory : public testing::Test {
 protected:
  void SetUp() override { ztk::test::Put(path_, old_); }
  plist::Dictionary *Made() {
    plist::Dictionary *dictionary = plist::MakeDictionary();
    EXPECT_EQ(plist::AddEntriesOfFile(dictionary, path_.c_str()),
              plist::ReadResult{.state = ReadState::Read});
    return dictionary;
  }
  // Expects that the dictionary is incomplete and not written.
  void ExpectNotWritten(plist::Dictionary *dictionary) {
    int error = 0;
    EXPECT_FALSE(plist::WriteAtomically(dictionary, path_.c_str(), &error));
    EXPECT_EQ(error, ENOMEM);
    EXPECT_EQ(ContentOf(path_), old_);
    plist::Release(dictionary);
  }

  // A text of this length needs an allocation.
  static constexpr char kKey[] = "a key that has more than 15 characters";
  const std::string old_ = ztk::test::Xml("\t<key>old</key>\n\t<true/>\n");
  ztk::test::TempFolder folder_;
  std::string path_ = folder_ / "a.plist";
};

TEST_F(OutOfMemory, AFileIsUnavailable) {
  plist::Dictionary *dictionary = nullptr;
  plist::ReadResult result;
  long which = 1;
  while (RunFailing(
      which, [&] { result = plist::Read(path_.c_str(), &dictionary); })) {
    EXPECT_EQ(result, (plist::ReadResult{.state = ReadState::Unavailable,
                                         .error = ENOMEM}))
        << which;
    EXPECT_EQ(dictionary, nullptr);
    ++which;
  }
  EXPECT_GT(which, 1);
  EXPECT_EQ(result, plist::ReadResult{.state = ReadState::Read});
  plist::Release(dictionary);
}

TEST_F(OutOfMemory, NoChangeBegins) {
  plist::Change *change = nullptr;
  EXPECT_TRUE(
      RunFailing(1, [&] { change = plist::BeginChange(path_.c_str()); }));
  EXPECT_EQ(change, nullptr);
}

TEST_F(OutOfMemory, NoDictionaryIsMade) {
  plist::Dictionary *dictionary = nullptr;
  EXPECT_TRUE(RunFailing(1, [&] { dictionary = plist::MakeDictionary(); }));
  EXPECT_EQ(dictionary, nullptr);
}

TEST_F(OutOfMemory, ADictionaryWithoutAllEntriesOfTheFileIsNotWritten) {
  plist::Dictionary *dictionary = plist::MakeDictionary();
  plist::ReadResult result;
  EXPECT_TRUE(RunFailing(
      1, [&] { result = plist::AddEntriesOfFile(dictionary, path_.c_str()); }));
  EXPECT_EQ(result, (plist::ReadResult{.state = ReadState::Unavailable,
                                       .error = ENOMEM}));
  ExpectNotWritten(dictionary);
}

TEST_F(OutOfMemory, ADictionaryWithoutTheNewValueIsNotWritten) {
  plist::Dictionary *dictionary = Made();
  EXPECT_TRUE(RunFailing(1, [&] { plist::SetInteger(dictionary, kKey, 1); }));
  ExpectNotWritten(dictionary);
}

TEST_F(OutOfMemory, ADictionaryWithARemovedEntryIsNotWritten) {
  plist::Dictionary *dictionary = Made();
  EXPECT_TRUE(RunFailing(1, [&] { plist::RemoveEntry(dictionary, kKey); }));
  ExpectNotWritten(dictionary);
}

TEST_F(OutOfMemory, AFailedWriteHasTheReason) {
  plist::Dictionary *dictionary = Made();
  int error = 0;
  bool written = true;
  EXPECT_TRUE(RunFailing(1, [&] {
    written = plist::WriteAtomically(dictionary, path_.c_str(), &error);
  }));
  EXPECT_FALSE(written);
  EXPECT_EQ(error, ENOMEM);
  EXPECT_TRUE(RunFailing(
      1, [&] { written = plist::WriteAtomically(dictionary, path_.c_str()); }));
  EXPECT_FALSE(written);
  EXPECT_EQ(ContentOf(path_), old_);
  plist::Release(dictionary);
}

TEST_F(OutOfMemory, NoUsbDevicesAreMatched) {
  ztk::platform::usb::Matching *matching = nullptr;
  EXPECT_TRUE(RunFailing(1, [&] {
    matching = ztk::platform::usb::CreateMatching("IOUSBDevice");
  }));
  EXPECT_EQ(matching, nullptr);
}

}  // namespace
