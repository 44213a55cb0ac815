// SPDX-License-Identifier: MIT
//
// Descriptors of the mixer and of the strangers that may stand beside it.
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

// A device with one configuration and one interface that has no endpoints.
struct Descriptors {
  // As they go over the wire; the device's has 18 bytes.
  Bytes device;
  Bytes configuration;
  // Manufacturer, product, serial number: string indexes 1 to 3.
  std::array<std::string, 3> strings;
  // Mbit/s, as sysfs writes it.
  std::string speed;

  std::uint16_t Vendor() const;
  std::uint16_t Product() const;
  std::uint16_t Release() const;
  std::uint8_t DeviceClass() const { return device[4]; }
  std::uint8_t InterfaceClass() const { return configuration[14]; }
};

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
