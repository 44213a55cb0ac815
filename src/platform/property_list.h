// SPDX-License-Identifier: MIT
//
// Property-list files whose root is a dictionary, XML or binary.
#ifndef ZTK_PLATFORM_PROPERTY_LIST_H_
#define ZTK_PLATFORM_PROPERTY_LIST_H_

#include <cstdint>

#include "ZTKFunc.h"

namespace ztk::platform::property_list {

struct Dictionary;

// Reads a file; null when there is none, it cannot be read, or its root is not
// a dictionary. Goes back through Release(). Never creates anything.
Dictionary *ReadFile(ZTKTextRef path);

// Makes an empty dictionary that can be filled.
Dictionary *MakeDictionary();
// Adds all entries of a file; a missing or unreadable one adds nothing.
void AddEntriesOfFile(Dictionary *dictionary, ZTKTextRef path);
// Sets an integer, replacing what stood under the key.
void SetInteger(Dictionary *dictionary, ZTKTextRef key, std::int32_t value);

// Reads an entry as a 32-bit integer: an integer's low 32 bits; a real
// towards zero, held at the 32-bit limits, NaN as 0; a boolean as 0 or 1; a
// text by its leading number, held at the limits, 0 without one. False, with
// *value untouched, for an absent key or any other kind of entry.
bool IntegerValue(const Dictionary *dictionary, ZTKTextRef key,
                  std::int32_t *value);

// A text entry; null when the key is absent or its value is not a text. It
// outlives Release(): see ZTKTextRef in the public header for how long.
ZTKTextRef TextValue(const Dictionary *dictionary, ZTKTextRef key);

// Replaces the file in XML form so that a reader sees the old or the new one,
// never a part. False when it could not; then the old file stands untouched.
// A file that AddEntriesOfFile() met but could not read is kept beside the new
// one where the system can.
bool WriteAtomically(const Dictionary *dictionary, ZTKTextRef path);

// Null is allowed.
void Release(Dictionary *dictionary);

}  // namespace ztk::platform::property_list

#endif  // ZTK_PLATFORM_PROPERTY_LIST_H_
