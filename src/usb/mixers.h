// SPDX-License-Identifier: MIT
//
// The walk over every attached mixer that all families share.
#ifndef ZTK_USB_MIXERS_H_
#define ZTK_USB_MIXERS_H_

#include <cstdint>

#include "usb/USB.h"

namespace ztk::usb {

// One opened mixer, closed at the end of the scope. A mixer that does not open
// is empty: nothing is sent to it and there is nothing to close.
class OpenMixer {
 public:
  explicit OpenMixer(std::int32_t position)
      : opened_(open_pipes(&slot_, static_cast<std::uint32_t>(position)) ==
                platform::usb::kSuccess) {}
  ~OpenMixer() {
    if (opened_) closeUSB(&slot_);
  }
  OpenMixer(const OpenMixer &) = delete;
  OpenMixer &operator=(const OpenMixer &) = delete;

  explicit operator bool() const { return opened_; }
  Connection connection() const { return slot_; }

 private:
  Connection slot_ = nullptr;
  bool opened_;
};

using WriteRequest = Code (*)(Connection device, std::uint16_t value);

// Counts the mixers and sends one write to each. Answers the count, so that a
// second pass walks the same positions.
std::int32_t SendToEveryMixer(std::uint32_t productId, WriteRequest request,
                              std::uint16_t value);

// A reply buffer. Larger than any reply, because the byte of the fifth channel
// lies past the five that a mixer sends: it keeps what it is preset to.
struct Reply {
  std::uint8_t bytes[8] = {};
};

}  // namespace ztk::usb

#endif  // ZTK_USB_MIXERS_H_
