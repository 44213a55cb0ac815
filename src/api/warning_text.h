// SPDX-License-Identifier: MIT
//
// Where the warning texts are, their keys, and the models, channels and
// languages that have them.
#ifndef ZTK_API_WARNING_TEXT_H_
#define ZTK_API_WARNING_TEXT_H_

#include <cstdint>

#include "ZTKFunc.h"
#include "api/product_set.h"

namespace ztk::warning_text {

// The models that have warning texts.
inline constexpr ProductSet kServed{ZTK_PRODUCT_VRM_D6};
// Deliberate: the fifth channel has no input selector, so there is no text for
// it although it can be set.
inline constexpr std::int32_t kChannels = 4;

// The bundle that holds the texts; IsInstalledInLibrary() selects the first.
inline const ZTKTextRef kNewBundle =
    ZTK_TEXT("/Library/Frameworks/VRM-D6Setup.framework");
inline const ZTKTextRef kOldBundle =
    ZTK_TEXT("/System/Library/Frameworks/VRM-D6Setup.framework");
inline const ZTKTextRef kTable = ZTK_TEXT("Localizable");

// Keys of the texts: no mixer is attached; the input selector has to be turned;
// the same, when the computer is connected to the other USB port of the mixer.
inline const ZTKTextRef kNoMixer = ZTK_TEXT("WARNING1");
inline const ZTKTextRef kSelector = ZTK_TEXT("WARNING2");
inline const ZTKTextRef kSelectorOtherPort = ZTK_TEXT("WARNING3");

// The folders of the languages. The number of a language is its position in
// this list.
inline const ZTKTextRef kLanguages[] = {
    ZTK_TEXT("English"), ZTK_TEXT("Japanese"), ZTK_TEXT("French"),
    ZTK_TEXT("German"),  ZTK_TEXT("Italian"),  ZTK_TEXT("Dutch"),
    ZTK_TEXT("Spanish"), ZTK_TEXT("ru"),       ZTK_TEXT("pt"),
    ZTK_TEXT("zh_CN"),   ZTK_TEXT("zh_TW"),    ZTK_TEXT("ko")};
inline constexpr std::uint32_t kUsersLanguage = 99;

}  // namespace ztk::warning_text

#endif  // ZTK_API_WARNING_TEXT_H_
