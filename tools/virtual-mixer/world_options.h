// SPDX-License-Identifier: MIT
//
// The options of the commands that start virtual mixers, and how they are
// carried out.
#ifndef ZTK_TOOLS_VIRTUAL_MIXER_WORLD_OPTIONS_H_
#define ZTK_TOOLS_VIRTUAL_MIXER_WORLD_OPTIONS_H_

#include <string>
#include <vector>

#include "cli/parser.h"
#include "platform/common/file_descriptor.h"
#include "virtual-mixer/mixer/mixer_world.h"

namespace ztk::virtual_mixer {

using cli::UsageError;

struct WorldOptions {
  // A report, whose mixers are replayed; `mixers` mixers when empty.
  std::string reportFile;
  // Whether they answer as late as in the report.
  Delays delays = Delays::Ignored;
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

// The devices that the options ask for. Throws UsageError when the report
// cannot be replayed.
std::vector<Placement> PlacementsFor(const WorldOptions &options);

// Prepares the mixers as the options ask for. Throws UsageError.
void Prepare(MixerWorld *world, const WorldOptions &options);

// A file of request lines. The line of a request is in the file before the
// program that sent the request goes on.
class LogFile {
 public:
  // Empties the file; nothing is written when there is no name. Throws
  // std::runtime_error when it cannot be written.
  explicit LogFile(const std::string &name);
  // Null when nothing is written. Not to outlive this object.
  LogSink Sink() const;

 private:
  platform::FileDescriptor file_;
};

// Opens /dev/null for each standard stream that is closed. Otherwise the next
// files would get their numbers, and the messages of the program. To be called
// before anything is opened.
void FillStandardStreams();

// Makes programs inside find this program and ztk in a build folder too.
void AddOwnFolderToPath();

// The environment of this process, in which these "NAME=value" replace its own.
std::vector<std::string> EnvironmentWith(std::vector<std::string> variables);

}  // namespace ztk::virtual_mixer

#endif  // ZTK_TOOLS_VIRTUAL_MIXER_WORLD_OPTIONS_H_
