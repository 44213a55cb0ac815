// SPDX-License-Identifier: MIT
//
// Property-list files whose root is a dictionary, XML or binary.
#ifndef ZTK_PLATFORM_PROPERTY_LIST_H_
#define ZTK_PLATFORM_PROPERTY_LIST_H_

#include <cerrno>
#include <cstdint>

#include "ZTKFunc.h"

namespace ztk::platform::property_list {

struct Dictionary;
struct Change;

// How reading a file ended.
enum class ReadState {
  Read,    // The entries were read.
  Absent,  // There is no file.
  // There is a file, and it could not be read: no permission, no descriptor or
  // memory left, an error of the disk, no regular file, or another program was
  // writing to it all the time. It may hold settings: see MayBeReplaced().
  Unavailable,
  // The file was read in full, and its root is not a dictionary, or the reader
  // refuses it. It did not change for a while. It may be replaced.
  Damaged,
};

struct ReadResult {
  ReadState state = ReadState::Absent;
  // Why a file is unavailable: the error number of the system (errno). 0
  // otherwise, and when the system gives no number.
  int error = 0;

  bool operator==(const ReadResult &) const = default;
};

// Whether a file may be replaced after it was read with this result. A file
// that cannot be read now may contain settings, which would be lost. But a
// missing permission is permanent, and nothing could be stored any more: so
// such a file is kept under another name, like a damaged one.
constexpr bool MayBeReplaced(const ReadResult &result) {
  return result.state != ReadState::Unavailable || result.error == EACCES;
}

// Reads a file. Writes the dictionary to *dictionary when the state is Read,
// else null; the caller gives it back with Release(). Never creates anything.
ReadResult Read(ZTKTextRef path, Dictionary **dictionary);
// The same for callers that treat a file that cannot be read as missing.
Dictionary *ReadFile(ZTKTextRef path);

// Begins to change a file: between BeginChange() and EndChange() the file is
// read, and then replaced or left as it is. Other processes that change a file
// of the same folder wait meanwhile. The wait is short; it ends without the
// lock where the folder cannot be locked or another process keeps it too long.
// Where the port creates a missing folder when it writes a file, this creates
// it. Changes are not nested, and one thread begins, uses and ends each of
// them. The caller gives it back with EndChange().
Change *BeginChange(ZTKTextRef path);
// Null is allowed.
void EndChange(Change *change);

// Makes an empty dictionary that can be filled.
Dictionary *MakeDictionary();
// Adds all entries of a file, if it can be read.
ReadResult AddEntriesOfFile(Dictionary *dictionary, ZTKTextRef path);
// Sets an integer, and replaces an earlier value of the key.
void SetInteger(Dictionary *dictionary, ZTKTextRef key, std::int32_t value);
// Removes an entry; does nothing where there is none.
void RemoveEntry(Dictionary *dictionary, ZTKTextRef key);

// Reads an entry as a 32-bit integer: an integer's low 32 bits; a real towards
// zero, the lowest integer for NaN and what is out of range (on Apple silicon
// Foundation returns the nearest limit, and 0 for NaN); a boolean as 0 or 1; a
// text by its leading number, held at the limits, 0 without one. False, with
// *value untouched, for an absent key or any other kind of entry.
bool IntegerValue(const Dictionary *dictionary, ZTKTextRef key,
                  std::int32_t *value);

// A text entry; null when the key is absent or its value is not a text. It
// outlives Release(): see ZTKTextRef in the public header for how long.
ZTKTextRef TextValue(const Dictionary *dictionary, ZTKTextRef key);

// Replaces the file in XML form. A reader sees the old file or the new one,
// never a part. Only a regular file is replaced. False when the file could not
// be replaced; then the old file is untouched, and *error, where `error` is not
// null, has the system's error number, or 0 when the system gives no number.
//
// If another process has replaced the file since AddEntriesOfFile() read it,
// nothing is written where the system can tell, and *error is ESTALE: the
// change has to be made again on the new file.
//
// After AddEntriesOfFile() has found the same file unavailable, nothing is
// written. A file that it found damaged, or from which it could not take every
// character, is kept beside the new one where the system can.
bool WriteAtomically(const Dictionary *dictionary, ZTKTextRef path,
                     int *error = nullptr);

// Null is allowed.
void Release(Dictionary *dictionary);

}  // namespace ztk::platform::property_list

#endif  // ZTK_PLATFORM_PROPERTY_LIST_H_
