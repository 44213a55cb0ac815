// SPDX-License-Identifier: MIT
//
// The messages of USB/IP, as the kernel's documentation of the protocol lays
// them out (usbip_protocol): big-endian words, fixed sizes, and the data of a
// transfer behind its message.
#ifndef ZTK_TOOLS_VIRTUAL_MIXER_USBIP_USBIP_MESSAGES_H_
#define ZTK_TOOLS_VIRTUAL_MIXER_USBIP_USBIP_MESSAGES_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "virtual-mixer/mixer/descriptors.h"
#include "virtual-mixer/mixer/request_line.h"
#include "virtual-mixer/mixer/usb_tree.h"

namespace ztk::virtual_mixer::usbip {

inline constexpr std::uint16_t kVersion = 0x0111;

// What a client asks before it has a device.
inline constexpr std::uint16_t kListRequest = 0x8005;
inline constexpr std::uint16_t kImportRequest = 0x8003;
// Every such request begins with this; that for an import goes on with a bus
// id, padded with zeros.
inline constexpr std::size_t kOperationSize = 8;
inline constexpr std::size_t kBusIdSize = 32;

struct Operation {
  std::uint16_t version = 0;
  std::uint16_t code = 0;
};
Operation ReadOperation(const std::uint8_t *bytes);
// A bus id that fills its whole field has no end mark.
std::string ReadBusId(const std::uint8_t *bytes);

// What is told of a device.
struct Export {
  Address address;
  const Descriptors *descriptors = nullptr;
  std::uint8_t configuration = 0;
};
// The two halves of the number by which the kernel of the client names it.
std::uint32_t DeviceId(const Address &address);
// As the kernel counts speeds.
std::uint32_t SpeedNumber(const Descriptors &descriptors);

enum class ImportStatus : std::uint32_t { Ok = 0, Busy = 2, NoDevice = 4 };

Bytes ListReply(const std::vector<Export> &devices);
// `device` is told of when the status is Ok.
Bytes ImportReply(ImportStatus status, const Export &device);

// What a client that has a device sends.
inline constexpr std::uint32_t kSubmit = 1;
inline constexpr std::uint32_t kUnlink = 2;
inline constexpr std::size_t kUrbCommandSize = 48;
inline constexpr std::uint32_t kIn = 1;

struct UrbCommand {
  std::uint32_t code = 0;
  std::uint32_t sequence = 0;
  std::uint32_t deviceId = 0;
  std::uint32_t direction = 0;
  std::uint32_t endpoint = 0;
  // Of a submit. The data of one that is not In follows it.
  std::uint32_t length = 0;
  std::uint32_t packets = 0;
  SetupPacket setup;
  // Of an unlink: the request to be given up.
  std::uint32_t unlinked = 0;
};
UrbCommand ReadUrbCommand(const std::uint8_t *bytes);

// Error numbers travel as Linux has them, negative.
inline constexpr std::int32_t kNoEntry = -2;
inline constexpr std::int32_t kBrokenPipe = -32;
inline constexpr std::int32_t kConnectionReset = -104;

// `data` is what a read delivers; `done` counts the bytes of either direction.
Bytes SubmitReply(std::uint32_t sequence, std::int32_t status,
                  std::uint32_t done, const Bytes &data);
Bytes UnlinkReply(std::uint32_t sequence, std::int32_t status);

}  // namespace ztk::virtual_mixer::usbip

#endif  // ZTK_TOOLS_VIRTUAL_MIXER_USBIP_USBIP_MESSAGES_H_
