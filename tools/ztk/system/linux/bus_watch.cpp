// SPDX-License-Identifier: MIT
#include "ztk/system/bus_watch.h"

#include "platform/linux/bus_connection.h"

namespace ztk::model {

namespace center = platform::notification_center;

struct BusWatch::Connection {
  center::OwnedBus bus = center::ConnectToSessionBus(center::WaitDeadline());
};

BusWatch::BusWatch() : connection_(std::make_unique<Connection>()) {}

BusWatch::~BusWatch() = default;

bool BusWatch::IsAlive() {
  center::OwnedBus &bus = connection_->bus;
  if (bus == nullptr) return false;
  int progress = 0;
  do {
    progress = center::sd_bus_process(bus.get(), nullptr);
  } while (progress > 0);
  if (progress < 0 || center::sd_bus_is_open(bus.get()) <= 0) bus.reset();
  return bus != nullptr;
}

int BusWatch::descriptor() const {
  const center::OwnedBus &bus = connection_->bus;
  return bus == nullptr ? -1 : center::sd_bus_get_fd(bus.get());
}

}  // namespace ztk::model
