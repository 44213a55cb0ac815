// SPDX-License-Identifier: MIT
#ifndef ZTK_TOOLS_VIRTUAL_MIXER_SERVE_H_
#define ZTK_TOOLS_VIRTUAL_MIXER_SERVE_H_

#include <string>
#include <vector>

#include "virtual-mixer/world_options.h"

namespace ztk::virtual_mixer {

struct ServeOptions {
  WorldOptions world;
  // Reachable from this machine only; 3240 is the standard port of USB/IP.
  std::string listen = "127.0.0.1:3240";
  // Attach the mixers to the kernel of this machine instead of listening.
  bool attach = false;
  // Serves until the command has ended or, when it is empty, until a signal.
  std::vector<std::string> command;
};

// Serves virtual mixers over USB/IP and returns the exit status. Throws
// UsageError, or std::runtime_error when it cannot serve.
int Serve(const ServeOptions &options);

}  // namespace ztk::virtual_mixer

#endif  // ZTK_TOOLS_VIRTUAL_MIXER_SERVE_H_
