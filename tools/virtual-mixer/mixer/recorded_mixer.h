// SPDX-License-Identifier: MIT
//
// Mixers as a report describes them, which "ztk doctor --report" writes
// (docs/report-format.md).
#ifndef ZTK_TOOLS_VIRTUAL_MIXER_MIXER_RECORDED_MIXER_H_
#define ZTK_TOOLS_VIRTUAL_MIXER_MIXER_RECORDED_MIXER_H_

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "virtual-mixer/mixer/descriptors.h"
#include "virtual-mixer/mixer/fault.h"

namespace ztk::virtual_mixer {

struct RecordedMixer {
  // Without a serial number: reports have none.
  Descriptors descriptors;
  // By register, of the registers that replied.
  std::map<std::uint16_t, Bytes> replies;
  // The registers that the report has.
  std::set<std::uint16_t> registers;
  // The reads that failed and, if delays are wanted, how late replies come.
  std::vector<Fault> faults;
};

enum class Delays { Ignored, Replayed };

struct RecordedMixers {
  std::vector<RecordedMixer> mixers;
  // The numbers, from 1, of the mixers that could not be opened when the report
  // was made.
  std::vector<std::size_t> leftOut;
};

// Throws std::runtime_error, with one sentence, when the text is no report that
// this program understands, or has no mixer that was opened.
RecordedMixers ParseReport(const std::string &text, Delays delays);

// The same, of the report in a file, which the sentence names.
RecordedMixers ReadReport(const std::string &file, Delays delays);

}  // namespace ztk::virtual_mixer

#endif  // ZTK_TOOLS_VIRTUAL_MIXER_MIXER_RECORDED_MIXER_H_
