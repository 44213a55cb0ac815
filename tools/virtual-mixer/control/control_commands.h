// SPDX-License-Identifier: MIT
//
// The commands that change running virtual mixers, one line each:
//
//   turn M CHANNEL POSITION   turn a selector: channel 1 to 4, position up to
//                             255
//   fault M FAULT | none      add a fault (fault.h), or clear them all
//   reply M REGISTER HEX      what a register replies: 8004 0100
//   plug M   unplug M         attach the mixer, detach it
//   forbid M   allow M        refuse to open its node, or allow it again
//   show                      the state of everything
//
// M is the number of a mixer, from 1, or "all". The answer is one line too:
// "ok" and the changed mixers ("show": the state as JSON), or "error" and the
// reason.
#ifndef ZTK_TOOLS_VIRTUAL_MIXER_CONTROL_CONTROL_COMMANDS_H_
#define ZTK_TOOLS_VIRTUAL_MIXER_CONTROL_CONTROL_COMMANDS_H_

#include <string>
#include <string_view>

#include "virtual-mixer/mixer/mixer_world.h"

namespace ztk::virtual_mixer {

// Executes one command. Safe from any thread.
std::string RunControlCommand(MixerWorld *world, std::string_view line);

// The JSON that "show" answers, as text for people.
std::string DescribeState(const std::string &json);

}  // namespace ztk::virtual_mixer

#endif  // ZTK_TOOLS_VIRTUAL_MIXER_CONTROL_CONTROL_COMMANDS_H_
