// SPDX-License-Identifier: MIT
//
// Descriptors of the mixer and of the other devices that may be attached too.
#ifndef ZTK_TOOLS_VIRTUAL_MIXER_MIXER_DESCRIPTORS_H_
#define ZTK_TOOLS_VIRTUAL_MIXER_MIXER_DESCRIPTORS_H_

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "virtual-mixer/mixer/request_line.h"

namespace ztk::virtual_mixer {

using Bytes = std::vector<std::uint8_t>;

inline constexpr std::uint16_t kMixerProduct = 27;

// An interface in its first setting.
struct Interface {
  std::uint8_t number = 0;
  std::uint8_t endpoints = 0;
  std::uint8_t interfaceClass = 0;
  std::uint8_t subclass = 0;
  std::uint8_t protocol = 0;
};

// A device with one configuration.
struct Descriptors {
  // As they go over the wire; the device's has 18 bytes.
  Bytes device;
  Bytes configuration;
  // Manufacturer, product, serial number; the device descriptor has their
  // string indexes.
  std::array<std::string, 3> strings;
  // Mbit/s, as sysfs writes it.
  std::string speed;

  std::uint16_t Vendor() const;
  std::uint16_t Product() const;
  std::uint16_t Release() const;
  std::uint8_t DeviceClass() const { return device[4]; }
  std::uint8_t ConfigurationValue() const { return configuration[5]; }
  std::vector<Interface> Interfaces() const;
};

// Whether the descriptors fill the bytes exactly and one is of an interface.
bool AreWellFormed(const Bytes &configuration);

// The n-th mixer; only the serial number tells mixers apart.
Descriptors MixerDescriptors(int mixer);

Descriptors RootHubDescriptors(int bus);
Descriptors HubDescriptors();
Descriptors KeyboardDescriptors();
Descriptors StorageDescriptors();
// Another product of the mixer's maker, which must not be taken for a mixer.
Descriptors SiblingDescriptors();

}  // namespace ztk::virtual_mixer

#endif  // ZTK_TOOLS_VIRTUAL_MIXER_MIXER_DESCRIPTORS_H_
