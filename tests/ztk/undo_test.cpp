// SPDX-License-Identifier: MIT
#include <filesystem>

#include "cli_world.h"

namespace ztk::test {
namespace {

class Undo : public CliWorld {
 protected:
  std::filesystem::path History() const {
    return home_.path() / ".local/state/tarvix/ztk-history.jsonl";
  }
};

TEST_F(Undo, RestoresOneChangePerCallAndSendsIt) {
  Remember("VRM-D6", {{"Output1", 4}, {"MaxLevel", 0}});
  const Result result = OneMixer(
      "ztk input set 2 3 > /dev/null; ztk boost set 2 > /dev/null;"
      "ztk input set 2 mic > /dev/null; : > $DIR/seen\n"
      "ztk undo; echo $?; ztk undo; echo $?; ztk undo; echo $?;"
      "ztk undo; echo $?");
  EXPECT_THAT(
      SplitLines(result.out),
      ElementsAre("USB input 2: MIC (6) undone, Post CH2 Fader (3), sent to "
                  "1 mixer, remembered",
                  "0",
                  "Boost level: -10 dB (2) undone, -5 dB (1), sent to 1 "
                  "mixer, remembered",
                  "0",
                  "USB input 2: Post CH2 Fader (3) undone, Cross Fader "
                  "B (5), sent to 1 mixer, remembered",
                  "0", "Nothing to undo.", "0"));
  const std::vector<std::string> writes = Writes();
  ASSERT_EQ(writes.size(), 6U);
  EXPECT_EQ(writes[3], "mixer 1: 40 03 0206 8002 0000");
  EXPECT_EQ(writes[4], "mixer 1: 40 03 0300 8003 0000");
  EXPECT_EQ(writes[5], "mixer 1: 40 03 0208 8002 0000");
}

TEST_F(Undo, ReportsTheUndoneChangeInJsonAndAnnouncesIt) {
  Remember("VRM-K2", {{"MidiChannel", 4}});
  const Result result = OneMixer("ztk midi set 9 > /dev/null; ztk undo --json");
  const Json json = OneObject(result.out);
  EXPECT_EQ(json.value("undone", ""), "midi set");
  EXPECT_EQ(json.value("stepsLeft", -1), 0);
  EXPECT_EQ(json.value("settings", Json()),
            Json::parse(R"([{"setting":"midi","model":"VRM-K2","channel":null,
                "number":5,"text":"CH 5","value":4,"undoneValue":8,
                "wasRemembered":true,"result":100,"remembered":true,
                "announced":true}])"));
}

TEST_F(Undo, PutsTheDefaultBackWhereNothingWasRemembered) {
  const Result result = OneMixer(
      "ztk input set 1 mic > /dev/null; ztk output set 2 aux > /dev/null;"
      "ztk boost set 1 > /dev/null; ztk midi set 7 > /dev/null;"
      "ztk undo; ztk undo; ztk undo; ztk undo");
  const std::string note =
      "  nothing was remembered before, and nothing is now";
  EXPECT_THAT(
      SplitLines(result.out),
      ElementsAre("MIDI channel: CH 7 (7) undone, default CH 1 (1), sent to "
                  "1 mixer",
                  note,
                  "Boost level: -5 dB (1) undone, default -19 dB (4), sent "
                  "to 1 mixer",
                  note,
                  "USB output 2: AUX (3) undone, default CH2 (2), sent to 1 "
                  "mixer",
                  note,
                  "USB input 1: MIC (6) undone, default CH1 Control Tone "
                  "PHONO (1), sent to 1 mixer",
                  note));
  EXPECT_EQ(OneMixer("ztk status | tail -n 1").out, "Nothing is remembered\n");
}

TEST_F(Undo, LeavesAloneWhatAnotherProgramHasChangedSince) {
  Remember("VRM-D6", {{"Output0", 1}, {"MaxLevel", 0}});
  OneMixer("ztk boost set 2; ztk input set 1 3");
  Remember("VRM-D6", {{"Output0", 5}, {"MaxLevel", 1}});
  const Result result = OneMixer("ztk undo; echo $?; ztk undo; echo $?");
  EXPECT_EQ(Line(result.out, 0), "4");
  EXPECT_THAT(
      Line(result.err, 0),
      EndsWith("not undone, because another program has changed it since: USB "
               "input 1 is MIC (6); ztk undo --list does not show it any more; "
               "to restore the earlier state, run: ztk input set 1 2"));
  // Each call of undo handles one step only.
  EXPECT_THAT(Line(result.out, 1), HasSubstr("Boost level: -10 dB (2) undone"));
  EXPECT_EQ(Line(result.out, 2), "0");
  EXPECT_THAT(Writes(), ElementsAre("mixer 1: 40 03 0300 8003 0000"));
}

TEST_F(Undo, DoesNotRecordWhatChangesNoRememberedValue) {
  Remember("VRM-D6", {{"MaxLevel", 0}});
  const Result result = OneMixer(
      "ztk boost set 2 > /dev/null; ztk boost set 2 > /dev/null;"
      "ztk boost apply > /dev/null; ztk input raw 1 0 9 > /dev/null;"
      "ztk output default > /dev/null; ztk boost set 3 --dry-run > /dev/null;"
      "ztk undo; ztk undo");
  EXPECT_EQ(Line(result.out, 0),
            "Boost level: -10 dB (2) undone, -5 dB (1), sent to 1 mixer, "
            "remembered");
  EXPECT_EQ(Line(result.out, 1), "Nothing to undo.");
}

TEST_F(Undo, SaysThatItSkipsAChangeThatWasAlreadyReverted) {
  Remember("VRM-D6", {{"MaxLevel", 0}, {"Output1", 4}});
  OneMixer("ztk boost set 2; ztk input set 2 3");
  Remember("VRM-D6", {{"MaxLevel", 1}, {"Output1", 4}});
  const Result dry = NoMixer("ztk undo --dry-run --json");
  EXPECT_EQ(OneObject(dry.out).value("skippedSteps", 0), 1);
  EXPECT_EQ(OneMixer("ztk undo").out,
            "Skipped 1 change that has no effect any more.\n"
            "Boost level: -10 dB (2) undone, -5 dB (1), sent to 1 mixer, "
            "remembered\n");
}

TEST_F(Undo, SaysWhatCannotBePutBack) {
  Remember("VRM-D6", {{"MaxLevel", 77}});
  const Result result = OneMixer(
      "ztk boost set 2 > /dev/null; ztk undo --dry-run > $DIR/dry;"
      "echo $? >> $DIR/dry; ztk undo; echo $?; ztk undo");
  EXPECT_EQ(LastLine(File("dry")), "4");
  EXPECT_THAT(File("dry"), Not(HasSubstr("MaxLevel")));
  EXPECT_EQ(Line(result.out, 0),
            "Boost level: -10 dB (2) not undone: the library refuses the value "
            "before it, 77, which is not a choice");
  EXPECT_EQ(Line(result.out, 1), "4");
  EXPECT_THAT(result.err, HasSubstr("cannot be restored, because the library "
                                    "refuses it: Boost level: 77"));
  EXPECT_EQ(Line(result.out, 2), "Nothing to undo.");
}

TEST_F(Undo, ExitsWith3WithoutAMixerButRestoresTheValue) {
  Remember("VRM-D6", {{"MaxLevel", 0}});
  const Result result = NoMixer(
      "ztk boost set 2 2> /dev/null; ztk undo; echo $?; "
      "ztk boost get -q");
  EXPECT_EQ(Line(result.out, 1), "Boost level: -10 dB (2) undone, -5 dB (1)");
  EXPECT_EQ(Line(result.out, 2), "3");
  EXPECT_EQ(LastLine(result.out), "Boost level  -5 dB (1)");
}

TEST_F(Undo, NamesTheCommandsThatSendTheValuesOfEachModel) {
  EXPECT_THAT(
      NoMixer("ztk output set 1 2; ztk undo").err,
      HasSubstr(
          "ztk: nothing is remembered, and the default was not sent: no mixer "
          "is attached; when one is attached, run: ztk output default 1\n"));
  Remember("VRM-D6", {{"MaxLevel", 2}, {"Output0", 0}});
  Remember("VRM-K2", {{"MidiChannel", 0}});
  Remember("VRM-B5", {{"Input1", 0}});
  WriteAll(home_.path() / "both.json",
           R"({"version":1,"settings":{"VRM-D6":{"boost":"-5 dB","input":)"
           R"({"1":"MIC"}},"VRM-K2":{"midi":"CH 3"}}})");
  EXPECT_THAT(NoMixer("ztk import $DIR/both.json; ztk undo").err,
              HasSubstr("run: ztk apply --all\n"));
  // "ztk apply" is also a part of the longer command, so the whole command is
  // compared.
  WriteAll(home_.path() / "both.json",
           R"({"version":1,"settings":{"VRM-D6":{"boost":"-10 dB"},)"
           R"("VRM-B5":{"output":{"2":"AUX"}}}})");
  EXPECT_THAT(NoMixer("ztk import $DIR/both.json; ztk undo").err,
              HasSubstr("run: ztk apply --all\n"));
}

// ztk apply sends only the channels 1 to 4.
TEST_F(Undo, NamesTheSetCommandForAHighMidiChannel) {
  Remember("VRM-K2", {{"MidiChannel", 9}});
  EXPECT_THAT(LastLine(NoMixer("ztk midi set 1; ztk undo").err),
              testing::EndsWith("when one is attached, run: ztk midi set 10"));
}

TEST_F(Undo, ShowsInADryRunWhatItWouldDo) {
  Remember("VRM-D6", {{"MaxLevel", 0}});
  OneMixer("ztk boost set 2");
  const Result result = OneMixer("ztk undo --dry-run; ztk boost get -q");
  EXPECT_THAT(result.out, HasSubstr("Boost level: -10 dB (2) -> -5 dB (1)\n"));
  EXPECT_EQ(LastLine(result.out), "Boost level  -10 dB (2)");
  EXPECT_THAT(Requests(), IsEmpty());
  EXPECT_THAT(OneMixer("ztk undo").out, StartsWith("Boost level: -10 dB (2) "));
}

TEST_F(Undo, ListsWhatCanBeUndone) {
  Remember("VRM-D6", {{"MaxLevel", 0}});
  const Result result = OneMixer(
      "ztk boost set 2 > /dev/null; ztk input set 1 mic > /dev/null\n"
      "ztk reset input > /dev/null; ztk undo --list");
  EXPECT_EQ(
      result.out,
      "The last change is number 1; ztk undo N takes back changes 1 to "
      "N.\n"
      "  1   reset        USB input 1: forgotten, previously MIC (6)\n"
      "  2   input set    USB input 1: MIC (6), previously nothing remembered\n"
      "  3   boost set    Boost level: -10 dB (2), previously -5 dB (1)\n");
  EXPECT_EQ(NoMixer("ztk undo 3 --dry-run | grep -c -e '->'").out, "1\n");
}

TEST_F(Undo, TakesBackSeveralChangesAtOnce) {
  Remember("VRM-D6", {{"MaxLevel", 0}, {"Output0", 5}});
  const Result result = OneMixer(
      "ztk input set 1 3 > /dev/null; ztk boost set 2 > /dev/null\n"
      "ztk boost set 3 > /dev/null; ztk undo 2; ztk undo --list | tail -n +2\n"
      "ztk undo 2; echo $?; ztk undo 0; echo $?");
  EXPECT_EQ(
      result.out,
      "Boost level: -15 dB (3) undone, -5 dB (1), sent to 1 mixer, "
      "remembered\n"
      "  1   input set    USB input 1: Post CH1 Fader (3), previously MIC (6)\n"
      "2\n2\n");
  EXPECT_THAT(Line(result.err, 0),
              StartsWith("ztk: no change \"2\" to undo; accepted: 1; "));
  EXPECT_EQ(Writes().back(), "mixer 1: 40 03 0300 8003 0000");
}

TEST_F(Undo, StopsAtAValueThatAnotherProgramHasWritten) {
  Remember("VRM-D6", {{"MaxLevel", 0}});
  OneMixer("ztk boost set 2");
  Remember("VRM-D6", {{"MaxLevel", 2}});
  const Result result =
      OneMixer("ztk boost set 4 > /dev/null; ztk undo 2; echo $?");
  EXPECT_EQ(Line(result.out, 0),
            "Boost level: -19 dB (4) undone, -15 dB (3), sent to 1 mixer, "
            "remembered");
  EXPECT_EQ(Line(result.out, 1), "4");
}

TEST_F(Undo, SaysWhenTheSettingsAreGone) {
  OneMixer("ztk boost set 2; rm -r $HOME/.config/tarvix");
  EXPECT_EQ(
      OneMixer("ztk undo").out,
      "Nothing to undo: what ztk has changed is not in the settings files "
      "any more.\n");
}

TEST_F(Undo, NamesResetWhereNothingWasRememberedBefore) {
  OneMixer("ztk input set 3 2; ztk boost set 2");
  Remember("VRM-D6", {{"Output2", 5}, {"MaxLevel", 0}});
  const Result result = OneMixer("ztk undo 2 --json");
  EXPECT_EQ(result.status, 4);
  EXPECT_EQ(OneObject(result.out).value("leftAlone", Json()),
            Json({"Boost level is -5 dB (1), and nothing was remembered "
                  "before; to restore the earlier state, run: ztk boost set 4 "
                  "&& ztk reset boost",
                  "USB input 3 is MIC (6), and nothing was remembered before; "
                  "to restore the earlier state, run: ztk input set 3 1 && "
                  "ztk reset input 3"}));
  EXPECT_THAT(
      OneObject(result.out)["error"].value("message", ""),
      EndsWith("; to restore the earlier state, run: ztk boost set 4 && ztk "
               "reset boost; ztk input set 3 1 && ztk reset input 3"));
  // The commands do what the sentence says.
  EXPECT_EQ(OneMixer("ztk boost set 4 -q && ztk reset boost -q;"
                     "ztk input set 3 1 -q && ztk reset input 3 -q;"
                     "ztk status | tail -n 1")
                .out,
            "Nothing is remembered\n");
  EXPECT_EQ(Writes().size(), 2U);
}

class Reset : public CliWorld {};

TEST_F(Reset, ForgetsEverythingAndSendsNothing) {
  Remember("VRM-D6", {{"MaxLevel", 0}, {"Output1", 5}, {"Other", 7}});
  Remember("VRM-B5", {{"Input1", 2}});
  const Result result = OneMixer("ztk reset; echo $?; ztk export 2>&1 | wc -l");
  EXPECT_EQ(
      result.out,
      "USB input 2: MIC (6), forgotten\n"
      "USB output 2: AUX (3), forgotten\n"
      "Boost level: -5 dB (1), forgotten\n"
      "Nothing was sent: the mixer keeps its settings until it is switched "
      "off.\n"
      "ztk undo brings back what was forgotten.\n"
      "0\n5\n");
  EXPECT_THAT(Requests(), IsEmpty());
  const std::string file = ReadAll(home_.SettingsFile("VRM-D6"));
  EXPECT_THAT(file, Not(HasSubstr("MaxLevel")));
  EXPECT_THAT(file, HasSubstr("<key>Other</key>\n\t<integer>7<"));
}

TEST_F(Reset, ForgetsWhatIsNamed) {
  Remember("VRM-D6", {{"MaxLevel", 0}, {"Output1", 5}, {"Output2", 5}});
  const Result result = OneMixer(
      "ztk reset input ch2 | head -n 1; ztk reset boost | head -n 1;"
      "ztk reset boost; ztk reset boost 1; echo $?; ztk reset inptu; echo $?");
  EXPECT_EQ(result.out,
            "USB input 2: MIC (6), forgotten\n"
            "Boost level: -5 dB (1), forgotten\n"
            "Nothing is remembered: nothing to forget.\n2\n2\n");
  EXPECT_THAT(result.err, HasSubstr("no setting \"inptu\"; nearest: input"));
  EXPECT_THAT(ReadAll(home_.SettingsFile("VRM-D6")), HasSubstr("Output2"));
}

TEST_F(Reset, NamesTheCommandThatForgetsAll) {
  const Result result = NoMixer("ztk reset all");
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.err,
            "ztk: no setting \"all\"; to forget all of them, run: ztk reset\n");
}

TEST_F(Reset, IsUndone) {
  Remember("VRM-D6", {{"MaxLevel", 0}, {"Output1", 5}});
  const std::string before = ReadAll(home_.SettingsFile("VRM-D6"));
  EXPECT_EQ(OneMixer("ztk reset > /dev/null; ztk undo").out,
            "Boost level: restored, -5 dB (1), sent to 1 mixer, "
            "remembered\n"
            "USB input 2: restored, MIC (6), sent to 1 mixer, "
            "remembered\n");
  EXPECT_EQ(OneMixer("ztk status | tail -n 4 | head -n 2").out,
            "  USB input 2   MIC (6), VRM-D6\n"
            "  Boost level   -5 dB (1), VRM-D6\n");
}

TEST_F(Reset, SaysWhatItCannotForget) {
  Remember("VRM-D6", {{"MaxLevel", 0}});
  const Result result = OneMixer(
      "folder=$HOME/.config/tarvix/Preferences; chattr +i $folder || exit 97\n"
      "trap 'chattr -i $folder' EXIT; ztk reset; echo $?");
  if (result.status == 97)
    GTEST_SKIP()
        << "this file system cannot protect a folder, or only root may do so";
  EXPECT_EQ(Line(result.out, 0), "Boost level: -5 dB (1), still remembered");
  EXPECT_EQ(LastLine(result.out), "5");
  EXPECT_THAT(result.err, HasSubstr("not everything is forgotten: "));
}

TEST_F(Undo, UsesTheReadableLinesOfADamagedHistory) {
  Remember("VRM-D6", {{"MaxLevel", 0}});
  OneMixer("ztk boost set 2");
  const std::string good = ReadAll(History());
  const std::string damage =
      good + "{\"command\":\"x\",\"changes\":[{\"setting\":\"input\"," +
      "\"channel\":99,\"after\":1}]}\n[[[\n\xFF\n{}\n" +
      "{\"command\":3,\"changes\":{}}\n" +
      "{\"command\":\"x\",\"changes\":[]}\n" + good.substr(0, 20);
  WriteAll(History(), damage);
  const Result result = OneMixer("ztk undo; echo $?; ztk undo");
  EXPECT_EQ(Line(result.out, 0),
            "Boost level: -10 dB (2) undone, -5 dB (1), sent to 1 mixer, "
            "remembered");
  EXPECT_EQ(Line(result.out, 1), "0");
  EXPECT_EQ(Line(result.out, 2), "Nothing to undo.");
  EXPECT_THAT(Line(result.err, 0), HasSubstr("history is damaged"));
  // No step is lost, and it is reported once.
  EXPECT_EQ(ReadAll(History().string() + ".unreadable-1"), damage);
  EXPECT_EQ(SplitLines(result.err).size(), 1U);
}

TEST_F(Undo, KeepsItsHistoryInXdgStateHome) {
  OneMixer("XDG_STATE_HOME=$DIR/elsewhere ztk boost set 2");
  EXPECT_FALSE(std::filesystem::exists(History()));
  EXPECT_THAT(ReadAll(home_.path() / "elsewhere/tarvix/ztk-history.jsonl"),
              StartsWith("{\"command\":\"boost set\",\"changes\":[{"));
}

TEST_F(Undo, FailsWithoutAWritableHistoryOfWhichSetOnlyWarns) {
  WriteAll(home_.path() / ".local/state", "");
  const Result result = OneMixer("ztk boost set 2; echo $?; ztk undo; echo $?");
  EXPECT_EQ(Line(result.out, 0),
            "Boost level: -10 dB (2), sent to 1 mixer, remembered");
  EXPECT_EQ(Line(result.out, 1), "0");
  EXPECT_EQ(Line(result.out, 2), "5");
  EXPECT_THAT(Line(result.err, 0),
              StartsWith("ztk: warning: ztk undo will not be able to undo this "
                         "change, because it was not recorded: "));
}

TEST_F(Undo, KeepsAtMostAHundredStepsInTheHistory) {
  Remember("VRM-D6", {{"MaxLevel", 0}});
  std::string history;
  for (int i = 0; i < 150; ++i) {
    history +=
        "{\"command\":\"boost set\",\"changes\":[{\"setting\":\"boost\","
        "\"channel\":null,\"before\":1,\"after\":0}]}\n";
  }
  WriteAll(History(), history);
  OneMixer("ztk boost set 3");
  EXPECT_EQ(SplitLines(ReadAll(History())).size(), 100U);
}

// Another ztk may be suspended while it holds the lock.
TEST_F(Undo, ChangesNothingAndNamesTheProcessThatHoldsTheLock) {
  const Result result = OneMixer(
      "ztk boost set 1 > /dev/null 2>&1\n"
      "exec 9<> $HOME/.local/state/tarvix/ztk.lock; flock 9\n"
      "echo 4711 > $HOME/.local/state/tarvix/ztk.lock\n"
      "ztk boost set 2 9>&-; echo $?");
  EXPECT_EQ(LastLine(result.out), "5");
  EXPECT_THAT(result.err,
              HasSubstr("ztk: nothing was done: another ztk, process 4711, is "
                        "at work"));
  EXPECT_THAT(ReadAll(home_.SettingsFile("VRM-D6")),
              HasSubstr("<integer>0</integer>"));
  EXPECT_EQ(Writes().size(), 1U);
}

// ztk does not follow a link. A file without permissions would be readable for
// a test that runs as root.
TEST_F(Undo, NeverReplacesAHistoryThatCannotBeRead) {
  const std::filesystem::path folder = home_.path() / ".local/state/tarvix";
  std::filesystem::create_directories(folder);
  WriteAll(home_.path() / "other", "other\n");
  std::filesystem::create_symlink(home_.path() / "other", History());
  const Result result = OneMixer("ztk boost set 2; echo $?; ztk undo; echo $?");
  EXPECT_EQ(Line(result.out, 1), "0");
  EXPECT_EQ(Line(result.out, 2), "5");
  EXPECT_THAT(Line(result.err, 0),
              HasSubstr("ztk undo will not be able to undo this change, "
                        "because it was not recorded: " +
                        History().string() + ": it is a symbolic link"));
  EXPECT_THAT(Line(result.err, 1), HasSubstr("nothing can be undone: "));
  EXPECT_TRUE(std::filesystem::is_symlink(History()));
  EXPECT_EQ(File("other"), "other\n");
}

TEST_F(Undo, KeepsItsStepsWhenASettingsFileCannotBeRead) {
  Remember("VRM-D6", {{"MaxLevel", 0}});
  OneMixer("ztk boost set 2");
  const std::string history = ReadAll(History());
  std::filesystem::remove(home_.SettingsFile("VRM-D6"));
  std::filesystem::create_directory(home_.SettingsFile("VRM-D6"));
  const Result result = OneMixer("ztk undo; echo $?");
  EXPECT_EQ(result.out, "5\n");
  EXPECT_THAT(result.err, HasSubstr("nothing can be undone: cannot read " +
                                    home_.SettingsFile("VRM-D6").string()));
  EXPECT_EQ(ReadAll(History()), history);
}

TEST_F(Undo, DoesNotOpenALockThatIsALinkOrAPipe) {
  const std::filesystem::path folder = home_.path() / ".local/state/tarvix";
  std::filesystem::create_directories(folder);
  WriteAll(home_.path() / "other", "other\n");
  std::filesystem::create_symlink(home_.path() / "other", folder / "ztk.lock");
  EXPECT_THAT(OneMixer("ztk boost set 2").err,
              HasSubstr("ztk.lock: it is a symbolic link"));
  EXPECT_EQ(File("other"), "other\n");
  std::filesystem::remove(folder / "ztk.lock");
  EXPECT_THAT(OneMixer("mkfifo $HOME/.local/state/tarvix/ztk.lock;"
                       "ztk boost set 2")
                  .err,
              HasSubstr("ztk.lock: it is not a regular file"));
}

// Without a usable HOME, ztk takes the home folder from the password database.
// The test runs ztk as a user whose home folder there does not exist. It checks
// which paths the messages name, and that nothing is created.
TEST_F(Undo, LooksInThePasswordDatabaseWithoutAUsableHome) {
  if (geteuid() != 0)
    GTEST_SKIP() << "only root can run a program as another user";
  for (const char *home : {"-u HOME", "HOME=relative/home", "HOME="}) {
    SCOPED_TRACE(home);
    // Nobody's home, /nonexistent, is missing and cannot be created.
    const Result result = NoMixer(
        "cd $DIR; chmod 755 .\n"
        "run='setpriv --reuid 65534 --clear-groups env -u XDG_STATE_HOME -u "
        "XDG_CONFIG_HOME " +
        std::string(home) +
        "'\n"
        "$run ztk --version > /dev/null || exit 97\n"
        "$run ztk boost set 2; $run ztk undo; ls -d relative /nonexistent");
    if (result.status == 97)
      GTEST_SKIP() << "other users may not run the program";
    EXPECT_THAT(result.err, HasSubstr("/nonexistent/.local/state/tarvix"));
    EXPECT_THAT(result.out, Not(HasSubstr("relative\n")));
    EXPECT_THAT(result.out, Not(HasSubstr("/nonexistent\n")));
  }
}

TEST_F(Undo, DoesNotCreateAMissingHome) {
  const Result result = OneMixer(
      "export HOME=$DIR/missing; ztk boost set 2; ztk undo; "
      "ls -d $DIR/missing");
  EXPECT_THAT(result.err, HasSubstr("ztk undo will not be able to undo this "
                                    "change, because it was not recorded: "));
  EXPECT_THAT(result.out, HasSubstr("not remembered"));
  EXPECT_FALSE(std::filesystem::exists(home_.path() / "missing"));
}

// Root runs ztk with the HOME of another user, as "sudo -E" does.
TEST_F(Undo, CreatesItsFilesAsTheOwnerOfTheHomeFolder) {
  if (geteuid() != 0)
    GTEST_SKIP() << "only root can create files for another user";
  const Result result = OneMixer(
      "mkdir $DIR/user; chmod 755 $DIR; chown 1234:4321 $DIR/user\n"
      "export HOME=$DIR/user; ztk boost set 2 > $DIR/o; ztk undo > $DIR/o\n"
      "cd $DIR/user || exit 1; find . -printf '%U:%G %p\\n' | sort");
  EXPECT_EQ(result.out,
            "1234:4321 .\n"
            "1234:4321 ./.config\n"
            "1234:4321 ./.config/tarvix\n"
            "1234:4321 ./.config/tarvix/Preferences\n"
            "1234:4321 "
            "./.config/tarvix/Preferences/com.tarvix.VRM-D6autosetup.plist\n"
            "1234:4321 ./.local\n"
            "1234:4321 ./.local/state\n"
            "1234:4321 ./.local/state/tarvix\n"
            "1234:4321 ./.local/state/tarvix/ztk-history.jsonl\n"
            "1234:4321 ./.local/state/tarvix/ztk-sendings.txt\n"
            "1234:4321 ./.local/state/tarvix/ztk.lock\n");
}

// If the first change of a setting is undone, nothing is remembered that ztk
// apply could send.
TEST_F(Undo, NamesTheCommandThatSendsTheDefaultAgain) {
  const Result result =
      Inside({"-n", "1", "--fault", "stall"},
             "ztk input set 2 post 2> /dev/null; ztk undo; echo $?; ztk apply");
  EXPECT_EQ(Line(result.out, 3), "3");
  EXPECT_THAT(LastLine(result.out), StartsWith("Nothing is remembered"));
  EXPECT_EQ(Line(result.err, 0),
            "ztk: nothing is remembered, and the default was sent, but the "
            "mixer refused it; switch it off and on again, then run (set also "
            "remembers the default): ztk input set 2 1");
  EXPECT_EQ(
      LastLine(NoMixer("ztk boost set 2; ztk undo").err),
      "ztk: nothing is remembered, and the default was not sent: no "
      "mixer is attached; when one is attached, run (set also remembers the "
      "default): ztk boost set 4");
  OneMixer("ztk input set 2 1");
  EXPECT_THAT(Writes(), ElementsAre("mixer 1: 40 03 0203 8002 0000"));
}

TEST_F(Undo, NamesApplyForRememberedValuesAndDefaultForForgottenOnes) {
  Remember("VRM-D6", {{"MaxLevel", 0}});
  const Result result = NoMixer(
      "ztk boost set 2 2> /dev/null; ztk output set 1 2 2> /dev/null\n"
      "ztk undo 2");
  EXPECT_EQ(
      LastLine(result.err),
      "ztk: the change is saved, but not sent: no "
      "mixer is attached; when one is attached, run: ztk output default 1; ztk "
      "apply");
}

TEST_F(Undo, SaysWhenTheValueBeforeTheChangesIsTheCurrentOne) {
  Remember("VRM-D6", {{"MaxLevel", 1}});
  EXPECT_EQ(
      OneMixer("ztk boost set 3 > /dev/null; ztk boost set 2 > /dev/null"
               "\nztk undo 2")
          .out,
      "Boost level: -10 dB (2), the same as before the changes, sent to 1 "
      "mixer, remembered\n");
}

TEST_F(Undo, WarnsThatARefusedStepIsRemovedFromTheList) {
  OneMixer("ztk boost set 2");
  Remember("VRM-D6", {{"MaxLevel", 0}});
  const Result result =
      OneMixer("ztk undo --dry-run; ztk undo; echo $?; ztk undo --list");
  EXPECT_THAT(Line(result.err, 0), Not(HasSubstr("--list")));
  EXPECT_THAT(Line(result.err, 1),
              EndsWith("; ztk undo --list does not show it any more; to "
                       "restore the earlier state, run: ztk boost set 4 && ztk "
                       "reset boost"));
  EXPECT_THAT(LastLine(result.out), StartsWith("Nothing to undo"));
}

TEST_F(Undo, ListsTheNumberAndTextOfEachValueInJson) {
  const Json json = OneObject(
      OneMixer("ztk boost set 2 > /dev/null; ztk undo --list --json").out);
  EXPECT_EQ(json["steps"][0]["changes"][0],
            Json::parse(R"({"setting":"boost","model":"VRM-D6","channel":null,
                "before":null,"beforeNumber":null,"beforeText":null,
                "after":1,"afterNumber":2,"afterText":"-10 dB",
                "leftAlone":false})"));
}

TEST_F(Undo, ListsWhatItWillLeaveAlone) {
  Remember("VRM-D6", {{"Output0", 1}});
  OneMixer("ztk input set 1 3; ztk boost set 2; ztk boost set 3");
  Remember("VRM-D6", {{"Output0", 5}, {"MaxLevel", 2}});
  const Result result =
      OneMixer("ztk undo --list | tail -n +2; ztk undo --list --json");
  EXPECT_THAT(
      result.out,
      StartsWith(
          "  1   boost set    Boost level: -15 dB (3), previously -10 dB (2)\n"
          "  2   boost set    Boost level: -10 dB (2), previously nothing "
          "remembered\n"
          "  3   input set    USB input 1: Post CH1 Fader (3), previously CH1 "
          "Control Tone LINE (2); it will not be undone, because another "
          "program has changed it since\n"));
  const Json steps = OneObject(LastLine(result.out))["steps"];
  EXPECT_EQ(steps[0]["changes"][0]["leftAlone"], false);
  EXPECT_EQ(steps[2]["changes"][0]["leftAlone"], true);
}

// Two changes of one channel are one line about it.
TEST_F(Undo, NamesTheStateBeforeAllTheChangesThatItLeavesAlone) {
  OneMixer("ztk input set 1 mic; ztk input set 1 rec");
  Remember("VRM-D6", {{"Output0", 2}});
  EXPECT_THAT(
      OneMixer("ztk undo 2").err,
      EndsWith("USB input 1 is Post CH1 Fader (3), and nothing was remembered "
               "before; ztk undo --list does not show it any more; to restore "
               "the earlier state, run: ztk input set 1 1 && ztk reset input "
               "1\n"));
  EXPECT_EQ(OneMixer("ztk input set 1 1 && ztk reset input 1").status, 0);
  EXPECT_EQ(OneMixer("ztk status | tail -n 1").out, "Nothing is remembered\n");
}

TEST_F(Undo, DoesNotSayWhatItLeavesAloneBesideAnUnreadableFile) {
  OneMixer("ztk boost set 2");
  WriteAll(home_.SettingsFile("VRM-D6"), "<plist><dict><key>Max");
  const Json json = OneObject(OneMixer("ztk undo --list --json").out);
  EXPECT_EQ(json["steps"][0]["changes"][0]["leftAlone"], nullptr);
}

}  // namespace
}  // namespace ztk::test
