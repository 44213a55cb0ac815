// SPDX-License-Identifier: MIT
#include "usb/mixers.h"

#include <algorithm>

#include "support/core_test.h"
#include "usb/odd_devices.h"

namespace ztk::test {
namespace {

using fake::Held;

class OpenMixer : public CoreTest {};

TEST_F(OpenMixer, ClosesTheMixerAtTheEndOfTheScope) {
  CurrentWorld().bus = {OtherDevice(), Mixer(), Mixer()};
  {
    const usb::OpenMixer mixer(1);
    EXPECT_TRUE(mixer);
    EXPECT_NE(mixer.connection(), nullptr);
    EXPECT_THAT(TakeSteps(), ElementsAre("open 2"));
  }
  EXPECT_THAT(TakeSteps(), ElementsAre("close 2"));
  EXPECT_EQ(CurrentWorld().held, Held{});
}

TEST_F(OpenMixer, IsEmptyAndClosesNothingIfThereIsNoMixer) {
  CurrentWorld().bus = {Mixer()};
  { EXPECT_FALSE(usb::OpenMixer(1)); }
  EXPECT_THAT(TakeSteps(), IsEmpty());
}

TEST_F(OpenMixer, IsEmptyForAMixerThatCannotBeOpened) {
  CurrentWorld().bus = {OutOfReach()};
  { EXPECT_FALSE(usb::OpenMixer(0)); }
  EXPECT_THAT(TakeSteps(), ElementsAre("cannot open 1"));
}

// The search returns an error although it has put the mixer into the slot, so
// the mixer is not closed.
TEST_F(OpenMixer, IsEmptyAndClosesNothingIfADeviceAfterTheMixerFails) {
  CurrentWorld().bus = {Mixer(), MixerFailingAtPlugIn()};
  {
    const usb::OpenMixer mixer(0);
    EXPECT_FALSE(mixer);
    EXPECT_NE(mixer.connection(), nullptr);
  }
  EXPECT_THAT(TakeSteps(), ElementsAre("open 1"));
  EXPECT_EQ(CurrentWorld().held, (Held{.interfaces = 1}));
}

class SendToEveryMixer : public CoreTest {};

TEST_F(SendToEveryMixer, CountsAndThenOpensSendsAndClosesForEachMixer) {
  CurrentWorld().bus = {Mixer(), OtherDevice(), Mixer()};
  EXPECT_EQ(usb::SendToEveryMixer(10, 0x8002, 0x0206), 2);
  EXPECT_THAT(
      TakeSteps(),
      ElementsAre("count", "open 1", "mixer 1: 40 03 0206 8002 0000", "close 1",
                  "open 2", "mixer 2: 40 03 0206 8002 0000", "close 2"));
}

TEST_F(SendToEveryMixer, OnlyCountsWithoutAMixer) {
  CurrentWorld().bus = {OtherDevice(), SameMakersOtherProduct()};
  EXPECT_EQ(usb::SendToEveryMixer(10, 0x8002, 0x0206), 0);
  EXPECT_THAT(TakeSteps(), ElementsAre("count"));
}

// Reading the bus takes time. It is read once for the count and once for each
// mixer.
TEST_F(SendToEveryMixer, ReadsTheBusOnceToCountAndOnceForEachMixer) {
  const struct {
    std::vector<fake::Device> bus;
    std::ptrdiff_t walks;
  } rows[] = {{{OtherDevice()}, 1},
              {{Mixer()}, 2},
              {{Mixer(), OtherDevice(), Mixer()}, 3}};
  for (const auto &row : rows) {
    CurrentWorld() = World{};
    CurrentWorld().bus = row.bus;
    usb::SendToEveryMixer(10, 0x8002, 0x0206);
    const std::vector<std::string> calls = TakeCalls();
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "get master port"),
              row.walks);
  }
}

TEST_F(SendToEveryMixer, SkipsAMixerThatCannotBeOpened) {
  CurrentWorld().bus = {OutOfReach(), Mixer()};
  EXPECT_EQ(usb::SendToEveryMixer(10, 0x8004, 0x0F00), 2);
  EXPECT_THAT(TakeSteps(),
              ElementsAre("count", "cannot open 1", "open 2",
                          "mixer 2: 40 03 0f00 8004 0000", "close 2"));
}

TEST_F(SendToEveryMixer, SendsToTheNextMixerAfterARefusal) {
  CurrentWorld().bus = {Mixer(), Mixer()};
  CurrentWorld().bus[0].writeResult = 0xE000404F;
  EXPECT_EQ(usb::SendToEveryMixer(10, 0x8003, 0x0300), 2);
  EXPECT_THAT(
      TakeSteps(),
      ElementsAre("count", "open 1", "mixer 1: 40 03 0300 8003 0000 -> stall",
                  "close 1", "open 2", "mixer 2: 40 03 0300 8003 0000",
                  "close 2"));
}

// Two mixers are counted, but the search finds only the second one. So this
// mixer is at position 0, and there is no mixer at position 1.
TEST_F(SendToEveryMixer, SkipsAMixerWithoutAnInterface) {
  CurrentWorld().bus = {WithoutInterface(), Mixer()};
  EXPECT_EQ(usb::SendToEveryMixer(10, 0x8016, 0x0102), 2);
  EXPECT_THAT(TakeSteps(),
              ElementsAre("count", "open 2", "mixer 2: 40 03 0102 8016 0000",
                          "close 2"));
}

TEST_F(SendToEveryMixer, SendsToNoMixerIfADeviceAfterTheMixersFails) {
  CurrentWorld().bus = {Mixer(), Mixer(), MixerFailing(kDefects[2])};
  CurrentWorld().bus[2].product = 28;
  EXPECT_EQ(usb::SendToEveryMixer(10, 0x8002, 0x0206), 2);
  EXPECT_THAT(TakeSteps(), ElementsAre("count", "open 1", "open 2"));
}

}  // namespace
}  // namespace ztk::test
