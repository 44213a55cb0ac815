// SPDX-License-Identifier: MIT
#ifndef ZTK_TOOLS_VIRTUAL_MIXER_MIXER_STANDARD_REQUESTS_H_
#define ZTK_TOOLS_VIRTUAL_MIXER_MIXER_STANDARD_REQUESTS_H_

#include "virtual-mixer/mixer/descriptors.h"
#include "virtual-mixer/mixer/request_line.h"

namespace ztk::virtual_mixer {

bool IsStandardRequest(const SetupPacket &setup);

// Answers the requests that all USB devices answer: descriptors, status and
// configuration. *configuration is the chosen one, 0 when none is. Answers Ok
// or Stall; *data is cut to what was asked for.
TransferStatus AnswerStandardRequest(const Descriptors &descriptors,
                                     const SetupPacket &setup,
                                     std::uint8_t *configuration, Bytes *data);

}  // namespace ztk::virtual_mixer

#endif  // ZTK_TOOLS_VIRTUAL_MIXER_MIXER_STANDARD_REQUESTS_H_
