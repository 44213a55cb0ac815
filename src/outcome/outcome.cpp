// SPDX-License-Identifier: MIT
#include "outcome/outcome.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

using namespace ztk;

namespace {

// ZTKOutcome has neither a constructor nor a destructor, so no function has to
// be registered that runs at the end of a thread.
constinit thread_local ZTKOutcome theRecord = {};

std::uint32_t ResultOf(platform::usb::Code code) {
  switch (code) {
    case platform::usb::kSuccess:
      return ZTK_REQUEST_ACCEPTED;
    case platform::usb::kPipeStalled:
      return ZTK_REQUEST_REFUSED;
    case platform::usb::kTimeout:
    case platform::usb::kTransactionTimeout:
    case platform::usb::kNotResponding:
      return ZTK_REQUEST_SILENT;
    case platform::usb::kNoDevice:
    case platform::usb::kNotAttached:
      return ZTK_REQUEST_GONE;
    case platform::usb::kNotPermitted:
      return ZTK_REQUEST_NOT_PERMITTED;
    default:
      return ZTK_REQUEST_FAILED;
  }
}

void SetRequest(std::int32_t position, outcome::Direction direction,
                const ZTKRequestOutcome &request) {
  if (static_cast<std::uint32_t>(position) >= theRecord.mixersListed) return;
  ZTKMixerOutcome &mixer = theRecord.mixers[position];
  (direction == outcome::Direction::Write ? mixer.write : mixer.read) = request;
}

}  // namespace

namespace ztk::outcome {

// Clears the record except the entries of the mixers. RecordMixersFound()
// clears the entries that a call uses, which are few.
void Begin() { std::memset(&theRecord, 0, offsetof(ZTKOutcome, mixers)); }

void RecordMixersFound(std::int32_t count) {
  theRecord.mixersFound = static_cast<std::uint32_t>(count);
  theRecord.mixersListed = std::min(theRecord.mixersFound, ZTK_OUTCOME_MIXERS);
  std::memset(theRecord.mixers, 0,
              theRecord.mixersListed * sizeof *theRecord.mixers);
}

void RecordOpenFailure(std::int32_t position, Direction direction,
                       platform::usb::Result result) {
  SetRequest(position, direction,
             {.result = ResultOf(result.code),
              .opened = 0,
              .length = 0,
              .systemCode = result.systemCode});
}

void RecordRequest(std::int32_t position, Direction direction,
                   platform::usb::Result result, std::uint32_t length) {
  SetRequest(position, direction,
             {.result = ResultOf(result.code),
              .opened = 1,
              .length = length,
              .systemCode = result.systemCode});
}

void RecordFileRead(std::uint32_t result, std::int32_t systemCode) {
  theRecord.read = {.result = result, .systemCode = systemCode};
}

void RecordFileStored(std::uint32_t result, std::int32_t systemCode) {
  theRecord.store = {.result = result, .systemCode = systemCode};
}

void RecordAnnouncement(std::uint32_t result, std::int32_t systemCode) {
  theRecord.announcement = {.result = result, .systemCode = systemCode};
}

}  // namespace ztk::outcome

ZTKResult ZTK_GetLastOutcome(ZTKOutcome *outcome) {
  if (outcome == nullptr) return ZTK_REJECTED;
  const std::uint32_t size = outcome->size;
  if (size < sizeof size) return ZTK_REJECTED;

  const std::size_t known =
      offsetof(ZTKOutcome, mixers) +
      std::size_t{theRecord.mixersListed} * sizeof *theRecord.mixers;
  std::memset(outcome, 0, size);
  std::memcpy(outcome, &theRecord, std::min<std::size_t>(size, known));
  outcome->size = size;
  return ZTK_SUCCESS;
}
