// SPDX-License-Identifier: MIT
//
// The remembered settings: one integer for each, in one property-list file for
// each model: <Library>/Preferences/com.tarvix.<model>autosetup.plist. There is
// no cache: every call reads the file. Between processes, a change of a file is
// locked; within the process there is no lock.
#ifndef ZTK_STORE_SETTINGS_FILE_H_
#define ZTK_STORE_SETTINGS_FILE_H_

#include <cstdint>

#include "ZTKFunc.h"

namespace ztk::store {

// Answers the integer under a key of the model's file, whatever its value, or
// `fallback` when the file is missing or cannot be read, or has no such key.
// Creates nothing.
std::int32_t Read(ZTKTextRef model, ZTKTextRef key, std::int32_t fallback);

// The same for a key made from a format with "%d" and a channel.
std::int32_t ReadChannel(ZTKTextRef model, ZTKTextRef keyFormat,
                         std::uint32_t channel, std::int32_t fallback);

// Puts an integer into the model's file and keeps everything else in it.
// Nothing is written when the file is there but cannot be read. A failure is
// not reported to the caller.
void Write(ZTKTextRef model, ZTKTextRef key, std::uint32_t value);
void WriteChannel(ZTKTextRef model, ZTKTextRef keyFormat, std::uint32_t channel,
                  std::uint32_t value);

}  // namespace ztk::store

#endif  // ZTK_STORE_SETTINGS_FILE_H_
