// SPDX-License-Identifier: MIT
#ifndef ZTK_VIRTUAL_MIXER_RUN_H_
#define ZTK_VIRTUAL_MIXER_RUN_H_

#include <stdexcept>
#include <string>
#include <vector>

namespace ztk::virtual_mixer {

// Something the user wrote that cannot be: one line.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

struct RunOptions {
  int mixers = 1;
  int otherDevices = 0;
  int buses = 1;
  // "[M:]CHANNEL=POSITION", "[M:]REGISTER=HEX", "[M:]FAULT" and "M".
  std::vector<std::string> selectors;
  std::vector<std::string> replies;
  std::vector<std::string> faults;
  std::vector<std::string> forbidden;
  // No log when empty.
  std::string logFile;
  // The user's shell when empty.
  std::vector<std::string> command;
};

// Runs the command among virtual mixers and returns its exit status. Throws
// UsageError, or std::runtime_error when the world cannot be built.
int Run(const RunOptions &options);

}  // namespace ztk::virtual_mixer

#endif  // ZTK_VIRTUAL_MIXER_RUN_H_
