// SPDX-License-Identifier: MIT
#include "usb/USB.h"

#include "build_config.h"
#include "usb/connection.h"

using namespace ztk;
using namespace ztk::usb;

namespace {

namespace port = platform::usb;

constexpr char kServiceClass[] = "IOUSBDevice";
constexpr char kVendorKey[] = "idVendor";
constexpr char kProductKey[] = "idProduct";

constexpr std::uint8_t kReadRequestType = 0xC0;   // device to host, vendor
constexpr std::uint8_t kWriteRequestType = 0x40;  // host to device, vendor
constexpr std::uint8_t kReadRequest = 0;
constexpr std::uint8_t kWriteRequest = 3;

// The result of reading the device descriptor. After the first failure, the
// other fields are not read.
struct Identity {
  Code result;
  std::uint16_t vendor = 0;
  std::uint16_t product = 0;

  bool IsMixer() const {
    return result == port::kSuccess && vendor == build::kUsbVendorId &&
           product == kMixerProductId;
  }
};

Identity Identify(port::Device *device) {
  Identity identity{.result = port::kSuccess};
  // The class and subclass are read but not used. A device whose class cannot
  // be read is skipped.
  std::uint8_t unusedClass = 0;
  identity.result = port::GetDeviceClass(device, &unusedClass);
  if (identity.result != port::kSuccess) return identity;
  identity.result = port::GetDeviceSubClass(device, &unusedClass);
  if (identity.result != port::kSuccess) return identity;
  identity.result = port::GetDeviceVendor(device, &identity.vendor);
  if (identity.result != port::kSuccess) return identity;
  identity.result = port::GetDeviceProduct(device, &identity.product);
  return identity;
}

// Returns the device interface of a service, or null if the device has to be
// skipped. Releases the service. *result is the result of CreatePlugIn().
port::Device *InterfaceOf(port::Service service, Code *result) {
  port::PlugIn *plugIn = nullptr;
  *result = port::CreatePlugIn(service, &plugIn);
  port::ReleaseService(service);
  if (*result != port::kSuccess || plugIn == nullptr) return nullptr;

  port::Device *device = port::QueryDevice(plugIn);
  port::ReleasePlugIn(plugIn);
  return device;
}

// Visits all devices and puts the mixer at position `index` into the slot.
// Deliberate: the loop does not end at this mixer. The interfaces of the
// devices after it are not released, and their failures change the result.
Code ChooseMixer(port::Iterator iterator, Connection *slot, std::uint32_t index,
                 port::Result *cause) {
  Code result = port::kSuccess;
  bool chosen = false;
  while (port::Service service = port::NextService(iterator)) {
    port::Device *device = InterfaceOf(service, &result);
    if (device == nullptr) continue;

    const Identity identity = Identify(device);
    result = identity.result;
    if (identity.IsMixer()) {
      if (index == 0) {
        chosen = true;
        if (*slot != nullptr) {
          port::ReleaseDevice(device);
          return port::kError;
        }
        *slot = port::MakeReady(device, cause);
      }
      // For the mixers after the chosen one, the index wraps around to large
      // numbers and does not become 0 again.
      --index;
    }
    if (!chosen) result = port::ReleaseDevice(device);
  }
  return result;
}

Code FindEveryDevice(port::Port masterPort, port::Iterator *iterator) {
  port::Matching *matching = port::CreateMatching(kServiceClass);
  if (matching == nullptr) return port::kSuccess;
  return port::FindServices(masterPort, matching, iterator);
}

// Does not return the number of transferred bytes, which callers do not use.
Code Read(Connection device, std::uint16_t reg, std::uint8_t *buffer,
          std::uint16_t length) {
  std::uint32_t unused = 0;
  return ReadRegister(device, reg, buffer, length, &unused).code;
}

Code Write(Connection device, std::uint16_t reg, std::uint16_t value) {
  return WriteRegister(device, reg, value).code;
}

}  // namespace

namespace ztk::usb {

Code Open(Connection *slot, std::uint32_t index, port::Result *cause) {
  // The cause if there is no mixer at this position.
  *cause = {.code = port::kNoDevice};
  port::Port masterPort = nullptr;
  port::Iterator iterator = nullptr;
  Code result = port::GetMasterPort(&masterPort);
  if (result == port::kSuccess) result = FindEveryDevice(masterPort, &iterator);
  if (result != port::kSuccess) *cause = {.code = result};
  if (result == port::kSuccess && iterator != nullptr) {
    result = ChooseMixer(iterator, slot, index, cause);
  }

  if (*slot == nullptr) result = port::kError;
  if (iterator != nullptr) port::ReleaseIterator(iterator);
  if (masterPort != nullptr) port::ReleaseMasterPort(masterPort);
  // The mixer could be opened, but a device after it failed.
  if (result != port::kSuccess && cause->code == port::kSuccess) {
    *cause = {.code = result};
  }
  return result;
}

port::Result ReadRegister(Connection device, std::uint16_t reg,
                          std::uint8_t *buffer, std::uint16_t length,
                          std::uint32_t *lengthDone) {
  port::ControlRequest request{.requestType = kReadRequestType,
                               .request = kReadRequest,
                               .value = 0,
                               .index = reg,
                               .length = length,
                               .data = buffer,
                               .lengthDone = 0,
                               .systemCode = 0};
  const Code code = port::Request(device, &request);
  *lengthDone = request.lengthDone;
  return {.code = code, .systemCode = request.systemCode};
}

port::Result WriteRegister(Connection device, std::uint16_t reg,
                           std::uint16_t value) {
  std::uint16_t dataWord = 0;  // never transferred
  port::ControlRequest request{.requestType = kWriteRequestType,
                               .request = kWriteRequest,
                               .value = value,
                               .index = reg,
                               .length = 0,
                               .data = &dataWord,
                               .lengthDone = 0,
                               .systemCode = 0};
  const Code code = port::Request(device, &request);
  return {.code = code, .systemCode = request.systemCode};
}

}  // namespace ztk::usb

std::int32_t CheckUSBAudio(std::uint32_t /*productId*/) {
  port::Port masterPort = nullptr;
  port::GetMasterPort(&masterPort);
  port::Matching *matching = port::CreateMatching(kServiceClass);
  if (matching == nullptr) return 0;

  // Deliberate: the numbers and the port are not released.
  port::SetMatchingValue(matching, kVendorKey,
                         port::MakeNumber(build::kUsbVendorId));
  port::SetMatchingValue(matching, kProductKey,
                         port::MakeNumber(kMixerProductId));
  port::Iterator iterator = nullptr;
  const Code found = port::FindServices(masterPort, matching, &iterator);
  if (found != port::kSuccess || iterator == nullptr) return 0;

  std::int32_t count = 0;
  while (port::Service service = port::NextService(iterator)) {
    ++count;
    port::ReleaseService(service);
  }
  port::ReleaseIterator(iterator);
  return count;
}

Code open_pipes(Connection *slot, std::uint32_t index) {
  if (slot == nullptr) return port::kError;
  *slot = nullptr;
  return openUSB(slot, index);
}

Code openUSB(Connection *slot, std::uint32_t index) {
  port::Result unused;
  return Open(slot, index, &unused);
}

void closeUSB(Connection *slot) {
  if (*slot == nullptr) return;
  port::CloseDevice(*slot);
  port::ReleaseDevice(*slot);
  *slot = nullptr;
}

Code DeviceRequest(Connection device, std::uint8_t requestType,
                   std::uint8_t request, std::uint16_t value,
                   std::uint16_t index, void *data, std::uint16_t *length) {
  port::ControlRequest record{.requestType = requestType,
                              .request = request,
                              .value = value,
                              .index = index,
                              .length = *length,
                              .data = data,
                              .lengthDone = 0,
                              .systemCode = 0};
  const Code result = port::Request(device, &record);
  *length = static_cast<std::uint16_t>(record.lengthDone & 0xFFFF);
  return result;
}

Code GetFirmwareVersionNumber(Connection device, std::uint8_t *buffer,
                              std::uint16_t length) {
  return Read(device, kFirmwareVersionRegister, buffer, length);
}

Code GetInputSelectorInfo(Connection device, std::uint8_t *buffer,
                          std::uint16_t length) {
  return Read(device, kInputSelectorRegister, buffer, length);
}

Code GetSeratoActiveInfo(Connection device, std::uint8_t *buffer,
                         std::uint16_t length) {
  return Read(device, kSeratoActiveRegister, buffer, length);
}

Code GetPortInfo(Connection device, std::uint8_t *buffer,
                 std::uint16_t length) {
  return Read(device, kPortInfoRegister, buffer, length);
}

Code GetCertifyLevel(Connection device, std::uint8_t *buffer,
                     std::uint16_t length) {
  return Read(device, kCertifyLevelRegister, buffer, length);
}

Code SetMixerOutputSetting(Connection device, std::uint16_t value) {
  return Write(device, kMixerOutputRegister, value);
}

Code SetMixerInputSetting(Connection device, std::uint16_t value) {
  return Write(device, kMixerInputRegister, value);
}

Code SetUSBOutputLevelSetting(Connection device, std::uint16_t value) {
  return Write(device, kUsbOutputLevelRegister, value);
}

Code SetMidiChannelSetting(Connection device, std::uint16_t value) {
  return Write(device, kMidiChannelRegister, value);
}

Code SetMidiKeyModeSetting(Connection device, std::uint16_t value) {
  return Write(device, kMidiKeyModeRegister, value);
}
