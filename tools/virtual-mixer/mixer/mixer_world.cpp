// SPDX-License-Identifier: MIT
#include "virtual-mixer/mixer/mixer_world.h"

#include <algorithm>
#include <array>

namespace ztk::virtual_mixer {

std::vector<Placement> SpreadDevices(int mixers, int others, int buses) {
  constexpr std::array kKinds{DeviceKind::Sibling, DeviceKind::Hub,
                              DeviceKind::Keyboard, DeviceKind::Storage};
  const int total = mixers + others;
  const int before = (others + 1) / 2;
  const int fewest = (total + kPortsOfABus - 1) / kPortsOfABus;
  const int used = std::max({buses, fewest, 1});
  const int onEach = std::max((total + used - 1) / used, 1);
  std::vector<Placement> placements;
  std::size_t other = 0;
  for (int i = 0; i < total; ++i) {
    const bool isMixer = i >= before && i < before + mixers;
    placements.push_back(
        {.kind = isMixer ? DeviceKind::Mixer : kKinds[other++ % kKinds.size()],
         .bus = i / onEach + 1,
         .recorded = nullptr});
  }
  return placements;
}

Descriptors DescriptorsOf(DeviceKind kind, int number) {
  switch (kind) {
    case DeviceKind::Mixer:
      return MixerDescriptors(number);
    case DeviceKind::Hub:
      return HubDescriptors();
    case DeviceKind::Keyboard:
      return KeyboardDescriptors();
    case DeviceKind::Storage:
      return StorageDescriptors();
    case DeviceKind::RootHub:
      return RootHubDescriptors(number);
    case DeviceKind::Sibling:
      break;
  }
  return SiblingDescriptors();
}

}  // namespace ztk::virtual_mixer
