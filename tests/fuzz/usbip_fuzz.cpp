// SPDX-License-Identifier: MIT
//
// Sends the input to the USB/IP server, as a client that has imported a device
// or as one that has not. Byte 0 of the input contains flags, byte 1 the size
// of the pieces.
#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "virtual-mixer/usbip/usbip_session.h"

namespace {

using namespace ztk::virtual_mixer;
using usbip::Devices;
using usbip::Session;

void Require(bool condition) {
  if (!condition) std::abort();
}

// Adds faults, so that every kind of answer occurs.
void AddFaults(Devices *devices) {
  for (const char *text : {"delay:5@8001", "silence@8004", "short:1@8006",
                           "bytes:0102030405060708@8007"}) {
    std::string error;
    const auto fault = ParseFault(text, &error);
    Require(fault.has_value());
    devices->Bus().WithMixer(
        1, [&](MixerModel &mixer) { mixer.AddFault(*fault); });
  }
}

}  // namespace

// NOLINTNEXTLINE(readability-identifier-naming): fixed name
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data,
                                      std::size_t size) {
  if (size < 2) return 0;
  std::size_t lines = 0;
  Devices devices({{}, {.kind = DeviceKind::Sibling, .bus = 1}},
                  [&](const std::string &) { ++lines; });
  AddFaults(&devices);
  {
    usbip::Lease lease;
    const bool imported = (data[0] & 1) != 0;
    if (imported) {
      Require(devices.Import(0, &lease) == usbip::ImportStatus::Ok);
    }
    Session::Clock::time_point now;
    Session session =
        imported ? Session(&devices, lease) : Session(&devices, now);
    const std::size_t piece = data[1] + std::size_t{1};
    for (std::size_t at = 2; at < size; at += piece) {
      session.Receive(data + at, std::min(piece, size - at), now);
      now += std::chrono::milliseconds(1);
      session.Continue(now);
      Require(session.Output().size() <= 4 * size + 1024);
      Require(!session.Broken() || session.Output().empty());
      if ((data[0] & 2) != 0) session.Sent(session.Output().size());
    }
  }
  // After any input, the device is not attached any more.
  Require(!devices.Status(1).pluggedIn || !*devices.Status(1).attached);
  return 0;
}
