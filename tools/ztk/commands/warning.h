// SPDX-License-Identifier: MIT
#ifndef ZTK_TOOLS_ZTK_COMMANDS_WARNING_H_
#define ZTK_TOOLS_ZTK_COMMANDS_WARNING_H_

#include <cstdint>
#include <string>

#include "api/status.h"
#include "ztk/model/change.h"
#include "ztk/model/mixers/reach.h"
#include "ztk/report.h"

namespace ztk::program {

// Adds a warning that explains the result 101 (ZTK_WARNING) for a channel of
// USB input audio. The warning is the sentence of the library in the user's
// language, if the library has one, and a sentence of this program for each
// mixer whose selector is in another position than needed: it says in which
// position the selector is, and that `what` cannot be heard in this position.
// Adds nothing without a mixer, or for a channel without a selector. Asks the
// mixers for the state of their ports and selectors.
void ExplainWarning(std::uint32_t channel, const std::string &what,
                    const Reach &reach, Report *report);

// Adds such a warning for each of the changes whose result is 101.
void ExplainWarnings(const MadeChanges &made, Report *report);

// The number of channels with an input selector. Only these channels, which are
// the first ones, have a warning text.
inline constexpr std::uint32_t kWarningChannels = status::kSelectors;

// The words for --language, one for each language: its name or, if the name has
// two words, its code.
std::vector<std::string> LanguageNames();

}  // namespace ztk::program

#endif  // ZTK_TOOLS_ZTK_COMMANDS_WARNING_H_
