// SPDX-License-Identifier: MIT
//
// Tests the settings file with the setters and getters of all families: the
// file, the key, and the value without a file or key.
#include <functional>

#include "support/core_test.h"

namespace ztk::test {
namespace {

using fake::Entries;
using testing::StartsWith;

class Settings : public CoreTest {};

struct Getter {
  const char *name;
  const char *file;
  const char *key;
  std::function<ZTKResult(std::uint32_t *)> get;
  std::uint32_t fallback;
};

std::function<ZTKResult(std::uint32_t *)> InputAudio(std::int32_t channel) {
  return [channel](std::uint32_t *out) {
    return ZTK_GetCurrentUSBInputAudioIndex(10, channel, out);
  };
}

std::function<ZTKResult(std::uint32_t *)> OutputAudio(std::uint32_t channel) {
  return [channel](std::uint32_t *out) {
    return ZTK_GetCurrentUSBOutputAudioIndex(8, channel, out);
  };
}

ZTKResult BoostLevel(std::uint32_t *out) {
  return ZTK_GetCurrentBoostLevelIndex(10, out);
}

ZTKResult MidiChannel(std::uint32_t *out) {
  return ZTK_GetCurrentMidiChannelIndex(1, out);
}

// clang-format off
const Getter kGetters[] = {
    // name, file, key, function, fallback
    {"input audio 0", kD6File, "Output0", InputAudio(0), 0},
    {"input audio 1", kD6File, "Output1", InputAudio(1), 0},
    {"input audio 2", kD6File, "Output2", InputAudio(2), 0},
    {"input audio 3", kD6File, "Output3", InputAudio(3), 0},
    {"input audio 4", kD6File, "Output4", InputAudio(4), 0},
    {"output audio 0", kB5File, "Input0", OutputAudio(0), 0},
    {"output audio 1", kB5File, "Input1", OutputAudio(1), 1},
    {"output audio 2", kB5File, "Input2", OutputAudio(2), 2},
    {"boost level", kD6File, "MaxLevel", BoostLevel, 3},
    {"MIDI channel", kK2File, "MidiChannel", MidiChannel, 0},
};
// clang-format on

TEST_F(Settings, AreTheDefaultsWithoutAFileAndNoFileIsCreated) {
  for (const Getter &row : kGetters) {
    SCOPED_TRACE(row.name);
    std::uint32_t value = 77;
    EXPECT_EQ(row.get(&value), 100u);
    EXPECT_EQ(value, row.fallback);
  }
  EXPECT_THAT(CurrentWorld().files, IsEmpty());
  EXPECT_THAT(TakeSteps(), IsEmpty());
}

TEST_F(Settings, AreTheDefaultsIfTheFileHasOnlyOtherKeys) {
  for (const Getter &row : kGetters) {
    SCOPED_TRACE(row.name);
    CurrentWorld() = World{};
    for (const Getter &other : kGetters) {
      CurrentWorld().files[other.file][other.key] = 55;
    }
    CurrentWorld().files[row.file].erase(row.key);
    std::uint32_t value = 77;
    EXPECT_EQ(row.get(&value), 100u);
    EXPECT_EQ(value, row.fallback);
  }
}

TEST_F(Settings, AreReadFromTheirFileAndKeyWithOneReading) {
  for (const Getter &row : kGetters) {
    SCOPED_TRACE(row.name);
    CurrentWorld() = World{};
    CurrentWorld().files[row.file] = {{row.key, 6}};
    std::uint32_t value = 77;
    EXPECT_EQ(row.get(&value), 100u);
    EXPECT_EQ(value, 6u);
    EXPECT_THAT(TakeCalls(), ElementsAre(std::string("read file ") + row.file,
                                         "release dictionary"));
  }
}

TEST_F(Settings, CanBeTextsAndAreNotLimitedToARange) {
  const struct {
    fake::Value stored;
    std::uint32_t expected;
  } kRows[] = {{"5", 5}, {-1, 0xFFFFFFFF}, {1000, 1000}, {"-7", 0xFFFFFFF9}};
  for (const Getter &getter : kGetters) {
    for (const auto &row : kRows) {
      SCOPED_TRACE(getter.name);
      SCOPED_TRACE(row.expected);
      CurrentWorld().files[getter.file][getter.key] = row.stored;
      std::uint32_t value = 77;
      EXPECT_EQ(getter.get(&value), 100u);
      EXPECT_EQ(value, row.expected);
    }
  }
}

struct Setter {
  const char *name;
  std::function<ZTKResult()> set;
  const char *file;
  Entries expected;
};

// clang-format off
const Setter kSetters[] = {
    // name, call, file, its content afterwards
    {"input audio 0", [] { return ZTK_SetUSBInputAudio(10, 0, 7); }, kD6File, {{"Output0", 7}}},
    {"input audio 1", [] { return ZTK_SetUSBInputAudio(10, 1, 6); }, kD6File, {{"Output1", 6}}},
    {"input audio 2", [] { return ZTK_SetUSBInputAudio(10, 2, 5); }, kD6File, {{"Output2", 5}}},
    {"input audio 3", [] { return ZTK_SetUSBInputAudio(10, 3, 4); }, kD6File, {{"Output3", 4}}},
    {"input audio 4", [] { return ZTK_SetUSBInputAudio(10, 4, 8); }, kD6File, {{"Output4", 8}}},
    {"output audio 0", [] { return ZTK_SetUSBOutputAudio(8, 0, 2); }, kB5File, {{"Input0", 2}}},
    {"output audio 1", [] { return ZTK_SetUSBOutputAudio(8, 1, 0); }, kB5File, {{"Input1", 0}}},
    {"output audio 2", [] { return ZTK_SetUSBOutputAudio(8, 2, 1); }, kB5File, {{"Input2", 1}}},
    {"output audio 3", [] { return ZTK_SetUSBOutputAudio(8, 3, 2); }, kB5File, {{"Input3", 2}}},
    {"output audio 4", [] { return ZTK_SetUSBOutputAudio(8, 4, 1); }, kB5File, {{"Input4", 1}}},
    {"boost level", [] { return ZTK_SetBoostLevelIndex(10, 2); }, kD6File, {{"MaxLevel", 2}}},
    {"MIDI channel", [] { return ZTK_SetMidiChannelIndex(1, 15); }, kK2File, {{"MidiChannel", 15}}},
};
// clang-format on

TEST_F(Settings, AreWrittenToTheirFileAndKeyEvenWithoutAMixer) {
  for (const Setter &row : kSetters) {
    SCOPED_TRACE(row.name);
    CurrentWorld() = World{};
    EXPECT_EQ(row.set(), 100u);
    EXPECT_EQ(CurrentWorld().files,
              (std::map<std::string, Entries>{{row.file, row.expected}}));
  }
}

TEST_F(Settings, AreWrittenOnceAfterTheRequestsAndBeforeThePost) {
  for (const Setter &row : kSetters) {
    SCOPED_TRACE(row.name);
    CurrentWorld() = World{};
    row.set();
    EXPECT_THAT(
        TakeSteps(),
        ElementsAre("count", StartsWith(std::string("write ") + row.file),
                    StartsWith("post ")));
  }
}

TEST_F(Settings, DoNotChangeOtherEntriesOfTheFile) {
  CurrentWorld().files[kD6File] = {{"MaxLevel", 2}, {"Foo", "bar"}};
  EXPECT_EQ(ZTK_SetUSBInputAudio(10, 0, 1), 101u);
  EXPECT_EQ(CurrentWorld().files.at(kD6File),
            (Entries{{"MaxLevel", 2}, {"Foo", "bar"}, {"Output0", 1}}));
}

TEST_F(Settings, OfOtherModelsDoNotChange) {
  CurrentWorld().files[kB5File] = {{"MaxLevel", 1}};
  CurrentWorld().files[kK2File] = {{"MaxLevel", 0}};
  EXPECT_EQ(ZTK_SetBoostLevelIndex(10, 2), 100u);
  EXPECT_EQ(CurrentWorld().files,
            (std::map<std::string, Entries>{{kD6File, {{"MaxLevel", 2}}},
                                            {kB5File, {{"MaxLevel", 1}}},
                                            {kK2File, {{"MaxLevel", 0}}}}));
}

TEST_F(Settings, ThatCannotBeWrittenAreStillSentAndPosted) {
  for (const Setter &row : kSetters) {
    SCOPED_TRACE(row.name);
    CurrentWorld() = World{};
    CurrentWorld().canWrite = false;
    EXPECT_EQ(row.set(), 100u);
    EXPECT_THAT(CurrentWorld().files, IsEmpty());
    EXPECT_THAT(TakeSteps(), ElementsAre("count", StartsWith("write "),
                                         StartsWith("post ")));
  }
}

TEST_F(Settings, AreStillPostedWithoutALibraryFolder) {
  for (const Setter &row : kSetters) {
    SCOPED_TRACE(row.name);
    CurrentWorld() = World{};
    CurrentWorld().hasLibraryFolder = false;
    EXPECT_EQ(row.set(), 100u);
    EXPECT_THAT(TakeSteps(), ElementsAre("count", StartsWith("post ")));
  }
}

TEST_F(Settings, OfTheKeyModeUseNoFile) {
  CurrentWorld().files[kK2File] = {{"MidiKeyMode", 1}};
  std::uint32_t value = 77;
  EXPECT_EQ(ZTK_SetMidiKeyModeIndex(1, 1), 102u);
  EXPECT_EQ(ZTK_GetCurrentMidiKeyModeIndex(1, &value), 102u);
  EXPECT_EQ(value, 77u);
  EXPECT_THAT(TakeCalls(), IsEmpty());
}

TEST_F(Settings, AreWrittenByTheSettersThatRememberOnly) {
  CurrentWorld().bus = {Mixer()};
  ZTK_SetUSBInputAudioDirect(10, 0, 1, 6);
  ZTK_SetUSBOutputAudioDefault(8, 1);
  ZTK_SetCurrentUSBInputAudio(10, 0);
  ZTK_SetCurrentUSBOutputAudio(8, 0);
  ZTK_SetCurrentBoostLevelIndex(10);
  ZTK_SetCurrentMidiChannelIndex(1);
  EXPECT_THAT(TakeSteps(),
              testing::Not(testing::Contains(StartsWith("write"))));
  EXPECT_THAT(CurrentWorld().files, IsEmpty());
}

TEST_F(Settings, AreNotReadIfAnArgumentIsRejected) {
  std::uint32_t value = 77;
  EXPECT_EQ(ZTK_GetCurrentUSBInputAudioIndex(10, 6, &value), 102u);
  EXPECT_EQ(ZTK_GetCurrentUSBOutputAudioIndex(8, 3, &value), 102u);
  EXPECT_EQ(ZTK_GetCurrentBoostLevelIndex(11, &value), 102u);
  EXPECT_EQ(ZTK_GetCurrentMidiChannelIndex(10, &value), 102u);
  EXPECT_EQ(value, 77u);
  EXPECT_THAT(TakeCalls(), IsEmpty());
}

}  // namespace
}  // namespace ztk::test
