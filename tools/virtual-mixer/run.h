// SPDX-License-Identifier: MIT
#ifndef ZTK_TOOLS_VIRTUAL_MIXER_RUN_H_
#define ZTK_TOOLS_VIRTUAL_MIXER_RUN_H_

#include <string>
#include <vector>

#include "virtual-mixer/world_options.h"

namespace ztk::virtual_mixer {

struct RunOptions {
  WorldOptions world;
  // Whether settings are kept in a folder of this run.
  bool privateSettings = false;
  // The user's shell is run when this is empty.
  std::vector<std::string> command;
};

// Runs the command among virtual mixers and returns its exit status. Throws
// UsageError, or std::runtime_error when the sandbox cannot be built.
int Run(const RunOptions &options);

}  // namespace ztk::virtual_mixer

#endif  // ZTK_TOOLS_VIRTUAL_MIXER_RUN_H_
