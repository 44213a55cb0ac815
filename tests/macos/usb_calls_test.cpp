// SPDX-License-Identifier: MIT
//
// Tests all calls of IOKit that the library makes, in order.
#include <cstdint>

#include "iokit_test.h"
#include "usb/USB.h"
#include "usb/mixers.h"

namespace ztk::test {
namespace {

using usb::Connection;

class MacCalls : public IOKitTest {
 protected:
  // Returns a connection to the only mixer, and clears the log.
  static Connection Opened(const iokit::Device &mixer) {
    CurrentWorld().bus = {mixer};
    Connection slot = nullptr;
    EXPECT_EQ(open_pipes(&slot, 0), 0u);
    TakeCalls();
    return slot;
  }
};

TEST_F(MacCalls, OfACount) {
  CurrentWorld().bus = {Hub(), Mixer()};
  EXPECT_EQ(CheckUSBAudio(10), 1);
  EXPECT_THAT(
      TakeCalls(),
      ElementsAre("IOMasterPort", "IOServiceMatching IOUSBDevice",
                  "CFNumberCreate 26214", "CFStringCreateWithCString idVendor",
                  "CFDictionarySetValue idVendor 26214", "CFRelease string",
                  "CFNumberCreate 27", "CFStringCreateWithCString idProduct",
                  "CFDictionarySetValue idProduct 27", "CFRelease string",
                  "IOServiceGetMatchingServices", "IOIteratorNext",
                  "IOObjectRelease service", "IOIteratorNext",
                  "IOObjectRelease iterator"));
}

TEST_F(MacCalls, OfASearch) {
  CurrentWorld().bus = {WithoutPlugIn(), Hub(), Mixer()};
  Connection slot = nullptr;
  EXPECT_EQ(open_pipes(&slot, 0), 0u);
  EXPECT_THAT(
      TakeCalls(),
      ElementsAre("IOMasterPort", "IOServiceMatching IOUSBDevice",
                  "IOServiceGetMatchingServices",
                  // No plug-in.
                  "IOIteratorNext", "IOCreatePlugInInterfaceForService",
                  "IOObjectRelease service",
                  // The hub.
                  "IOIteratorNext", "IOCreatePlugInInterfaceForService",
                  "IOObjectRelease service", "QueryInterface",
                  "Release plug-in", "GetDeviceClass", "GetDeviceSubClass",
                  "GetDeviceVendor", "GetDeviceProduct", "Release interface",
                  // The mixer.
                  "IOIteratorNext", "IOCreatePlugInInterfaceForService",
                  "IOObjectRelease service", "QueryInterface",
                  "Release plug-in", "GetDeviceClass", "GetDeviceSubClass",
                  "GetDeviceVendor", "GetDeviceProduct",
                  // The end.
                  "IOIteratorNext", "IOObjectRelease iterator",
                  "mach_port_deallocate"));
}

TEST_F(MacCalls, ForADeviceEndAtItsFirstFailure) {
  iokit::Device silent = Mixer();
  silent.subClassResult = kIOReturnNotResponding;
  CurrentWorld().bus = {silent};
  Connection slot = nullptr;
  EXPECT_EQ(open_pipes(&slot, 0), 0xE00002BCu);
  EXPECT_THAT(
      TakeCalls(),
      ElementsAre("IOMasterPort", "IOServiceMatching IOUSBDevice",
                  "IOServiceGetMatchingServices", "IOIteratorNext",
                  "IOCreatePlugInInterfaceForService",
                  "IOObjectRelease service", "QueryInterface",
                  "Release plug-in", "GetDeviceClass", "GetDeviceSubClass",
                  "Release interface", "IOIteratorNext",
                  "IOObjectRelease iterator", "mach_port_deallocate"));
}

TEST_F(MacCalls, OfASearchWithoutAMasterPortEndThere) {
  CurrentWorld().bus = {Mixer()};
  CurrentWorld().masterPortResult = kIOReturnNotResponding;
  Connection slot = nullptr;
  EXPECT_EQ(open_pipes(&slot, 0), 0xE00002BCu);
  EXPECT_THAT(TakeCalls(), ElementsAre("IOMasterPort"));
}

TEST_F(MacCalls, ForANullSlotDoNotExist) {
  CurrentWorld().bus = {Mixer()};
  EXPECT_EQ(open_pipes(nullptr, 0), 0xE00002BCu);
  EXPECT_THAT(TakeCalls(), IsEmpty());
}

TEST_F(MacCalls, FindTheMixersInTheirOrder) {
  CurrentWorld().bus = {Mixer(), Hub(), Mixer()};
  CurrentWorld().bus[2].replies[0x8002] = {.bytes = {0, 1, 2, 3, 4}};
  std::uint8_t buffer[8] = {};
  Connection slot = nullptr;
  ASSERT_EQ(open_pipes(&slot, 1), 0u);
  EXPECT_EQ(GetInputSelectorInfo(slot, buffer, 5), 0u);
  EXPECT_THAT(TakeRequests(),
              ElementsAre("mixer 2: c0 00 0000 8002 0005 -> 00 01 02 03 04"));
}

TEST_F(MacCalls, ForARequestAreOne) {
  const Connection slot = Opened(Mixer());
  EXPECT_EQ(SetMidiChannelSetting(slot, 0x0F00), 0u);
  EXPECT_THAT(TakeCalls(), ElementsAre("DeviceRequest"));
  EXPECT_THAT(TakeRequests(), ElementsAre("mixer 1: 40 03 0f00 8004 0000"));
}

TEST_F(MacCalls, CarryEveryWrite) {
  const Connection slot = Opened(Mixer());
  SetMixerOutputSetting(slot, 0x0206);
  SetUSBOutputLevelSetting(slot, 0x0300);
  SetMidiChannelSetting(slot, 0x0F00);
  SetMidiKeyModeSetting(slot, 0x0001);
  SetMixerInputSetting(slot, 0x0102);
  EXPECT_THAT(TakeRequests(), ElementsAre("mixer 1: 40 03 0206 8002 0000",
                                          "mixer 1: 40 03 0300 8003 0000",
                                          "mixer 1: 40 03 0f00 8004 0000",
                                          "mixer 1: 40 03 0001 8005 0000",
                                          "mixer 1: 40 03 0102 8016 0000"));
}

TEST_F(MacCalls, CarryEveryRead) {
  const Connection slot = Opened(Mixer());
  std::uint8_t buffer[8] = {};
  GetFirmwareVersionNumber(slot, buffer, 2);
  GetInputSelectorInfo(slot, buffer, 4);
  GetSeratoActiveInfo(slot, buffer, 2);
  GetPortInfo(slot, buffer, 2);
  GetCertifyLevel(slot, buffer, 4);
  EXPECT_THAT(TakeRequests(),
              ElementsAre("mixer 1: c0 00 0000 8001 0002 -> 36 04",
                          "mixer 1: c0 00 0000 8002 0004 -> 00 04 04 04",
                          "mixer 1: c0 00 0000 8004 0002 -> 00 00",
                          "mixer 1: c0 00 0000 8006 0002 -> 00 00",
                          "mixer 1: c0 00 0000 8007 0004 -> 00 00 00 01"));
}

TEST_F(MacCalls, ReturnTheNumberOfTransferredBytes) {
  iokit::Device brief = Mixer();
  brief.replies[0x8002] = {.bytes = {0, 1, 2}};
  const Connection slot = Opened(brief);
  std::uint8_t buffer[5] = {9, 9, 9, 9, 9};
  std::uint16_t length = 5;
  EXPECT_EQ(DeviceRequest(slot, 0xC0, 0, 0, 0x8002, buffer, &length), 0u);
  EXPECT_EQ(length, 3);
  EXPECT_THAT(buffer, ElementsAre(0, 1, 2, 9, 9));
}

// A failed request also reports the bytes that were transferred before the
// failure.
TEST_F(MacCalls, ReturnTheNumberOfTransferredBytesAfterAFailure) {
  iokit::Device failing = Mixer();
  failing.replies[0x8002] = {.result = kIOReturnNotResponding, .bytes = {7, 8}};
  const Connection slot = Opened(failing);
  std::uint8_t buffer[5] = {};
  std::uint16_t length = 5;
  EXPECT_EQ(DeviceRequest(slot, 0xC0, 0, 0, 0x8002, buffer, &length),
            0xE00002EDu);
  EXPECT_EQ(length, 2);
}

TEST_F(MacCalls, ReturnTheResultOfARequest) {
  iokit::Device held = Mixer();
  held.writeResult = kIOReturnExclusiveAccess;
  EXPECT_EQ(SetMixerOutputSetting(Opened(held), 0), 0xE00002C5u);
}

TEST_F(MacCalls, ReachEveryMixerWithOneRequestEach) {
  CurrentWorld().bus = {Mixer(), Hub(), Mixer()};
  EXPECT_EQ(usb::SendToEveryMixer(10, 0x8003, 0x0300), 2);
  // The hub after the first mixer has no effect. Deliberate: a device that
  // fails after a mixer has an effect.
  EXPECT_THAT(TakeRequests(), ElementsAre("mixer 1: 40 03 0300 8003 0000",
                                          "mixer 2: 40 03 0300 8003 0000"));
}

TEST_F(MacCalls, SendNothingToAMixerBeforeADeviceThatFails) {
  CurrentWorld().bus = {Mixer(), WithoutPlugIn(), Mixer(), WithoutPlugIn()};
  // The two devices without a plug-in are mixers in the registry.
  EXPECT_EQ(usb::SendToEveryMixer(10, 0x8003, 0x0300), 4);
  EXPECT_THAT(TakeRequests(), IsEmpty());
}

}  // namespace
}  // namespace ztk::test
