// SPDX-License-Identifier: MIT
//
// The messages of USB/IP, as the documentation of the kernel (usbip_protocol)
// describes them: big-endian words, fixed sizes, and the data of a transfer
// after its message.
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

// Requests of a client without a device.
inline constexpr std::uint16_t kListRequest = 0x8005;
inline constexpr std::uint16_t kImportRequest = 0x8003;
// Each of these requests starts with a header of this size. In an import
// request a bus id follows, padded with zeros.
inline constexpr std::size_t kOperationSize = 8;
inline constexpr std::size_t kBusIdSize = 32;

struct Operation {
  std::uint16_t version = 0;
  std::uint16_t code = 0;
};
Operation ReadOperation(const std::uint8_t *bytes);
// A bus id that fills its whole field has no zero at its end.
std::string ReadBusId(const std::uint8_t *bytes);

// The description of a device for clients.
struct Export {
  Address address;
  const Descriptors *descriptors = nullptr;
  std::uint8_t configuration = 0;
};
// Bus number in the high half, device number in the low half.
std::uint32_t DeviceId(const Address &address);
// The number of the speed in the kernel.
std::uint32_t SpeedNumber(const Descriptors &descriptors);

enum class ImportStatus : std::uint32_t { Ok = 0, Busy = 2, NoDevice = 4 };

Bytes ListReply(const std::vector<Export> &devices);
// `device` is part of the reply when the status is Ok.
Bytes ImportReply(ImportStatus status, const Export &device);

// Messages of a client that has a device.
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
  // Only in a submit message. The data of a transfer to the device follows it.
  std::uint32_t length = 0;
  std::uint32_t packets = 0;
  SetupPacket setup;
  // Only in an unlink message: the request that is cancelled.
  std::uint32_t unlinked = 0;
};
UrbCommand ReadUrbCommand(const std::uint8_t *bytes);

// Error numbers are those of Linux, negative.
inline constexpr std::int32_t kNoEntry = -2;
inline constexpr std::int32_t kBrokenPipe = -32;
inline constexpr std::int32_t kConnectionReset = -104;

// `data` are the bytes of a read; `done` is the number of bytes in either
// direction.
Bytes SubmitReply(std::uint32_t sequence, std::int32_t status,
                  std::uint32_t done, const Bytes &data);
Bytes UnlinkReply(std::uint32_t sequence, std::int32_t status);

}  // namespace ztk::virtual_mixer::usbip

#endif  // ZTK_TOOLS_VIRTUAL_MIXER_USBIP_USBIP_MESSAGES_H_
