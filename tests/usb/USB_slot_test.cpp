// SPDX-License-Identifier: MIT
//
// What a search leaves in the slot and which objects it does not release,
// especially where that is surprising.
#include "support/core_test.h"
#include "usb/USB.h"
#include "usb/odd_devices.h"

namespace ztk::test {
namespace {

using fake::Held;
using usb::Code;
using usb::Connection;

class SlotTest : public CoreTest {
 protected:
  // A slot filled from a bus of one mixer. The log starts after that.
  Connection Occupied() {
    TheWorld().bus = {Mixer()};
    Connection slot = nullptr;
    EXPECT_EQ(open_pipes(&slot, 0), 0u);
    EXPECT_NE(slot, nullptr);
    TakeSteps();
    TakeCalls();
    return slot;
  }
};

class ReferencesTest : public SlotTest {
 protected:
  // The number of interfaces still held after the mixer at `index` was opened
  // and closed.
  int LeftAfterClosing(std::uint32_t index) {
    TheWorld().held = Held{};
    Connection slot = nullptr;
    EXPECT_EQ(open_pipes(&slot, index), 0u);
    closeUSB(&slot);
    Held expected;
    expected.interfaces = TheWorld().held.interfaces;
    EXPECT_EQ(TheWorld().held, expected) << "something else is held too";
    return TheWorld().held.interfaces;
  }
};

TEST_F(ReferencesTest, AreAllGivenBackWhenTheChosenMixerIsLast) {
  TheWorld().bus = {Stranger(), Mixer(), Stranger(), Mixer()};
  EXPECT_EQ(LeftAfterClosing(1), 0);
}

TEST_F(ReferencesTest, OfEveryDeviceAfterTheChosenMixerStay) {
  TheWorld().bus = {Mixer(), Stranger(), Mixer(), SameMakersOtherProduct()};
  EXPECT_EQ(LeftAfterClosing(0), 3);
  EXPECT_EQ(LeftAfterClosing(1), 1);
}

TEST_F(ReferencesTest, GrowWithEverySearch) {
  TheWorld().bus = {Stranger(), Mixer(), Stranger(), Stranger()};
  Connection slot = nullptr;
  open_pipes(&slot, 0);
  EXPECT_EQ(TheWorld().held, (Held{.interfaces = 3}));
  closeUSB(&slot);
  EXPECT_EQ(TheWorld().held, (Held{.interfaces = 2}));
  open_pipes(&slot, 0);
  closeUSB(&slot);
  EXPECT_EQ(TheWorld().held, (Held{.interfaces = 4}));
}

TEST_F(ReferencesTest, AreAllGivenBackWhenNoMixerIsChosen) {
  TheWorld().bus = {Stranger(), Mixer(), MixerFailing(kDefects[4])};
  Connection slot = nullptr;
  EXPECT_EQ(open_pipes(&slot, 1), kGeneralError);
  EXPECT_EQ(TheWorld().held, Held{});
}

TEST_F(ReferencesTest, AreNotHeldOfDevicesThatGiveNoInterface) {
  TheWorld().bus = {Mixer(), MixerFailingAtPlugIn(), WithoutInterface(),
                    Stranger()};
  EXPECT_EQ(LeftAfterClosing(0), 1);
}

TEST_F(ReferencesTest, OfADeviceThatFailsAfterTheChosenMixerStay) {
  for (const Defect &defect : kDefects) {
    if (defect.result == &fake::Device::plugInResult) continue;
    SCOPED_TRACE(defect.name);
    TheWorld() = World{};
    TheWorld().bus = {Mixer(), MixerFailing(defect)};
    Connection slot = nullptr;
    EXPECT_EQ(open_pipes(&slot, 0), kNotResponding);
    EXPECT_EQ(TheWorld().held, (Held{.interfaces = 2}));
  }
}

TEST_F(ReferencesTest, OfDevicesAfterAMixerOutOfReachStay) {
  TheWorld().bus = {OutOfReach(), Stranger(), Mixer()};
  Connection slot = nullptr;
  EXPECT_EQ(open_pipes(&slot, 0), kGeneralError);
  EXPECT_EQ(TheWorld().held, (Held{.interfaces = 2}));
}

class OpenUSBTest : public SlotTest {};

TEST_F(OpenUSBTest, OpensIntoAnEmptySlot) {
  TheWorld().bus = {Mixer()};
  Connection slot = nullptr;
  EXPECT_EQ(openUSB(&slot, 0), 0u);
  EXPECT_NE(slot, nullptr);
  EXPECT_THAT(TakeSteps(), ElementsAre("open 1"));
}

TEST_F(OpenUSBTest, LeavesAnOccupiedSlotAloneAndStopsAtTheMixer) {
  const Connection old = Occupied();
  TheWorld().bus = {Mixer(), Stranger(), Mixer()};
  Connection slot = old;
  EXPECT_EQ(openUSB(&slot, 0), kGeneralError);
  EXPECT_EQ(slot, old);
  EXPECT_EQ(TheWorld().held, (Held{.interfaces = 1}));
  EXPECT_THAT(
      TakeCalls(),
      ElementsAre("get master port", "create matching IOUSBDevice",
                  "find every service", "next service", "create plug-in",
                  "release service", "query device interface",
                  "release plug-in", "get class", "get subclass", "get vendor",
                  "get product", "release device interface", "release iterator",
                  "release master port"));
}

TEST_F(OpenUSBTest, StopsAtALaterMixerOfAnOccupiedSlotToo) {
  const Connection old = Occupied();
  TheWorld().bus = {Mixer(), Mixer(), Stranger()};
  Connection slot = old;
  EXPECT_EQ(openUSB(&slot, 1), kGeneralError);
  EXPECT_EQ(slot, old);
  EXPECT_EQ(TheWorld().held, (Held{.interfaces = 1}));
}

TEST_F(OpenUSBTest, AnswersTheReleaseOfTheLastDeviceForAnOccupiedSlot) {
  Connection slot = Occupied();
  TheWorld().bus = {Mixer(), StrangerHeldByOthers(5)};
  EXPECT_EQ(openUSB(&slot, 1), 5u);
  TheWorld().bus = {StrangerHeldByOthers(5), Mixer()};
  EXPECT_EQ(openUSB(&slot, 1), 0u);
  EXPECT_NE(slot, nullptr);
}

TEST_F(OpenUSBTest, AnswersTheReleaseAndNotTheQueryThatFailedBeforeIt) {
  Connection slot = Occupied();
  for (const Defect &defect : kDefects) {
    if (defect.result == &fake::Device::plugInResult) continue;
    SCOPED_TRACE(defect.name);
    TheWorld().bus = {Mixer(), MixerFailing(defect)};
    EXPECT_EQ(openUSB(&slot, 1), 0u);
  }
}

TEST_F(OpenUSBTest, AnswersThePlugInThatFailedLastForAnOccupiedSlot) {
  Connection slot = Occupied();
  TheWorld().bus = {Mixer(), MixerFailingAtPlugIn()};
  EXPECT_EQ(openUSB(&slot, 1), kNotResponding);
  TheWorld().bus = {MixerFailingAtPlugIn(), WithoutInterface()};
  EXPECT_EQ(openUSB(&slot, 0), 0u);
}

TEST_F(OpenUSBTest, AnswersZeroForAnOccupiedSlotOnAnEmptyBus) {
  Connection slot = Occupied();
  TheWorld().bus = {};
  EXPECT_EQ(openUSB(&slot, 0), 0u);
  EXPECT_NE(slot, nullptr);
}

TEST_F(OpenUSBTest, AnswersWhyTheBusCannotBeReadForAnOccupiedSlot) {
  const struct {
    BusDefect defect;
    Code expected;
  } kRows[] = {
      {.defect = kNoPort, .expected = 0xE00002ED},
      {.defect = kNoMatching, .expected = 0},
      {.defect = kNoServices, .expected = 0xE00002ED},
      {.defect = kNoIterator, .expected = 0},
  };
  for (const auto &row : kRows) {
    SCOPED_TRACE(row.defect.name);
    TheWorld() = World{};
    const Connection old = Occupied();
    row.defect.breakIt(&TheWorld());
    Connection slot = old;
    EXPECT_EQ(openUSB(&slot, 0), row.expected);
    EXPECT_EQ(slot, old);
    EXPECT_EQ(TheWorld().held, (Held{.interfaces = 1}));
  }
}

TEST_F(OpenUSBTest, DropsTheReleaseResultOnceAMixerIsChosen) {
  TheWorld().bus = {StrangerHeldByOthers(5), Mixer(), StrangerHeldByOthers(7)};
  Connection slot = nullptr;
  EXPECT_EQ(openUSB(&slot, 0), 0u);
  EXPECT_NE(slot, nullptr);
}

class CloseUSBTest : public SlotTest {};

TEST_F(CloseUSBTest, DoesNothingOnAnEmptySlot) {
  Connection slot = nullptr;
  closeUSB(&slot);
  EXPECT_EQ(slot, nullptr);
  EXPECT_THAT(TakeCalls(), IsEmpty());
}

TEST_F(CloseUSBTest, ClosesThenReleasesThenEmptiesTheSlot) {
  Connection slot = Occupied();
  closeUSB(&slot);
  EXPECT_EQ(slot, nullptr);
  EXPECT_THAT(TakeCalls(),
              ElementsAre("close device", "release device interface"));
  EXPECT_EQ(TheWorld().held, Held{});
}

TEST_F(CloseUSBTest, ClosesOnceWhenCalledTwice) {
  Connection slot = Occupied();
  closeUSB(&slot);
  closeUSB(&slot);
  EXPECT_THAT(TakeSteps(), ElementsAre("close 1"));
}

TEST_F(CloseUSBTest, ReleasesOnceEvenIfOthersHoldTheInterface) {
  TheWorld().bus = {Mixer()};
  TheWorld().bus[0].referencesOfOthers = 3;
  Connection slot = nullptr;
  EXPECT_EQ(open_pipes(&slot, 0), 0u);
  closeUSB(&slot);
  EXPECT_EQ(slot, nullptr);
  EXPECT_EQ(TheWorld().held, Held{});
}

}  // namespace
}  // namespace ztk::test
