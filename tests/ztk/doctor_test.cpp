// SPDX-License-Identifier: MIT
//
// Every cause is real: the mixer is forbidden, silent or unplugged, the rule
// exists or not, the bus is stopped.
#include <filesystem>

#include "doctor_world.h"

namespace ztk::test {
namespace {

constexpr char kRule[] = "/etc/udev/rules.d/70-tarvix-mixer.rules";
constexpr char kGoodRule[] =
    "ACTION!=\"remove\", SUBSYSTEM==\"usb\", ENV{DEVTYPE}==\"usb_device\", "
    "ATTR{idVendor}==\"6666\", ATTR{idProduct}==\"001b\", TAG+=\"uaccess\"";
constexpr char kReplug[] =
    "sudo udevadm control --reload && sudo udevadm trigger --action=add "
    "--settle --subsystem-match=usb --attr-match=idVendor=6666 "
    "--attr-match=idProduct=001b";
constexpr char kBundle[] =
    "/System/Library/Frameworks/VRM-D6Setup.framework/Resources/";

class Doctor : public DoctorWorld {
 protected:
  // Skips the test when the system does not allow a temporary root.
  void RunWithFiles(const RootFiles &files,
                    const std::vector<std::string> &options,
                    const std::string &script) {
    result_ = InTemporaryRoot(files, options, script);
    if (result_.status == kNoTemporaryRoot) {
      GTEST_SKIP() << "no mount namespace here";
    }
    if (result_.status == kCannotSet) GTEST_SKIP() << result_.err;
  }
  static bool RuleIsInstalled() {
    for (const char *folder :
         {"/etc/", "/run/", "/usr/local/lib/", "/usr/lib/"}) {
      if (std::filesystem::exists(std::string(folder) +
                                  "udev/rules.d/70-tarvix-mixer.rules")) {
        return true;
      }
    }
    return false;
  }
  Result result_;
};

TEST_F(Doctor, FindsNothingWhereAllIsWell) {
  RunWithFiles({{std::string(kBundle) + "English.lproj/Localizable.strings",
                 "<plist version=\"1.0\"><dict><key>WARNING1</key>"
                 "<string>none</string></dict></plist>"}},
               {"-n", "2"}, "ztk doctor; echo $?; ztk doctor --json");
  if (IsSkipped()) return;
  EXPECT_EQ(result_.status, 0) << result_.err;
  EXPECT_EQ(Line(result_.out, 0),
            "mixers    ok: 2 mixers are attached and answer");
  EXPECT_EQ(Line(result_.out, 1),
            "settings  ok: they can be read and written in " +
                home_.path().string() + "/.config/tarvix/Preferences");
  EXPECT_EQ(Line(result_.out, 2),
            "bus       ok: programs in the same session receive changes");
  EXPECT_EQ(Line(result_.out, 3),
            "texts     ok: the warning texts are installed");
  EXPECT_EQ(Line(result_.out, 4),
            "history   ok: ztk undo can take back changes");
  EXPECT_EQ(Line(result_.out, 5), "0");
  const Json json = OneObject(LastLine(result_.out) + "\n");
  EXPECT_EQ(json.value("findings", Json()), Json::array());
  EXPECT_EQ(json.value("checks", Json::array()).size(), 5U);
  EXPECT_THAT(Writes(), IsEmpty());
  EXPECT_FALSE(std::filesystem::exists(home_.path() / ".config"));
}

TEST_F(Doctor, NamesFindingCauseAndCommandAndIsOne) {
  const Result result = NoMixer("ztk doctor");
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.out,
              StartsWith("mixers    no mixer is attached\n"
                         "          cause: the system finds none: it is "
                         "unplugged or switched off\n"
                         "          help:  plug it in and switch it on\n"
                         "          type:  ztk doctor\n"));
  EXPECT_EQ(SplitLines(result.err).size(), 1U);
  EXPECT_EQ(OneObject(NoMixer("ztk doctor --json").out)["error"]["code"],
            "found");
}

TEST_F(Doctor, TellsNoMixerFromNoUsb) {
  EXPECT_EQ(Word(OnlyOneIn("mixers", NoMixer("ztk doctor --json")), "id"),
            "no-mixer");
  const Json finding =
      OnlyOneIn("mixers", NoMixer("rm -r $UMOCKDEV_DIR/sys/bus/usb;"
                                  "ztk doctor --json"));
  EXPECT_EQ(Word(finding, "id"), "no-usb");
}

TEST_F(Doctor, NamesTheCommandOfTheVirtualMixerInItsSandbox) {
  Json finding = OnlyOneIn(
      "mixers", Inside({"-n", "2", "--forbid", "2"}, "ztk doctor --json"));
  EXPECT_EQ(Word(finding, "id"), "forbidden-in-sandbox");
  EXPECT_EQ(Word(finding, "command"), "ztk-virtual-mixer allow 2");
  EXPECT_TRUE(Helps(finding, "mixers", {"-n", "2", "--forbid", "2"}));
  finding = OnlyOneIn(
      "mixers", Inside({"-n", "1", "--fault", "silence"}, "ztk doctor --json"));
  EXPECT_TRUE(Helps(finding, "mixers", {"-n", "1", "--fault", "silence"}));
}

TEST_F(Doctor, NamesThePortWhereThereAreSeveralMixers) {
  const std::vector<std::string> options{
      "-n", "3", "--fault", "1:silence", "--fault", "2:stall", "--forbid", "3"};
  const std::vector<Json> found =
      FoundIn("mixers", Inside(options, "ztk doctor --json"));
  ASSERT_EQ(found.size(), 3U);
  EXPECT_EQ(Word(found[0], "finding"), "mixer 1, port 1-1, does not answer");
  EXPECT_EQ(Word(found[0], "command"), "ztk-virtual-mixer fault -m 1 none");
  EXPECT_EQ(Word(found[1], "finding"), "mixer 2, port 1-2, refuses requests");
  EXPECT_EQ(Word(found[1], "command"), "ztk-virtual-mixer fault -m 2 none");
  EXPECT_EQ(Word(found[2], "finding"),
            "mixer 3, port 1-3, is attached, but you cannot open it");
  EXPECT_EQ(found[0].value("mixer", 0), 1);
  EXPECT_EQ(found[1].value("mixer", 0), 2);
  EXPECT_EQ(found[2].value("mixer", 0), 3);
}

TEST_F(Doctor, FindsAHistoryThatUndoCannotUse) {
  const std::string file =
      home_.path().string() + "/.local/state/tarvix/ztk-history.jsonl";
  WriteAll(file, "junk\n");
  Json finding = OnlyOneIn("history", NoMixer("ztk doctor --json"));
  EXPECT_EQ(Word(finding, "id"), "history-damaged");
  EXPECT_EQ(Word(finding, "finding"),
            "ztk undo cannot take back every change: " + file + " is damaged");
  EXPECT_TRUE(Helps(finding, "history"));
  std::filesystem::create_directories(file);
  finding = OnlyOneIn("history", NoMixer("ztk doctor --json"));
  EXPECT_EQ(Word(finding, "id"), "history-unreadable");
  EXPECT_EQ(Word(finding, "finding"), "ztk undo cannot read " + file);
  EXPECT_TRUE(Helps(finding, "history"));
}

TEST_F(Doctor, FindsAFileInPlaceOfTheFolderOfTheHistory) {
  const std::string file = home_.path().string() + "/state";
  WriteAll(file, "");
  const std::string before = "export XDG_STATE_HOME=" + file + "\n";
  const Json finding =
      OnlyOneIn("history", NoMixer(before + "ztk doctor --json"));
  EXPECT_EQ(Word(finding, "id"), "history-folder");
  EXPECT_EQ(Word(finding, "finding"), "ztk undo cannot use " + file);
  EXPECT_EQ(Word(finding, "cause"), "it is a file where a folder has to be");
  EXPECT_EQ(Word(finding, "command"),
            "mv --backup=numbered " + file + " " + file + ".old");
}

TEST_F(Doctor, FindsAHistoryThatTheUserMayNotRead) {
  if (geteuid() != 0) GTEST_SKIP() << "only root can be two users";
  const std::string before =
      "run=\"setpriv --reuid 65534 --clear-groups env HOME=$DIR/home\"\n"
      "$run ztk --version > /dev/null || exit 97\n"
      "chmod 755 $DIR; folder=$DIR/home/.local/state/tarvix\n"
      "mkdir -p $folder; : > $folder/ztk-history.jsonl\n"
      "chown -R 65534 $DIR/home\n";
  const std::string folder =
      home_.path().string() + "/home/.local/state/tarvix";
  Result result = NoMixer(before + "chmod 0 $folder/*; $run ztk doctor --json");
  if (result.status == kCannotSet) {
    GTEST_SKIP() << "the program cannot be run by others";
  }
  EXPECT_EQ(Word(OnlyOneIn("history", result), "command"),
            "chmod u+rw " + folder + "/ztk-history.jsonl");
  result = NoMixer(before + "chmod 0 $folder; $run ztk doctor --json");
  EXPECT_EQ(Word(OnlyOneIn("history", result), "command"),
            "chmod u+rwx " + folder);
}

TEST_F(Doctor, SaysWhyAChannelIsSilentAndThatIsNoProblem) {
  const Result result =
      Inside({"-n", "1", "--selector", "1=3"}, "ztk doctor; ztk doctor --json");
  EXPECT_THAT(
      result.out,
      StartsWith("mixers    ok: 1 mixer is attached and answers\n"
                 "mixers    note: USB input 1 is silent: the input "
                 "selector for CH1 is in position 3; CH1 Control "
                 "Tone PHONO (1) is heard only in position 4: turn it to "
                 "4\n"
                 "          cause: the signal before the fader depends on the "
                 "input selector\n"
                 "          help:  turn the selector to that position, or "
                 "record the signal after the fader\n"
                 "          type:  ztk input set 1 3\n"));
  const Json finding = OnlyOneIn("mixers", result);
  EXPECT_EQ(Word(finding, "id"), "channel-silent");
  EXPECT_EQ(Word(finding, "severity"), "note");
  EXPECT_TRUE(Helps(finding, "mixers", {"-n", "1", "--selector", "1=3"}));
}

TEST_F(Doctor, SaysWhichCommandsToRun) {
  constexpr char kNoBus[] = "env -u DBUS_SESSION_BUS_ADDRESS ";
  // The texts are not installed.
  EXPECT_EQ(LastLine(OneMixer("ztk doctor").err),
            "ztk: 1 problem found; run the command above");
  EXPECT_EQ(LastLine(NoMixer("ztk doctor").err),
            "ztk: 2 problems found; run the commands above, from top to "
            "bottom");
  EXPECT_EQ(LastLine(OneMixer(std::string(kNoBus) + "ztk doctor").err),
            "ztk: 1 problem and 1 note found; run the command of the problem");
  // No notes are shown.
  EXPECT_EQ(LastLine(OneMixer(std::string(kNoBus) + "ztk doctor -q").err),
            "ztk: 1 problem found; run the command above");
}

TEST_F(Doctor, TellsProblemsAndCommandsWhenQuiet) {
  const Result result = NoMixer("ztk doctor --quiet");
  EXPECT_EQ(result.out, "");
  EXPECT_THAT(result.err, StartsWith("ztk: mixers: no mixer is attached\n"
                                     "ztk: cause: the system finds none: it "
                                     "is unplugged or switched off\n"
                                     "ztk: help:  plug it in and"));
  EXPECT_THAT(result.err, HasSubstr("\nztk: type:  ztk doctor\n"));
}

TEST_F(Doctor, WritesAReportToFilesOnly) {
  const Result result = NoMixer("ztk doctor --report -; echo $?");
  EXPECT_EQ(result.out, "2\n");
  EXPECT_THAT(result.err, StartsWith("ztk: --report needs the name of a file"));
}

TEST_F(Doctor, FindsThatTheRuleIsMissing) {
  if (RuleIsInstalled()) GTEST_SKIP() << "the rule is installed here";
  const Json finding = OnlyOneIn(
      "mixers", Inside({"-n", "1", "--forbid", "1"},
                       kAsOnARealSystem + std::string("ztk doctor --json")));
  EXPECT_EQ(Word(finding, "id"), "rule-missing");
  EXPECT_EQ(Word(finding, "finding"),
            "mixer 1 is attached, but you cannot open it");
  EXPECT_EQ(Word(finding, "command"), std::string("echo '") + kGoodRule +
                                          "' | sudo tee " + kRule + " && " +
                                          kReplug);
}

TEST_F(Doctor, FindsThatTheRuleIsDisabledOrForAnotherMixer) {
  for (const char *contents :
       {"", "ATTR{idVendor}==\"1234\", ATTR{idProduct}==\"001b\""}) {
    RunWithFiles({{kRule, contents}}, {"-n", "1", "--forbid", "1"},
                 kAsOnARealSystem + std::string("ztk doctor --json"));
    if (IsSkipped()) return;
    const Json finding = OnlyOneIn("mixers", result_);
    EXPECT_EQ(Word(finding, "id"), "rule-disabled");
    EXPECT_THAT(Word(finding, "cause"), HasSubstr(kRule));
  }
}

TEST_F(Doctor, FindsThatTheRuleCameAfterTheMixer) {
  RunWithFiles(
      {{kRule, kGoodRule}, {"/run/udev/data/c189:1", "I:12345\nG:seat\nV:1\n"}},
      {"-n", "1", "--forbid", "1"},
      kAsOnARealSystem + std::string("ztk doctor --json"));
  if (IsSkipped()) return;
  const Json finding = OnlyOneIn("mixers", result_);
  EXPECT_EQ(Word(finding, "id"), "rule-not-applied");
  EXPECT_EQ(Word(finding, "command"), kReplug);
}

TEST_F(Doctor, FindsThatTheSeatIsElsewhere) {
  const RootFiles files{
      {"/usr/lib/udev/rules.d/70-tarvix-mixer.rules", kGoodRule},
      {"/run/udev/data/c189:1", "I:12345\n"}};
  // Written again from inside: later versions of umockdev redirect open() to a
  // folder of the sandbox, but not mkdir().
  const std::string tagged =
      kAsOnARealSystem +
      std::string(
          "mkdir -p /run/udev/data; "
          "mkdir -p \"$UMOCKDEV_DIR/run/udev/data\"; "
          "printf 'I:12345\\nG:uaccess\\nQ:uaccess\\nV:1\\n' "
          "> /run/udev/data/c189:1; ");
  RunWithFiles(files, {"-n", "1", "--forbid", "1"},
               tagged +
                   "id -un; USER=dj SSH_CONNECTION='::1 1 ::1 22' "
                   "ztk doctor --json");
  if (IsSkipped()) return;
  Json finding = OnlyOneIn("mixers", result_);
  EXPECT_EQ(Word(finding, "id"), "no-seat");
  EXPECT_THAT(Word(finding, "cause"), HasSubstr("you are logged in over ssh"));
  EXPECT_THAT(Word(finding, "command"),
              HasSubstr(", OWNER=\"" + Line(result_.out, 0) +
                        "\"' | sudo tee "
                        "/etc/udev/rules.d/71-tarvix-mixer-owner.rules && "));
  RunWithFiles(files, {"-n", "1", "--forbid", "1"},
               tagged + "unset SSH_CONNECTION SSH_TTY; ztk doctor --json");
  if (IsSkipped()) return;
  finding = OnlyOneIn("mixers", result_);
  EXPECT_EQ(Word(finding, "id"), "no-seat");
  EXPECT_THAT(Word(finding, "cause"), Not(HasSubstr("ssh")));
}

TEST_F(Doctor, FindsAContainerThatTheDeviceWasNotLetInto) {
  const std::string script =
      "rm $UMOCKDEV_DIR/dev/bus/usb/001/002; ztk doctor --json";
  const struct {
    RootFiles files;
    const char *cause;
    const char *command;
  } rows[] = {
      {{{"/.dockerenv", ""}}, "this is a docker container", "docker run "},
      {{{"/.flatpak-info", "[Application]\nname=org.example.Decks\n"}},
       "this is a Flatpak sandbox",
       "flatpak override --user --device=all org.example.Decks"},
      {{{"/run/systemd/container", "lxc\n"}},
       "this is an LXC container",
       "lxc config device add CONTAINER mixer usb vendorid=6666 "
       "productid=001b"},
  };
  for (const auto &row : rows) {
    RunWithFiles(row.files, {"-n", "1"}, script);
    if (IsSkipped()) return;
    const Json finding = OnlyOneIn("mixers", result_);
    EXPECT_EQ(Word(finding, "id"), "no-node");
    EXPECT_THAT(Word(finding, "cause"), StartsWith(row.cause));
    EXPECT_THAT(Word(finding, "command"), StartsWith(row.command));
  }
}

TEST_F(Doctor, FindsThatAServiceOrContainerMayNotUseTheDevice) {
  // No user may write such a file, whatever their rights are: the same error as
  // from a device controller.
  RunWithFiles({{"/.dockerenv", ""}}, {"-n", "1"},
               "node=$UMOCKDEV_DIR/dev/bus/usb/001/002\n"
               "chattr +i $node || exit 97\n"
               "trap 'chattr -i $node' EXIT\n"
               "ztk doctor --json; ztk boost set 1 2> /dev/null");
  if (IsSkipped()) return;
  const Result first{
      .status = result_.status, .out = Line(result_.out, 0), .err = {}};
  const Json finding = OnlyOneIn("mixers", first);
  EXPECT_EQ(Word(finding, "id"), "forbidden");
  EXPECT_THAT(Word(finding, "cause"),
              HasSubstr("may not use /dev/bus/usb/001/002"));
}

TEST_F(Doctor, FindsAMixerThatDoesNotAnswer) {
  const struct {
    const char *fault;
    const char *id;
    const char *command;
  } rows[] = {
      {"silence@r8001", "silent",
       "for on in 0 1; do echo $on | sudo tee "
       "/sys/bus/usb/devices/1-2/authorized; done"},
      {"stall@r8001", "refusing",
       "for on in 0 1; do echo $on | sudo tee "
       "/sys/bus/usb/devices/1-2/authorized; done"},
      {"unplug@r8001", "gone", "ztk doctor"},
  };
  for (const auto &row : rows) {
    SCOPED_TRACE(row.fault);
    const Json finding = OnlyOneIn(
        "mixers", Inside({"-n", "2", "--fault", std::string("2:") + row.fault},
                         kAsOnARealSystem + std::string("ztk doctor --json")));
    EXPECT_EQ(Word(finding, "id"), row.id);
    EXPECT_THAT(Word(finding, "finding"), StartsWith("mixer 2, port 1-2, "));
    EXPECT_EQ(Word(finding, "command"), row.command);
  }
}

TEST_F(Doctor, FindsThatTheBusIsGone) {
  bus_.Stop();
  const Json finding = OnlyOneIn("bus", NoMixer("ztk doctor --json"));
  EXPECT_EQ(Word(finding, "id"), "no-bus");
  EXPECT_EQ(Word(finding, "severity"), "note");
  EXPECT_THAT(Word(finding, "cause"), HasSubstr("DBUS_SESSION_BUS_ADDRESS"));
  const Result after = NoMixer(
      "dbus-run-session -- ztk doctor --json 2> $DIR/noise | tee $DIR/answer;"
      "grep -q '\"bus\",\"ok\":true' $DIR/answer && echo helped");
  EXPECT_EQ(LastLine(after.out), "helped");
}

TEST_F(Doctor, FindsThatTheLibraryOfTheBusIsBroken) {
  const Json finding = OnlyOneIn(
      "bus", NoMixer("mkdir $DIR/lib; echo broken > $DIR/lib/libsystemd.so.0;"
                     "LD_LIBRARY_PATH=$DIR/lib ztk doctor --json"));
  EXPECT_EQ(Word(finding, "id"), "no-bus");
  EXPECT_EQ(Word(finding, "cause"),
            "the library that reaches the message bus, libsystemd.so.0, cannot "
            "be loaded");
  EXPECT_EQ(Word(finding, "command"),
            "sudo apt install --reinstall libsystemd0");
}

TEST_F(Doctor, FindsThatTheLibraryOfTheLoopIsBroken) {
  const Json finding = OnlyOneIn(
      "bus", NoMixer("mkdir $DIR/lib; echo broken > $DIR/lib/libglib-2.0.so.0;"
                     "LD_LIBRARY_PATH=$DIR/lib ztk doctor --json"));
  EXPECT_EQ(Word(finding, "id"), "no-loop");
  EXPECT_EQ(Word(finding, "finding"), "ztk watch does not receive changes");
  EXPECT_EQ(Word(finding, "cause"),
            "the library that delivers what is heard, libglib-2.0.so.0, cannot "
            "be loaded");
  EXPECT_EQ(Word(finding, "command"),
            "sudo apt install --reinstall libglib2.0-0");
}

TEST_F(Doctor, FindsTheBusThatTheShellWasNotTold) {
  std::filesystem::create_symlink(
      bus_.address().substr(std::string("unix:path=").size()),
      home_.path() / "bus");
  const std::string elsewhere =
      "export XDG_RUNTIME_DIR=$DIR DBUS_SESSION_BUS_ADDRESS=unix:path=/none;";
  const Json finding =
      OnlyOneIn("bus", NoMixer(elsewhere + "ztk doctor --json"));
  EXPECT_EQ(Word(finding, "id"), "no-bus");
  EXPECT_EQ(Word(finding, "command"),
            "export DBUS_SESSION_BUS_ADDRESS=unix:path=" +
                (home_.path() / "bus").string());
  const Result after =
      NoMixer(elsewhere + Word(finding, "command") + "; ztk doctor --json");
  EXPECT_THAT(FoundIn("bus", after), IsEmpty());
}

TEST_F(Doctor, SaysThatRootHasNoBusOfYours) {
  if (geteuid() != 0) GTEST_SKIP() << "only root can be that";
  bus_.Stop();
  const Json finding =
      OnlyOneIn("bus", NoMixer("SUDO_USER=dj ztk doctor --json"));
  EXPECT_THAT(Word(finding, "cause"), HasSubstr("without sudo"));
}

TEST_F(Doctor, FindsThatTheTextsAreMissingOrBroken) {
  const Json missing = OnlyOneIn("texts", NoMixer("ztk doctor --json"));
  EXPECT_EQ(Word(missing, "id"), "texts-missing");
  RunWithFiles({{std::string(kBundle) + "Info.plist", ""}}, {"-n", "0"},
               "ztk doctor --json");
  if (IsSkipped()) return;
  EXPECT_EQ(Word(OnlyOneIn("texts", result_), "id"), "texts-broken");
}

TEST_F(Doctor, TellsHowToInstallTheTextsAsTheLibraryWasInstalled) {
  const Json built = OnlyOneIn("texts", NoMixer("ztk doctor --json"));
  EXPECT_EQ(Word(built, "command"), "sudo cmake --install build");
  EXPECT_THAT(Word(built, "cause"),
              EndsWith("/tarvix; run the command in the source folder, in "
                       "which you have built ztk"));
  const std::string library =
      ReadAll(ZTK_PROGRAM_FOLDER "/../lib/libZTKFunc.so.1");
  for (const auto &[folder, expected] :
       {std::pair("/usr/local/lib/", "sudo cmake --install build"),
        std::pair("/usr/lib/ztk-test/",
                  "sudo apt install --reinstall libztkfunc-common")}) {
    SCOPED_TRACE(folder);
    RunWithFiles(
        {{std::string(folder) + "libZTKFunc.so.1", library}}, {"-n", "0"},
        std::string("LD_LIBRARY_PATH=") + folder + " ztk doctor --json");
    if (IsSkipped()) return;
    EXPECT_EQ(Word(OnlyOneIn("texts", result_), "command"), expected);
  }
}

}  // namespace
}  // namespace ztk::test
