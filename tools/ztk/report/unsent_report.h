// SPDX-License-Identifier: MIT
#ifndef ZTK_TOOLS_ZTK_REPORT_UNSENT_REPORT_H_
#define ZTK_TOOLS_ZTK_REPORT_UNSENT_REPORT_H_

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "ztk/model/history/sendings.h"
#include "ztk/report.h"

namespace ztk::program {

// What is remembered for a channel of a setting.
struct RememberedChoice {
  const Setting *setting;
  std::uint32_t channel;
  std::optional<std::uint32_t> index;  // none: nothing is remembered
};
std::vector<RememberedChoice> RememberedChoicesOf(
    const Setting &setting, const std::vector<std::uint32_t> &channels);
// Of all settings of all models.
std::vector<RememberedChoice> AllRememberedChoices();

// The commands that send what is remembered; empty if nothing is.
std::string ApplyCommands(const std::vector<RememberedChoice> &choices);

// What the mixers may have instead.
struct Unsent {
  // One for each reason, such as "Not sent, or not to every mixer: Boost
  // level", and its commands.
  struct Line {
    std::string text;
    std::string command;
  };
  std::vector<Line> lines;
  // The commands that end it, joined by semicolons; empty if there are none.
  std::string command;
};
Unsent FindUnsent(const std::vector<RememberedChoice> &choices,
                  const RecordedSending &recorded);

// These lines as one text.
std::string TextOf(const Unsent &unsent);

// These lines, and the command; empty if there are no lines.
std::string WithCommand(const Unsent &unsent);

// Adds these lines, and what to do about them; the same when no mixer is
// attached.
void AddUnsent(const std::vector<RememberedChoice> &choices,
               const RecordedSending &recorded, Report *report);

// "earlier", "incomplete", "replaced", "reset", "default" or null.
Json UnsentField(Sending sending);

}  // namespace ztk::program

#endif  // ZTK_TOOLS_ZTK_REPORT_UNSENT_REPORT_H_
