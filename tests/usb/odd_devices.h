// SPDX-License-Identifier: MIT
//
// Devices that are similar to a mixer, and mixers that fail.
#ifndef ZTK_TESTS_USB_ODD_DEVICES_H_
#define ZTK_TESTS_USB_ODD_DEVICES_H_

#include "fake/world.h"

namespace ztk::test {

inline constexpr fake::Code kGeneralError = 0xE00002BC;
inline constexpr fake::Code kNotResponding = 0xE00002ED;

inline fake::Device SameMakersOtherProduct() {
  fake::Device device;
  device.product = 28;
  return device;
}

inline fake::Device OtherMakersSameProduct() {
  fake::Device device;
  device.vendor = 0x6667;
  return device;
}

// One reason why a device cannot be identified.
struct Defect {
  const char *name;
  fake::Code fake::Device::*result;
};
inline constexpr Defect kDefects[] = {
    {.name = "plug-in", .result = &fake::Device::plugInResult},
    {.name = "class", .result = &fake::Device::classResult},
    {.name = "subclass", .result = &fake::Device::subClassResult},
    {.name = "vendor", .result = &fake::Device::vendorResult},
    {.name = "product", .result = &fake::Device::productResult},
};

inline fake::Device MixerFailing(const Defect &defect) {
  fake::Device mixer = fake::Mixer();
  mixer.*defect.result = kNotResponding;
  return mixer;
}

inline fake::Device MixerFailingAtPlugIn() { return MixerFailing(kDefects[0]); }

inline fake::Device WithoutPlugIn() {
  fake::Device mixer = fake::Mixer();
  mixer.hasPlugIn = false;
  return mixer;
}

inline fake::Device WithoutInterface() {
  fake::Device mixer = fake::Mixer();
  mixer.hasInterface = false;
  return mixer;
}

inline fake::Device OutOfReach() {
  fake::Device mixer = fake::Mixer();
  mixer.canBeOpened = false;
  return mixer;
}

inline fake::Device OtherDeviceHeldByOthers(std::uint32_t references) {
  fake::Device device = fake::OtherDevice();
  device.releaseResult = references;
  return device;
}

// One reason why the bus cannot be read.
struct BusDefect {
  const char *name;
  void (*breakIt)(fake::World *world);
};
inline constexpr BusDefect kNoPort{
    .name = "master port",
    .breakIt = [](fake::World *w) { w->masterPortResult = kNotResponding; }};
inline constexpr BusDefect kNoMatching{
    .name = "matching",
    .breakIt = [](fake::World *w) { w->hasMatching = false; }};
inline constexpr BusDefect kNoServices{
    .name = "enumeration",
    .breakIt = [](fake::World *w) { w->findResult = kNotResponding; }};
inline constexpr BusDefect kNoIterator{
    .name = "iterator",
    .breakIt = [](fake::World *w) { w->hasIterator = false; }};

}  // namespace ztk::test

#endif  // ZTK_TESTS_USB_ODD_DEVICES_H_
