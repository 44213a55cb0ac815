// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <thread>

#include "ZTKFunc.h"

namespace ztk::test {
namespace {

using testing::AnyOf;

constexpr int kRounds = 500;

// The sanitizer reports accesses of both threads to the same memory.
void InTwoThreads(const std::function<void()> &call) {
  const auto repeat = [&call] {
    for (int i = 0; i < kRounds; ++i) call();
  };
  std::thread other(repeat);
  repeat();
  other.join();
}

TEST(AnyThread, MayCallGetProductId) {
  InTwoThreads([] {
    std::uint32_t id = 77;
    EXPECT_EQ(ZTK_GetProductId("VRM-D6", &id), 100u);
    EXPECT_EQ(id, 10u);
  });
}

TEST(AnyThread, MayCallTheFunctionsThatCountChoices) {
  InTwoThreads([] {
    std::uint32_t count = 77;
    EXPECT_EQ(ZTK_GetNumOfInputAudioIndex(10, 1, &count), 100u);
    EXPECT_EQ(count, 7u);
    EXPECT_EQ(ZTK_GetNumOfOutputAudioIndex(8, 0, &count), 100u);
    EXPECT_EQ(count, 3u);
    EXPECT_EQ(ZTK_GetNumOfBoostLevelIndex(10, &count), 100u);
    EXPECT_EQ(count, 4u);
    EXPECT_EQ(ZTK_GetNumOfMidiChannelIndex(1, &count), 100u);
    EXPECT_EQ(count, 16u);
  });
}

TEST(AnyThread, MayCallTheFunctionsThatReturnTextsOfChoices) {
  InTwoThreads([] {
    ZTKTextRef text = nullptr;
    EXPECT_EQ(ZTK_GetUSBInputAudioText(10, 1, 2, 0, &text), 100u);
    EXPECT_STREQ(text, "Post CH2 Fader");
    EXPECT_EQ(ZTK_GetUSBOutputAudioText(8, 0, 2, 0, &text), 100u);
    EXPECT_STREQ(text, "AUX");
    EXPECT_EQ(ZTK_GetBoostLevelText(10, 1, 0, &text), 100u);
    EXPECT_STREQ(text, "-10 dB");
    EXPECT_EQ(ZTK_GetMidiChannelText(1, 4, 0, &text), 100u);
    EXPECT_STREQ(text, "CH 5");
  });
}

// Reads the list of devices of this machine, but opens none. A mixer may be
// attached or not.
TEST(AnyThread, MayCallIsUSBConnection) {
  InTwoThreads([] { EXPECT_THAT(ZTK_IsUSBConnection(10), AnyOf(103u, 104u)); });
}

}  // namespace
}  // namespace ztk::test
