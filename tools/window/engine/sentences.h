// SPDX-License-Identifier: MIT
//
// Sentences about the results of changes and about problems, in the user's
// language.
#ifndef ZTK_TOOLS_WINDOW_ENGINE_SENTENCES_H_
#define ZTK_TOOLS_WINDOW_ENGINE_SENTENCES_H_

#include <QString>
#include <cstdint>
#include <string>

#include "window/engine/state.h"
#include "ztk/doctor/finding.h"
#include "ztk/model/change.h"

namespace ztk::window {

// Why the change did not arrive at every mixer; empty if it did.
QString WhyNotSent(std::size_t accepted, const model::Reach &reach);

// Why the change is not stored.
QString WhyNotStored(const model::MadeChange &change);

// "USB input 2", "USB output level".
QString PlaceText(const model::Setting &setting, std::uint32_t channel);

// The text of a choice. A number that is not a choice is shown as a number.
QString ChoiceText(const model::Setting &setting, std::uint32_t channel,
                   std::uint32_t index);

// The number that the library gives to the language of the window.
std::uint32_t LibraryLanguage();

// A sentence of the model in the language of the window; in English if it is
// not one of those that are translated.
QString ModelSentence(const std::string &text);
// The same as a part of another sentence.
QString ModelText(const std::string &text);

FindingState Translated(const model::Finding &finding);

}  // namespace ztk::window

#endif  // ZTK_TOOLS_WINDOW_ENGINE_SENTENCES_H_
