// SPDX-License-Identifier: MIT
//
// Writes the record that ZTKOutcome.h describes. Each function changes the
// record of the calling thread; none of them allocates or fails. Programs read
// the record with ZTK_GetLastOutcome().
#ifndef ZTK_OUTCOME_OUTCOME_H_
#define ZTK_OUTCOME_OUTCOME_H_

#include <cstdint>

#include "ZTKOutcome.h"
#include "platform/usb.h"

namespace ztk::outcome {

// Clears the record. This is the first step of every function that sends,
// stores, reads or announces something.
void Begin();

// Records the number of mixers and clears their entries. So a call of the
// library does this once, before its requests.
void RecordMixersFound(std::int32_t count);

enum class Direction { Write, Read };

// Records that a mixer could not be opened. Positions are counted from 0.
void RecordOpenFailure(std::int32_t position, Direction direction,
                       platform::usb::Result result);

// Records how a request to an opened mixer ended. `length` is the number of
// bytes that the mixer sent.
void RecordRequest(std::int32_t position, Direction direction,
                   platform::usb::Result result, std::uint32_t length);

// `result` is one of the ZTK_FILE_ constants. If a call of the library reads or
// stores several times, the record keeps the last result.
void RecordFileRead(std::uint32_t result, std::int32_t systemCode = 0);
void RecordFileStored(std::uint32_t result, std::int32_t systemCode = 0);

// `result` is one of the ZTK_ANNOUNCEMENT_ constants.
void RecordAnnouncement(std::uint32_t result, std::int32_t systemCode = 0);

}  // namespace ztk::outcome

#endif  // ZTK_OUTCOME_OUTCOME_H_
