// SPDX-License-Identifier: MIT
#include "virtual-mixer/mixer/device_bus.h"

#include <algorithm>
#include <map>
#include <stdexcept>
#include <utility>

#include "virtual-mixer/mixer/standard_requests.h"

namespace ztk::virtual_mixer {

DeviceBus::DeviceBus(const std::vector<Placement> &placements,
                     Configuration configuration, LogSink log,
                     Listener listener)
    : configuration_(configuration),
      log_(std::move(log)),
      listener_(std::move(listener)) {
  std::map<int, int> lastPort;
  for (const Placement &placement : placements) {
    const bool isRootHub = placement.kind == DeviceKind::RootHub;
    AddDevice(placement, isRootHub ? 0 : ++lastPort[placement.bus]);
  }
}

void DeviceBus::AddDevice(const Placement &placement, int port) {
  if (port > kPortsOfABus) {
    throw std::runtime_error("bus " + std::to_string(placement.bus) +
                             " has no port left");
  }
  auto device = std::make_unique<Device>();
  device->position = devices_.size();
  device->address = {.bus = placement.bus, .port = port};
  if (placement.kind == DeviceKind::Mixer) {
    mixers_.push_back(device->position);
    device->mixer = MixerCount();
    device->model = std::make_unique<MixerModel>();
  }
  device->descriptors =
      DescriptorsOf(placement.kind, port == 0 ? placement.bus : device->mixer);
  if (placement.recorded) Replay(*placement.recorded, device.get());
  Reset(device.get());
  devices_.push_back(std::move(device));
}

// Reports have no serial number; the mixer keeps that of a virtual mixer. A
// register without a known reply has an empty one.
void DeviceBus::Replay(const RecordedMixer &recorded, Device *device) {
  const std::string serial = device->descriptors.strings[2];
  device->descriptors = recorded.descriptors;
  device->descriptors.strings[2] = serial;
  const MixerModel usual;
  for (const auto &entry : usual.Replies()) {
    const auto reply = recorded.replies.find(entry.first);
    device->model->SetReply(
        entry.first, reply != recorded.replies.end() ? reply->second : Bytes());
  }
  for (const Fault &fault : recorded.faults) device->model->AddFault(fault);
}

int DeviceBus::OtherCount() const {
  return static_cast<int>(
      std::count_if(devices_.begin(), devices_.end(), [](const auto &device) {
        return device->mixer == 0 && device->address.port != 0;
      }));
}

std::size_t DeviceBus::PositionOf(int mixer) const {
  return mixers_.at(static_cast<std::size_t>(mixer - 1));
}

void DeviceBus::WithDevice(std::size_t device,
                           const std::function<void(Device &)> &visit) {
  const std::lock_guard lock(mutex_);
  visit(*devices_[device]);
}

void DeviceBus::WithMixer(int mixer,
                          const std::function<void(MixerModel &)> &visit) {
  const std::lock_guard lock(mutex_);
  visit(*Mixer(mixer).model);
}

bool DeviceBus::PlugIn(int mixer) {
  const std::lock_guard lock(mutex_);
  Device &device = Mixer(mixer);
  if (device.pluggedIn) return false;
  device.pluggedIn = true;
  if (listener_) listener_(device);
  return true;
}

bool DeviceBus::Unplug(int mixer) {
  const std::lock_guard lock(mutex_);
  Device &device = Mixer(mixer);
  if (!device.pluggedIn) return false;
  UnplugLocked(&device);
  return true;
}

void DeviceBus::UnplugLocked(Device *device) {
  device->pluggedIn = false;
  Reset(device);
  if (listener_) listener_(*device);
}

// Sets the state of a device that was just plugged in. The values that were set
// stay: the mixer has its own power supply.
void DeviceBus::Reset(Device *device) const {
  device->configuration = configuration_ == Configuration::AtOnce
                              ? device->descriptors.ConfigurationValue()
                              : std::uint8_t{0};
  ++device->connection;
}

Connection DeviceBus::Connect(std::size_t device) const {
  const std::lock_guard lock(mutex_);
  return {.device = device, .number = devices_[device]->connection};
}

bool DeviceBus::IsValid(const Connection &connection) const {
  const std::lock_guard lock(mutex_);
  return devices_[connection.device]->connection == connection.number;
}

void DeviceBus::Disconnect(const Connection &connection,
                           const std::function<void(Device &)> &visit) {
  const std::lock_guard lock(mutex_);
  Device &device = *devices_[connection.device];
  if (device.connection != connection.number) return;
  Reset(&device);
  visit(device);
}

Answer DeviceBus::Handle(const Connection &connection,
                         const ControlRequest &request) {
  const std::lock_guard lock(mutex_);
  Device &device = *devices_[connection.device];
  Answer answer;
  if (!device.pluggedIn || device.connection != connection.number) {
    answer.status = TransferStatus::Gone;
  } else if (IsStandardRequest(request.setup)) {
    answer.status = AnswerStandardRequest(device.descriptors, request.setup,
                                          &device.configuration, &answer.data);
    if (device.configuration != 0) configured_.notify_all();
  } else if (device.model) {
    answer = device.model->Handle(request.setup);
    if (answer.status == TransferStatus::Gone) UnplugLocked(&device);
  } else {
    answer.status = TransferStatus::Stall;
  }
  return answer;
}

void DeviceBus::Log(std::size_t device, const SetupPacket &setup,
                    TransferStatus status, const Bytes &delivered) {
  // mutex_ is not needed, as the numbers of mixers never change, and may be
  // locked already: unplugging a device ends its requests.
  const int mixer = devices_[device]->mixer;
  if (!log_ || mixer == 0) return;
  const std::string line =
      RequestLine(mixer, setup, status, delivered.data(), delivered.size());
  const std::lock_guard lock(logMutex_);
  log_(line);
}

bool DeviceBus::WaitUntilConfigured(std::size_t device,
                                    std::chrono::milliseconds longest) const {
  std::unique_lock lock(mutex_);
  return configured_.wait_for(
      lock, longest, [&] { return devices_[device]->configuration != 0; });
}

}  // namespace ztk::virtual_mixer
