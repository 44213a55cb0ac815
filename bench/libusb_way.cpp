// SPDX-License-Identifier: MIT
#include "libusb_way.h"

#include <libusb.h>

#include "build_config.h"
#include "floor_parts.h"

namespace ztk::bench::libusb_way {
namespace {

constexpr std::uint16_t kMixerProductId = 27;
constexpr unsigned kTimeoutMs = 5000;
constexpr std::uint16_t kRoutingRegister = 0x8002;
constexpr std::uint16_t kSelectorLength = 5;

bool IsMixer(libusb_device *device) {
  libusb_device_descriptor descriptor;
  return libusb_get_device_descriptor(device, &descriptor) == 0 &&
         descriptor.idVendor == build::kUsbVendorId &&
         descriptor.idProduct == kMixerProductId;
}

// Calls `visit` with each mixer. Returns the number of mixers for which it
// succeeded.
template <typename Visit>
int ForEachMixer(Visit visit) {
  libusb_context *context = nullptr;
  if (libusb_init(&context) != 0) return -1;
  libusb_device **devices = nullptr;
  const ssize_t count = libusb_get_device_list(context, &devices);
  int mixers = 0;
  for (ssize_t i = 0; i < count; ++i) {
    if (!IsMixer(devices[i])) continue;
    if (visit(devices[i])) ++mixers;
  }
  if (count >= 0) libusb_free_device_list(devices, 1);
  libusb_exit(context);
  return mixers;
}

bool Send(libusb_device *mixer, std::uint16_t value) {
  libusb_device_handle *handle = nullptr;
  if (libusb_open(mixer, &handle) != 0) return false;
  const int sent = libusb_control_transfer(
      handle, 0x40, 3, value, kRoutingRegister, nullptr, 0, kTimeoutMs);
  libusb_close(handle);
  return sent == 0;
}

int ReadSelector(libusb_device *mixer, std::uint32_t channel) {
  libusb_device_handle *handle = nullptr;
  if (libusb_open(mixer, &handle) != 0) return -1;
  unsigned char positions[kSelectorLength] = {};
  const int got =
      libusb_control_transfer(handle, 0xC0, 0, 0, kRoutingRegister, positions,
                              kSelectorLength, kTimeoutMs);
  libusb_close(handle);
  if (got != kSelectorLength || channel + 1 >= kSelectorLength) return -1;
  return positions[channel + 1];
}

}  // namespace

int Count() {
  return ForEachMixer([](libusb_device *) { return true; });
}

int Set(std::uint32_t channel, std::uint32_t index, std::uint16_t value) {
  // Both requests use the same list of devices. So the value is stored and
  // announced after both requests; the library does this between them.
  const int mixers = ForEachMixer([&](libusb_device *mixer) {
    const bool sent = Send(mixer, value);
    return ReadSelector(mixer, channel) >= 0 && sent;
  });
  floor::StoreIndex(channel, index);
  floor::AnnounceIndex(channel, index);
  return mixers;
}

int Query(std::uint32_t channel) {
  int position = -1;
  ForEachMixer([&](libusb_device *mixer) {
    position = ReadSelector(mixer, channel);
    return position >= 0;
  });
  return position;
}

int Apply(std::uint16_t value) {
  floor::ReadSettings();
  return ForEachMixer([&](libusb_device *mixer) { return Send(mixer, value); });
}

}  // namespace ztk::bench::libusb_way
