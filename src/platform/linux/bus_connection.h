// SPDX-License-Identifier: MIT
//
// Private connections to the session bus. Every wait for the bus has a limit.
// Without the limit, sd-bus would wait 90 s for a bus that accepts a connection
// and then does not answer.
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
inline constexpr std::uint64_t kMaxWait = 1'000'000;

// Returns the microseconds of the monotonic clock, which sd-bus uses.
std::uint64_t Now();

// Returns the time at which a wait that begins now has to end.
std::uint64_t WaitDeadline();

// Connects to the session bus and waits until messages can be sent. Returns
// null at once if there is no bus or the library with sd-bus is not installed,
// and after the deadline if the bus does not answer. Then *error is an errno
// value, if `error` is not null: ENOSYS without sd-bus, ETIMEDOUT for the
// deadline.
OwnedBus ConnectToSessionBus(std::uint64_t deadline, int *error = nullptr);

// Sends the message. Returns 0 when this process has written the whole message
// to the connection, else an errno value: the connection broke, or the deadline
// passed (ETIMEDOUT).
int SendAndDrain(sd_bus *bus, sd_bus_message *message, std::uint64_t deadline);

}  // namespace ztk::platform::notification_center

#endif  // ZTK_PLATFORM_LINUX_BUS_CONNECTION_H_
