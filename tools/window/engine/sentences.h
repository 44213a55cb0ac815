// SPDX-License-Identifier: MIT
//
// What became of changes, and what does not work, in the user's language.
#ifndef ZTK_TOOLS_WINDOW_ENGINE_SENTENCES_H_
#define ZTK_TOOLS_WINDOW_ENGINE_SENTENCES_H_

#include <QString>

#include "window/engine/state.h"
#include "ztk/doctor/finding.h"
#include "ztk/model/change.h"

namespace ztk::window {

// Why the change did not arrive at every mixer; empty where it did.
QString WhyNotSent(std::size_t accepted, const model::Reach &reach);

// Why the change is not stored.
QString WhyNotStored(const model::MadeChange &change);

// "USB input 2", "Boost level".
QString PlaceText(const model::Setting &setting, std::uint32_t channel);

// The text of a choice; the number of one that there is not.
QString ChoiceText(const model::Setting &setting, std::uint32_t channel,
                   std::uint32_t index);

FindingState Translated(const model::Finding &finding);

}  // namespace ztk::window

#endif  // ZTK_TOOLS_WINDOW_ENGINE_SENTENCES_H_
