// SPDX-License-Identifier: MIT
//
// Device events for programs in the sandbox that listen through libudev.
#ifndef ZTK_TOOLS_VIRTUAL_MIXER_SANDBOX_UEVENT_H_
#define ZTK_TOOLS_VIRTUAL_MIXER_SANDBOX_UEVENT_H_

#include <cstdint>
#include <string>

#include "virtual-mixer/mixer/usb_tree.h"

namespace ztk::virtual_mixer {

struct Uevent {
  std::string action;   // add, remove
  std::string devPath;  // below /sys, as /devices/...
  Properties properties;
  // Not 0, and higher than that of the event before.
  std::uint64_t sequence = 0;
};

// The event in the format in which udev sends events to libudev.
std::string LibudevMessage(const Uevent &event);

// Sends the event to all programs that listen in the sandbox below `rootDir`:
// umockdev gives each of them a socket there instead of its netlink socket. The
// socket is named after the number of the program's descriptor, so of several
// programs that listen with the same number only the last one gets events. A
// program whose queue is full misses the event, as with the kernel.
void SendUevent(const std::string &rootDir, const Uevent &event);

}  // namespace ztk::virtual_mixer

#endif  // ZTK_TOOLS_VIRTUAL_MIXER_SANDBOX_UEVENT_H_
