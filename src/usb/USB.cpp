// SPDX-License-Identifier: MIT
#include "usb/USB.h"

#include "build_config.h"
#include "usb/connection.h"

using namespace ztk;
using namespace ztk::usb;

namespace {

namespace backend = platform::usb;

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
    return result == backend::kSuccess && vendor == build::kUsbVendorId &&
           product == kMixerProductId;
  }
};

Identity Identify(backend::Device *device) {
  Identity identity{.result = backend::kSuccess};
  // The class and subclass are read but not used. A device whose class cannot
  // be read is skipped.
  std::uint8_t unusedClass = 0;
  identity.result = backend::GetDeviceClass(device, &unusedClass);
  if (identity.result != backend::kSuccess) return identity;
  identity.result = backend::GetDeviceSubClass(device, &unusedClass);
  if (identity.result != backend::kSuccess) return identity;
  identity.result = backend::GetDeviceVendor(device, &identity.vendor);
  if (identity.result != backend::kSuccess) return identity;
  identity.result = backend::GetDeviceProduct(device, &identity.product);
  return identity;
}

// Returns the device interface of a service, or null if the device has to be
// skipped. Releases the service. *result is the result of CreatePlugIn().
backend::Device *InterfaceOf(backend::Service service, Code *result) {
  backend::PlugIn *plugIn = nullptr;
  *result = backend::CreatePlugIn(service, &plugIn);
  backend::ReleaseService(service);
  if (*result != backend::kSuccess || plugIn == nullptr) return nullptr;

  backend::Device *device = backend::QueryDevice(plugIn);
  backend::ReleasePlugIn(plugIn);
  return device;
}

// Visits all devices and puts the mixer at position `index` into the slot.
// Deliberate: the loop does not end at this mixer. The interfaces of the
// devices after it are not released, and their failures change the result.
Code ChooseMixer(backend::Iterator iterator, Connection *slot,
                 std::uint32_t index, backend::Result *cause) {
  Code result = backend::kSuccess;
  bool chosen = false;
  while (backend::Service service = backend::NextService(iterator)) {
    backend::Device *device = InterfaceOf(service, &result);
    if (device == nullptr) continue;

    const Identity identity = Identify(device);
    result = identity.result;
    if (identity.IsMixer()) {
      if (index == 0) {
        chosen = true;
        if (*slot != nullptr) {
          backend::ReleaseDevice(device);
          return backend::kError;
        }
        *slot = backend::MakeReady(device, cause);
      }
      // For the mixers after the chosen one, the index wraps around to large
      // numbers and does not become 0 again.
      --index;
    }
    if (!chosen) result = backend::ReleaseDevice(device);
  }
  return result;
}

Code FindEveryDevice(backend::Port masterPort, backend::Iterator *iterator) {
  backend::Matching *matching = backend::CreateMatching(kServiceClass);
  if (matching == nullptr) return backend::kSuccess;
  return backend::FindServices(masterPort, matching, iterator);
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

Code Open(Connection *slot, std::uint32_t index, backend::Result *cause) {
  // The cause if there is no mixer at this position.
  *cause = {.code = backend::kNoDevice};
  backend::Port masterPort = nullptr;
  backend::Iterator iterator = nullptr;
  Code result = backend::GetMasterPort(&masterPort);
  if (result == backend::kSuccess)
    result = FindEveryDevice(masterPort, &iterator);
  if (result != backend::kSuccess) *cause = {.code = result};
  if (result == backend::kSuccess && iterator != nullptr) {
    result = ChooseMixer(iterator, slot, index, cause);
  }

  if (*slot == nullptr) result = backend::kError;
  if (iterator != nullptr) backend::ReleaseIterator(iterator);
  if (masterPort != nullptr) backend::ReleaseMasterPort(masterPort);
  // The mixer could be opened, but a device after it failed.
  if (result != backend::kSuccess && cause->code == backend::kSuccess) {
    *cause = {.code = result};
  }
  return result;
}

backend::Result ReadRegister(Connection device, std::uint16_t reg,
                             std::uint8_t *buffer, std::uint16_t length,
                             std::uint32_t *lengthDone) {
  backend::ControlRequest request{.requestType = kReadRequestType,
                                  .request = kReadRequest,
                                  .value = 0,
                                  .index = reg,
                                  .length = length,
                                  .data = buffer,
                                  .lengthDone = 0,
                                  .systemCode = 0};
  const Code code = backend::Request(device, &request);
  *lengthDone = request.lengthDone;
  return {.code = code, .systemCode = request.systemCode};
}

backend::Result WriteRegister(Connection device, std::uint16_t reg,
                              std::uint16_t value) {
  std::uint16_t dataWord = 0;  // never transferred
  backend::ControlRequest request{.requestType = kWriteRequestType,
                                  .request = kWriteRequest,
                                  .value = value,
                                  .index = reg,
                                  .length = 0,
                                  .data = &dataWord,
                                  .lengthDone = 0,
                                  .systemCode = 0};
  const Code code = backend::Request(device, &request);
  return {.code = code, .systemCode = request.systemCode};
}

}  // namespace ztk::usb

std::int32_t CheckUSBAudio(std::uint32_t /*productId*/) {
  backend::Port masterPort = nullptr;
  backend::GetMasterPort(&masterPort);
  backend::Matching *matching = backend::CreateMatching(kServiceClass);
  if (matching == nullptr) return 0;

  // Deliberate: the numbers and the port are not released.
  backend::SetMatchingValue(matching, kVendorKey,
                            backend::MakeNumber(build::kUsbVendorId));
  backend::SetMatchingValue(matching, kProductKey,
                            backend::MakeNumber(kMixerProductId));
  backend::Iterator iterator = nullptr;
  const Code found = backend::FindServices(masterPort, matching, &iterator);
  if (found != backend::kSuccess || iterator == nullptr) return 0;

  std::int32_t count = 0;
  while (backend::Service service = backend::NextService(iterator)) {
    ++count;
    backend::ReleaseService(service);
  }
  backend::ReleaseIterator(iterator);
  return count;
}

Code open_pipes(Connection *slot, std::uint32_t index) {
  if (slot == nullptr) return backend::kError;
  *slot = nullptr;
  return openUSB(slot, index);
}

Code openUSB(Connection *slot, std::uint32_t index) {
  backend::Result unused;
  return Open(slot, index, &unused);
}

void closeUSB(Connection *slot) {
  if (*slot == nullptr) return;
  backend::CloseDevice(*slot);
  backend::ReleaseDevice(*slot);
  *slot = nullptr;
}

Code DeviceRequest(Connection device, std::uint8_t requestType,
                   std::uint8_t request, std::uint16_t value,
                   std::uint16_t index, void *data, std::uint16_t *length) {
  backend::ControlRequest record{.requestType = requestType,
                                 .request = request,
                                 .value = value,
                                 .index = index,
                                 .length = *length,
                                 .data = data,
                                 .lengthDone = 0,
                                 .systemCode = 0};
  const Code result = backend::Request(device, &record);
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
