// SPDX-License-Identifier: MIT
#include "ztk/model/routing.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ztk::model {

namespace {

// "PHONO 2": the tap as the mixer's panel names it.
std::string Name(const std::optional<Tap> &tap) {
  if (!tap) return "none";
  const std::string lane = std::to_string(tap->lane + 1);
  switch (tap->source) {
    case Source::Phono:
      return "PHONO " + lane;
    case Source::Line:
      return "LINE " + lane;
    case Source::PostFader:
      return "post " + lane;
    case Source::CrossFaderA:
      return "A";
    case Source::CrossFaderB:
      return "B";
    case Source::Mic:
      return "MIC";
    case Source::RecOut:
      return "REC OUT";
  }
  return "?";
}

TEST(TapOf, NamesThePointThatEachChoiceRecords) {
  const std::vector<std::vector<std::string>> expected = {
      {"PHONO 1", "LINE 1", "post 1", "A", "B", "MIC", "REC OUT", "none"},
      {"PHONO 2", "LINE 2", "post 2", "A", "B", "MIC", "REC OUT", "none"},
      {"PHONO 3", "LINE 3", "post 3", "A", "B", "MIC", "REC OUT", "none"},
      {"PHONO 4", "LINE 4", "post 4", "A", "B", "MIC", "REC OUT", "none"},
      {"REC OUT", "post 1", "post 2", "post 3", "post 4", "A", "B", "MIC",
       "none", "none"}};
  for (std::uint32_t channel = 0; channel < 5; ++channel) {
    SCOPED_TRACE("USB channel " + std::to_string(channel + 1));
    std::vector<std::string> names;
    for (std::uint32_t index = 0; index < expected[channel].size(); ++index) {
      names.push_back(Name(TapOf(channel, index)));
    }
    EXPECT_EQ(names, expected[channel]);
  }
}

TEST(TapOf, HasNoTapForWhatIsNoChoice) {
  EXPECT_EQ(TapOf(0, 0xFFFFFFFF), std::nullopt);
  EXPECT_EQ(TapOf(4, 8), std::nullopt);
  EXPECT_EQ(TapOf(5, 0), std::nullopt);
  EXPECT_EQ(TapOf(0xFFFFFFFF, 0), std::nullopt);
}

TEST(IndexOf, FindsTheChoiceOfATap) {
  EXPECT_EQ(IndexOf(1, {.source = Source::PostFader, .lane = 1}), 2U);
  EXPECT_EQ(IndexOf(3, {.source = Source::Phono, .lane = 3}), 0U);
  EXPECT_EQ(IndexOf(0, {.source = Source::RecOut}), 6U);
  EXPECT_EQ(IndexOf(4, {.source = Source::RecOut}), 0U);
  EXPECT_EQ(IndexOf(4, {.source = Source::PostFader, .lane = 3}), 4U);
  EXPECT_EQ(IndexOf(4, {.source = Source::Mic}), 7U);
}

TEST(IndexOf, HasNoneForTheInputsOfAnotherLane) {
  EXPECT_EQ(IndexOf(1, {.source = Source::PostFader, .lane = 0}), std::nullopt);
  EXPECT_EQ(IndexOf(0, {.source = Source::Line, .lane = 1}), std::nullopt);
  EXPECT_EQ(IndexOf(4, {.source = Source::Phono, .lane = 0}), std::nullopt);
  EXPECT_EQ(IndexOf(5, {.source = Source::Mic}), std::nullopt);
}

TEST(DecidingSelector, IsThatOfTheLaneForItsTwoInputs) {
  EXPECT_EQ(DecidingSelector(0, 0), 0U);
  EXPECT_EQ(DecidingSelector(1, 1), 1U);
  EXPECT_EQ(DecidingSelector(3, 1), 3U);
  EXPECT_EQ(kAudiblePosition, 4);
}

TEST(DecidingSelector, DoesNotExistForOtherTapsAndForTheLastChannel) {
  EXPECT_EQ(DecidingSelector(0, 2), std::nullopt);
  EXPECT_EQ(DecidingSelector(3, 6), std::nullopt);
  EXPECT_EQ(DecidingSelector(4, 0), std::nullopt);
  EXPECT_EQ(DecidingSelector(4, 1), std::nullopt);
  EXPECT_EQ(DecidingSelector(5, 0), std::nullopt);
}

}  // namespace

}  // namespace ztk::model
