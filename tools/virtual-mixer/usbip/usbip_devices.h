// SPDX-License-Identifier: MIT
//
// The devices that are served over USB/IP: which are free, which client has
// which of them, and what they answer. It uses no sockets.
#ifndef ZTK_TOOLS_VIRTUAL_MIXER_USBIP_USBIP_DEVICES_H_
#define ZTK_TOOLS_VIRTUAL_MIXER_USBIP_USBIP_DEVICES_H_

#include <string>
#include <vector>

#include "virtual-mixer/mixer/device_bus.h"
#include "virtual-mixer/usbip/usbip_messages.h"

namespace ztk::virtual_mixer::usbip {

// The right of one client to use a device, until the client gives it back or
// the device is unplugged. A device that comes back has to be imported again.
using Lease = Connection;

// Safe from any thread.
class Devices {
 public:
  Devices(const std::vector<Placement> &placements, LogSink log);

  // Devices that are plugged in and that no client has.
  std::vector<Export> Free();
  // Lends a device, found by its bus id or its position.
  ImportStatus Import(const std::string &busId, Lease *lease);
  ImportStatus Import(std::size_t device, Lease *lease);
  void GiveBack(const Lease &lease);
  bool Holds(const Lease &lease) const { return bus_.IsValid(lease); }
  // Describes a device to a client. Its bus id and its descriptors do not
  // change while it is lent.
  Export Describe(std::size_t device);

  // Answers a request of the client. The status of the answer is Gone when the
  // lease has ended.
  Answer Handle(const Lease &lease, const ControlRequest &request) {
    return bus_.Handle(lease, request);
  }
  // Logs how a request to a mixer ended.
  void Log(std::size_t device, const SetupPacket &setup, TransferStatus status,
           const Bytes &delivered) {
    bus_.Log(device, setup, status, delivered);
  }

  MixerStatus Status(int mixer);
  DeviceBus &Bus() { return bus_; }
  const DeviceBus &Bus() const { return bus_; }

 private:
  DeviceBus bus_;
  // Whether a client has the device. Guarded by the bus.
  std::vector<bool> lent_;
};

}  // namespace ztk::virtual_mixer::usbip

#endif  // ZTK_TOOLS_VIRTUAL_MIXER_USBIP_USBIP_DEVICES_H_
