// SPDX-License-Identifier: MIT
#include "platform/linux/bus_connection.h"

#include <cerrno>
#include <ctime>

namespace ztk::platform::notification_center {

namespace {

bool IsReady(sd_bus *bus) { return sd_bus_is_ready(bus) > 0; }

bool IsDrained(sd_bus *bus) {
  std::uint64_t unsent = 0;
  return sd_bus_get_n_queued_write(bus, &unsent) >= 0 && unsent == 0;
}

// Processes the connection until `reached` returns true. Returns 0, or an error
// number if the connection breaks or the deadline passes (ETIMEDOUT).
int WorkUntil(bool (*reached)(sd_bus *), sd_bus *bus, std::uint64_t deadline) {
  while (!reached(bus)) {
    const int progress = sd_bus_process(bus, nullptr);
    if (progress < 0) return -progress;
    const std::uint64_t now = Now();
    if (now >= deadline) return ETIMEDOUT;
    if (progress > 0) continue;
    const int waited = sd_bus_wait(bus, deadline - now);
    if (waited < 0 && waited != -EINTR) return -waited;
  }
  return 0;
}

// Writes the cause to *error unless `error` is null. Returns null.
OwnedBus NoBus(int cause, int *error) {
  if (error != nullptr) *error = cause;
  return nullptr;
}

}  // namespace

std::uint64_t Now() {
  timespec now{};
  clock_gettime(CLOCK_MONOTONIC, &now);
  return static_cast<std::uint64_t>(now.tv_sec) * 1'000'000 +
         static_cast<std::uint64_t>(now.tv_nsec) / 1'000;
}

std::uint64_t WaitDeadline() { return Now() + kMaxWait; }

OwnedBus ConnectToSessionBus(std::uint64_t deadline, int *error) {
  if (SdBus() == nullptr) return NoBus(ENOSYS, error);
  sd_bus *opened = nullptr;
  if (const int result = sd_bus_open_user(&opened); result < 0) {
    return NoBus(-result, error);
  }
  OwnedBus bus(opened);
  // The end of the bus must not end the program that uses this library.
  sd_bus_set_exit_on_disconnect(bus.get(), 0);
  const int result = WorkUntil(IsReady, bus.get(), deadline);
  if (result != 0) return NoBus(result, error);
  return bus;
}

int SendAndDrain(sd_bus *bus, sd_bus_message *message, std::uint64_t deadline) {
  if (const int result = sd_bus_send(bus, message, nullptr); result < 0) {
    return -result;
  }
  return WorkUntil(IsDrained, bus, deadline);
}

}  // namespace ztk::platform::notification_center
