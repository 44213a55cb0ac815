// SPDX-License-Identifier: MIT
//
// The references to IOKit objects that the library still holds after each call:
// only those that are intended.
#include <cstdint>

#include "iokit_test.h"
#include "usb/USB.h"

namespace ztk::test {
namespace {

using usb::Connection;

constexpr std::uint32_t kGeneralError = 0xE00002BC;

class MacCount : public IOKitTest {};

TEST_F(MacCount, LeavesTwoNumbersAndOnePortAndNothingElse) {
  CurrentWorld().bus = {Hub(), Mixer(), OtherProduct(), Mixer()};
  EXPECT_EQ(CheckUSBAudio(10), 2);
  EXPECT_EQ(CurrentWorld().held, (Held{.ports = 1, .numbers = 2}));
  EXPECT_EQ(CheckUSBAudio(0), 2);
  EXPECT_EQ(CurrentWorld().held, (Held{.ports = 2, .numbers = 4}));
}

TEST_F(MacCount, LeavesTheSameWhenNothingIsFound) {
  EXPECT_EQ(CheckUSBAudio(10), 0);
  EXPECT_EQ(CurrentWorld().held, (Held{.ports = 1, .numbers = 2}));
  CurrentWorld().hasEmptyIterator = false;
  EXPECT_EQ(CheckUSBAudio(10), 0);
  EXPECT_EQ(CurrentWorld().held, (Held{.ports = 2, .numbers = 4}));
}

TEST_F(MacCount, LeavesTheSameWhenTheServicesCannotBeFound) {
  CurrentWorld().bus = {Mixer()};
  CurrentWorld().findResult = kIOReturnNotResponding;
  EXPECT_EQ(CheckUSBAudio(10), 0);
  EXPECT_EQ(CurrentWorld().held, (Held{.ports = 1, .numbers = 2}));
}

TEST_F(MacCount, LeavesThePortWithoutAMatching) {
  CurrentWorld().bus = {Mixer()};
  CurrentWorld().hasMatching = false;
  EXPECT_EQ(CheckUSBAudio(10), 0);
  EXPECT_EQ(CurrentWorld().held, (Held{.ports = 1}));
}

TEST_F(MacCount, GoesOnWithoutAMasterPort) {
  CurrentWorld().bus = {Mixer()};
  CurrentWorld().masterPortResult = kIOReturnNotResponding;
  EXPECT_EQ(CheckUSBAudio(10), 1);
  EXPECT_EQ(CurrentWorld().held, (Held{.numbers = 2}));
}

class MacSearch : public IOKitTest {
 protected:
  // What is still held once the mixer at `index` was opened and closed.
  static Held LeftAfterClosing(std::uint32_t index) {
    CurrentWorld().held = Held{};
    Connection slot = nullptr;
    EXPECT_EQ(open_pipes(&slot, index), 0u);
    EXPECT_NE(slot, nullptr);
    closeUSB(&slot);
    EXPECT_EQ(slot, nullptr);
    return CurrentWorld().held;
  }
};

TEST_F(MacSearch, LeavesNothingWhenTheChosenMixerIsLast) {
  CurrentWorld().bus = {Hub(), Mixer(), OtherProduct(), Mixer()};
  EXPECT_EQ(LeftAfterClosing(1), Held{});
  CurrentWorld().bus = {Mixer()};
  EXPECT_EQ(LeftAfterClosing(0), Held{});
}

TEST_F(MacSearch, LeavesTheInterfacesOfTheDevicesAfterTheChosenMixer) {
  CurrentWorld().bus = {Mixer(), Hub(), Mixer(), OtherProduct()};
  EXPECT_EQ(LeftAfterClosing(0), (Held{.interfaces = 3}));
  EXPECT_EQ(LeftAfterClosing(1), (Held{.interfaces = 1}));
}

TEST_F(MacSearch, HoldsOneInterfaceWhileTheMixerIsOpen) {
  CurrentWorld().bus = {Hub(), Mixer()};
  Connection slot = nullptr;
  EXPECT_EQ(open_pipes(&slot, 0), 0u);
  EXPECT_EQ(CurrentWorld().held, (Held{.interfaces = 1}));
}

TEST_F(MacSearch, LeavesNothingWhenThereIsNoSuchMixer) {
  CurrentWorld().bus = {Mixer(), Hub(), Mixer()};
  Connection slot = nullptr;
  EXPECT_EQ(open_pipes(&slot, 2), kGeneralError);
  EXPECT_EQ(slot, nullptr);
  EXPECT_EQ(CurrentWorld().held, Held{});
}

TEST_F(MacSearch, HoldsTheSlotWhenALaterPlugInFails) {
  CurrentWorld().bus = {Mixer(), WithoutPlugIn()};
  Connection slot = nullptr;
  EXPECT_EQ(open_pipes(&slot, 0), 0xE00002BEu);
  EXPECT_NE(slot, nullptr);
  EXPECT_EQ(CurrentWorld().held, (Held{.interfaces = 1}));
}

TEST_F(MacSearch, HoldsTheSlotWhenALaterDeviceDoesNotAnswer) {
  iokit::Device silent = Hub();
  silent.vendorResult = kIOReturnNotResponding;
  CurrentWorld().bus = {Mixer(), silent};
  Connection slot = nullptr;
  EXPECT_EQ(open_pipes(&slot, 0), 0xE00002EDu);
  EXPECT_NE(slot, nullptr);
  EXPECT_EQ(CurrentWorld().held, (Held{.interfaces = 2}));
}

TEST_F(MacSearch, LeavesNothingOfDevicesThatFailBeforeTheChosenMixer) {
  iokit::Device withoutInterface = Mixer();
  withoutInterface.hasInterface = false;
  iokit::Device silent = Mixer();
  silent.productResult = kIOReturnNotResponding;
  CurrentWorld().bus = {WithoutPlugIn(), withoutInterface, silent, Mixer()};
  EXPECT_EQ(LeftAfterClosing(0), Held{});
}

TEST_F(MacSearch, LeavesNothingWhenTheBusCannotBeRead) {
  CurrentWorld().bus = {Mixer()};
  Connection slot = nullptr;
  CurrentWorld().findResult = kIOReturnNotResponding;
  EXPECT_EQ(open_pipes(&slot, 0), kGeneralError);
  CurrentWorld().findResult = kIOReturnSuccess;
  CurrentWorld().hasMatching = false;
  EXPECT_EQ(open_pipes(&slot, 0), kGeneralError);
  CurrentWorld().hasMatching = true;
  CurrentWorld().masterPortResult = kIOReturnNotResponding;
  EXPECT_EQ(open_pipes(&slot, 0), kGeneralError);
  EXPECT_EQ(CurrentWorld().held, Held{});
}

TEST_F(MacSearch, KeepsTheOldInterfaceOfAnOccupiedSlotAndLeavesTheLoop) {
  CurrentWorld().bus = {Hub(), Mixer(), Hub(), Mixer()};
  Connection slot = nullptr;
  ASSERT_EQ(open_pipes(&slot, 1), 0u);
  const Connection old = slot;
  TakeCalls();

  EXPECT_EQ(openUSB(&slot, 0), kGeneralError);
  EXPECT_EQ(slot, old);
  EXPECT_EQ(CurrentWorld().held, (Held{.interfaces = 1}));
  // The hub and the mixer, and none of the two devices after it.
  int asked = 0;
  for (const std::string &call : TakeCalls()) asked += call == "IOIteratorNext";
  EXPECT_EQ(asked, 2);

  closeUSB(&slot);
  EXPECT_EQ(CurrentWorld().held, Held{});
}

TEST_F(MacSearch, ClosesOnce) {
  CurrentWorld().bus = {Mixer()};
  Connection slot = nullptr;
  ASSERT_EQ(open_pipes(&slot, 0), 0u);
  TakeCalls();
  closeUSB(&slot);
  closeUSB(&slot);
  EXPECT_THAT(TakeCalls(), ElementsAre("USBDeviceClose", "Release interface"));
}

TEST_F(MacSearch, AnswersWhatTheLastReleaseSaysRemains) {
  iokit::Device shared = Hub();
  shared.releaseResult = 5;
  CurrentWorld().bus = {Mixer(), shared};
  Connection slot = nullptr;
  ASSERT_EQ(open_pipes(&slot, 0), 0u);
  // Nothing is chosen at an index past the mixers; the slot is held already.
  EXPECT_EQ(openUSB(&slot, 1), 5u);
}

}  // namespace
}  // namespace ztk::test
