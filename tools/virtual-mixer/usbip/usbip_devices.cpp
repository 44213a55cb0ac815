// SPDX-License-Identifier: MIT
#include "virtual-mixer/usbip/usbip_devices.h"

#include <map>
#include <utility>

#include "virtual-mixer/mixer/standard_requests.h"

namespace ztk::virtual_mixer::usbip {

Devices::Devices(const std::vector<Placement> &placements, LogSink log)
    : log_(std::move(log)) {
  std::map<int, int> lastPort;
  for (const Placement &placement : placements) {
    auto device = std::make_unique<Device>();
    device->address = {.bus = placement.bus, .port = ++lastPort[placement.bus]};
    if (placement.kind == DeviceKind::Mixer) {
      mixers_.push_back(devices_.size());
      device->mixer = MixerCount();
      device->model = std::make_unique<MixerModel>(device->mixer);
    }
    device->descriptors = DescriptorsOf(placement.kind, device->mixer);
    devices_.push_back(std::move(device));
  }
}

std::vector<Export> Devices::Free() const {
  const std::lock_guard lock(mutex_);
  std::vector<Export> free;
  for (const auto &device : devices_) {
    if (!device->pluggedIn || device->lease) continue;
    free.push_back({.address = device->address,
                    .descriptors = &device->descriptors,
                    .configuration = device->configuration});
  }
  return free;
}

ImportStatus Devices::Import(const std::string &busId, Lease *lease) {
  const std::lock_guard lock(mutex_);
  for (std::size_t i = 0; i < devices_.size(); ++i) {
    if (devices_[i]->address.Name() == busId) return Lend(i, lease);
  }
  return ImportStatus::NoDevice;
}

ImportStatus Devices::Import(std::size_t device, Lease *lease) {
  const std::lock_guard lock(mutex_);
  return Lend(device, lease);
}

ImportStatus Devices::Lend(std::size_t device, Lease *lease) {
  Device &wanted = *devices_[device];
  if (!wanted.pluggedIn) return ImportStatus::NoDevice;
  if (wanted.lease) return ImportStatus::Busy;
  wanted.lease = ++leases_;
  *lease = {.device = device, .number = leases_};
  return ImportStatus::Ok;
}

// The next kernel finds the device as if it had just been plugged in.
void Devices::EndLease(Device *device) {
  device->lease.reset();
  device->configuration = 0;
  if (device->model && device->model->Attached()) {
    device->model->SetAttached(true);
  }
}

void Devices::GiveBack(const Lease &lease) {
  const std::lock_guard lock(mutex_);
  if (HoldsLocked(lease)) EndLease(devices_[lease.device].get());
}

bool Devices::Holds(const Lease &lease) const {
  const std::lock_guard lock(mutex_);
  return HoldsLocked(lease);
}

bool Devices::HoldsLocked(const Lease &lease) const {
  return devices_[lease.device]->lease == lease.number;
}

Export Devices::Describe(std::size_t device) const {
  const std::lock_guard lock(mutex_);
  const Device &described = *devices_[device];
  return {.address = described.address,
          .descriptors = &described.descriptors,
          .configuration = described.configuration};
}

Answer Devices::Handle(const Lease &lease, const ControlRequest &request) {
  const std::lock_guard lock(mutex_);
  Device &device = *devices_[lease.device];
  Answer answer;
  if (!HoldsLocked(lease)) {
    answer.outcome = Outcome::Gone;
  } else if (device.model) {
    answer = device.model->Handle(request);
    device.configuration = device.model->Configuration();
    // The fault took it off the bus while the request was under way.
    if (!device.model->Attached()) {
      device.pluggedIn = false;
      EndLease(&device);
    }
  } else if (IsStandardRequest(request.setup)) {
    answer.outcome = AnswerStandardRequest(device.descriptors, request.setup,
                                           &device.configuration, &answer.data);
  } else {
    answer.outcome = Outcome::Stall;
  }
  if (device.configuration != 0) configured_.notify_all();
  return answer;
}

void Devices::Observe(std::size_t device, const SetupPacket &setup,
                      Outcome outcome, const Bytes &delivered) {
  // Without the other lock: numbers of mixers never change.
  const int mixer = devices_[device]->mixer;
  if (!log_ || mixer == 0) return;
  const std::string line =
      RequestLine(mixer, setup, outcome, delivered.data(), delivered.size());
  const std::lock_guard lock(logMutex_);
  log_(line);
}

bool Devices::WaitUntilConfigured(std::size_t device,
                                  std::chrono::milliseconds longest) const {
  std::unique_lock lock(mutex_);
  return configured_.wait_for(
      lock, longest, [&] { return devices_[device]->configuration != 0; });
}

std::size_t Devices::PositionOf(int mixer) const {
  return mixers_.at(static_cast<std::size_t>(mixer - 1));
}

MixerStatus Devices::Status(int mixer) const {
  const std::lock_guard lock(mutex_);
  const Device &device = *devices_[PositionOf(mixer)];
  return {.address = device.address,
          .pluggedIn = device.pluggedIn,
          .forbidden = false,
          .attached = device.lease.has_value()};
}

void Devices::WithMixer(int mixer,
                        const std::function<void(MixerModel &)> &visit) {
  const std::lock_guard lock(mutex_);
  visit(*devices_[PositionOf(mixer)]->model);
}

bool Devices::PlugIn(int mixer) {
  const std::lock_guard lock(mutex_);
  Device &device = *devices_[PositionOf(mixer)];
  if (device.pluggedIn) return false;
  device.pluggedIn = true;
  device.model->SetAttached(true);
  return true;
}

bool Devices::Unplug(int mixer) {
  const std::lock_guard lock(mutex_);
  Device &device = *devices_[PositionOf(mixer)];
  if (!device.pluggedIn) return false;
  device.pluggedIn = false;
  device.model->SetAttached(false);
  EndLease(&device);
  return true;
}

}  // namespace ztk::virtual_mixer::usbip
