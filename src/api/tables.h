// SPDX-License-Identifier: MIT
//
// The constant tables that the library exports. This header is not installed.
// Each table is declared here before its source defines it: without the
// declaration a const table has internal linkage in C++, and the library would
// not export it. The lengths of the tables are part of the binary interface.
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
