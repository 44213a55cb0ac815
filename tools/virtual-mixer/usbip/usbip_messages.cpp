// SPDX-License-Identifier: MIT
#include "virtual-mixer/usbip/usbip_messages.h"

#include <algorithm>

namespace ztk::virtual_mixer::usbip {
namespace {

constexpr std::uint16_t kListAnswer = 0x0005;
constexpr std::uint16_t kImportAnswer = 0x0003;
constexpr std::uint32_t kSubmitAnswer = 3;
constexpr std::uint32_t kUnlinkAnswer = 4;
constexpr std::size_t kPathSize = 256;
// Bytes after the status in a reply to an unlink message.
constexpr std::size_t kUnlinkPadding = 24;

std::uint16_t Half(const std::uint8_t *bytes) {
  return static_cast<std::uint16_t>(bytes[0] << 8 | bytes[1]);
}

std::uint32_t Word(const std::uint8_t *bytes) {
  return static_cast<std::uint32_t>(Half(bytes)) << 16 | Half(bytes + 2);
}

// A setup packet is little-endian, as on the wire of USB.
std::uint16_t UsbHalf(const std::uint8_t *bytes) {
  return static_cast<std::uint16_t>(bytes[0] | bytes[1] << 8);
}

void PutHalf(std::uint16_t value, Bytes *out) {
  out->push_back(static_cast<std::uint8_t>(value >> 8));
  out->push_back(static_cast<std::uint8_t>(value & 0xFF));
}

void PutWord(std::uint32_t value, Bytes *out) {
  PutHalf(static_cast<std::uint16_t>(value >> 16), out);
  PutHalf(static_cast<std::uint16_t>(value & 0xFFFF), out);
}

void PutText(const std::string &text, std::size_t size, Bytes *out) {
  out->insert(out->end(), text.begin(), text.end());
  out->insert(out->end(), size - text.size(), 0);
}

void PutOperation(std::uint16_t code, std::uint32_t status, Bytes *out) {
  PutHalf(kVersion, out);
  PutHalf(code, out);
  PutWord(status, out);
}

void PutDevice(const Export &device, Bytes *out) {
  const Descriptors &descriptors = *device.descriptors;
  PutText(device.address.SysPath(), kPathSize, out);
  PutText(device.address.Name(), kBusIdSize, out);
  PutWord(static_cast<std::uint32_t>(device.address.bus), out);
  PutWord(static_cast<std::uint32_t>(device.address.DeviceNumber()), out);
  PutWord(SpeedNumber(descriptors), out);
  PutHalf(descriptors.Vendor(), out);
  PutHalf(descriptors.Product(), out);
  PutHalf(descriptors.Release(), out);
  // Class, subclass and protocol.
  out->insert(out->end(), descriptors.device.begin() + 4,
              descriptors.device.begin() + 7);
  out->push_back(device.configuration);
  out->push_back(descriptors.device[17]);
  out->push_back(static_cast<std::uint8_t>(descriptors.Interfaces().size()));
}

void PutInterfaces(const Descriptors &descriptors, Bytes *out) {
  for (const Interface &interface : descriptors.Interfaces()) {
    out->insert(out->end(), {interface.interfaceClass, interface.subclass,
                             interface.protocol, 0});
  }
}

// The header of an answer: the sequence number is enough to find the request.
void PutAnswer(std::uint32_t code, std::uint32_t sequence, std::int32_t status,
               Bytes *out) {
  for (const std::uint32_t word : {code, sequence, 0U, 0U, 0U}) {
    PutWord(word, out);
  }
  PutWord(static_cast<std::uint32_t>(status), out);
}

}  // namespace

Operation ReadOperation(const std::uint8_t *bytes) {
  return {.version = Half(bytes), .code = Half(bytes + 2)};
}

std::string ReadBusId(const std::uint8_t *bytes) {
  return {bytes, std::find(bytes, bytes + kBusIdSize, 0)};
}

std::uint32_t DeviceId(const Address &address) {
  return static_cast<std::uint32_t>(address.bus) << 16 |
         static_cast<std::uint32_t>(address.DeviceNumber());
}

std::uint32_t SpeedNumber(const Descriptors &descriptors) {
  constexpr std::uint32_t kLow = 1;
  constexpr std::uint32_t kFull = 2;
  constexpr std::uint32_t kHigh = 3;
  if (descriptors.speed == "1.5") return kLow;
  // The ports that devices are attached to here have at most this speed.
  return descriptors.speed == "12" ? kFull : kHigh;
}

Bytes ListReply(const std::vector<Export> &devices) {
  Bytes reply;
  PutOperation(kListAnswer, 0, &reply);
  PutWord(static_cast<std::uint32_t>(devices.size()), &reply);
  for (const Export &device : devices) {
    PutDevice(device, &reply);
    PutInterfaces(*device.descriptors, &reply);
  }
  return reply;
}

Bytes ImportReply(ImportStatus status, const Export &device) {
  Bytes reply;
  PutOperation(kImportAnswer, static_cast<std::uint32_t>(status), &reply);
  if (status == ImportStatus::Ok) PutDevice(device, &reply);
  return reply;
}

UrbCommand ReadUrbCommand(const std::uint8_t *bytes) {
  UrbCommand command;
  command.code = Word(bytes);
  command.sequence = Word(bytes + 4);
  command.deviceId = Word(bytes + 8);
  command.direction = Word(bytes + 12);
  command.endpoint = Word(bytes + 16);
  if (command.code == kUnlink) {
    command.unlinked = Word(bytes + 20);
    return command;
  }
  command.length = Word(bytes + 24);
  command.packets = Word(bytes + 32);
  const std::uint8_t *const setup = bytes + 40;
  command.setup = {.requestType = setup[0],
                   .request = setup[1],
                   .value = UsbHalf(setup + 2),
                   .index = UsbHalf(setup + 4),
                   .length = UsbHalf(setup + 6)};
  return command;
}

Bytes SubmitReply(std::uint32_t sequence, std::int32_t status,
                  std::uint32_t done, const Bytes &data) {
  Bytes reply;
  PutAnswer(kSubmitAnswer, sequence, status, &reply);
  PutWord(done, &reply);
  // First frame, packets, errors, and eight bytes that mean nothing: all for
  // isochronous transfers, which no device here has. Linux's own server says 0
  // packets, too.
  for (int word = 0; word < 5; ++word) PutWord(0, &reply);
  reply.insert(reply.end(), data.begin(), data.end());
  return reply;
}

Bytes UnlinkReply(std::uint32_t sequence, std::int32_t status) {
  Bytes reply;
  PutAnswer(kUnlinkAnswer, sequence, status, &reply);
  reply.insert(reply.end(), kUnlinkPadding, 0);
  return reply;
}

}  // namespace ztk::virtual_mixer::usbip
