// SPDX-License-Identifier: MIT
//
// Reads and writes property-list files whose root is a dictionary. XML and
// binary files can be read.
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
  // There is a file, but it could not be read. Possible reasons: no permission,
  // no more descriptors or memory, an error of the disk, not a regular file, or
  // another program was writing to it all the time. The file may contain
  // settings: see MayBeReplaced().
  Unavailable,
  // The file is too large, or its content is not a property list that the
  // reader accepts, or its root is not a dictionary. It may be replaced.
  Damaged,
};

struct ReadResult {
  ReadState state = ReadState::Absent;
  // The reason why a file is unavailable, as an error number of the system
  // (errno). 0 in all other states.
  int error = 0;

  bool operator==(const ReadResult &) const = default;
};

// Returns whether a file may be replaced after it was read with this result. A
// file that is unavailable may contain settings that would be lost, so it must
// not be replaced. A missing permission is the exception: it is permanent, so
// nothing could be stored any more. Such a file is kept under another name,
// like a damaged one.
constexpr bool MayBeReplaced(const ReadResult &result) {
  return result.state != ReadState::Unavailable || result.error == EACCES;
}

// Reads a file. Sets *dictionary to the dictionary if the state is Read, else
// to null. The caller releases the dictionary with Release(). Creates nothing.
ReadResult Read(ZTKTextRef path, Dictionary **dictionary);
// Reads a file and returns the dictionary, or null if the file is missing or
// cannot be read.
Dictionary *ReadFile(ZTKTextRef path);

// Begins to change a file. Between BeginChange() and EndChange() the caller
// reads the file, and then replaces it or leaves it as it is. Other processes
// that change a file of the same folder wait until EndChange(). This function
// waits for a short time for the other processes. It returns without the lock
// if the folder cannot be locked or another process keeps the lock too long. If
// the port creates a missing folder when it writes a file, this function
// creates it.
//
// Changes must not be nested. The thread that begins a change also ends it. The
// caller releases the change with EndChange().
Change *BeginChange(ZTKTextRef path);
// Null is allowed.
void EndChange(Change *change);

// Makes an empty dictionary that can be changed.
Dictionary *MakeDictionary();
// Adds all entries of a file if the file can be read.
ReadResult AddEntriesOfFile(Dictionary *dictionary, ZTKTextRef path);
// Sets the value of a key to an integer.
void SetInteger(Dictionary *dictionary, ZTKTextRef key, std::int32_t value);
// Removes the entry of a key. Does nothing if there is no such entry.
void RemoveEntry(Dictionary *dictionary, ZTKTextRef key);

// Reads an entry as a 32-bit integer. Returns false and does not write *value
// if the key is absent or the entry is of another kind than these:
// - integer: its low 32 bits.
// - real: rounded towards zero. NaN and numbers out of range become the lowest
//   integer. On Apple silicon, Foundation returns the nearest limit for numbers
//   out of range, and 0 for NaN.
// - boolean: 0 or 1.
// - text: the number at its beginning, or the nearest limit if the number is
// out
//   of range; 0 if there is no number.
bool IntegerValue(const Dictionary *dictionary, ZTKTextRef key,
                  std::int32_t *value);

// Returns the text of an entry, or null if the key is absent or its value is
// not a text. The text is still valid after Release() of the dictionary:
// ZTKTextRef in the public header says how long.
ZTKTextRef TextValue(const Dictionary *dictionary, ZTKTextRef key);

// Replaces the file by the dictionary in XML form. A reader sees either the
// complete old file or the complete new file. Only a regular file is replaced.
// Returns false if the file could not be replaced. Then the old file is
// unchanged, and *error is the error number of the system, or 0 if the system
// gives no number (if `error` is not null).
//
// If AddEntriesOfFile() has read the same file, its result counts:
// - If another process has replaced the file since then, nothing is written and
//   *error is ESTALE. The caller has to make the change again on the new file.
// - If MayBeReplaced() is false for the result, nothing is written.
// - If the file was damaged, or if MayBeReplaced() is true although it was
//   unavailable, it is kept under another name. The Linux port also keeps a
//   file in which it had to replace characters.
bool WriteAtomically(const Dictionary *dictionary, ZTKTextRef path,
                     int *error = nullptr);

// Null is allowed.
void Release(Dictionary *dictionary);

}  // namespace ztk::platform::property_list

#endif  // ZTK_PLATFORM_PROPERTY_LIST_H_
