// SPDX-License-Identifier: MIT
//
// Private connections to the session bus, and waiting on them for a limited
// time. Without the limit, sd-bus would wait 90 s for a bus that accepts a
// connection and then does not answer.
#ifndef ZTK_PLATFORM_LINUX_BUS_CONNECTION_H_
#define ZTK_PLATFORM_LINUX_BUS_CONNECTION_H_

#include <cstdint>
#include <memory>

#include "platform/linux/sd_bus_library.h"

namespace ztk::platform::notification_center {

struct BusCloser {
  void operator()(sd_bus *bus) const {
    SdBus()->sd_bus_close(bus);
    SdBus()->sd_bus_unref(bus);
  }
};
using OwnedBus = std::unique_ptr<sd_bus, BusCloser>;

// The longest wait for a bus that does not answer, in microseconds.
inline constexpr std::uint64_t kPatience = 1'000'000;

// Microseconds on the monotonic clock, which sd-bus uses.
std::uint64_t Now();

// The end of a wait that starts now, on that clock.
std::uint64_t PatienceEnds();

// Connects to the session bus and waits until messages can be sent. Null when
// there is no bus or no sd-bus (at once), or when the deadline passes; *error,
// if given, is then an errno value: ETIMEDOUT for the deadline, ENOSYS where
// there is no sd-bus.
OwnedBus ConnectToSessionBus(std::uint64_t deadline, int *error = nullptr);

// Sends the message. Returns 0 when all of it has left this process, else an
// errno value: the connection broke, or the deadline passed (ETIMEDOUT).
int SendAndDrain(sd_bus *bus, sd_bus_message *message, std::uint64_t deadline);

}  // namespace ztk::platform::notification_center

#endif  // ZTK_PLATFORM_LINUX_BUS_CONNECTION_H_
