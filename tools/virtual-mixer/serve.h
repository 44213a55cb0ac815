// SPDX-License-Identifier: MIT
#ifndef ZTK_TOOLS_VIRTUAL_MIXER_SERVE_H_
#define ZTK_TOOLS_VIRTUAL_MIXER_SERVE_H_

#include <string>
#include <vector>

#include "virtual-mixer/world_options.h"

namespace ztk::virtual_mixer {

struct ServeOptions {
  WorldOptions world;
  // Only this machine can reach it; the port is USB/IP's own.
  std::string listen = "127.0.0.1:3240";
  // To this machine's kernel, instead of listening.
  bool attach = false;
  // Serves until a signal comes when empty, else until the command has ended.
  std::vector<std::string> command;
};

// Serves virtual mixers over USB/IP and returns the exit status. Throws
// UsageError, or std::runtime_error when it cannot serve.
int Serve(const ServeOptions &options);

}  // namespace ztk::virtual_mixer

#endif  // ZTK_TOOLS_VIRTUAL_MIXER_SERVE_H_
