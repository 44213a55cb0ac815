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

// Works on the connection until it is in the wanted state. False when it
// breaks first, or the deadline passes.
bool WorkUntil(bool (*reached)(sd_bus *), sd_bus *bus, std::uint64_t deadline) {
  while (!reached(bus)) {
    const int progress = sd_bus_process(bus, nullptr);
    if (progress < 0) return false;
    const std::uint64_t now = Now();
    if (now >= deadline) return false;
    if (progress > 0) continue;
    const int waited = sd_bus_wait(bus, deadline - now);
    if (waited < 0 && waited != -EINTR) return false;
  }
  return true;
}

}  // namespace

std::uint64_t Now() {
  timespec now{};
  clock_gettime(CLOCK_MONOTONIC, &now);
  return static_cast<std::uint64_t>(now.tv_sec) * 1'000'000 +
         static_cast<std::uint64_t>(now.tv_nsec) / 1'000;
}

std::uint64_t PatienceEnds() { return Now() + kPatience; }

OwnedBus ConnectToSessionBus(std::uint64_t deadline) {
  if (SdBus() == nullptr) return nullptr;
  sd_bus *opened = nullptr;
  if (sd_bus_open_user(&opened) < 0) return nullptr;
  OwnedBus bus(opened);
  // A library must not end its program when the bus goes away.
  sd_bus_set_exit_on_disconnect(bus.get(), 0);
  if (!WorkUntil(IsReady, bus.get(), deadline)) return nullptr;
  return bus;
}

void SendAndDrain(sd_bus *bus, sd_bus_message *message,
                  std::uint64_t deadline) {
  if (sd_bus_send(bus, message, nullptr) < 0) return;
  WorkUntil(IsDrained, bus, deadline);
}

}  // namespace ztk::platform::notification_center
