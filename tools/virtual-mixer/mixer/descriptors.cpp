// SPDX-License-Identifier: MIT
#include "virtual-mixer/mixer/descriptors.h"

#include <cstdio>

#include "build_config.h"

namespace ztk::virtual_mixer {
namespace {

constexpr std::uint8_t kVendorSpecific = 0xFF;
constexpr std::uint8_t kHubClass = 0x09;
constexpr std::uint8_t kInputClass = 0x03;
constexpr std::uint8_t kStorageClass = 0x08;

// Vendor of the kernel's own root hubs, and product ids that nobody uses.
constexpr std::uint16_t kKernelVendor = 0x1D6B;
constexpr std::uint16_t kRootHubProduct = 0x0002;
constexpr std::uint16_t kHubProduct = 0xF001;
constexpr std::uint16_t kKeyboardProduct = 0xF002;
constexpr std::uint16_t kStorageProduct = 0xF003;
constexpr std::uint16_t kSiblingProduct = 28;

struct Identity {
  std::uint16_t vendor;
  std::uint16_t product;
  std::uint16_t release;
  std::uint16_t usbVersion;
  std::uint8_t deviceClass;
  std::uint8_t interfaceClass;
};

std::uint8_t Low(std::uint16_t word) {
  return static_cast<std::uint8_t>(word & 0xFF);
}
std::uint8_t High(std::uint16_t word) {
  return static_cast<std::uint8_t>(word >> 8);
}
std::uint16_t Word(const Bytes &bytes, std::size_t at) {
  return static_cast<std::uint16_t>(bytes[at] | (bytes[at + 1] << 8));
}

Bytes DeviceDescriptor(const Identity &id) {
  return {18,
          1,  // device descriptor
          Low(id.usbVersion),
          High(id.usbVersion),
          id.deviceClass,
          0,   // subclass
          0,   // protocol
          64,  // bytes in a packet of the default pipe
          Low(id.vendor),
          High(id.vendor),
          Low(id.product),
          High(id.product),
          Low(id.release),
          High(id.release),
          1,   // string: manufacturer
          2,   // string: product
          3,   // string: serial number
          1};  // configurations
}

// A configuration and its only interface.
Bytes ConfigurationDescriptor(const Identity &id) {
  return {9,
          2,  // configuration descriptor
          18,
          0,     // total length in bytes: 18
          1,     // interfaces
          1,     // number of this configuration
          0,     // no string
          0xC0,  // self-powered
          0,     // takes no current from the bus
          9,
          4,  // interface descriptor
          0,  // number of this interface
          0,  // alternate setting
          0,  // endpoints besides the default pipe
          id.interfaceClass,
          0,   // subclass
          0,   // protocol
          0};  // no string
}

Descriptors Make(const Identity &id, std::array<std::string, 3> strings,
                 std::string speed) {
  Descriptors made;
  made.device = DeviceDescriptor(id);
  made.configuration = ConfigurationDescriptor(id);
  made.strings = std::move(strings);
  made.speed = std::move(speed);
  return made;
}

std::string Numbered(const char *format, int number) {
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), format, number);
  return text.data();
}

// An interface descriptor has 9 bytes.
bool IsInterface(const std::uint8_t *descriptor) {
  return descriptor[0] >= 9 && descriptor[1] == 4;
}

// Calls `visit` with each descriptor, whose first byte is its length. False
// when a length is wrong.
template <typename Visit>
bool VisitDescriptors(const Bytes &bytes, Visit visit) {
  std::size_t at = 0;
  while (at < bytes.size()) {
    const std::size_t length = bytes[at];
    if (length < 2 || length > bytes.size() - at) return false;
    visit(bytes.data() + at);
    at += length;
  }
  return true;
}

}  // namespace

std::uint16_t Descriptors::Vendor() const { return Word(device, 8); }
std::uint16_t Descriptors::Product() const { return Word(device, 10); }
std::uint16_t Descriptors::Release() const { return Word(device, 12); }

std::vector<Interface> Descriptors::Interfaces() const {
  std::vector<Interface> interfaces;
  VisitDescriptors(configuration, [&](const std::uint8_t *bytes) {
    if (!IsInterface(bytes) || bytes[3] != 0) return;
    interfaces.push_back({.number = bytes[2],
                          .endpoints = bytes[4],
                          .interfaceClass = bytes[5],
                          .subclass = bytes[6],
                          .protocol = bytes[7]});
  });
  return interfaces;
}

bool AreWellFormed(const Bytes &configuration) {
  bool hasInterface = false;
  const bool whole =
      VisitDescriptors(configuration, [&](const std::uint8_t *bytes) {
        hasInterface = hasInterface || (IsInterface(bytes) && bytes[3] == 0);
      });
  return whole && hasInterface;
}

Descriptors MixerDescriptors(int mixer) {
  return Make({.vendor = build::kUsbVendorId,
               .product = kMixerProduct,
               .release = 0x0436,
               .usbVersion = 0x0110,
               .deviceClass = 0,
               .interfaceClass = kVendorSpecific},
              {"Tarvix", "VRM-D6", Numbered("VIRTUAL%04d", mixer)}, "12");
}

Descriptors RootHubDescriptors(int bus) {
  return Make(
      {.vendor = kKernelVendor,
       .product = kRootHubProduct,
       .release = 0x0601,
       .usbVersion = 0x0200,
       .deviceClass = kHubClass,
       .interfaceClass = kHubClass},
      {"Linux", "Virtual Host Controller", Numbered("0000:00:14.%x", bus - 1)},
      "480");
}

Descriptors HubDescriptors() {
  return Make({.vendor = kKernelVendor,
               .product = kHubProduct,
               .release = 0x0100,
               .usbVersion = 0x0200,
               .deviceClass = kHubClass,
               .interfaceClass = kHubClass},
              {"Virtual", "Hub", "H1"}, "480");
}

Descriptors KeyboardDescriptors() {
  return Make({.vendor = kKernelVendor,
               .product = kKeyboardProduct,
               .release = 0x0100,
               .usbVersion = 0x0110,
               .deviceClass = 0,
               .interfaceClass = kInputClass},
              {"Virtual", "Keyboard", "K1"}, "12");
}

Descriptors StorageDescriptors() {
  return Make({.vendor = kKernelVendor,
               .product = kStorageProduct,
               .release = 0x0100,
               .usbVersion = 0x0200,
               .deviceClass = 0,
               .interfaceClass = kStorageClass},
              {"Virtual", "Memory Stick", "S1"}, "480");
}

Descriptors SiblingDescriptors() {
  return Make({.vendor = build::kUsbVendorId,
               .product = kSiblingProduct,
               .release = 0x0100,
               .usbVersion = 0x0110,
               .deviceClass = 0,
               .interfaceClass = kVendorSpecific},
              {"Tarvix", "Foot Switch", "F1"}, "12");
}

}  // namespace ztk::virtual_mixer
