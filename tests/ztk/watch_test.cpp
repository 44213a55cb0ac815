// SPDX-License-Identifier: MIT
#include <chrono>
#include <thread>

#include "cli_world.h"
#include "platform/notification_center.h"

namespace ztk::test {
namespace {

namespace center = platform::notification_center;

// A script waits for ztk watch, but only for a limited time.
constexpr char kStart[] =
    "await() { tries=0; until eval \"$1\"; do tries=$((tries + 1));\n"
    "  [ $tries -lt 6000 ] || { echo gave up on: \"$1\"; exit 97; }\n"
    "  sleep 0.01; done; }\n"
    "trap 'kill $watcher 2> /dev/null' EXIT\n";

class Watch : public CliWorld {
 protected:
  // Starts ztk watch, makes the changes when it is ready, and sends the signal
  // when $DIR/seen has this many lines. Prints the exit status last.
  Result WatchUntil(int lines, const std::string &options,
                    const std::string &changes, const std::string &signal) {
    return OneMixer(std::string(kStart) + "ztk watch " + options +
                    " > $DIR/seen 2> $DIR/ready & watcher=$!\n"
                    "await 'grep -q watching $DIR/ready'\n" +
                    changes + "\nawait '[ $(wc -l < $DIR/seen) -ge " +
                    std::to_string(lines) + " ]'\nkill -" + signal +
                    " $watcher; wait $watcher; echo status $?");
  }

  // When ztk watch is ready, posts values that only other programs could post.
  void PostForeign(std::int32_t channel, std::int32_t index) const {
    for (int tries = 0; tries < 6000; ++tries) {
      if (File("ready").find("watching") != std::string::npos) break;
      std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    const center::Entry entries[] = {{.key = "ProductID", .value = 10},
                                     {.key = "Channel", .value = channel},
                                     {.key = "Index", .value = index}};
    center::UserInfo *userInfo = center::MakeUserInfo(entries, 3);
    center::Post("VRM-D6 InputAudio Change", userInfo,
                 center::Delivery::Immediately);
    center::Release(userInfo);
  }
};

TEST_F(Watch, ShowsAChangeOfEveryFamilyMadeByAnotherProcess) {
  const Result result = WatchUntil(4, "",
                                   "ztk input set 3 mic; ztk output set 2 aux;"
                                   "ztk boost set -10; ztk midi set 16",
                                   "INT");
  EXPECT_THAT(result.out, HasSubstr("status 0\n"));
  EXPECT_THAT(Lines("seen"),
              testing::UnorderedElementsAre(
                  "USB input 3: MIC (6)", "USB output 2: AUX (3)",
                  "Boost level: -10 dB (2)", "MIDI channel: CH 16 (16)"));
}

TEST_F(Watch, WritesOneObjectALine) {
  const Result result =
      WatchUntil(2, "--json", "ztk input set 3 mic; ztk boost set 1", "TERM");
  EXPECT_THAT(result.out, HasSubstr("status 0\n"));
  const std::vector<std::string> lines = Lines("seen");
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(OneObject(lines[0]), Json::parse(R"({"schema":1,"command":"watch",
      "ok":true,"setting":"input","model":"VRM-D6","channel":3,"number":6,
      "text":"MIC","value":5})"));
  EXPECT_EQ(OneObject(lines[1])["channel"], nullptr);
  EXPECT_EQ(OneObject(lines[1])["text"], "-5 dB");
}

TEST_F(Watch, TakesAnyNumberFromAnyProgram) {
  WriteAll(home_.path() / "ready", "");
  std::thread poster([this] {
    PostForeign(-7, 99);
    PostForeign(1, -1);
    PostForeign(2147483647, 0);
  });
  const Result result = WatchUntil(3, "", "", "INT");
  poster.join();
  EXPECT_THAT(result.out, HasSubstr("status 0\n"));
  EXPECT_THAT(Lines("seen"),
              ElementsAre("USB input (unknown channel -7): 99",
                          "USB input 2: -1, which is not a choice",
                          "USB input (unknown channel 2147483647): 0"));
}

TEST_F(Watch, ShowsMixersWithoutABusAndIsFive) {
  const Result result =
      OneMixer(std::string(kStart) +
               "DBUS_SESSION_BUS_ADDRESS=unix:path=/nonexistent "
               "ztk watch --json > $DIR/seen 2> $DIR/ready & watcher=$!\n"
               "await 'grep -q watching $DIR/ready'\n"
               "ztk-virtual-mixer unplug 1 > $DIR/x; await '[ -s $DIR/seen ]'\n"
               "kill -INT $watcher; wait $watcher; echo status $?");
  EXPECT_EQ(result.out, "status 5\n");
  const std::vector<std::string> lines = Lines("seen");
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(OneObject(lines[0])["event"], "gone");
  EXPECT_EQ(OneObject(lines[1])["error"]["code"], "failed");
  EXPECT_EQ(File("ready"),
            "ztk: warning: changes of settings are not shown, because there is "
            "no session message bus\n"
            "ztk: watching for mixers that come and go; Ctrl-C ends\n"
            "ztk: changes of settings were not shown, because there is no "
            "session message bus; run ztk watch inside your login session\n");
}

TEST_F(Watch, IsFiveWhenALibraryForReceivingChangesIsMissing) {
  for (const char *library : {"libglib-2.0.so.0", "libsystemd.so.0"}) {
    SCOPED_TRACE(library);
    const Result result = OneMixer(
        "mkdir $DIR/lib; echo broken > $DIR/lib/" + std::string(library) +
        "; LD_LIBRARY_PATH=$DIR/lib ztk watch; result=$?;"
        "rm -r $DIR/lib; exit $result");
    EXPECT_EQ(result.status, 5);
    EXPECT_EQ(result.err,
              "ztk: a library that receives changes cannot be loaded; ztk "
              "doctor names it\n");
  }
}

TEST_F(Watch, IsFiveOnceTheBusHasGone) {
  WriteAll(home_.path() / "ready", "");
  std::thread killer([this] {
    for (int tries = 0; tries < 6000; ++tries) {
      if (File("ready").find("watching") != std::string::npos) break;
      std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    bus_.Stop();
  });
  const Result result = OneMixer("ztk watch 2> $DIR/ready");
  killer.join();
  EXPECT_EQ(result.status, 5);
  EXPECT_THAT(File("ready"), HasSubstr("message bus has ended, so"));
}

// The first connection that is opened would take the stream's number, and the
// lines would go to the bus.
TEST_F(Watch, WritesToNobodyWhenItsOutputIsClosed) {
  const Result result =
      OneMixer(std::string(kStart) +
               "ztk watch >&- 2> $DIR/ready & watcher=$!\n"
               "await 'grep -q watching $DIR/ready'\n"
               "ztk boost set 1 > /dev/null; wait $watcher; echo status $?");
  EXPECT_EQ(result.out, "status 5\n");
  EXPECT_THAT(File("ready"), HasSubstr("cannot write the output: Bad file"));
}

TEST_F(Watch, IsFiveOnceItsOutputIsFull) {
  const Result result =
      OneMixer(std::string(kStart) +
               "ztk watch > /dev/full 2> $DIR/ready & watcher=$!\n"
               "await 'grep -q watching $DIR/ready'\n"
               "ztk boost set 1 > /dev/null; wait $watcher; echo status $?");
  EXPECT_EQ(result.out, "status 5\n");
  EXPECT_THAT(File("ready"), HasSubstr("cannot write the output: No space"));
}

TEST_F(Watch, ShowsOnlyChangesWhenQuiet) {
  const Result result =
      OneMixer(std::string(kStart) +
               "ztk watch -q > $DIR/seen 2> $DIR/said & watcher=$!\n"
               "await 'ztk boost set 1 -q; grep -q Boost $DIR/seen'\n"
               "kill -INT $watcher; wait $watcher; echo status $?");
  EXPECT_EQ(result.out, "status 0\n");
  EXPECT_EQ(Line(File("seen"), 0), "Boost level: -5 dB (1)");
  EXPECT_EQ(File("said"), "");
}

TEST_F(Watch, ShowsMixersThatComeAndGo) {
  const Result result =
      OneMixer(std::string(kStart) +
               "ztk watch > $DIR/seen 2> $DIR/ready & watcher=$!\n"
               "await 'grep -q watching $DIR/ready'\n"
               "ztk-virtual-mixer unplug 1 > /dev/null\n"
               "await 'grep -q gone $DIR/seen'\n"
               "ztk-virtual-mixer plug 1 > /dev/null\n"
               "await 'grep -q plugged $DIR/seen'\n"
               "kill -INT $watcher; wait $watcher; echo status $?");
  EXPECT_EQ(result.out, "status 0\n");
  EXPECT_THAT(
      Lines("seen"),
      ElementsAre("Mixer at port 1-1: gone, 0 mixers are attached",
                  "Mixer at port 1-1: plugged in, 1 mixer is attached"));
}

// Nothing has to be written for it to notice.
TEST_F(Watch, EndsWithoutAMessageWhenItsReaderHasGone) {
  const Result result =
      OneMixer(std::string(kStart) +
               "{ ztk watch 2> $DIR/ready; echo $? > $DIR/status; } | true\n"
               "await 'test -s $DIR/status'; cat $DIR/status");
  EXPECT_EQ(result.out, "0\n");
  EXPECT_EQ(SplitLines(File("ready")).size(), 1U) << File("ready");
}

}  // namespace
}  // namespace ztk::test
