// SPDX-License-Identifier: MIT
//
// Tests the complete library in several processes, and its use of threads,
// memory and descriptors.
#include "ZTKFunc.h"
#include "support/library_world.h"
#include "support/preload.h"

namespace ztk::test {
namespace {

using testing::ContainsRegex;
using testing::HasSubstr;

class LibraryProcess : public LibraryWorld {};

std::string Environment(const char *name) {
  const char *value = std::getenv(name);
  return value == nullptr ? "" : value;
}

// Returns the number of calls. ./check --full sets a much larger one.
std::string GrowthCalls() {
  const std::string asked = Environment("ZTK_GROWTH_CALLS");
  return asked.empty() ? "2000" : asked;
}

[[maybe_unused]] std::string ReportIn(const std::filesystem::path &folder,
                                      const std::string &prefix) {
  for (const auto &entry : std::filesystem::directory_iterator(folder)) {
    if (entry.path().filename().string().starts_with(prefix)) {
      return ReadAll(entry.path());
    }
  }
  return "";
}

[[maybe_unused]] int CountOf(const std::string &word, const std::string &text) {
  int count = 0;
  for (std::size_t at = text.find(word); at != std::string::npos;
       at = text.find(word, at + 1)) {
    ++count;
  }
  return count;
}

TEST_F(LibraryProcess, AMixerWithoutPermissionIsSkipped) {
  PlugMixers(2);
  world().SetForbidden(1, true);
  EXPECT_EQ(ZTK_IsUSBConnection(10), 103u);
  EXPECT_EQ(ZTK_SetUSBInputAudio(10, 0, 2), 100u);
  EXPECT_THAT(TakeLog(),
              ElementsAre("mixer 2: 40 03 0106 8002 0000",
                          "mixer 2: c0 00 0000 8002 0005 -> 00 04 04 04 04"));
}

TEST_F(LibraryProcess, ACallbackRunsWhenAnotherProcessChangesTheSetting) {
  PlugMixers(1);
  Child listener({"listen", "input"});
  ASSERT_EQ(listener.ReadLine(), "ready");
  EXPECT_EQ(RunChild({"set-input", "2", "5"}), "100\n");
  EXPECT_EQ(listener.ReadLine(), "input 2 5");
  EXPECT_EQ(listener.Finish(), 0);
}

TEST_F(LibraryProcess, ACallbackThatIsRegisteredTwiceRunsTwice) {
  Child listener({"listen", "input", "input", "boost"});
  ASSERT_EQ(listener.ReadLine(), "ready");
  ZTK_SetUSBInputAudio(10, 0, 1);
  ZTK_SetBoostLevelIndex(10, 2);
  EXPECT_EQ(listener.ReadLine(), "input 0 1");
  EXPECT_EQ(listener.ReadLine(), "input 0 1");
  EXPECT_EQ(listener.ReadLine(), "boost 2");
}

// To show that a notification does not arrive, the test waits for a later one.
TEST_F(LibraryProcess, AnUnregisteredCallbackDoesNotRun) {
  Child listener({"listen", "input", "input", "-input", "boost"});
  ASSERT_EQ(listener.ReadLine(), "ready");
  ZTK_SetUSBInputAudio(10, 0, 1);
  ZTK_SetBoostLevelIndex(10, 2);
  EXPECT_EQ(listener.ReadLine(), "boost 2");
}

TEST_F(LibraryProcess, TheOutputAudioCallbackDoesNotRunForTheLibrarysChanges) {
  Child listener({"listen", "output", "midi"});
  ASSERT_EQ(listener.ReadLine(), "ready");
  ZTK_SetUSBOutputAudio(8, 0, 1);
  ZTK_SetUSBOutputAudioDefault(8, 2);
  ZTK_SetMidiChannelIndex(1, 15);
  EXPECT_EQ(listener.ReadLine(), "midi 15");
}

TEST_F(LibraryProcess, TheDirectSetterAndReSendingAnnounceNothing) {
  PlugMixers(1);
  Child listener({"listen", "input", "boost", "midi"});
  ASSERT_EQ(listener.ReadLine(), "ready");
  ZTK_SetUSBInputAudioDirect(10, 0, 0, 1);
  ZTK_SetCurrentUSBInputAudio(10, 0);
  ZTK_SetCurrentBoostLevelIndex(10);
  ZTK_SetCurrentMidiChannelIndex(1);
  ZTK_SetBoostLevelIndex(10, 1);
  EXPECT_EQ(listener.ReadLine(), "boost 1");
}

TEST_F(LibraryProcess, NoCallStartsAThread) {
  PlugMixers(1);
  EXPECT_EQ(RunChild({"threads"}), "threads 1\n");
}

TEST_F(LibraryProcess, WithoutABusEverythingElseWorks) {
  PlugMixers(1);
  bus_.Stop();
  EXPECT_EQ(ZTK_RegisterInputAudioChangedCallback(10, nullptr, nullptr), 100u);
  EXPECT_EQ(ZTK_SetUSBInputAudio(10, 0, 2), 100u);
  EXPECT_EQ(ReadAll(home_.SettingsFile("VRM-D6")),
            SettingsText({{"Output0", 2}}));
}

// Makes a child load another file in place of a library.
class ReplacedLibrary {
 public:
  ReplacedLibrary(const TempHome &home, const std::string &soname,
                  const std::string &file)
      : folder_(home.path() / "libraries") {
    std::filesystem::create_directory(folder_);
    std::filesystem::create_symlink(file, folder_ / soname);
  }
  ~ReplacedLibrary() { std::filesystem::remove_all(folder_); }
  ReplacedLibrary(const ReplacedLibrary &) = delete;
  ReplacedLibrary &operator=(const ReplacedLibrary &) = delete;

  // Returns a function that sets the environment of the child.
  std::function<std::string()> Preparation() const {
    return [this] {
      setenv("LD_LIBRARY_PATH", folder_.c_str(), 1);
      return std::string();
    };
  }

 private:
  std::filesystem::path folder_;
};

// The files in place of a library.
const struct {
  const char *name;
  const char *file;
} kReplacements[] = {{"no library at all", "/dev/null"},
                     {"a library without its functions", ZTK_LIBRARY_FILE}};

// Runs a client that links only the library. Returns its output.
std::vector<std::string> OutputOfPlainChild(
    const std::vector<std::string> &words,
    const std::function<std::string()> &prepare = nullptr) {
  std::vector<std::string> command{ZTK_PLAIN_CHILD};
  command.insert(command.end(), words.begin(), words.end());
  ChildProcess child(command, prepare);
  std::vector<std::string> lines;
  for (std::size_t i = 0; i < words.size(); ++i) {
    lines.push_back(child.ReadLine());
  }
  EXPECT_EQ(child.Finish(), 0);
  return lines;
}

TEST_F(LibraryProcess, LoadsOtherLibrariesOnlyWhenTheyAreNeeded) {
  PlugMixers(1);
  EXPECT_THAT(
      OutputOfPlainChild({"get", "set", "get", "set"}),
      ElementsAre("get 100", "set 100 bus", "get 100 bus", "set 100 bus"));
  EXPECT_THAT(
      OutputOfPlainChild({"get", "register", "set"}),
      ElementsAre("get 100", "register 100 bus loop", "set 100 bus loop"));
}

TEST_F(LibraryProcess, WithoutGLibOnlyTheCallbacksDoNotWork) {
  Child listener({"listen", "boost"});
  ASSERT_EQ(listener.ReadLine(), "ready");
  for (const auto &row : kReplacements) {
    SCOPED_TRACE(row.name);
    const ReplacedLibrary replaced(home_, ZTK_GLIB_LIBRARY, row.file);
    ASSERT_THAT(OutputOfPlainChild({"register", "set"}, replaced.Preparation()),
                ElementsAre("register 100", "set 100 bus"));
    EXPECT_EQ(listener.ReadLine(), "boost 2");
  }
}

TEST_F(LibraryProcess, ALibraryThatWasMissingIsTriedAgain) {
  const ReplacedLibrary glib(home_, ZTK_GLIB_LIBRARY, "/dev/null");
  EXPECT_THAT(
      OutputOfPlainChild({"register", "mend", "register"}, glib.Preparation()),
      ElementsAre("register 100", "mend 0", "register 100 bus loop"));
  const ReplacedLibrary bus(home_, ZTK_SD_BUS_LIBRARY, "/dev/null");
  EXPECT_THAT(OutputOfPlainChild({"set", "mend", "set"}, bus.Preparation()),
              ElementsAre("set 100", "mend 0", "set 100 bus"));
}

TEST_F(LibraryProcess, WithoutSdBusEverythingElseWorks) {
  PlugMixers(1);
  Child listener({"listen", "input", "boost"});
  ASSERT_EQ(listener.ReadLine(), "ready");
  for (const auto &row : kReplacements) {
    SCOPED_TRACE(row.name);
    const ReplacedLibrary replaced(home_, ZTK_SD_BUS_LIBRARY, row.file);
    Child child({"set-input", "2", "5"}, replaced.Preparation());
    EXPECT_EQ(child.ReadLine(), "100");
    EXPECT_EQ(child.Finish(), 0);
    EXPECT_THAT(TakeLog(),
                ElementsAre("mixer 1: 40 03 0309 8002 0000",
                            "mixer 1: c0 00 0000 8002 0005 -> 00 04 04 04 04"));
  }
  EXPECT_EQ(ReadAll(home_.SettingsFile("VRM-D6")),
            SettingsText({{"Output2", 5}}));
  ZTK_SetBoostLevelIndex(10, 2);
  EXPECT_EQ(listener.ReadLine(), "boost 2");
}

TEST_F(LibraryProcess, ANotificationAfterDlcloseDoesNotCrash) {
  Child client({"unload", ZTK_LIBRARY_FILE});
  ASSERT_EQ(client.ReadLine(), "ready");
  ZTK_SetUSBInputAudio(10, 1, 3);
  EXPECT_EQ(client.ReadLine(), "input 1 3");
  EXPECT_EQ(client.Finish(), 0);
}

// A registration clears the pointer to the record of the last post without
// releasing the record. The leak sanitizer must find these records and nothing
// else.
TEST_F(LibraryProcess, LeaksOnlyTheRecordsThatRegistrationsDoNotRelease) {
#if !defined(ZTK_TEST_ASAN)
  GTEST_SKIP() << "built without the leak sanitizer";
#endif
  const std::filesystem::path report = home_.path() / "leaks";
  const std::string before = Environment("LSAN_OPTIONS");
  const std::string options = "suppressions=:exitcode=0:log_path=";
  setenv("LSAN_OPTIONS", (options + report.string()).c_str(), 1);
  // The sandbox is not preloaded, because the sanitizer cannot write its report
  // through it.
  Child child({"drop-records", "5"}, [] {
    unsetenv("LD_PRELOAD");
    return std::string();
  });
  EXPECT_EQ(child.Finish(), 0);
  setenv("LSAN_OPTIONS", before.c_str(), 1);

  const std::string leaks = ReportIn(home_.path(), "leaks.");
  EXPECT_THAT(leaks, HasSubstr("MakeUserInfo"));
  EXPECT_THAT(leaks, ContainsRegex("Direct leak of [0-9]+ byte\\(s\\) in 5 "));
  EXPECT_EQ(CountOf("Direct leak of", leaks), 1) << leaks;
}

TEST_F(LibraryProcess, ManySettersUseNoMoreDescriptorsAndMemory) {
  std::vector<Placement> placements = {{.kind = DeviceKind::Mixer, .bus = 1}};
  for (int i = 0; i < 12; ++i) {
    placements.push_back({.kind = DeviceKind::Keyboard, .bus = 2});
  }
  Plug(placements);
  EXPECT_EQ(RunChild({"growth", GrowthCalls()}),
            "descriptors 0\nmemory kept\n");
}

}  // namespace
}  // namespace ztk::test
