// SPDX-License-Identifier: MIT
//
// Where the mixers are plugged in, seen past the library: it numbers mixers,
// and a number says nothing once one of them has gone.
#ifndef ZTK_TOOLS_ZTK_SYSTEM_PLACES_H_
#define ZTK_TOOLS_ZTK_SYSTEM_PLACES_H_

#include <cstdint>
#include <string>
#include <vector>

namespace ztk::model {

// The system's names of the places, in the order in which the library numbers
// their mixers. Opens nothing.
std::vector<std::string> MixerPlaces();

// What keeps a mixer from being opened.
enum class Obstacle : std::uint8_t {
  None,       // it can be opened
  Vanished,   // it is not attached any more
  NoNode,     // attached, but nothing here leads to it
  NoRight,    // the user may not open it
  Forbidden,  // no right of a user would help: the system keeps all out
  Other
};

struct Access {
  Obstacle obstacle = Obstacle::None;
  std::string node;    // what is opened, where there is such a thing
  std::string reason;  // in the words of the system
};

// Whether the user has the right to. Opens nothing, so it cannot tell more.
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
