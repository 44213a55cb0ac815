// SPDX-License-Identifier: MIT
#include "platform/usb.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <deque>
#include <string>

#include "build_config.h"
#include "fake/world.h"
#include "virtual-mixer/mixer/request_line.h"

namespace ztk::platform::usb {

// Objects are not freed before the process ends. So a use after the last
// release is detected and has defined behaviour.
struct PortObject {
  int references;
};
struct Matching {
  int references;
  bool narrowed;
};
struct Number {
  std::int32_t value;
};
struct IteratorObject {
  int references;
  bool counting;
  std::size_t next;
};
struct ServiceObject {
  int references;
  std::size_t position;
};
struct PlugIn {
  int references;
  std::size_t position;
};
struct Device {
  int references;
  std::size_t position;
};

namespace {

using fake::CurrentWorld;
using fake::LogCall;
using fake::LogStep;

template <typename Object>
Object *Keep(Object object) {
  static std::deque<Object> kept;
  return &kept.emplace_back(object);
}

template <typename Object>
void Release(Object *object, int *held, const char *what) {
  LogCall(std::string("release ") + what);
  if (object == nullptr || object->references <= 0) {
    CurrentWorld().misuse.push_back(std::string("released too often: ") + what);
    return;
  }
  --object->references;
  --*held;
}

template <typename Object>
void Use(const Object *object, const char *what) {
  if (object != nullptr && object->references > 0) return;
  CurrentWorld().misuse.push_back(std::string("used after release: ") + what);
}

bool IsMixer(const fake::Device &device) {
  return device.vendor == build::kUsbVendorId && device.product == 27;
}

fake::Device &DeviceAt(std::size_t position) {
  return CurrentWorld().bus.at(position);
}

// Returns the number of the mixer, from 1. Only mixers are counted.
int MixerNumber(std::size_t position) {
  const auto &bus = CurrentWorld().bus;
  const auto end = bus.begin() + static_cast<std::ptrdiff_t>(position) + 1;
  return static_cast<int>(std::count_if(bus.begin(), end, IsMixer));
}

virtual_mixer::TransferStatus TransferStatusOf(Code result) {
  switch (result) {
    case kSuccess:
      return virtual_mixer::TransferStatus::Ok;
    case kPipeStalled:
      return virtual_mixer::TransferStatus::Stall;
    case kTimeout:
      return virtual_mixer::TransferStatus::Silence;
    default:
      return virtual_mixer::TransferStatus::Gone;
  }
}

}  // namespace

Code GetMasterPort(Port *port) {
  LogCall("get master port");
  *port = nullptr;
  const Code result = CurrentWorld().masterPortResult;
  if (result != kSuccess) return result;
  ++CurrentWorld().held.ports;
  *port = Keep(PortObject{.references = 1});
  return kSuccess;
}

void ReleaseMasterPort(Port port) {
  Release(port, &CurrentWorld().held.ports, "master port");
}

Matching *CreateMatching(const char *className) {
  LogCall(std::string("create matching ") + className);
  if (!CurrentWorld().hasMatching) return nullptr;
  ++CurrentWorld().held.matchings;
  return Keep(Matching{.references = 1, .narrowed = false});
}

Number *MakeNumber(std::int32_t value) {
  LogCall("make number " + std::to_string(value));
  ++CurrentWorld().held.numbers;
  return Keep(Number{.value = value});
}

void SetMatchingValue(Matching *matching, const char *key, Number *number) {
  Use(matching, "matching");
  LogCall(std::string("match ") + key + " " + std::to_string(number->value));
  matching->narrowed = true;
}

Code FindServices(Port /*port*/, Matching *matching, Iterator *iterator) {
  const bool counting = matching->narrowed;
  LogCall(counting ? "find services that match" : "find every service");
  Use(matching, "matching");
  matching->references = 0;
  --CurrentWorld().held.matchings;
  if (counting) LogStep("count");

  *iterator = nullptr;
  if (CurrentWorld().findResult != kSuccess) return CurrentWorld().findResult;
  if (!CurrentWorld().hasIterator) return kSuccess;
  ++CurrentWorld().held.iterators;
  *iterator =
      Keep(IteratorObject{.references = 1, .counting = counting, .next = 0});
  return kSuccess;
}

Service NextService(Iterator iterator) {
  Use(iterator, "iterator");
  const auto &bus = CurrentWorld().bus;
  std::size_t &next = iterator->next;
  while (iterator->counting && next < bus.size() && !IsMixer(bus[next])) ++next;
  LogCall(next < bus.size() ? "next service" : "no further service");
  if (next >= bus.size()) return nullptr;
  ++CurrentWorld().held.services;
  return Keep(ServiceObject{.references = 1, .position = next++});
}

void ReleaseService(Service service) {
  Release(service, &CurrentWorld().held.services, "service");
}

void ReleaseIterator(Iterator iterator) {
  Release(iterator, &CurrentWorld().held.iterators, "iterator");
}

Code CreatePlugIn(Service service, PlugIn **plugIn) {
  Use(service, "service");
  LogCall("create plug-in");
  *plugIn = nullptr;
  const Code result = DeviceAt(service->position).plugInResult;
  if (result != kSuccess) return result;
  if (!DeviceAt(service->position).hasPlugIn) return kSuccess;
  ++CurrentWorld().held.plugIns;
  *plugIn = Keep(PlugIn{.references = 1, .position = service->position});
  return kSuccess;
}

Device *QueryDevice(PlugIn *plugIn) {
  Use(plugIn, "plug-in");
  LogCall("query device interface");
  if (!DeviceAt(plugIn->position).hasInterface) return nullptr;
  ++CurrentWorld().held.interfaces;
  return Keep(Device{.references = 1, .position = plugIn->position});
}

void ReleasePlugIn(PlugIn *plugIn) {
  Release(plugIn, &CurrentWorld().held.plugIns, "plug-in");
}

Code GetDeviceClass(Device *device, std::uint8_t *deviceClass) {
  Use(device, "device interface");
  LogCall("get class");
  const Code result = DeviceAt(device->position).classResult;
  if (result == kSuccess) *deviceClass = 0;
  return result;
}

Code GetDeviceSubClass(Device *device, std::uint8_t *deviceSubClass) {
  Use(device, "device interface");
  LogCall("get subclass");
  const Code result = DeviceAt(device->position).subClassResult;
  if (result == kSuccess) *deviceSubClass = 0;
  return result;
}

Code GetDeviceVendor(Device *device, std::uint16_t *vendor) {
  Use(device, "device interface");
  LogCall("get vendor");
  const Code result = DeviceAt(device->position).vendorResult;
  if (result == kSuccess) *vendor = DeviceAt(device->position).vendor;
  return result;
}

Code GetDeviceProduct(Device *device, std::uint16_t *product) {
  Use(device, "device interface");
  LogCall("get product");
  const Code result = DeviceAt(device->position).productResult;
  if (result == kSuccess) *product = DeviceAt(device->position).product;
  return result;
}

Device *MakeReady(Device *device, Result *result) {
  Use(device, "device interface");
  const std::string mixer = std::to_string(MixerNumber(device->position));
  if (!DeviceAt(device->position).canBeOpened) {
    LogStep("cannot open " + mixer);
    device->references = 0;
    --CurrentWorld().held.interfaces;
    *result = DeviceAt(device->position).openResult;
    return nullptr;
  }
  *result = {};
  LogCall("make ready");
  LogStep("open " + mixer);
  return device;
}

Code Request(Device *device, ControlRequest *request) {
  Use(device, "device interface");
  LogCall("request");
  const fake::Device &target = DeviceAt(device->position);
  fake::Answer answer{.result = target.writeResult, .bytes = {}};
  const bool isRead = (request->requestType & 0x80) != 0;
  if (isRead) {
    const auto found = target.answers.find(request->index);
    answer = found != target.answers.end()
                 ? found->second
                 : fake::Answer{.result = kPipeStalled, .bytes = {}};
  }
  if (answer.bytes.size() > request->length) {
    answer.bytes.resize(request->length);
  }
  if (!answer.bytes.empty()) {
    std::memcpy(request->data, answer.bytes.data(), answer.bytes.size());
  }
  request->lengthDone = static_cast<std::uint32_t>(answer.bytes.size());
  request->systemCode =
      answer.result == kSuccess ? 0 : target.systemCodeOfRequests;
  LogStep(RequestLine(MixerNumber(device->position),
                      {.requestType = request->requestType,
                       .request = request->request,
                       .value = request->value,
                       .index = request->index,
                       .length = request->length},
                      TransferStatusOf(answer.result), answer.bytes.data(),
                      answer.bytes.size()));
  return answer.result;
}

Code CloseDevice(Device *device) {
  Use(device, "device interface");
  LogCall("close device");
  LogStep("close " + std::to_string(MixerNumber(device->position)));
  return kSuccess;
}

std::uint32_t ReleaseDevice(Device *device) {
  Release(device, &CurrentWorld().held.interfaces, "device interface");
  return device == nullptr ? 0 : DeviceAt(device->position).releaseResult;
}

}  // namespace ztk::platform::usb
