// SPDX-License-Identifier: MIT
#include <filesystem>

#include "doctor_world.h"

namespace ztk::test {
namespace {

class DoctorSettings : public DoctorWorld {
 protected:
  Result Diagnosis(const std::string &before = "") {
    return NoMixer(before + "ztk doctor --json");
  }
  // The same as a user who owns no file there; skips the test when the process
  // cannot become one.
  Json AsOtherUser() {
    const Result result = NoMixer(
        "run='setpriv --reuid 65534 --clear-groups'\n"
        "$run ztk --version > /dev/null || exit 97\n"
        "$run ztk doctor --json");
    return result.status == kCannotSet ? Json() : OnlyOneIn("settings", result);
  }
  std::string folder_ = home_.path().string() + "/.config/tarvix/Preferences";
};

TEST_F(DoctorSettings, AreWellBeforeAndAfterTheFirstSetting) {
  EXPECT_THAT(FoundIn("settings", Diagnosis()), IsEmpty());
  EXPECT_THAT(FoundIn("settings", Diagnosis("ztk boost set 1 2> /dev/null;")),
              IsEmpty());
  // The attempt to write leaves no file behind.
  std::size_t files = 0;
  for (const auto &entry : std::filesystem::directory_iterator(folder_)) {
    files += entry.is_regular_file() ? 1 : 0;
  }
  EXPECT_EQ(files, 1U);
}

TEST_F(DoctorSettings, AreUnreadableWhenDamaged) {
  WriteAll(home_.SettingsFile("VRM-D6"), "<plist><dict><key>Max");
  const Json finding = OnlyOneIn("settings", Diagnosis());
  EXPECT_EQ(Word(finding, "id"), "settings-unreadable");
  EXPECT_EQ(Word(finding, "cause"),
            "it is not a settings file, or it is damaged");
  EXPECT_TRUE(Helps(finding, "settings"));
  EXPECT_EQ(ReadAll(home_.SettingsFile("VRM-D6").string() + ".old"),
            "<plist><dict><key>Max");
}

TEST_F(DoctorSettings, ThatWereSetAsideAreANote) {
  const std::string file = home_.SettingsFile("VRM-D6").string();
  Remember("VRM-D6", {{"MaxLevel", 1}});
  std::filesystem::rename(file, file + ".unreadable-1");
  std::filesystem::permissions(file + ".unreadable-1",
                               std::filesystem::perms::none);
  Remember("VRM-D6", {{"Output1", 2}});
  const Json finding = OnlyOneIn("settings", Diagnosis());
  EXPECT_EQ(Word(finding, "id"), "settings-kept");
  EXPECT_EQ(Word(finding, "severity"), "note");
  EXPECT_EQ(Word(finding, "finding"),
            "the settings in " + file + ".unreadable-1 are not remembered");
  EXPECT_EQ(Word(finding, "command"), "chmod u+rw " + file +
                                          ".unreadable-1 && mv " + file +
                                          ".unreadable-1 " + file);
  EXPECT_TRUE(Helps(finding, "settings"));
  EXPECT_THAT(NoMixer("ztk boost get").out, HasSubstr("-10 dB (2)\n"));
}

TEST_F(DoctorSettings, AreUnreadableWhenSomethingElseStandsThere) {
  std::filesystem::create_directories(home_.SettingsFile("VRM-K2"));
  const Json finding = OnlyOneIn("settings", Diagnosis());
  EXPECT_EQ(Word(finding, "id"), "settings-unreadable");
  EXPECT_TRUE(Helps(finding, "settings"));
}

TEST_F(DoctorSettings, NameAFileThatStandsWhereAFolderHasToBe) {
  WriteAll(folder_, "");
  const Json finding = OnlyOneIn("settings", Diagnosis());
  EXPECT_EQ(Word(finding, "id"), "settings-not-writable");
  EXPECT_EQ(Word(finding, "cause"), "it is a file where a folder has to be");
  EXPECT_TRUE(Helps(finding, "settings"));
}

// Only an ordinary file is renamed.
TEST_F(DoctorSettings, OnlyShowADeviceThatStandsWhereAFolderHasToBe) {
  const Json finding =
      OnlyOneIn("settings", Diagnosis("export XDG_CONFIG_HOME=/dev/null/x\n"));
  EXPECT_EQ(Word(finding, "id"), "settings-not-writable");
  EXPECT_EQ(Word(finding, "command"), "ls -l /dev/null");
}

TEST_F(DoctorSettings, NameAHomeFolderThatDoesNotExist) {
  const Json finding =
      OnlyOneIn("settings", Diagnosis("unset XDG_CONFIG_HOME XDG_STATE_HOME\n"
                                      "export HOME=$DIR/none/user\n"));
  const std::string home = home_.path().string() + "/none/user";
  EXPECT_EQ(Word(finding, "id"), "settings-not-writable");
  EXPECT_EQ(Word(finding, "finding"),
            "settings are not remembered: there is no folder " + home);
  EXPECT_EQ(Word(finding, "command"), "mkdir -p " + home);
}

TEST_F(DoctorSettings, AreNotWritableOnAFileSystemThatIsReadOnly) {
  Remember("VRM-D6", {{"MaxLevel", 1}});
  const Result result =
      InTemporaryRoot({}, {"-n", "0"},
                      "mount --bind $DIR/.config $DIR/.config &&"
                      "mount -o remount,ro,bind $DIR/.config || exit 97\n"
                      "ztk doctor --json");
  if (result.status == kNoTemporaryRoot || result.status == kCannotSet) {
    GTEST_SKIP() << "nothing can be mounted here";
  }
  const Json finding = OnlyOneIn("settings", result);
  EXPECT_EQ(Word(finding, "id"), "settings-not-writable");
  EXPECT_THAT(Word(finding, "cause"), HasSubstr("read-only"));
  EXPECT_THAT(Word(finding, "command"), StartsWith("sudo mount -o remount,rw"));
}

TEST_F(DoctorSettings, AreNotWritableOnAFullDisk) {
  std::filesystem::create_directories(folder_);
  const Result result = InTemporaryRoot(
      {}, {"-n", "0"},
      "mount -t tmpfs -o size=64k none $DIR/.config/tarvix/Preferences ||"
      " exit 97\n"
      "cat /dev/zero > $DIR/.config/tarvix/Preferences/full 2> /dev/null\n"
      "ztk doctor --json");
  if (result.status == kNoTemporaryRoot || result.status == kCannotSet) {
    GTEST_SKIP() << "nothing can be mounted here";
  }
  const Json finding = OnlyOneIn("settings", result);
  EXPECT_EQ(Word(finding, "id"), "settings-not-writable");
  EXPECT_THAT(Word(finding, "cause"), HasSubstr("full"));
  EXPECT_EQ(Word(finding, "command"), "df -h " + folder_);
}

TEST_F(DoctorSettings, BelongToSomebodyElse) {
  if (geteuid() != 0) GTEST_SKIP() << "only root can be two users";
  Remember("VRM-D6", {{"MaxLevel", 1}});
  std::filesystem::permissions(home_.SettingsFile("VRM-D6"),
                               std::filesystem::perms::owner_read);
  for (std::filesystem::path path = folder_; path != home_.path().parent_path();
       path = path.parent_path()) {
    std::filesystem::permissions(path, std::filesystem::perms(0777));
  }
  const Json finding = AsOtherUser();
  if (finding.is_null()) GTEST_SKIP() << "the program cannot be run by others";
  EXPECT_EQ(Word(finding, "id"), "settings-unreadable");
  EXPECT_EQ(Word(finding, "cause"), "you have no permission to read it");
  EXPECT_EQ(
      Word(finding, "command"),
      "sudo chown \"$(id -un)\" " + home_.SettingsFile("VRM-D6").string());
}

TEST_F(DoctorSettings, LieInAFolderOfSomebodyElse) {
  if (geteuid() != 0) GTEST_SKIP() << "only root can be two users";
  std::filesystem::permissions(home_.path(), std::filesystem::perms(0755));
  const Json finding = AsOtherUser();
  if (finding.is_null()) GTEST_SKIP() << "the program cannot be run by others";
  EXPECT_EQ(Word(finding, "id"), "settings-not-writable");
  EXPECT_EQ(Word(finding, "cause"), "you have no permission to write there");
  EXPECT_EQ(Word(finding, "command"),
            "sudo chown \"$(id -un)\" " + home_.path().string());
}

TEST_F(DoctorSettings, HaveNoHome) {
  if (geteuid() != 0) GTEST_SKIP() << "only root can be a user without a home";
  const Result result = NoMixer(
      "run='setpriv --reuid 54321 --clear-groups env -u HOME'\n"
      "$run ztk --version > /dev/null || exit 97\n"
      "$run ztk doctor --json");
  if (result.status == kCannotSet) {
    GTEST_SKIP() << "the program cannot be run by others";
  }
  EXPECT_EQ(Word(OnlyOneIn("settings", result), "id"), "settings-no-home");
}

TEST_F(DoctorSettings, OfAHomeThatIsSharedAreANote) {
  WriteAll(
      home_.path() / "Library/Preferences/com.tarvix.VRM-D6autosetup.plist",
      "<plist version=\"1.0\"><dict><key>MaxLevel</key>"
      "<integer>1</integer></dict></plist>");
  const Json finding = OnlyOneIn("settings", Diagnosis());
  EXPECT_EQ(Word(finding, "id"), "settings-shared");
  EXPECT_EQ(Word(finding, "severity"), "note");
  EXPECT_TRUE(Helps(finding, "settings"));
  EXPECT_THAT(NoMixer("ztk boost get").out, HasSubstr("-10 dB (2)\n"));
}

}  // namespace
}  // namespace ztk::test
