// SPDX-License-Identifier: MIT
#include "api/api_test.h"

namespace ztk::test {
namespace {

class GetNumOfBoostLevelIndex : public ApiTest {};

TEST_F(GetNumOfBoostLevelIndex, IsFour) {
  std::uint32_t count = kUntouched;
  EXPECT_EQ(ZTK_GetNumOfBoostLevelIndex(10, &count), 100u);
  EXPECT_EQ(count, 4u);
}

TEST_F(GetNumOfBoostLevelIndex, ServesMoreProductsThanCanBeSet) {
  CurrentWorld().bus = {Mixer()};
  for (const std::uint32_t product : {0u, 1u, 5u, 6u, 8u}) {
    SCOPED_TRACE(product);
    std::uint32_t number = kUntouched;
    ZTKTextRef text = kUntouchedText;
    EXPECT_EQ(ZTK_GetNumOfBoostLevelIndex(product, &number), 100u);
    EXPECT_EQ(number, 4u);
    EXPECT_EQ(ZTK_GetBoostLevelText(product, 0, 0, &text), 100u);
    EXPECT_EQ(Plain(text), "-5 dB");
    EXPECT_EQ(ZTK_SetBoostLevelIndex(product, 0), 102u);
    EXPECT_EQ(ZTK_GetCurrentBoostLevelIndex(product, &number), 102u);
    EXPECT_EQ(number, 4u);
    EXPECT_EQ(ZTK_SetCurrentBoostLevelIndex(product), 102u);
  }
  EXPECT_THAT(TakeCalls(), IsEmpty());
}

class GetBoostLevelText : public ApiTest {};

TEST_F(GetBoostLevelText, ReturnsTheFourLevelsForAnyThirdArgument) {
  const char *const expected[] = {"-5 dB", "-10 dB", "-15 dB", "-19 dB"};
  for (std::uint32_t index = 0; index < 4; ++index) {
    for (const std::uint32_t ignored : {0u, 7u, 0x80000000u, 0xFFFFFFFFu}) {
      ZTKTextRef text = kUntouchedText;
      EXPECT_EQ(ZTK_GetBoostLevelText(10, index, ignored, &text), 100u);
      EXPECT_EQ(Plain(text), expected[index]);
    }
  }
}

TEST_F(GetBoostLevelText, RejectsIndexFourAndDoesNotWriteTheOutput) {
  ZTKTextRef text = kUntouchedText;
  EXPECT_EQ(ZTK_GetBoostLevelText(10, 4, 0, &text), 102u);
  EXPECT_EQ(ZTK_GetBoostLevelText(10, 0xFFFFFFFF, 0, &text), 102u);
  EXPECT_EQ(Plain(text), "untouched");
}

class SetBoostLevelIndex : public ApiTest {};

TEST_F(SetBoostLevelIndex, SendsStoresAndPostsByDefaultDelivery) {
  CurrentWorld().bus = {Mixer()};
  EXPECT_EQ(ZTK_SetBoostLevelIndex(10, 0), 100u);
  EXPECT_THAT(
      TakeSteps(),
      ElementsAre("count", "open 1", "mixer 1: 40 03 0300 8003 0000", "close 1",
                  "write /Users/dj/Library/Preferences/"
                  "com.tarvix.VRM-D6autosetup.plist {MaxLevel=0}",
                  "post VRM-D6 BoostLevel Change {ProductID=10, Index=0} "
                  "with default delivery"));
}

TEST_F(SetBoostLevelIndex, SkipsMixersThatCannotBeOpened) {
  ExpectEveryWalk(
      {.request = "40 03 0200 8003 0000",
       .then = {Written(kD6File, "MaxLevel=1"),
                "post VRM-D6 BoostLevel Change {ProductID=10, Index=1} "
                "with default delivery"}},
      [] { return ZTK_SetBoostLevelIndex(10, 1); });
}

TEST_F(SetBoostLevelIndex, SendsTheDeviceCodeInTheHighByte) {
  const char *const expected[] = {"0300", "0200", "0100", "0000"};
  for (std::uint32_t index = 0; index < 4; ++index) {
    StartAfresh({Mixer()});
    EXPECT_EQ(ZTK_SetBoostLevelIndex(10, index), 100u);
    EXPECT_EQ(TakeSteps().at(2),
              std::string("mixer 1: 40 03 ") + expected[index] + " 8003 0000");
  }
}

TEST_F(SetBoostLevelIndex, RejectsIndexFour) {
  CurrentWorld().bus = {Mixer()};
  for (const std::uint32_t index : {4u, 5u, 0x80000000u, 0xFFFFFFFFu}) {
    EXPECT_EQ(ZTK_SetBoostLevelIndex(10, index), 102u) << index;
  }
  EXPECT_THAT(TakeCalls(), IsEmpty());
}

TEST_F(SetBoostLevelIndex, PostsEvenIfRequestsAndTheFileFail) {
  CurrentWorld().bus = {RefusingMixer()};
  CurrentWorld().canWrite = false;
  EXPECT_EQ(ZTK_SetBoostLevelIndex(10, 3), 100u);
  EXPECT_THAT(TakeSteps(),
              ElementsAreArray(Join(
                  {{"count"},
                   Visit(1, "40 03 0000 8003 0000 -> stall"),
                   {Written(kD6File, "MaxLevel=3"),
                    "post VRM-D6 BoostLevel Change {ProductID=10, Index=3} "
                    "with default delivery"}})));
}

TEST_F(SetBoostLevelIndex, ChangesOnlyItsKeyInItsFile) {
  CurrentWorld().files[kD6File] = {
      {"MaxLevel", 2}, {"Output0", 5}, {"Foo", "x"}};
  CurrentWorld().files[kB5File] = {{"MaxLevel", 3}};
  CurrentWorld().files[kK2File] = {{"MaxLevel", 3}};
  EXPECT_EQ(ZTK_SetBoostLevelIndex(10, 1), 100u);
  EXPECT_EQ(CurrentWorld().files[kD6File],
            (fake::Entries{{"MaxLevel", 1}, {"Output0", 5}, {"Foo", "x"}}));
  EXPECT_EQ(CurrentWorld().files[kB5File], (fake::Entries{{"MaxLevel", 3}}));
  EXPECT_EQ(CurrentWorld().files[kK2File], (fake::Entries{{"MaxLevel", 3}}));
}

TEST_F(SetBoostLevelIndex,
       ReleasesAllObjectsExceptThoseOfTheCountAndOneRecord) {
  CurrentWorld().bus = {Mixer()};
  ZTK_SetBoostLevelIndex(10, 0);
  ZTK_SetBoostLevelIndex(10, 1);
  EXPECT_EQ(CurrentWorld().held,
            (Held{.ports = 2, .numbers = 4, .userInfos = 1}));
}

class GetCurrentBoostLevelIndex : public ApiTest {
 protected:
  static std::uint32_t Index() {
    std::uint32_t index = kUntouched;
    EXPECT_EQ(ZTK_GetCurrentBoostLevelIndex(10, &index), 100u);
    return index;
  }
};

TEST_F(GetCurrentBoostLevelIndex, IsThreeWithoutAFileOrAKey) {
  EXPECT_EQ(Index(), 3u);
  EXPECT_THAT(CurrentWorld().files, IsEmpty());
  CurrentWorld().files[kD6File] = {{"Output0", 1}};
  EXPECT_EQ(Index(), 3u);
  CurrentWorld().hasLibraryFolder = false;
  EXPECT_EQ(Index(), 3u);
  EXPECT_EQ(CurrentWorld().held, Held{});
}

TEST_F(GetCurrentBoostLevelIndex, ReturnsAnyStoredInteger) {
  const struct {
    const char *name;
    fake::Value stored;
    std::uint32_t expected;
  } rows[] = {{"a choice", 2, 2},
              {"seven", 7, 7},
              {"minus one", -1, 4294967295},
              {"the lowest", kLowest, 2147483648},
              {"a text", "5", 5},
              {"another kind counts as absent", std::monostate{}, 3}};
  for (const auto &row : rows) {
    SCOPED_TRACE(row.name);
    CurrentWorld().files[kD6File] = {{"MaxLevel", row.stored}};
    EXPECT_EQ(Index(), row.expected);
  }
}

class SetCurrentBoostLevelIndex : public ApiTest {};

TEST_F(SetCurrentBoostLevelIndex, SendsTheRememberedLevelAndNothingElse) {
  ExpectEveryWalk({.request = "40 03 0100 8003 0000"}, [] {
    CurrentWorld().files[kD6File] = {{"MaxLevel", 2}};
    return ZTK_SetCurrentBoostLevelIndex(10);
  });
}

TEST_F(SetCurrentBoostLevelIndex, SendsTheDefaultWithoutAFile) {
  CurrentWorld().bus = {Mixer()};
  EXPECT_EQ(ZTK_SetCurrentBoostLevelIndex(10), 100u);
  EXPECT_THAT(TakeSteps(),
              ElementsAre("count", "open 1", "mixer 1: 40 03 0000 8003 0000",
                          "close 1"));
  EXPECT_EQ(CurrentWorld().held, OneCount());
}

TEST_F(SetCurrentBoostLevelIndex, SendsEveryLevelThatCanBeRemembered) {
  const char *const expected[] = {"0300", "0200", "0100", "0000"};
  for (std::int32_t index = 0; index < 4; ++index) {
    StartAfresh({Mixer()});
    CurrentWorld().files[kD6File] = {{"MaxLevel", index}};
    EXPECT_EQ(ZTK_SetCurrentBoostLevelIndex(10), 100u);
    EXPECT_EQ(TakeSteps().at(2),
              std::string("mixer 1: 40 03 ") + expected[index] + " 8003 0000");
  }
}

TEST_F(SetCurrentBoostLevelIndex, RejectsARememberedIndexPastTheTable) {
  for (const fake::Value &stored :
       {fake::Value{4}, fake::Value{9}, fake::Value{-1}, fake::Value{kLowest},
        fake::Value{2147483647}, fake::Value{"5"}}) {
    StartAfresh({Mixer()});
    CurrentWorld().files[kD6File] = {{"MaxLevel", stored}};
    EXPECT_EQ(ZTK_SetCurrentBoostLevelIndex(10), 102u);
    EXPECT_THAT(TakeSteps(), IsEmpty());
    EXPECT_EQ(CurrentWorld().held, Held{});
  }
}

}  // namespace
}  // namespace ztk::test
