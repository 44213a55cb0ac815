// SPDX-License-Identifier: MIT
//
// Tests the slot after a search, and which objects a search does not release.
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
  // Returns a slot with the only mixer of a bus, and clears the log.
  Connection Occupied() {
    CurrentWorld().bus = {Mixer()};
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
  // Opens and closes the mixer at `index`. Returns the number of references to
  // interfaces that are not released.
  int LeftAfterClosing(std::uint32_t index) {
    CurrentWorld().held = Held{};
    Connection slot = nullptr;
    EXPECT_EQ(open_pipes(&slot, index), 0u);
    closeUSB(&slot);
    Held expected;
    expected.interfaces = CurrentWorld().held.interfaces;
    EXPECT_EQ(CurrentWorld().held, expected)
        << "the slots hold other objects too";
    return CurrentWorld().held.interfaces;
  }
};

TEST_F(ReferencesTest, AreAllReleasedIfTheChosenMixerIsTheLastDevice) {
  CurrentWorld().bus = {OtherDevice(), Mixer(), OtherDevice(), Mixer()};
  EXPECT_EQ(LeftAfterClosing(1), 0);
}

TEST_F(ReferencesTest, OfDevicesAfterTheChosenMixerAreNotReleased) {
  CurrentWorld().bus = {Mixer(), OtherDevice(), Mixer(),
                        SameMakersOtherProduct()};
  EXPECT_EQ(LeftAfterClosing(0), 3);
  EXPECT_EQ(LeftAfterClosing(1), 1);
}

TEST_F(ReferencesTest, GrowWithEverySearch) {
  CurrentWorld().bus = {OtherDevice(), Mixer(), OtherDevice(), OtherDevice()};
  Connection slot = nullptr;
  open_pipes(&slot, 0);
  EXPECT_EQ(CurrentWorld().held, (Held{.interfaces = 3}));
  closeUSB(&slot);
  EXPECT_EQ(CurrentWorld().held, (Held{.interfaces = 2}));
  open_pipes(&slot, 0);
  closeUSB(&slot);
  EXPECT_EQ(CurrentWorld().held, (Held{.interfaces = 4}));
}

TEST_F(ReferencesTest, AreAllReleasedIfNoMixerIsChosen) {
  CurrentWorld().bus = {OtherDevice(), Mixer(), MixerFailing(kDefects[4])};
  Connection slot = nullptr;
  EXPECT_EQ(open_pipes(&slot, 1), kGeneralError);
  EXPECT_EQ(CurrentWorld().held, Held{});
}

TEST_F(ReferencesTest, DoNotExistForDevicesWithoutAnInterface) {
  CurrentWorld().bus = {Mixer(), MixerFailingAtPlugIn(), WithoutInterface(),
                        OtherDevice()};
  EXPECT_EQ(LeftAfterClosing(0), 1);
}

TEST_F(ReferencesTest, OfADeviceThatFailsAfterTheChosenMixerAreNotReleased) {
  for (const Defect &defect : kDefects) {
    if (defect.result == &fake::Device::plugInResult) continue;
    SCOPED_TRACE(defect.name);
    CurrentWorld() = World{};
    CurrentWorld().bus = {Mixer(), MixerFailing(defect)};
    Connection slot = nullptr;
    EXPECT_EQ(open_pipes(&slot, 0), kNotResponding);
    EXPECT_EQ(CurrentWorld().held, (Held{.interfaces = 2}));
  }
}

TEST_F(ReferencesTest, OfDevicesAfterAMixerThatCannotBeOpenedAreNotReleased) {
  CurrentWorld().bus = {OutOfReach(), OtherDevice(), Mixer()};
  Connection slot = nullptr;
  EXPECT_EQ(open_pipes(&slot, 0), kGeneralError);
  EXPECT_EQ(CurrentWorld().held, (Held{.interfaces = 2}));
}

class OpenUSBTest : public SlotTest {};

TEST_F(OpenUSBTest, OpensIntoAnEmptySlot) {
  CurrentWorld().bus = {Mixer()};
  Connection slot = nullptr;
  EXPECT_EQ(openUSB(&slot, 0), 0u);
  EXPECT_NE(slot, nullptr);
  EXPECT_THAT(TakeSteps(), ElementsAre("open 1"));
}

TEST_F(OpenUSBTest, DoesNotChangeAnOccupiedSlotAndStopsAtTheMixer) {
  const Connection old = Occupied();
  CurrentWorld().bus = {Mixer(), OtherDevice(), Mixer()};
  Connection slot = old;
  EXPECT_EQ(openUSB(&slot, 0), kGeneralError);
  EXPECT_EQ(slot, old);
  EXPECT_EQ(CurrentWorld().held, (Held{.interfaces = 1}));
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
  CurrentWorld().bus = {Mixer(), Mixer(), OtherDevice()};
  Connection slot = old;
  EXPECT_EQ(openUSB(&slot, 1), kGeneralError);
  EXPECT_EQ(slot, old);
  EXPECT_EQ(CurrentWorld().held, (Held{.interfaces = 1}));
}

TEST_F(OpenUSBTest, ReturnsTheReleaseOfTheLastDeviceForAnOccupiedSlot) {
  Connection slot = Occupied();
  CurrentWorld().bus = {Mixer(), OtherDeviceHeldByOthers(5)};
  EXPECT_EQ(openUSB(&slot, 1), 5u);
  CurrentWorld().bus = {OtherDeviceHeldByOthers(5), Mixer()};
  EXPECT_EQ(openUSB(&slot, 1), 0u);
  EXPECT_NE(slot, nullptr);
}

TEST_F(OpenUSBTest, ReturnsTheReleaseAndNotTheQueryThatFailedBeforeIt) {
  Connection slot = Occupied();
  for (const Defect &defect : kDefects) {
    if (defect.result == &fake::Device::plugInResult) continue;
    SCOPED_TRACE(defect.name);
    CurrentWorld().bus = {Mixer(), MixerFailing(defect)};
    EXPECT_EQ(openUSB(&slot, 1), 0u);
  }
}

TEST_F(OpenUSBTest, ReturnsThePlugInThatFailedLastForAnOccupiedSlot) {
  Connection slot = Occupied();
  CurrentWorld().bus = {Mixer(), MixerFailingAtPlugIn()};
  EXPECT_EQ(openUSB(&slot, 1), kNotResponding);
  CurrentWorld().bus = {MixerFailingAtPlugIn(), WithoutInterface()};
  EXPECT_EQ(openUSB(&slot, 0), 0u);
}

TEST_F(OpenUSBTest, ReturnsZeroForAnOccupiedSlotOnAnEmptyBus) {
  Connection slot = Occupied();
  CurrentWorld().bus = {};
  EXPECT_EQ(openUSB(&slot, 0), 0u);
  EXPECT_NE(slot, nullptr);
}

TEST_F(OpenUSBTest, ReturnsWhyTheBusCannotBeReadForAnOccupiedSlot) {
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
    CurrentWorld() = World{};
    const Connection old = Occupied();
    row.defect.breakIt(&CurrentWorld());
    Connection slot = old;
    EXPECT_EQ(openUSB(&slot, 0), row.expected);
    EXPECT_EQ(slot, old);
    EXPECT_EQ(CurrentWorld().held, (Held{.interfaces = 1}));
  }
}

TEST_F(OpenUSBTest, DoesNotReturnTheReleaseResultAfterAMixerIsChosen) {
  CurrentWorld().bus = {OtherDeviceHeldByOthers(5), Mixer(),
                        OtherDeviceHeldByOthers(7)};
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

TEST_F(CloseUSBTest, ClosesThenReleasesThenClearsTheSlot) {
  Connection slot = Occupied();
  closeUSB(&slot);
  EXPECT_EQ(slot, nullptr);
  EXPECT_THAT(TakeCalls(),
              ElementsAre("close device", "release device interface"));
  EXPECT_EQ(CurrentWorld().held, Held{});
}

TEST_F(CloseUSBTest, ClosesOnceWhenCalledTwice) {
  Connection slot = Occupied();
  closeUSB(&slot);
  closeUSB(&slot);
  EXPECT_THAT(TakeSteps(), ElementsAre("close 1"));
}

TEST_F(CloseUSBTest, ReleasesOnceEvenIfOthersHoldTheInterface) {
  CurrentWorld().bus = {Mixer()};
  CurrentWorld().bus[0].releaseResult = 3;
  Connection slot = nullptr;
  EXPECT_EQ(open_pipes(&slot, 0), 0u);
  closeUSB(&slot);
  EXPECT_EQ(slot, nullptr);
  EXPECT_EQ(CurrentWorld().held, Held{});
}

}  // namespace
}  // namespace ztk::test
