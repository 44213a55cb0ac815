// SPDX-License-Identifier: MIT
//
// The remembered settings. Each model has one property-list file,
// <Library>/Preferences/com.tarvix.<model>autosetup.plist, with one integer for
// each setting. There is no cache: every call reads the file. A lock separates
// the changes of different processes; there is no lock within a process.
#ifndef ZTK_STORE_SETTINGS_FILE_H_
#define ZTK_STORE_SETTINGS_FILE_H_

#include <cstdint>

#include "ZTKFunc.h"

namespace ztk::store {

// Returns the integer of a key in the file of the model. It may be any number.
// Returns `fallback` if the file is missing or cannot be read, or has no such
// key. Creates nothing.
std::int32_t Read(ZTKTextRef model, ZTKTextRef key, std::int32_t fallback);

// Does the same for a key that is made from a format with "%d" and a channel.
std::int32_t ReadChannel(ZTKTextRef model, ZTKTextRef keyFormat,
                         std::uint32_t channel, std::int32_t fallback);

// Stores an integer in the file of the model and keeps all other entries.
// Writes nothing if the file exists but cannot be read now, because it may
// contain settings. A failure is recorded (file_outcome.h) but not returned.
void Write(ZTKTextRef model, ZTKTextRef key, std::uint32_t value);
void WriteChannel(ZTKTextRef model, ZTKTextRef keyFormat, std::uint32_t channel,
                  std::uint32_t value);

}  // namespace ztk::store

#endif  // ZTK_STORE_SETTINGS_FILE_H_
