// SPDX-License-Identifier: MIT
//
// USB on the kernel's own interfaces: devices are listed from sysfs, requests
// go through the device's usbfs node. A vendor request to the device itself
// needs no claimed interface, so nothing is taken away from other programs.
//
// Only the node of the chosen mixer is ever opened, because opening a node
// resumes a suspended device. Reading sysfs does not resume it.
#include "platform/usb.h"

#include <errno.h>
#include <fcntl.h>
#include <linux/usbdevice_fs.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <cstring>
#include <memory>
#include <new>
#include <vector>

#include "platform/linux/usb_requests.h"
#include "platform/linux/usb_snapshot.h"

namespace ztk::platform::usb {

struct Matching {
  WantedDevice wanted;
};

struct PortObject {};

// A device of the snapshot, which is freed with the snapshot; or a connection,
// which is freed separately.
struct Device {
  DeviceFacts facts;
  bool isConnection = false;
  int node = -1;  // descriptor, of a connection that is open
};

// The handles Service, PlugIn and Device of one device all point to the same
// entry of the snapshot, so that no memory has to be allocated for a handle.
struct IteratorObject {
  std::vector<Device> devices;
  std::size_t next = 0;
};

namespace {

PortObject theBus;

Device *DeviceOf(Service service) {
  return reinterpret_cast<Device *>(service);
}
Device *DeviceOf(PlugIn *plugIn) { return reinterpret_cast<Device *>(plugIn); }

Result ResultOfOpening(int error) {
  const bool isGone = error == ENOENT || error == ENXIO;
  return {.code = isGone ? kNoDevice : CodeOfErrno(error), .systemCode = error};
}

// Opens the node and checks that it still belongs to the same device: since the
// snapshot another device may have got its number. Returns -1 when it cannot be
// opened; *result is the reason.
int OpenNode(const DeviceFacts &facts, Result *result) {
  *result = ResultOfOpening(ENODEV);
  const int number = ReadDeviceNumber(facts);
  if (number <= 0) return -1;
  const int node = open(NodeOf(facts, number).c_str(), O_RDWR | O_CLOEXEC);
  if (node < 0) {
    *result = ResultOfOpening(errno);
    return -1;
  }

  std::uint8_t bytes[kDeviceDescriptorLength];
  DeviceIdentity identity;
  if (read(node, bytes, sizeof bytes) == static_cast<ssize_t>(sizeof bytes) &&
      ParseDeviceDescriptor(bytes, ByteOrder::Machine, &identity) &&
      identity == facts.identity) {
    *result = {};
    return node;
  }
  close(node);
  return -1;
}

}  // namespace

Code GetMasterPort(Port *port) {
  *port = &theBus;
  return kSuccess;
}

void ReleaseMasterPort(Port /*port*/) {}

Matching *CreateMatching(const char * /*className*/) {
  return new (std::nothrow) Matching;
}

// The core never releases a Number, so a Number must not use memory: the handle
// contains the value itself.
Number *MakeNumber(std::int32_t value) {
  return reinterpret_cast<Number *>(static_cast<std::intptr_t>(value));
}

void SetMatchingValue(Matching *matching, const char *key, Number *number) {
  const auto value =
      static_cast<std::uint16_t>(reinterpret_cast<std::intptr_t>(number));
  if (std::strcmp(key, "idVendor") == 0) matching->wanted.vendor = value;
  if (std::strcmp(key, "idProduct") == 0) matching->wanted.product = value;
}

Code FindServices(Port /*port*/, Matching *matching, Iterator *iterator) try {
  const WantedDevice wanted = matching->wanted;
  delete matching;
  *iterator = nullptr;

  std::vector<DeviceFacts> found;
  if (!ReadBus(wanted, &found)) return kSuccess;
  auto snapshot = std::make_unique<IteratorObject>();
  snapshot->devices.reserve(found.size());
  for (const DeviceFacts &facts : found) {
    snapshot->devices.push_back({.facts = facts});
  }
  *iterator = snapshot.release();
  return kSuccess;
} catch (const std::bad_alloc &) {
  return kError;
}

Service NextService(Iterator iterator) {
  if (iterator->next >= iterator->devices.size()) return nullptr;
  return reinterpret_cast<Service>(&iterator->devices[iterator->next++]);
}

void ReleaseService(Service /*service*/) {}

void ReleaseIterator(Iterator iterator) { delete iterator; }

Code CreatePlugIn(Service service, PlugIn **plugIn) {
  *plugIn = reinterpret_cast<PlugIn *>(DeviceOf(service));
  return kSuccess;
}

Device *QueryDevice(PlugIn *plugIn) { return DeviceOf(plugIn); }

void ReleasePlugIn(PlugIn * /*plugIn*/) {}

Code GetDeviceClass(Device *device, std::uint8_t *deviceClass) {
  *deviceClass = device->facts.identity.deviceClass;
  return kSuccess;
}

Code GetDeviceSubClass(Device *device, std::uint8_t *deviceSubClass) {
  *deviceSubClass = device->facts.identity.deviceSubClass;
  return kSuccess;
}

Code GetDeviceVendor(Device *device, std::uint16_t *vendor) {
  *vendor = device->facts.identity.vendor;
  return kSuccess;
}

Code GetDeviceProduct(Device *device, std::uint16_t *product) {
  *product = device->facts.identity.product;
  return kSuccess;
}

// A device of the snapshot is freed with the iterator, but a connection has to
// exist longer, so it is a separate object.
Device *MakeReady(Device *device, Result *result) try {
  // The memory is allocated first, so that no node stays open if that fails.
  auto connection = std::make_unique<Device>(
      Device{.facts = device->facts, .isConnection = true});
  connection->node = OpenNode(device->facts, result);
  return connection->node < 0 ? nullptr : connection.release();
} catch (const std::bad_alloc &) {
  *result = ResultOfOpening(ENOMEM);
  return nullptr;
}

Code Request(Device *device, ControlRequest *request) {
  request->lengthDone = 0;
  request->systemCode = 0;
  // memset() also clears the padding, so that the kernel gets no other bytes of
  // this process.
  usbdevfs_ctrltransfer transfer;
  std::memset(&transfer, 0, sizeof transfer);
  transfer.bRequestType = request->requestType;
  transfer.bRequest = request->request;
  transfer.wValue = request->value;
  transfer.wIndex = request->index;
  transfer.wLength = request->length;
  transfer.timeout = kRequestTimeoutMs;
  transfer.data = request->data;

  const int done = ioctl(device->node, USBDEVFS_CONTROL, &transfer);
  if (done < 0) {
    request->systemCode = errno;
    return CodeOfErrno(errno);
  }
  request->lengthDone = static_cast<std::uint32_t>(done);
  return kSuccess;
}

Code CloseDevice(Device *device) {
  if (device->node >= 0) close(device->node);
  device->node = -1;
  return kSuccess;
}

// A device of the snapshot is freed with its iterator. A connection has been
// closed already, and is freed here.
std::uint32_t ReleaseDevice(Device *device) {
  if (device->isConnection) delete device;
  return 0;
}

}  // namespace ztk::platform::usb
