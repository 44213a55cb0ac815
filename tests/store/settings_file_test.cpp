// SPDX-License-Identifier: MIT
#include "store/settings_file.h"

#include <algorithm>
#include <vector>

#include "ZTKOutcome.h"
#include "outcome/outcome.h"
#include "support/core_test.h"

namespace ztk::test {
namespace {

using fake::Entries;
using fake::Held;
using platform::property_list::ReadState;

const ZTKTextRef kD6 = ZTK_TEXT("VRM-D6");
const ZTKTextRef kB5 = ZTK_TEXT("VRM-B5");

class Read : public CoreTest {};

TEST_F(Read, ReturnsTheFallbackWithoutAFileAndCreatesNone) {
  EXPECT_EQ(store::Read(kD6, ZTK_TEXT("MaxLevel"), 3), 3);
  EXPECT_EQ(store::Read(kD6, ZTK_TEXT("MaxLevel"), -8), -8);
  EXPECT_THAT(CurrentWorld().files, IsEmpty());
  EXPECT_THAT(TakeSteps(), IsEmpty());
}

TEST_F(Read, ReturnsTheFallbackForAMissingKey) {
  CurrentWorld().files[kD6File] = {{"maxlevel", 2}, {"MaxLevel2", 1}};
  EXPECT_EQ(store::Read(kD6, ZTK_TEXT("MaxLevel"), 3), 3);
}

TEST_F(Read, ReturnsTheFallbackForAnEntryOfAnotherKind) {
  CurrentWorld().files[kD6File] = {{"MaxLevel", {}}};
  EXPECT_EQ(store::Read(kD6, ZTK_TEXT("MaxLevel"), 3), 3);
}

TEST_F(Read, ReturnsAnyInteger) {
  for (const std::int32_t value : {0, 2, 99, -1, 2147483647, INT32_MIN}) {
    SCOPED_TRACE(value);
    CurrentWorld().files[kD6File] = {{"MaxLevel", value}};
    EXPECT_EQ(store::Read(kD6, ZTK_TEXT("MaxLevel"), 3), value);
  }
}

TEST_F(Read, ReturnsTheNumberOfAText) {
  CurrentWorld().files[kD6File] = {{"MaxLevel", "5"}};
  EXPECT_EQ(store::Read(kD6, ZTK_TEXT("MaxLevel"), 3), 5);
  CurrentWorld().files[kD6File] = {{"MaxLevel", "loud"}};
  EXPECT_EQ(store::Read(kD6, ZTK_TEXT("MaxLevel"), 3), 0);
}

TEST_F(Read, ReadsTheFileOnceAndReleasesTheDictionary) {
  CurrentWorld().files[kD6File] = {{"MaxLevel", 2}};
  store::Read(kD6, ZTK_TEXT("MaxLevel"), 3);
  EXPECT_THAT(TakeCalls(), ElementsAre(std::string("read file ") + kD6File,
                                       "release dictionary"));
  EXPECT_EQ(CurrentWorld().held, Held{});
}

TEST_F(Read, ReadsTheFileAgainInEachCall) {
  CurrentWorld().files[kD6File] = {{"MaxLevel", 2}};
  EXPECT_EQ(store::Read(kD6, ZTK_TEXT("MaxLevel"), 3), 2);
  CurrentWorld().files[kD6File] = {{"MaxLevel", 1}};
  EXPECT_EQ(store::Read(kD6, ZTK_TEXT("MaxLevel"), 3), 1);
  CurrentWorld().files.clear();
  EXPECT_EQ(store::Read(kD6, ZTK_TEXT("MaxLevel"), 3), 3);
}

TEST_F(Read, ReturnsTheFallbackWithoutALibraryFolder) {
  CurrentWorld().hasLibraryFolder = false;
  EXPECT_EQ(store::Read(kD6, ZTK_TEXT("MaxLevel"), 3), 3);
  EXPECT_THAT(TakeCalls(), IsEmpty());
}

TEST_F(Read, UsesTheLibraryFolderOfTheUser) {
  CurrentWorld().libraryFolder = "/home/dj/.config/tarvix";
  store::Read(kB5, ZTK_TEXT("Input0"), 0);
  EXPECT_THAT(TakeCalls(),
              ElementsAre("read file /home/dj/.config/tarvix/Preferences/"
                          "com.tarvix.VRM-B5autosetup.plist"));
}

TEST_F(Read, ReturnsTheFallbackForAFileThatCannotBeRead) {
  CurrentWorld().files[kD6File] = {{"MaxLevel", 2}};
  for (const ReadState state : {ReadState::Unavailable, ReadState::Damaged}) {
    CurrentWorld().readFailures[kD6File] = {.state = state, .error = 0};
    EXPECT_EQ(store::Read(kD6, ZTK_TEXT("MaxLevel"), 3), 3);
  }
  EXPECT_EQ(CurrentWorld().held, Held{});
}

class ReadChannel : public CoreTest {};

TEST_F(ReadChannel, PutsTheChannelIntoTheKey) {
  CurrentWorld().files[kD6File] = {{"Output0", 10}, {"Output4", 14}};
  EXPECT_EQ(store::ReadChannel(kD6, ZTK_TEXT("Output%d"), 0, 7), 10);
  EXPECT_EQ(store::ReadChannel(kD6, ZTK_TEXT("Output%d"), 4, 7), 14);
  EXPECT_EQ(store::ReadChannel(kD6, ZTK_TEXT("Output%d"), 3, 7), 7);
}

class Write : public CoreTest {};

TEST_F(Write, CreatesTheFileWithOneKey) {
  store::Write(kD6, ZTK_TEXT("MaxLevel"), 2);
  EXPECT_EQ(CurrentWorld().files.at(kD6File), (Entries{{"MaxLevel", 2}}));
}

TEST_F(Write, KeepsEveryOtherKeyOfAnyKind) {
  CurrentWorld().files[kD6File] = {
      {"MaxLevel", 2}, {"Foo", "bar"}, {"Other", {}}, {"Output1", "6"}};
  store::Write(kD6, ZTK_TEXT("Output0"), 1);
  EXPECT_EQ(CurrentWorld().files.at(kD6File), (Entries{{"MaxLevel", 2},
                                                       {"Foo", "bar"},
                                                       {"Other", {}},
                                                       {"Output0", 1},
                                                       {"Output1", "6"}}));
}

TEST_F(Write, ReplacesTheOldValueOfTheKey) {
  CurrentWorld().files[kD6File] = {{"MaxLevel", "loud"}};
  store::Write(kD6, ZTK_TEXT("MaxLevel"), 2);
  EXPECT_EQ(CurrentWorld().files.at(kD6File), (Entries{{"MaxLevel", 2}}));
}

TEST_F(Write, ReadsSetsAndWritesWithinOneChangeOfTheFile) {
  store::Write(kD6, ZTK_TEXT("MaxLevel"), 2);
  const std::string file = kD6File;
  EXPECT_THAT(
      TakeCalls(),
      ElementsAre("begin change of " + file, "make dictionary",
                  "add entries of " + file, "set MaxLevel 2", "write " + file,
                  "release dictionary", "end change of " + file));
  EXPECT_EQ(CurrentWorld().held, Held{});
}

TEST_F(Write, DoesNotReplaceAFileThatCannotBeReadNow) {
  CurrentWorld().files[kD6File] = {{"MaxLevel", 3}};
  CurrentWorld().readFailures[kD6File] = {.state = ReadState::Unavailable,
                                          .error = EMFILE};
  store::Write(kD6, ZTK_TEXT("MaxLevel"), 2);
  const std::string file = kD6File;
  EXPECT_THAT(TakeCalls(),
              ElementsAre("begin change of " + file, "make dictionary",
                          "add entries of " + file, "release dictionary",
                          "end change of " + file));
  EXPECT_EQ(CurrentWorld().files.at(kD6File), (Entries{{"MaxLevel", 3}}));
  EXPECT_EQ(CurrentWorld().held, Held{});
}

TEST_F(Write, ReplacesAFileWithoutReadPermission) {
  CurrentWorld().readFailures[kD6File] = {.state = ReadState::Unavailable,
                                          .error = EACCES};
  store::Write(kD6, ZTK_TEXT("MaxLevel"), 2);
  EXPECT_EQ(CurrentWorld().files.at(kD6File), (Entries{{"MaxLevel", 2}}));
}

TEST_F(Write, IsTriedAgainIfAnotherProcessReplacedTheFile) {
  CurrentWorld().canWrite = false;
  CurrentWorld().writeError = ESTALE;
  store::Write(kD6, ZTK_TEXT("MaxLevel"), 2);
  const std::vector<std::string> calls = TakeCalls();
  for (const char *step :
       {"begin change of ", "add entries of ", "write ", "end change of "}) {
    EXPECT_EQ(
        std::count(calls.begin(), calls.end(), std::string(step) + kD6File), 20)
        << step;
  }
  EXPECT_EQ(CurrentWorld().held, Held{});
}

TEST_F(Write, ReplacesADamagedFile) {
  CurrentWorld().readFailures[kD6File] = {.state = ReadState::Damaged,
                                          .error = 0};
  store::Write(kD6, ZTK_TEXT("MaxLevel"), 2);
  EXPECT_EQ(CurrentWorld().files.at(kD6File), (Entries{{"MaxLevel", 2}}));
}

TEST_F(Write, StoresASigned32BitNumber) {
  store::Write(kD6, ZTK_TEXT("MaxLevel"), 0xFFFFFFFF);
  EXPECT_EQ(CurrentWorld().files.at(kD6File), (Entries{{"MaxLevel", -1}}));
}

TEST_F(Write, IgnoresAFailureAndKeepsTheOldFile) {
  CurrentWorld().files[kD6File] = {{"MaxLevel", 3}};
  CurrentWorld().canWrite = false;
  store::Write(kD6, ZTK_TEXT("MaxLevel"), 2);
  EXPECT_THAT(TakeSteps(),
              ElementsAre(std::string("write ") + kD6File + " {MaxLevel=2}"));
  EXPECT_EQ(CurrentWorld().files.at(kD6File), (Entries{{"MaxLevel", 3}}));
  EXPECT_EQ(CurrentWorld().held, Held{});
}

TEST_F(Write, DoesNothingWithoutALibraryFolder) {
  CurrentWorld().hasLibraryFolder = false;
  store::Write(kD6, ZTK_TEXT("MaxLevel"), 2);
  EXPECT_THAT(TakeCalls(), IsEmpty());
  EXPECT_THAT(CurrentWorld().files, IsEmpty());
}

TEST_F(Write, ChangesOnlyTheFileOfItsModel) {
  CurrentWorld().files[kD6File] = {{"MaxLevel", 3}};
  store::Write(kB5, ZTK_TEXT("Input0"), 1);
  EXPECT_EQ(CurrentWorld().files.at(kD6File), (Entries{{"MaxLevel", 3}}));
  EXPECT_EQ(CurrentWorld().files.at(kB5File), (Entries{{"Input0", 1}}));
}

// Tests what the record of the call contains about the file.
class FileOutcome : public CoreTest {
 protected:
  void SetUp() override {
    CoreTest::SetUp();
    outcome::Begin();
  }
  static ZTKOutcome Record() {
    ZTKOutcome record = {};
    record.size = sizeof record;
    ZTK_GetLastOutcome(&record);
    return record;
  }
};

TEST_F(FileOutcome, ContainsTheResultOfReading) {
  const struct {
    ReadState state;
    int error;
    std::uint32_t expected;
  } rows[] = {{ReadState::Absent, 0, ZTK_FILE_ABSENT},
              {ReadState::Damaged, 0, ZTK_FILE_DAMAGED},
              {ReadState::Unavailable, EMFILE, ZTK_FILE_CANNOT_BE_READ_NOW},
              {ReadState::Unavailable, EACCES, ZTK_FILE_NOT_PERMITTED},
              {ReadState::Unavailable, EINVAL, ZTK_FILE_NOT_REGULAR}};
  for (const auto &row : rows) {
    SCOPED_TRACE(row.expected);
    CurrentWorld().readFailures[kD6File] = {.state = row.state,
                                            .error = row.error};
    store::Read(kD6, ZTK_TEXT("MaxLevel"), 3);
    EXPECT_EQ(Record().read.result, row.expected);
    EXPECT_EQ(Record().read.systemCode, row.error);
  }
  CurrentWorld().readFailures.clear();
  CurrentWorld().files[kD6File] = {};
  store::Read(kD6, ZTK_TEXT("MaxLevel"), 3);
  EXPECT_EQ(Record().read.result, ZTK_FILE_OK);
  EXPECT_EQ(Record().store.result, ZTK_FILE_NONE);
  CurrentWorld().hasLibraryFolder = false;
  store::Read(kD6, ZTK_TEXT("MaxLevel"), 3);
  EXPECT_EQ(Record().read.result, ZTK_FILE_NO_HOME);
}

TEST_F(FileOutcome, ContainsTheReasonIfNothingIsStored) {
  const struct {
    int error;
    std::uint32_t expected;
  } rows[] = {{ENOENT, ZTK_FILE_NO_FOLDER},   {EACCES, ZTK_FILE_NOT_PERMITTED},
              {EROFS, ZTK_FILE_READ_ONLY},    {ENOSPC, ZTK_FILE_FULL},
              {EISDIR, ZTK_FILE_NOT_REGULAR}, {EIO, ZTK_FILE_FAILED}};
  CurrentWorld().canWrite = false;
  for (const auto &row : rows) {
    CurrentWorld().writeError = row.error;
    store::Write(kD6, ZTK_TEXT("MaxLevel"), 2);
    EXPECT_EQ(Record().store.result, row.expected) << row.error;
    EXPECT_EQ(Record().store.systemCode, row.error);
  }
  CurrentWorld().readFailures[kD6File] = {.state = ReadState::Unavailable,
                                          .error = EMFILE};
  store::Write(kD6, ZTK_TEXT("MaxLevel"), 2);
  EXPECT_EQ(Record().store.result, ZTK_FILE_CANNOT_BE_READ_NOW);
  EXPECT_EQ(Record().store.systemCode, EMFILE);
  CurrentWorld().hasLibraryFolder = false;
  store::Write(kD6, ZTK_TEXT("MaxLevel"), 2);
  EXPECT_EQ(Record().store.result, ZTK_FILE_NO_HOME);
}

TEST_F(FileOutcome, ReportsThatADamagedFileWasReplaced) {
  CurrentWorld().readFailures[kD6File] = {.state = ReadState::Damaged,
                                          .error = 0};
  store::Write(kD6, ZTK_TEXT("MaxLevel"), 2);
  EXPECT_EQ(Record().read.result, ZTK_FILE_DAMAGED);
  EXPECT_EQ(Record().store.result, ZTK_FILE_OK);
}

class WriteChannel : public CoreTest {};

TEST_F(WriteChannel, PutsTheChannelIntoTheKey) {
  store::WriteChannel(kB5, ZTK_TEXT("Input%d"), 0, 2);
  store::WriteChannel(kB5, ZTK_TEXT("Input%d"), 4, 1);
  EXPECT_EQ(CurrentWorld().files.at(kB5File),
            (Entries{{"Input0", 2}, {"Input4", 1}}));
}

}  // namespace
}  // namespace ztk::test
