// SPDX-License-Identifier: MIT
//
// What every command that makes a world of mixers is told, and how it is
// carried out.
#ifndef ZTK_TOOLS_VIRTUAL_MIXER_WORLD_OPTIONS_H_
#define ZTK_TOOLS_VIRTUAL_MIXER_WORLD_OPTIONS_H_

#include <stdexcept>
#include <string>
#include <vector>

#include "common/file_descriptor.h"
#include "virtual-mixer/mixer/mixer_world.h"

namespace ztk::virtual_mixer {

// Something the user wrote that cannot be: one line.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

struct WorldOptions {
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
};

// Does to the mixers what the options ask for. Throws UsageError.
void Prepare(MixerWorld *world, const WorldOptions &options);

// A file of request lines. Who reads it after a request finds its line there.
class LogFile {
 public:
  // Starts the file anew; nothing is written when there is no name. Throws
  // std::runtime_error when it cannot be written.
  explicit LogFile(const std::string &name);
  // Null when nothing is written. Not to outlive this object.
  LogSink Sink() const;

 private:
  FileDescriptor file_;
};

// A program that has closed its standard streams gives their numbers to the
// next things that it opens, which then get its messages. To be called before
// anything is opened.
void FillStandardStreams();

// So that this program and its neighbours are found from a build folder too.
void AddOwnFolderToPath();

// The environment of this process with these "NAME=value" in place of its own.
std::vector<std::string> EnvironmentWith(std::vector<std::string> variables);

// Empty when there is none.
std::string Variable(const char *name);

}  // namespace ztk::virtual_mixer

#endif  // ZTK_TOOLS_VIRTUAL_MIXER_WORLD_OPTIONS_H_
