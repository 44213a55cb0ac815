// SPDX-License-Identifier: MIT
#include "virtual-mixer/usbip/usbip_devices.h"

#include <utility>

namespace ztk::virtual_mixer::usbip {
namespace {

Export ExportOf(const Device &device) {
  return {.address = device.address,
          .descriptors = &device.descriptors,
          .configuration = device.configuration};
}

}  // namespace

Devices::Devices(const std::vector<Placement> &placements, LogSink log)
    : bus_(placements, DeviceBus::Configuration::ByKernel, std::move(log),
           [this](const Device &device) { lent_[device.position] = false; }),
      lent_(bus_.Count()) {}

std::vector<Export> Devices::Free() {
  std::vector<Export> free;
  for (std::size_t i = 0; i < bus_.Count(); ++i) {
    bus_.WithDevice(i, [&](Device &device) {
      if (device.pluggedIn && !lent_[i]) free.push_back(ExportOf(device));
    });
  }
  return free;
}

ImportStatus Devices::Import(const std::string &busId, Lease *lease) {
  for (std::size_t i = 0; i < bus_.Count(); ++i) {
    if (bus_.At(i).address.Name() == busId) return Import(i, lease);
  }
  return ImportStatus::NoDevice;
}

ImportStatus Devices::Import(std::size_t position, Lease *lease) {
  ImportStatus status = ImportStatus::Ok;
  bus_.WithDevice(position, [&](Device &device) {
    if (!device.pluggedIn) {
      status = ImportStatus::NoDevice;
    } else if (lent_[position]) {
      status = ImportStatus::Busy;
    } else {
      lent_[position] = true;
      *lease = {.device = position, .number = device.connection};
    }
  });
  return status;
}

void Devices::GiveBack(const Lease &lease) {
  bus_.Disconnect(lease,
                  [this](Device &device) { lent_[device.position] = false; });
}

Export Devices::Describe(std::size_t position) {
  Export described;
  bus_.WithDevice(position,
                  [&](Device &device) { described = ExportOf(device); });
  return described;
}

MixerStatus Devices::Status(int mixer) {
  MixerStatus status;
  const std::size_t position = bus_.PositionOf(mixer);
  bus_.WithDevice(position, [&](Device &device) {
    status = {.address = device.address,
              .pluggedIn = device.pluggedIn,
              .forbidden = false,
              .attached = lent_[position]};
  });
  return status;
}

}  // namespace ztk::virtual_mixer::usbip
