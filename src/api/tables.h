// SPDX-License-Identifier: MIT
//
// The constant tables that are visible in the library; this header is not
// installed. Each is declared here before its family defines it: C++ would
// otherwise give a const table internal linkage, and it would silently drop
// out of the library. Their lengths are binary interface.
#ifndef ZTK_API_TABLES_H_
#define ZTK_API_TABLES_H_

#include <cstdint>

#include "ZTKFunc.h"

extern "C" {

// USB input audio.
ZTK_EXPORT extern const ZTKTextRef InputAudioText[44];
ZTK_EXPORT extern const std::int32_t PC_INPUT_PULLDOWN_TEXT[42];
// NOLINTNEXTLINE(bugprone-reserved-identifier,*-naming): fixed name
ZTK_EXPORT extern const std::uint16_t _convTable_PC_INPUT[42];

// USB output audio.
ZTK_EXPORT extern const ZTKTextRef OutputAudioText[3];
ZTK_EXPORT extern const std::int32_t VRMB5_OUT_TEXT[12];
// NOLINTNEXTLINE(bugprone-reserved-identifier,*-naming): fixed name
ZTK_EXPORT extern const std::uint16_t _convTableOut_B5[9];

// Boost level.
ZTK_EXPORT extern const ZTKTextRef BoostLevelText[4];
// NOLINTNEXTLINE(bugprone-reserved-identifier,*-naming): fixed name
ZTK_EXPORT extern const std::uint8_t _convDbTable[4];

// MIDI.
ZTK_EXPORT extern const ZTKTextRef MidiChannelText[16];
ZTK_EXPORT extern const ZTKTextRef MidiKeyModeText[2];

}  // extern "C"

#endif  // ZTK_API_TABLES_H_
