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

// Adds a warning that explains the result 101 for a channel of USB input audio:
// the sentence of the library in the user's language, or one of this program
// when the library has none; that one says where the selector stands, and that
// `what` is not heard there. With several mixers it names those that are
// affected. Adds nothing without a mixer, or for a channel without a selector.
// May ask the mixers for the state of their ports and selectors.
void ExplainWarning(std::uint32_t channel, const std::string &what,
                    const Reach &reach, Report *report);

// The same for each change with that result.
void ExplainWarnings(const MadeChanges &made, Report *report);

// The first channels have a selector, and so a warning.
inline constexpr std::uint32_t kWarningChannels = status::kSelectors;

// The words for --language: one for each language, its name if that is one
// word.
std::vector<std::string> LanguageNames();

}  // namespace ztk::program

#endif  // ZTK_TOOLS_ZTK_COMMANDS_WARNING_H_
