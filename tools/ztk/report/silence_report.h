// SPDX-License-Identifier: MIT
#ifndef ZTK_TOOLS_ZTK_REPORT_SILENCE_REPORT_H_
#define ZTK_TOOLS_ZTK_REPORT_SILENCE_REPORT_H_

#include <vector>

#include "ztk/model/silence.h"
#include "ztk/report.h"

namespace ztk::program {

// Adds why nothing is recorded on these channels, a line for each.
void AddSilence(const std::vector<SilentRouting> &silent, bool namesMixers,
                Report *report);

}  // namespace ztk::program

#endif  // ZTK_TOOLS_ZTK_REPORT_SILENCE_REPORT_H_
