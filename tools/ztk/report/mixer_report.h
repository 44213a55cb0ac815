// SPDX-License-Identifier: MIT
//
// The report that a user sends to a maintainer: what the mixers and the system
// are like, without private data (docs/report-format.md). The virtual mixer
// replays it.
#ifndef ZTK_TOOLS_ZTK_REPORT_MIXER_REPORT_H_
#define ZTK_TOOLS_ZTK_REPORT_MIXER_REPORT_H_

#include <string>

#include "ztk/report.h"

namespace ztk::program {

// Asks each mixer for its descriptors and reads each register once, which
// changes nothing and takes up to 1 s for each answer that does not come.
// `findings` is the list in the doctor's own JSON.
Json MakeMixerReport(const Json &findings);

// Writes the report as indented JSON. Returns why the file cannot be written;
// empty on success.
std::string WriteMixerReport(const Json &report, const std::string &file);

}  // namespace ztk::program

#endif  // ZTK_TOOLS_ZTK_REPORT_MIXER_REPORT_H_
