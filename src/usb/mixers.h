// SPDX-License-Identifier: MIT
//
// Sends requests to the attached mixers and records their results (see
// outcome/outcome.h). All families of settings use these functions.
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
  // For programs: uses only functions that the library exports, and records
  // nothing.
  explicit OpenMixer(std::int32_t position)
      : opened_(open_pipes(&slot_, static_cast<std::uint32_t>(position)) ==
                platform::usb::kSuccess) {}
  // For the library: records the reason if the mixer cannot be opened.
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
// number of mixers, so that the caller can visit the same positions again.
std::int32_t SendToEveryMixer(std::uint32_t productId, std::uint16_t reg,
                              std::uint16_t value);

// A reply buffer. It is larger than any reply: a mixer sends five bytes for its
// selectors, and the byte of the fifth channel, which is after them, keeps its
// preset value.
struct Reply {
  std::uint8_t bytes[8] = {};
};

// Opens the mixer, reads a register into the preset reply and closes the mixer.
// Returns false if the mixer cannot be opened. If the request fails, the bytes
// that the mixer has not sent keep their preset values.
bool ReadFromMixer(std::int32_t position, std::uint16_t reg, Reply *reply,
                   std::uint16_t length);

}  // namespace ztk::usb

#endif  // ZTK_USB_MIXERS_H_
