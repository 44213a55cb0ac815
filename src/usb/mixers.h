// SPDX-License-Identifier: MIT
//
// The walk over all attached mixers, which the settings share. The result of
// each request is recorded; see outcome/outcome.h.
#ifndef ZTK_USB_MIXERS_H_
#define ZTK_USB_MIXERS_H_

#include <cstdint>

#include "outcome/outcome.h"
#include "usb/USB.h"

namespace ztk::usb {

// An opened mixer that is closed at the end of the scope. If the mixer cannot
// be opened, the object is empty: nothing is sent and nothing is closed.
class OpenMixer {
 public:
  // For programs: uses visible functions only and records nothing.
  explicit OpenMixer(std::int32_t position)
      : opened_(open_pipes(&slot_, static_cast<std::uint32_t>(position)) ==
                platform::usb::kSuccess) {}
  // For the library: records why a mixer does not open for this request.
  OpenMixer(std::int32_t position, outcome::Direction direction);
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

// Counts the mixers.
std::int32_t CountMixers(std::uint32_t productId);

// Counts the mixers and writes the value to a register of each. Returns the
// count, so that a second pass visits the same positions.
std::int32_t SendToEveryMixer(std::uint32_t productId, std::uint16_t reg,
                              std::uint16_t value);

// A reply buffer. Larger than any reply, because the byte of the fifth channel
// is behind the five that a mixer sends: it keeps what it is preset to.
struct Reply {
  std::uint8_t bytes[8] = {};
};

// Opens the mixer, reads a register into the preset reply and closes the mixer.
// False when it does not open. A request that fails leaves the reply as it is.
bool ReadFromMixer(std::int32_t position, std::uint16_t reg, Reply *reply,
                   std::uint16_t length);

}  // namespace ztk::usb

#endif  // ZTK_USB_MIXERS_H_
