// SPDX-License-Identifier: MIT
//
// Tests the references to IOKit objects that the library has not released after
// each call.
#include <cstdint>

#include "iokit_test.h"
#include "usb/USB.h"

namespace ztk::test {
namespace {

using usb::Connection;

constexpr std::uint32_t kGeneralError = 0xE00002BC;

class MacCount : public IOKitTest {};

TEST_F(MacCount, DoesNotReleaseTwoNumbersAndOnePort) {
  CurrentWorld().bus = {Hub(), Mixer(), OtherProduct(), Mixer()};
  EXPECT_EQ(CheckUSBAudio(10), 2);
  EXPECT_EQ(CurrentWorld().held, (Held{.ports = 1, .numbers = 2}));
  EXPECT_EQ(CheckUSBAudio(0), 2);
  EXPECT_EQ(CurrentWorld().held, (Held{.ports = 2, .numbers = 4}));
}

TEST_F(MacCount, KeepsTheSameIfNothingIsFound) {
  EXPECT_EQ(CheckUSBAudio(10), 0);
  EXPECT_EQ(CurrentWorld().held, (Held{.ports = 1, .numbers = 2}));
  CurrentWorld().hasEmptyIterator = false;
  EXPECT_EQ(CheckUSBAudio(10), 0);
  EXPECT_EQ(CurrentWorld().held, (Held{.ports = 2, .numbers = 4}));
}

TEST_F(MacCount, KeepsTheSameIfTheServicesCannotBeFound) {
  CurrentWorld().bus = {Mixer()};
  CurrentWorld().findResult = kIOReturnNotResponding;
  EXPECT_EQ(CheckUSBAudio(10), 0);
  EXPECT_EQ(CurrentWorld().held, (Held{.ports = 1, .numbers = 2}));
}

TEST_F(MacCount, KeepsThePortWithoutAMatching) {
  CurrentWorld().bus = {Mixer()};
  CurrentWorld().hasMatching = false;
  EXPECT_EQ(CheckUSBAudio(10), 0);
  EXPECT_EQ(CurrentWorld().held, (Held{.ports = 1}));
}

TEST_F(MacCount, CountsEvenWithoutAMasterPort) {
  CurrentWorld().bus = {Mixer()};
  CurrentWorld().masterPortResult = kIOReturnNotResponding;
  EXPECT_EQ(CheckUSBAudio(10), 1);
  EXPECT_EQ(CurrentWorld().held, (Held{.numbers = 2}));
}

class MacSearch : public IOKitTest {
 protected:
  // Opens and closes the mixer at `index`. Returns the references that are not
  // released.
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

TEST_F(MacSearch, ReleasesEverythingIfTheChosenMixerIsTheLastDevice) {
  CurrentWorld().bus = {Hub(), Mixer(), OtherProduct(), Mixer()};
  EXPECT_EQ(LeftAfterClosing(1), Held{});
  CurrentWorld().bus = {Mixer()};
  EXPECT_EQ(LeftAfterClosing(0), Held{});
}

TEST_F(MacSearch, DoesNotReleaseTheInterfacesAfterTheChosenMixer) {
  CurrentWorld().bus = {Mixer(), Hub(), Mixer(), OtherProduct()};
  EXPECT_EQ(LeftAfterClosing(0), (Held{.interfaces = 3}));
  EXPECT_EQ(LeftAfterClosing(1), (Held{.interfaces = 1}));
}

TEST_F(MacSearch, HasOneInterfaceWhileTheMixerIsOpen) {
  CurrentWorld().bus = {Hub(), Mixer()};
  Connection slot = nullptr;
  EXPECT_EQ(open_pipes(&slot, 0), 0u);
  EXPECT_EQ(CurrentWorld().held, (Held{.interfaces = 1}));
}

TEST_F(MacSearch, ReleasesEverythingIfThereIsNoSuchMixer) {
  CurrentWorld().bus = {Mixer(), Hub(), Mixer()};
  Connection slot = nullptr;
  EXPECT_EQ(open_pipes(&slot, 2), kGeneralError);
  EXPECT_EQ(slot, nullptr);
  EXPECT_EQ(CurrentWorld().held, Held{});
}

TEST_F(MacSearch, KeepsTheSlotIfALaterPlugInFails) {
  CurrentWorld().bus = {Mixer(), WithoutPlugIn()};
  Connection slot = nullptr;
  EXPECT_EQ(open_pipes(&slot, 0), 0xE00002BEu);
  EXPECT_NE(slot, nullptr);
  EXPECT_EQ(CurrentWorld().held, (Held{.interfaces = 1}));
}

TEST_F(MacSearch, KeepsTheSlotIfALaterDeviceDoesNotAnswer) {
  iokit::Device silent = Hub();
  silent.vendorResult = kIOReturnNotResponding;
  CurrentWorld().bus = {Mixer(), silent};
  Connection slot = nullptr;
  EXPECT_EQ(open_pipes(&slot, 0), 0xE00002EDu);
  EXPECT_NE(slot, nullptr);
  EXPECT_EQ(CurrentWorld().held, (Held{.interfaces = 2}));
}

TEST_F(MacSearch, ReleasesDevicesThatFailBeforeTheChosenMixer) {
  iokit::Device withoutInterface = Mixer();
  withoutInterface.hasInterface = false;
  iokit::Device silent = Mixer();
  silent.productResult = kIOReturnNotResponding;
  CurrentWorld().bus = {WithoutPlugIn(), withoutInterface, silent, Mixer()};
  EXPECT_EQ(LeftAfterClosing(0), Held{});
}

TEST_F(MacSearch, ReleasesEverythingIfTheBusCannotBeRead) {
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

TEST_F(MacSearch, KeepsTheInterfaceOfAnOccupiedSlotAndEndsTheLoop) {
  CurrentWorld().bus = {Hub(), Mixer(), Hub(), Mixer()};
  Connection slot = nullptr;
  ASSERT_EQ(open_pipes(&slot, 1), 0u);
  const Connection old = slot;
  TakeCalls();

  EXPECT_EQ(openUSB(&slot, 0), kGeneralError);
  EXPECT_EQ(slot, old);
  EXPECT_EQ(CurrentWorld().held, (Held{.interfaces = 1}));
  // The loop visited the hub and the mixer, but not the two devices after it.
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

TEST_F(MacSearch, ReturnsTheResultOfTheLastRelease) {
  iokit::Device shared = Hub();
  shared.releaseResult = 5;
  CurrentWorld().bus = {Mixer(), shared};
  Connection slot = nullptr;
  ASSERT_EQ(open_pipes(&slot, 0), 0u);
  // There is no mixer at this index, and the slot is occupied.
  EXPECT_EQ(openUSB(&slot, 1), 5u);
}

}  // namespace
}  // namespace ztk::test
