// SPDX-License-Identifier: MIT
#include "virtual-mixer/commands/command_table.h"

#include <utility>

#include "cli/strings.h"
#include "virtual-mixer/commands/command_parts.h"
#include "virtual-mixer/world_options.h"

namespace ztk::virtual_mixer {

const char kFaultHelp[] =
    "FAULT is KIND[@REGISTER][*TIMES]:\n"
    "  stall      refuse the request\n"
    "  silence    never answer\n"
    "  delay:MS   answer MS milliseconds late, 1 to 60000\n"
    "  short:N    cut the reply to N bytes, 0 to 63\n"
    "  bytes:HEX  reply these bytes, 1 to 64 pairs of digits\n"
    "  unplug     vanish while the request is under way, without *TIMES\n"
    "@8002 limits it to one register, @r8002 to reads of it, @w8002 to\n"
    "writes; *3 to the next three requests. A new fault replaces one with\n"
    "the same register; of several that fit, the newest counts.";

unsigned Number(const char *what, const std::string &text, unsigned least,
                unsigned most) {
  if (const auto number = cli::ParseNumber(text, least, most)) return *number;
  throw UsageError("bad " + std::string(what) + " \"" + text +
                   "\"; accepted: " + std::to_string(least) + " to " +
                   std::to_string(most));
}

cli::Option Offering(cli::Option option,
                     const std::vector<cli::Value> &values) {
  option.fill = cli::Fill::Values;
  option.values = [values](const cli::Typed & /*before*/,
                           const std::string & /*begun*/) { return values; };
  return option;
}

std::vector<cli::Value> FaultKinds() {
  return {{.word = "stall", .meaning = "refuse the request"},
          {.word = "silence", .meaning = "never answer"},
          {.word = "delay:", .meaning = "answer late, by milliseconds"},
          {.word = "short:", .meaning = "cut the reply, to bytes"},
          {.word = "bytes:", .meaning = "reply these bytes"},
          {.word = "unplug", .meaning = "vanish during the request"}};
}

const std::vector<Command> &Commands() {
  static const std::vector<Command> commands = [] {
    std::vector<Command> all = WorldCommands();
    for (Command &command : InsideCommands()) all.push_back(std::move(command));
    return all;
  }();
  return commands;
}

}  // namespace ztk::virtual_mixer
