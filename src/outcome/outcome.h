// SPDX-License-Identifier: MIT
//
// The writing side of the record that ZTKOutcome.h describes. Each function
// changes the record of the calling thread; none of them allocates or fails.
// Nothing in the library reads the record.
#ifndef ZTK_OUTCOME_OUTCOME_H_
#define ZTK_OUTCOME_OUTCOME_H_

#include <cstdint>

#include "ZTKOutcome.h"
#include "platform/usb.h"

namespace ztk::outcome {

// The first step of every function that sends, stores, reads or announces.
void Begin();

// The mixers were counted; a call counts them once.
void MixersFound(std::int32_t count);

enum class Direction { Write, Read };

// A mixer, by its position from 0, could not be opened.
void NotOpened(std::int32_t position, Direction direction,
               platform::usb::Result result);

// A request to an opened mixer ended. `length` is what the mixer sent.
void Requested(std::int32_t position, Direction direction,
               platform::usb::Result result, std::uint32_t length);

// `result` is one of the ZTK_FILE_ constants. The last one of a call stays.
void Read(std::uint32_t result, std::int32_t systemCode = 0);
void Stored(std::uint32_t result, std::int32_t systemCode = 0);

// `result` is one of the ZTK_ANNOUNCEMENT_ constants.
void Announced(std::uint32_t result, std::int32_t systemCode = 0);

}  // namespace ztk::outcome

#endif  // ZTK_OUTCOME_OUTCOME_H_
