// SPDX-License-Identifier: MIT
//
// Where the mixers are plugged in. The library numbers mixers by position, so a
// number no longer identifies a mixer after another one was unplugged.
#ifndef ZTK_TOOLS_ZTK_SYSTEM_PLACES_H_
#define ZTK_TOOLS_ZTK_SYSTEM_PLACES_H_

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace ztk::model {

// The names that the system uses for the places, in the order in which the
// library numbers the mixers. Opens nothing.
std::vector<std::string> MixerPlaces();

using SystemTime = std::chrono::system_clock::time_point;

// When the mixer at the place was attached. None if that is not known: on
// macOS, where ztk does not look for it, and where the file system of /dev does
// not keep the time of a node's birth.
std::optional<SystemTime> AttachedSince(const std::string &place);

// Why a mixer cannot be opened.
enum class Obstacle : std::uint8_t {
  None,       // it can be opened
  Vanished,   // it is not attached any more
  NoNode,     // attached, but without a device node
  NoRight,    // the user may not open it
  Forbidden,  // the system lets no user open it
  Other
};

struct Access {
  Obstacle obstacle = Obstacle::None;
  std::string node;    // path of the device node, if there is one
  std::string reason;  // the error text of the system
};

// Whether the user has the right to open it. Opens nothing, so it cannot find
// other reasons.
bool MayBeOpened(const std::string &place);

// Tries to open the mixer at the place, and closes it at once.
Access TryToOpen(const std::string &place);

// For programs: "not-permitted", "gone", ...
const char *Word(Obstacle obstacle);

// Why it cannot be opened, as the rest of a sentence about a mixer, on one
// line.
std::string Explained(const Access &access);

// The text of a system code in the record of a call (ZTKOutcome.h).
std::string SystemErrorText(std::int32_t code);

}  // namespace ztk::model

#endif  // ZTK_TOOLS_ZTK_SYSTEM_PLACES_H_
