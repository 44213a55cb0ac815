// SPDX-License-Identifier: MIT
//
// Tests counting and opening mixers. USB_slot_test.cpp tests occupied slots,
// references and closing.
#include "usb/USB.h"

#include "support/core_test.h"
#include "usb/odd_devices.h"

namespace ztk::test {
namespace {

using usb::Connection;

class CheckUSBAudioTest : public CoreTest {};

TEST_F(CheckUSBAudioTest, CountsOnlyTheMixers) {
  EXPECT_EQ(CheckUSBAudio(10), 0);
  CurrentWorld().bus = {SameMakersOtherProduct(), OtherMakersSameProduct(),
                        OtherDevice()};
  EXPECT_EQ(CheckUSBAudio(10), 0);
  CurrentWorld().bus = {Mixer(),       SameMakersOtherProduct(), Mixer(),
                        OtherDevice(), OtherMakersSameProduct(), Mixer()};
  EXPECT_EQ(CheckUSBAudio(10), 3);
}

TEST_F(CheckUSBAudioTest, IgnoresTheProductId) {
  CurrentWorld().bus = {Mixer(), Mixer()};
  for (const std::uint32_t productId : {0u, 8u, 10u, 11u, 0xFFFFFFFFu}) {
    SCOPED_TRACE(productId);
    EXPECT_EQ(CheckUSBAudio(productId), 2);
  }
}

TEST_F(CheckUSBAudioTest, DoesNotReleaseTwoNumbersAndOnePort) {
  CurrentWorld().bus = {OtherDevice(), Mixer(), Mixer()};
  EXPECT_EQ(CheckUSBAudio(10), 2);
  EXPECT_EQ(CurrentWorld().held, (fake::Held{.ports = 1, .numbers = 2}));
  EXPECT_EQ(CheckUSBAudio(10), 2);
  EXPECT_EQ(CurrentWorld().held, (fake::Held{.ports = 2, .numbers = 4}));
}

TEST_F(CheckUSBAudioTest, RestrictsTheMatchingAndOpensNothing) {
  CurrentWorld().bus = {OtherDevice(), Mixer(), Mixer()};
  CheckUSBAudio(10);
  EXPECT_THAT(
      TakeCalls(),
      ElementsAre("get master port", "create matching IOUSBDevice",
                  "make number 26214", "match idVendor 26214", "make number 27",
                  "match idProduct 27", "find services that match",
                  "next service", "release service", "next service",
                  "release service", "no further service", "release iterator"));
}

TEST_F(CheckUSBAudioTest, CountsMixersThatCannotBeOpened) {
  CurrentWorld().bus = {OutOfReach(), WithoutInterface(),
                        MixerFailingAtPlugIn()};
  EXPECT_EQ(CheckUSBAudio(10), 3);
}

TEST_F(CheckUSBAudioTest, CountsEvenWithoutAMasterPort) {
  CurrentWorld().bus = {Mixer()};
  CurrentWorld().masterPortResult = kNotResponding;
  EXPECT_EQ(CheckUSBAudio(10), 1);
  EXPECT_EQ(CurrentWorld().held, (fake::Held{.numbers = 2}));
}

TEST_F(CheckUSBAudioTest, IsZeroWithoutAMatching) {
  CurrentWorld().bus = {Mixer()};
  CurrentWorld().hasMatching = false;
  EXPECT_EQ(CheckUSBAudio(10), 0);
  EXPECT_THAT(TakeCalls(),
              ElementsAre("get master port", "create matching IOUSBDevice"));
  EXPECT_EQ(CurrentWorld().held, (fake::Held{.ports = 1}));
}

TEST_F(CheckUSBAudioTest, IsZeroWhenTheEnumerationFails) {
  CurrentWorld().bus = {Mixer()};
  CurrentWorld().findResult = kNotResponding;
  EXPECT_EQ(CheckUSBAudio(10), 0);
  EXPECT_EQ(CurrentWorld().held, (fake::Held{.ports = 1, .numbers = 2}));
}

TEST_F(CheckUSBAudioTest, IsZeroWithoutAnIterator) {
  CurrentWorld().bus = {Mixer()};
  CurrentWorld().hasIterator = false;
  EXPECT_EQ(CheckUSBAudio(10), 0);
  EXPECT_EQ(CurrentWorld().held, (fake::Held{.ports = 1, .numbers = 2}));
}

class OpenPipesTest : public CoreTest {};

TEST_F(OpenPipesTest, DoesNothingForANullSlot) {
  CurrentWorld().bus = {Mixer()};
  EXPECT_EQ(open_pipes(nullptr, 0), kGeneralError);
  EXPECT_THAT(TakeCalls(), IsEmpty());
}

TEST_F(OpenPipesTest, SetsTheSlotToNullFirst) {
  CurrentWorld().bus = {Mixer()};
  Connection old = nullptr;
  ASSERT_EQ(open_pipes(&old, 0), 0u);
  Connection slot = old;
  EXPECT_EQ(open_pipes(&slot, 0), 0u);
  EXPECT_NE(slot, nullptr);
  EXPECT_NE(slot, old);

  slot = old;
  EXPECT_EQ(open_pipes(&slot, 1), kGeneralError);
  EXPECT_EQ(slot, nullptr);
}

TEST_F(OpenPipesTest, OpensTheMixersInRegistryOrder) {
  CurrentWorld().bus = {OtherDevice(), Mixer(), SameMakersOtherProduct(),
                        Mixer()};
  Connection first = nullptr;
  Connection second = nullptr;
  EXPECT_EQ(open_pipes(&first, 0), 0u);
  EXPECT_EQ(open_pipes(&second, 1), 0u);
  EXPECT_NE(first, second);
  EXPECT_THAT(TakeSteps(), ElementsAre("open 1", "open 2"));
}

TEST_F(OpenPipesTest, ChoosesNoDeviceOfAnotherMakerOrWithAnotherProduct) {
  CurrentWorld().bus = {OtherMakersSameProduct(), SameMakersOtherProduct(),
                        OtherDevice()};
  Connection slot = nullptr;
  EXPECT_EQ(open_pipes(&slot, 0), kGeneralError);
  EXPECT_EQ(slot, nullptr);
  CurrentWorld().bus.push_back(Mixer());
  EXPECT_EQ(open_pipes(&slot, 0), 0u);
  EXPECT_THAT(TakeSteps(), ElementsAre("open 1"));
}

TEST_F(OpenPipesTest, ReportsAnIndexBeyondTheMixers) {
  CurrentWorld().bus = {Mixer(), Mixer(), OtherDevice()};
  for (const std::uint32_t index : {2u, 3u, 0x80000000u, 0xFFFFFFFFu}) {
    SCOPED_TRACE(index);
    Connection slot = nullptr;
    EXPECT_EQ(open_pipes(&slot, index), kGeneralError);
    EXPECT_EQ(slot, nullptr);
  }
  EXPECT_THAT(TakeSteps(), IsEmpty());
  EXPECT_EQ(CurrentWorld().held, fake::Held{});
}

TEST_F(OpenPipesTest, VisitsEveryDeviceAndReadsItsIdentity) {
  CurrentWorld().bus = {OtherDevice(), Mixer(), OtherDevice()};
  Connection slot = nullptr;
  EXPECT_EQ(open_pipes(&slot, 0), 0u);
  EXPECT_THAT(
      TakeCalls(),
      ElementsAre("get master port", "create matching IOUSBDevice",
                  "find every service",
                  // A device before the chosen one.
                  "next service", "create plug-in", "release service",
                  "query device interface", "release plug-in", "get class",
                  "get subclass", "get vendor", "get product",
                  "release device interface",
                  // The chosen one.
                  "next service", "create plug-in", "release service",
                  "query device interface", "release plug-in", "get class",
                  "get subclass", "get vendor", "get product", "make ready",
                  // A device after it: its identity is read, but it is not
                  // released.
                  "next service", "create plug-in", "release service",
                  "query device interface", "release plug-in", "get class",
                  "get subclass", "get vendor", "get product",
                  // The end.
                  "no further service", "release iterator",
                  "release master port"));
}

TEST_F(OpenPipesTest, ReadsNothingMoreOfADeviceAfterAFailure) {
  CurrentWorld().bus = {MixerFailing(kDefects[2]), Mixer()};
  Connection slot = nullptr;
  EXPECT_EQ(open_pipes(&slot, 0), 0u);
  EXPECT_THAT(
      TakeCalls(),
      ElementsAre("get master port", "create matching IOUSBDevice",
                  "find every service", "next service", "create plug-in",
                  "release service", "query device interface",
                  "release plug-in", "get class", "get subclass",
                  "release device interface", "next service", "create plug-in",
                  "release service", "query device interface",
                  "release plug-in", "get class", "get subclass", "get vendor",
                  "get product", "make ready", "no further service",
                  "release iterator", "release master port"));
}

TEST_F(OpenPipesTest, SkipsADeviceThatFailsBeforeTheChosenOne) {
  for (const Defect &defect : kDefects) {
    SCOPED_TRACE(defect.name);
    CurrentWorld() = World{};
    CurrentWorld().bus = {MixerFailing(defect), Mixer()};
    Connection slot = nullptr;
    EXPECT_EQ(open_pipes(&slot, 0), 0u);
    ASSERT_NE(slot, nullptr);
    closeUSB(&slot);
    EXPECT_EQ(CurrentWorld().held, fake::Held{});
  }
}

TEST_F(OpenPipesTest, FailsButKeepsTheMixerIfADeviceAfterItFails) {
  for (const Defect &defect : kDefects) {
    SCOPED_TRACE(defect.name);
    CurrentWorld() = World{};
    CurrentWorld().bus = {Mixer(), MixerFailing(defect)};
    Connection slot = nullptr;
    EXPECT_EQ(open_pipes(&slot, 0), kNotResponding);
    ASSERT_NE(slot, nullptr);
    SetMixerOutputSetting(slot, 0);
    EXPECT_THAT(TakeSteps(),
                ElementsAre("open 1", "mixer 1: 40 03 0000 8002 0000"));
  }
}

TEST_F(OpenPipesTest, ReturnsTheResultOfTheLastDeviceOnly) {
  CurrentWorld().bus = {Mixer(), MixerFailingAtPlugIn(), OtherDevice()};
  Connection slot = nullptr;
  EXPECT_EQ(open_pipes(&slot, 0), 0u);
  EXPECT_NE(slot, nullptr);
}

TEST_F(OpenPipesTest, SkipsADeviceWithoutAnInterface) {
  CurrentWorld().bus = {WithoutInterface(), Mixer(), WithoutInterface()};
  Connection slot = nullptr;
  EXPECT_EQ(open_pipes(&slot, 0), 0u);
  ASSERT_NE(slot, nullptr);
  closeUSB(&slot);
  EXPECT_EQ(CurrentWorld().held, fake::Held{});
  EXPECT_EQ(open_pipes(&slot, 1), kGeneralError);
}

TEST_F(OpenPipesTest, SkipsADeviceWhosePlugInIsNullOnSuccess) {
  CurrentWorld().bus = {WithoutPlugIn(), Mixer(), WithoutPlugIn()};
  Connection slot = nullptr;
  EXPECT_EQ(open_pipes(&slot, 0), 0u);
  EXPECT_THAT(TakeSteps(), ElementsAre("open 2"));
  ASSERT_NE(slot, nullptr);
  closeUSB(&slot);
  EXPECT_EQ(CurrentWorld().held, fake::Held{});
}

TEST_F(OpenPipesTest, FailsAndLeavesTheSlotNullForAMixerThatCannotBeOpened) {
  CurrentWorld().bus = {OutOfReach(), Mixer()};
  Connection slot = nullptr;
  EXPECT_EQ(open_pipes(&slot, 0), kGeneralError);
  EXPECT_EQ(slot, nullptr);
  EXPECT_EQ(open_pipes(&slot, 1), 0u);
  EXPECT_NE(slot, nullptr);
  EXPECT_THAT(TakeSteps(), ElementsAre("cannot open 1", "open 2"));
}

TEST_F(OpenPipesTest, FailsIfTheBusCannotBeReadAndReleasesEverything) {
  for (const BusDefect &defect :
       {kNoPort, kNoMatching, kNoServices, kNoIterator}) {
    SCOPED_TRACE(defect.name);
    CurrentWorld() = World{};
    CurrentWorld().bus = {Mixer()};
    defect.breakIt(&CurrentWorld());
    Connection slot = nullptr;
    EXPECT_EQ(open_pipes(&slot, 0), kGeneralError);
    EXPECT_EQ(slot, nullptr);
    EXPECT_THAT(TakeSteps(), IsEmpty());
    EXPECT_EQ(CurrentWorld().held, fake::Held{});
  }
}

TEST_F(OpenPipesTest, FindsNoServicesWithoutAMasterPort) {
  CurrentWorld().masterPortResult = kNotResponding;
  Connection slot = nullptr;
  open_pipes(&slot, 0);
  EXPECT_THAT(TakeCalls(), ElementsAre("get master port"));
}

}  // namespace
}  // namespace ztk::test
