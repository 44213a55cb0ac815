// SPDX-License-Identifier: MIT
#include "virtual-mixer/mixer/standard_requests.h"

#include <optional>

namespace ztk::virtual_mixer {
namespace {

constexpr std::uint8_t kTypeMask = 0x60;
constexpr std::uint8_t kClearFeature = 1;
constexpr std::uint8_t kSetFeature = 3;
constexpr std::uint8_t kSetAddress = 5;
constexpr std::uint8_t kGetStatus = 0;
constexpr std::uint8_t kGetDescriptor = 6;
constexpr std::uint8_t kGetConfiguration = 8;
constexpr std::uint8_t kSetConfiguration = 9;
constexpr std::uint8_t kGetInterface = 10;
constexpr std::uint8_t kSetInterface = 11;

constexpr std::uint8_t kDevice = 1;
constexpr std::uint8_t kConfiguration = 2;
constexpr std::uint8_t kString = 3;

constexpr std::size_t kFirstStringIndex = 14;

// Texts are plain ASCII here, so each character is one UTF-16 unit.
Bytes StringDescriptor(const std::string &text) {
  Bytes bytes{static_cast<std::uint8_t>(2 + 2 * text.size()), kString};
  for (const char character : text) {
    bytes.push_back(static_cast<std::uint8_t>(character));
    bytes.push_back(0);
  }
  return bytes;
}

std::optional<Bytes> FindDescriptor(const Descriptors &descriptors,
                                    const SetupPacket &setup) {
  const unsigned type = setup.value >> 8;
  const unsigned number = setup.value & 0xFFU;
  if (type == kDevice && number == 0) return descriptors.device;
  if (type == kConfiguration && number == 0) return descriptors.configuration;
  if (type != kString) return std::nullopt;
  // Index 0 lists the languages: only US English.
  if (number == 0) return Bytes{4, kString, 0x09, 0x04};
  // The device descriptor has the indexes of its three strings.
  for (std::size_t i = 0; i < descriptors.strings.size(); ++i) {
    if (descriptors.device[kFirstStringIndex + i] == number) {
      return StringDescriptor(descriptors.strings[i]);
    }
  }
  return std::nullopt;
}

std::optional<Bytes> Read(const Descriptors &descriptors,
                          const SetupPacket &setup,
                          std::uint8_t configuration) {
  switch (setup.request) {
    case kGetStatus:
      // Own power supply, no remote wake-up.
      return Bytes{static_cast<std::uint8_t>(setup.requestType == 0x80 ? 1 : 0),
                   0};
    case kGetDescriptor:
      return FindDescriptor(descriptors, setup);
    case kGetConfiguration:
      return Bytes{configuration};
    case kGetInterface:
      return Bytes{0};
    default:
      return std::nullopt;
  }
}

TransferStatus Write(const Descriptors &descriptors, const SetupPacket &setup,
                     std::uint8_t *configuration) {
  switch (setup.request) {
    case kSetConfiguration:
      if (setup.value != 0 && setup.value != descriptors.ConfigurationValue()) {
        return TransferStatus::Stall;
      }
      *configuration = static_cast<std::uint8_t>(setup.value);
      return TransferStatus::Ok;
    case kSetInterface:
      return setup.value == 0 ? TransferStatus::Ok : TransferStatus::Stall;
    case kSetAddress:
    case kClearFeature:
    case kSetFeature:
      return TransferStatus::Ok;
    default:
      return TransferStatus::Stall;
  }
}

}  // namespace

bool IsStandardRequest(const SetupPacket &setup) {
  return (setup.requestType & kTypeMask) == 0;
}

TransferStatus AnswerStandardRequest(const Descriptors &descriptors,
                                     const SetupPacket &setup,
                                     std::uint8_t *configuration, Bytes *data) {
  data->clear();
  if (!IsRead(setup)) return Write(descriptors, setup, configuration);
  const std::optional<Bytes> reply = Read(descriptors, setup, *configuration);
  if (!reply) return TransferStatus::Stall;
  *data = *reply;
  if (data->size() > setup.length) data->resize(setup.length);
  return TransferStatus::Ok;
}

}  // namespace ztk::virtual_mixer
