// SPDX-License-Identifier: MIT
//
// The faults of a virtual mixer, and their text form:
//
//   KIND[@REGISTER][*TIMES]
//
//   stall        refuse the request
//   silence      never answer it
//   delay:MS     answer it MS milliseconds late, 1 to 60000
//   short:N      cut the reply to its first N bytes, 0 to 63
//   bytes:HEX    deliver these bytes instead of the reply, 1 to 64 of them
//   unplug       leave the bus during the request
//
//   @8002        only requests to this register: four hexadecimal digits;
//                @r8002 only reads of it, @w8002 only writes to it
//   *3           only the next three requests that it fits, 1 to 1000000
//
// `short` and `bytes` fit reads only: a write has no reply.
#ifndef ZTK_TOOLS_VIRTUAL_MIXER_MIXER_FAULT_H_
#define ZTK_TOOLS_VIRTUAL_MIXER_MIXER_FAULT_H_

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "virtual-mixer/mixer/request_line.h"

namespace ztk::virtual_mixer {

struct Fault {
  enum class Kind { Stall, Silence, Delay, Short, WrongBytes, Unplug };
  enum class Direction { Both, Read, Write };

  Kind kind = Kind::Stall;
  // Milliseconds of a Delay, bytes left by a Short.
  std::uint32_t amount = 0;
  std::vector<std::uint8_t> bytes;
  std::optional<std::uint16_t> registerNumber;
  Direction direction = Direction::Both;
  // Number of requests that it still applies to; without a number, all.
  std::optional<std::uint32_t> timesLeft;

  bool Fits(const SetupPacket &setup) const;
  bool HasSameScope(const Fault &other) const;
};

// Reads the text form. On failure it returns nothing, and *error is one line
// that says what is wrong and what is accepted.
std::optional<Fault> ParseFault(std::string_view text, std::string *error);

// The text form, with the remaining number of times.
std::string FormatFault(const Fault &fault);

// Both read the whole text, or return nothing. A register has four hexadecimal
// digits.
std::optional<std::uint16_t> ParseRegister(std::string_view text);
// At most so many pairs of hexadecimal digits, perhaps none.
std::optional<std::vector<std::uint8_t>> ParseBytes(std::string_view text,
                                                    std::size_t most);
// 1 to 64 pairs, as they are written on a command line.
std::optional<std::vector<std::uint8_t>> ParseBytes(std::string_view text);

}  // namespace ztk::virtual_mixer

#endif  // ZTK_TOOLS_VIRTUAL_MIXER_MIXER_FAULT_H_
